#include <algorithm>
#include <gmime/gmime.h>
#include <iostream>
#include <iterator>
#include <memory>
#include <string_view>

#include "desktop/MessageUI/MailFields.h"
#include "desktop/MessageUI/Mailbox.h"
#include "desktop/MessageUI/MimeMessage.h"

namespace desktop {

namespace {

constexpr const char* charset = "utf-8";
constexpr const char* senderName = "Quillmere user";
constexpr const char* senderAddress = "mobile@localhost";

/// The longest line that a message may have, in bytes (RFC 5322, 2.1.1).
constexpr std::size_t longestLine = 998;

struct Unreference {
  void operator()(gpointer object) const { g_object_unref(object); }
};
template <class T>
using Reference = std::unique_ptr<T, Unreference>;

struct Free {
  void operator()(gpointer memory) const { g_free(memory); }
};
using CText = std::unique_ptr<char, Free>;

/// A property list's text may hold half a surrogate pair, which UTF-8 does not know.
std::string valid(const std::string& text) {
  return CText(g_utf8_make_valid(text.data(), static_cast<gssize>(text.size()))).get();
}

bool isControl(char letter) {
  const auto byte = static_cast<unsigned char>(letter);
  return byte < 0x20 || byte == 0x7f;
}

/// For a header field: a line end in it would begin the next one.
std::string onOneLine(std::string text) {
  std::ranges::replace_if(text, &isControl, ' ');
  return valid(text);
}

/// Every kind of line end as LF, which is written as CR LF.
std::string withPlainLineEnds(std::string_view text) {
  std::string lines;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] == '\r' && text.substr(at + 1).starts_with('\n')) continue;
    lines += text[at] == '\r' ? '\n' : text[at];
  }
  return lines;
}

bool travelsAsItIs(std::string_view text) {
  std::size_t line = 0;
  return std::ranges::all_of(text, [&](char letter) {
    line = letter == '\n' ? 0 : line + 1;
    const bool isPlain = !isControl(letter) || letter == '\n' || letter == '\t';
    return isPlain && static_cast<unsigned char>(letter) < 0x80 && line <= longestLine;
  });
}

void setContent(GMimePart* part, std::string_view bytes, GMimeContentEncoding encoding) {
  const Reference<GMimeStream> stream(
      g_mime_stream_mem_new_with_buffer(bytes.data(), bytes.size()));
  const Reference<GMimeDataWrapper> content(
      g_mime_data_wrapper_new_with_stream(stream.get(), GMIME_CONTENT_ENCODING_DEFAULT));
  g_mime_part_set_content(part, content.get());
  g_mime_part_set_content_encoding(part, encoding);
}

Reference<GMimeObject> textPart(const MimeMessage& message) {
  const std::string text = withPlainLineEnds(valid(message.body));
  GMimePart* part = g_mime_part_new_with_type("text", message.isHTML ? "html" : "plain");
  g_mime_object_set_content_type_parameter(GMIME_OBJECT(part), "charset", charset);
  setContent(
      part, text,
      travelsAsItIs(text) ? GMIME_CONTENT_ENCODING_7BIT : GMIME_CONTENT_ENCODING_QUOTEDPRINTABLE);
  return Reference<GMimeObject>(GMIME_OBJECT(part));
}

/// Types that stand for parts of a message must not be encoded (RFC 2045, 6.4), as any file is.
Reference<GMimeContentType> typeOf(const Attachment& attachment) {
  Reference<GMimeContentType> type(
      g_mime_content_type_parse(nullptr, onOneLine(attachment.mimeType).c_str()));
  if (!type || g_mime_content_type_is_type(type.get(), "multipart", "*") ||
      g_mime_content_type_is_type(type.get(), "message", "*")) {
    type.reset(g_mime_content_type_new("application", "octet-stream"));
  }
  // Text of no charset is taken for ASCII (RFC 2046, 4.1.2).
  const bool isUtf8 = g_utf8_validate(attachment.bytes.data(),
                                      static_cast<gssize>(attachment.bytes.size()), nullptr);
  if (isUtf8 && g_mime_content_type_is_type(type.get(), "text", "*") &&
      !g_mime_content_type_get_parameter(type.get(), "charset")) {
    g_mime_content_type_set_parameter(type.get(), "charset", charset);
  }
  return type;
}

Reference<GMimeObject> partOf(const Attachment& attachment) {
  GMimePart* part = g_mime_part_new();
  g_mime_object_set_content_type(GMIME_OBJECT(part), typeOf(attachment).get());
  g_mime_object_set_disposition(GMIME_OBJECT(part), GMIME_DISPOSITION_ATTACHMENT);
  g_mime_part_set_filename(part, onOneLine(attachment.fileName).c_str());
  setContent(part, attachment.bytes, GMIME_CONTENT_ENCODING_BASE64);
  return Reference<GMimeObject>(GMIME_OBJECT(part));
}

Reference<GMimeObject> contentOf(const MimeMessage& message) {
  Reference<GMimeObject> text = textPart(message);
  if (message.attachments.empty()) return text;
  GMimeMultipart* all = g_mime_multipart_new_with_subtype("mixed");
  g_mime_multipart_add(all, text.get());
  for (const Attachment& attachment : message.attachments) {
    g_mime_multipart_add(all, partOf(attachment).get());
  }
  return Reference<GMimeObject>(GMIME_OBJECT(all));
}

void addMailbox(GMimeMessage* message, GMimeAddressType field, const std::string& name,
                const std::string& address) {
  const Reference<InternetAddress> mailbox(internet_address_mailbox_new(
      name.empty() ? nullptr : onOneLine(name).c_str(), address.c_str()));
  internet_address_set_charset(mailbox.get(), charset);
  internet_address_list_add(g_mime_message_get_addresses(message, field), mailbox.get());
}

void addRecipients(GMimeMessage* message, const std::string& recipients) {
  const auto mailboxes = mailboxesIn(recipients);
  if (!mailboxes) {
    g_mime_object_set_header(GMIME_OBJECT(message), "X-Unfinished-To",
                             onOneLine(recipients).c_str(), charset);
    return;
  }
  for (const Mailbox& each : *mailboxes) {
    addMailbox(message, GMIME_ADDRESS_TYPE_TO, each.name, each.address);
  }
}

void addOrigin(GMimeMessage* message) {
  addMailbox(message, GMIME_ADDRESS_TYPE_FROM, senderName, senderAddress);
  const std::unique_ptr<GDateTime, void (*)(GDateTime*)> now(g_date_time_new_now_local(),
                                                             &g_date_time_unref);
  g_mime_message_set_date(message, now.get());
  g_mime_message_set_message_id(message,
                                CText(g_mime_utils_generate_message_id("localhost")).get());
}

std::string written(GMimeMessage* message) {
  const std::unique_ptr<GMimeFormatOptions, void (*)(GMimeFormatOptions*)> options(
      g_mime_format_options_new(), &g_mime_format_options_free);
  g_mime_format_options_set_newline_format(options.get(), GMIME_NEWLINE_FORMAT_DOS);
  const Reference<GMimeStream> stream(g_mime_stream_mem_new());
  g_mime_object_write_to_stream(GMIME_OBJECT(message), options.get(), stream.get());
  const GByteArray* bytes = g_mime_stream_mem_get_byte_array(GMIME_STREAM_MEM(stream.get()));
  return {reinterpret_cast<const char*>(bytes->data), bytes->len};
}

std::string whole(const MimeMessage& message) {
  const Reference<GMimeMessage> travelling(g_mime_message_new(TRUE));
  addOrigin(travelling.get());
  addRecipients(travelling.get(), message.recipients);
  g_mime_message_set_subject(travelling.get(), onOneLine(message.subject).c_str(), charset);
  g_mime_message_set_mime_part(travelling.get(), contentOf(message).get());
  return written(travelling.get());
}

}  // namespace

}  // namespace desktop

/// Reads a mail's fields (desktop/MessageUI/MailFields.h) and writes the message.
int main() {
  try {
    g_mime_init();
    const desktop::MimeMessage message =
        desktop::unpacked(std::string(std::istreambuf_iterator(std::cin), {}));
    std::cout << desktop::whole(message) << std::flush;
    return std::cout ? 0 : 1;
  } catch (const std::exception& failure) {
    std::cerr << "quillmere-mail: " << failure.what() << std::endl;
    return 1;
  }
}
