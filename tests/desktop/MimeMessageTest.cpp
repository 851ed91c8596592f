#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <gtest/gtest.h>
#include <tuple>

#include "desktop/MessageUI/MimeMessage.h"
#include "plist/Document.h"
#include "tests/desktop/PhoneTest.h"
#include "tests/support/TemporaryFolder.h"

namespace desktop_tests {
namespace {

using desktop::MimeMessage;

/// Reads a message strictly and answers what it holds as a property list.
constexpr const char* reader = R"(
import email, email.policy, plistlib, sys
message = email.message_from_binary_file(
    open(sys.argv[1], 'rb'), policy=email.policy.default.clone(raise_on_defect=True))
body = message.get_body()
answer = {name: value for name, value in message.items()}
answer['sent'] = message['Date'].datetime.timestamp()
answer['id'] = message['Message-ID']
answer['type'] = body.get_content_type()
answer['charset'] = body.get_content_charset()
answer['body'] = body.get_content()
answer['files'] = [[each.get_filename(), each.get_content_type(), each.get_payload(decode=True),
                    each.get_content_charset('none')]
                   for each in message.iter_attachments()]
answer['to'] = [[each.display_name, each.addr_spec]
                for each in getattr(message['To'], 'addresses', [])]
sys.stdout.buffer.write(plistlib.dumps(answer))
)";

/// The message as another program reads it.
plist::Dictionary readBack(const std::string& bytes) {
  const support::TemporaryFolder folder;
  writeBytes(folder.path / "reader.py", reader);
  writeBytes(folder.path / "message.eml", bytes);
  const std::string command =
      "cd " + folder.path.string() + " && python3 reader.py message.eml >answer.plist";
  EXPECT_EQ(std::system(command.c_str()), 0) << bytes;
  return *plist::read(bytesOf(folder.path / "answer.plist")).root.dictionary();
}

std::string textAt(const plist::Dictionary& read, const char* key) {
  const plist::Value* value = read.find(key);
  return value ? std::string(value->string().value_or("no text")) : "nothing";
}

std::string textAt(const plist::Value& row, std::size_t index) {
  return std::string((*row.array())[index].string().value_or("no text"));
}

MimeMessage simple() {
  MimeMessage message;
  message.recipients = "Jo <jo@example.com>";
  message.subject = "Subject";
  message.body = "Text\n";
  return message;
}

/// The length of the longest line; -1 when a line does not end in CR LF.
int longestLine(const std::string& bytes) {
  int longest = 0;
  int line = 0;
  for (std::size_t at = 0; at < bytes.size(); ++at) {
    const bool isEnd = bytes[at] == '\n';
    if ((bytes[at] == '\r') != (bytes.substr(at + 1, 1) == "\n")) return -1;
    line = isEnd ? 0 : line + 1;
    longest = std::max(longest, line);
  }
  return longest;
}

TEST(MimeMessageTest, IsReadByOthersAsItWasWritten) {
  const std::time_t before = std::time(nullptr);
  const plist::Dictionary read = readBack(format(simple()));
  EXPECT_EQ(textAt(read, "To"), "Jo <jo@example.com>");
  EXPECT_EQ(textAt(read, "From"), "Quillmere user <mobile@localhost>");
  EXPECT_EQ(textAt(read, "Subject"), "Subject");
  EXPECT_EQ(textAt(read, "MIME-Version"), "1.0");
  EXPECT_EQ(textAt(read, "type"), "text/plain");
  EXPECT_EQ(textAt(read, "charset"), "utf-8");
  EXPECT_EQ(textAt(read, "body"), "Text\n");
  EXPECT_TRUE(textAt(read, "id").ends_with("@localhost>"));
  EXPECT_NE(textAt(read, "id"), textAt(readBack(format(simple())), "id"));
  EXPECT_NEAR(read.find("sent")->real().value(), static_cast<double>(before), 60);
}

TEST(MimeMessageTest, CarriesAllOfUnicodeInSevenBits) {
  MimeMessage message = simple();
  message.recipients = "\"Jö, 😀\" <jo@example.com>, al@example.com";
  message.subject = "Ünï cödé 日本語 😀 " + std::string(200, 'x') + " " + std::string(200, 'y');
  message.body = "Ünï\n\n日本語 😀\n" + std::string(2000, 'z') + "\n.\nFrom me  \n";
  const std::string bytes = format(message);
  EXPECT_TRUE(std::ranges::all_of(bytes, [](char byte) { return byte > 0; }));
  EXPECT_LE(longestLine(bytes), 998);
  EXPECT_GT(longestLine(bytes), 0);
  const plist::Dictionary read = readBack(bytes);
  EXPECT_EQ(textAt(read, "Subject"), message.subject);
  EXPECT_EQ(textAt(read, "body"), message.body);
  const plist::Array& to = *read.find("to")->array();
  ASSERT_EQ(to.size(), 2U);
  EXPECT_EQ(textAt(to[0], 0), "Jö, 😀");
  EXPECT_EQ(textAt(to[0], 1), "jo@example.com");
  EXPECT_EQ(textAt(to[1], 1), "al@example.com");
}

TEST(MimeMessageTest, CarriesFilesByteForByte) {
  std::string all;
  for (int byte = 0; byte < 256 * 20; ++byte) all += static_cast<char>(byte);
  MimeMessage message = simple();
  message.body = "Text é\n";
  message.attachments = {{"dpkgl.txt", "text/plain", "a\nb\r\nc"},
                         {"Ünï \"code\";.bin", "application/x-thing", all},
                         {"empty", "", ""},
                         {"mail", "message/rfc822", "To: a@b\n\n"}};
  const std::string bytes = format(message);
  EXPECT_LE(longestLine(bytes), 998);
  EXPECT_GT(longestLine(bytes), 0);
  const plist::Dictionary read = readBack(bytes);
  EXPECT_EQ(textAt(read, "body"), message.body);
  const char* types[] = {"text/plain", "application/x-thing", "application/octet-stream",
                         "application/octet-stream"};
  const plist::Array& files = *read.find("files")->array();
  ASSERT_EQ(files.size(), message.attachments.size());
  for (std::size_t index = 0; index < files.size(); ++index) {
    EXPECT_EQ(textAt(files[index], 0), message.attachments[index].fileName);
    EXPECT_EQ(textAt(files[index], 1), types[index]);
    EXPECT_EQ((*files[index].array())[2].data(), message.attachments[index].bytes);
  }
}

TEST(MimeMessageTest, TellsTheCharsetOfFilesThatAreUtf8) {
  const std::tuple<const char*, const char*, const char*> files[] = {
      {"text/plain", "plain", "utf-8"},
      {"text/plain", "Ünï 日本語", "utf-8"},
      {"text/html", "<b>é</b>", "utf-8"},
      {"text/plain", "", "utf-8"},
      {"text/plain", "\xfcn\xef", "none"},
      {"text/plain; charset=iso-8859-1", "plain", "iso-8859-1"},
      {"application/x-thing", "plain", "none"},
  };
  MimeMessage message = simple();
  for (const auto& [type, bytes, charset] : files) {
    message.attachments.push_back({"file", type, bytes});
  }
  const plist::Dictionary read = readBack(format(message));
  const plist::Array& parts = *read.find("files")->array();
  ASSERT_EQ(parts.size(), std::size(files));
  for (std::size_t index = 0; index < parts.size(); ++index) {
    const auto& [type, bytes, charset] = files[index];
    EXPECT_EQ(textAt(parts[index], 3), charset) << type << ' ' << bytes;
    EXPECT_EQ((*parts[index].array())[2].data(), bytes);
  }
}

TEST(MimeMessageTest, LetsNoTextOutOfItsField) {
  for (const std::string end : {"\r\n", "\n", "\r", "\n\n", "\r\n\r\n", "\v", "\f"}) {
    const std::string attack = "a" + end + "Bcc: evil@example.com" + end;
    MimeMessage message = simple();
    message.subject = attack;
    message.recipients = "\"" + attack + "\" <jo@example.com>";
    message.attachments = {{attack, "text/plain; x=" + attack, "bytes"}};
    const plist::Dictionary read = readBack(format(message));
    EXPECT_EQ(textAt(read, "Bcc"), "nothing");
    EXPECT_EQ(textAt(read, "body"), "Text\n");
    EXPECT_EQ(read.find("to")->array()->size(), 1U);
    EXPECT_EQ(read.find("files")->array()->size(), 1U);
    EXPECT_NE(textAt(read, "Subject").find("Bcc: evil"), std::string::npos);
  }
}

TEST(MimeMessageTest, KeepsUnfinishedRecipientsOfADraft) {
  MimeMessage message = simple();
  message.recipients = "jo\nBcc: evil@example.com";
  const plist::Dictionary read = readBack(format(message));
  EXPECT_EQ(textAt(read, "X-Unfinished-To"), "jo Bcc: evil@example.com");
  EXPECT_EQ(textAt(read, "To"), "nothing");
  EXPECT_EQ(textAt(read, "Bcc"), "nothing");
}

TEST(MimeMessageTest, MarksHtmlAsSuch) {
  MimeMessage message = simple();
  message.isHTML = true;
  message.body = "<b>é</b>\n";
  const plist::Dictionary read = readBack(format(message));
  EXPECT_EQ(textAt(read, "type"), "text/html");
  EXPECT_EQ(textAt(read, "body"), "<b>é</b>\n");
}

TEST(MimeMessageTest, WritesEveryKindOfLineEndAlike) {
  MimeMessage message = simple();
  for (const char* rest : {"", "é\n"}) {
    message.body = std::string("a\nb\r\nc\rd\n\r\n") + rest;
    const std::string bytes = format(message);
    EXPECT_GT(longestLine(bytes), 0);
    EXPECT_EQ(textAt(readBack(bytes), "body"), std::string("a\nb\nc\nd\n\n") + rest);
  }
}

TEST(MimeMessageTest, EndsTheLastLine) {
  MimeMessage message = simple();
  for (const char* body : {"Text", "é"}) {
    message.body = body;
    EXPECT_EQ(textAt(readBack(format(message)), "body"), std::string(body) + '\n');
  }
}

TEST(MimeMessageTest, MakesValidUtf8OfAnyText) {
  MimeMessage message = simple();
  message.subject = message.body = "a\xed\xa0\x80z";  // Half a surrogate pair.
  const plist::Dictionary read = readBack(format(message));
  EXPECT_TRUE(textAt(read, "body").starts_with("a\xef\xbf\xbd"));
  EXPECT_TRUE(textAt(read, "Subject").ends_with("z"));
}

}  // namespace
}  // namespace desktop_tests
