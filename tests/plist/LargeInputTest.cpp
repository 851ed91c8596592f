#include <gtest/gtest.h>
#include <optional>
#include <ostream>

#include "plist/Document.h"
#include "tests/plist/Allocation.h"
#include "tests/plist/Build.h"

namespace plist {
namespace {

using samples::bigEndian;
using samples::hex;
using samples::repeated;

constexpr std::size_t kMegabyte = 1024 * 1024;

/// A dictionary of `count` entries of UTF-16 keys and values, each text an object of its own.
std::string manyTexts(std::uint32_t count) {
  std::string file = "bplist00" + hex("DF 12") + bigEndian(count, 4);
  for (std::uint32_t i = 1; i <= 2 * count; ++i) file += bigEndian(i, 3);
  const std::size_t textsAt = file.size();
  for (std::uint32_t i = 0; i < 2 * count; ++i) file += "\x62" + bigEndian(0x4E000000 + i, 4);
  const std::size_t tableAt = file.size();
  file += bigEndian(8, 3);
  for (std::size_t i = 0; i < 2 * count; ++i) file += bigEndian(textsAt + 5 * i, 3);
  return file + std::string(6, '\0') + hex("03 03") + bigEndian(2 * count + 1, 8) +
         bigEndian(0, 8) + bigEndian(tableAt, 8);
}

/// Arrays of one element each below one array, in binary.
std::string manyArrays(std::uint32_t count) {
  std::string file = "bplist00" + hex("AF 12") + bigEndian(count, 4);
  for (std::uint32_t i = 1; i <= count; ++i) file += bigEndian(i, 3);
  const std::size_t arraysAt = file.size();
  for (std::uint32_t i = 1; i <= count; ++i) file += "\xA1" + bigEndian(count + 1, 3);
  const std::size_t trueAt = file.size();
  file += "\x09";
  const std::size_t tableAt = file.size();
  file += bigEndian(8, 3);
  for (std::size_t i = 0; i < count; ++i) file += bigEndian(arraysAt + 4 * i, 3);
  file += bigEndian(trueAt, 3);
  return file + std::string(6, '\0') + hex("03 03") + bigEndian(count + 2, 8) + bigEndian(0, 8) +
         bigEndian(tableAt, 8);
}

std::string manyEntries(int count) {
  std::string entries;
  for (int i = 0; i < count; ++i) entries += "<key>" + std::to_string(i) + "</key><true/>";
  return samples::xmlFile("<dict>" + entries + "</dict>");
}

struct LargeFile {
  const char* name;
  bool isRead;
  std::string (*make)();
};

void PrintTo(const LargeFile& file, std::ostream* out) { *out << file.name; }

class LargeInput : public testing::TestWithParam<LargeFile> {};

// To read and to write it again. The file itself counts, since read() takes it over.
TEST_P(LargeInput, NeedsLessThan64Megabytes) {
  const std::size_t before = allocation::inUse();
  std::string file = GetParam().make();
  file.shrink_to_fit();
  ASSERT_LE(file.size(), Limits().bytes);
  allocation::resetPeak();
  std::optional<Document> document;
  try {
    document = read(std::move(file));
  } catch (const Unreadable&) {
  }
  EXPECT_EQ(document.has_value(), GetParam().isRead);
  for (const Form form : {Form::Xml, Form::Binary}) {
    if (document) static_cast<void>(write(document->root, form));
  }
  EXPECT_LT(allocation::peak() - before, 64 * kMegabyte);
  RecordProperty("megabytes", static_cast<int>((allocation::peak() - before) / kMegabyte));
}

constexpr std::size_t kFill = Limits().bytes - kMegabyte / 16;

INSTANTIATE_TEST_SUITE_P(
    Table, LargeInput,
    testing::Values(
        LargeFile{"Utf16Keys", true, [] { return manyTexts(124'000); }},
        LargeFile{"OneUtf16Text", true,
                  [] {
                    return samples::binaryFile(
                        {hex("6F 12") + bigEndian(kFill / 2, 4) + std::string(kFill, '\x4E')});
                  }},
        LargeFile{"SmallArrays", true, [] { return manyArrays(124'000); }},
        LargeFile{"XmlEntries", true, [] { return manyEntries(124'000); }},
        LargeFile{"XmlArrays", true,
                  [] {
                    return samples::xmlFile(
                        "<array>" + repeated("<array><true/></array>", 124'000) + "</array>");
                  }},
        LargeFile{"XmlDictionaries", true,
                  [] {
                    return samples::xmlFile("<array>" +
                                            repeated("<dict><key>a</key><true/></dict>", 83'000) +
                                            "</array>");
                  }},
        LargeFile{
            "XmlText", true,
            [] { return samples::xmlFile("<string>" + std::string(kFill, 'x') + "</string>"); }},
        LargeFile{"XmlMarks", true,
                  [] {
                    return samples::xmlFile("<string><![CDATA[" + std::string(kFill, '&') +
                                            "]]></string>");
                  }},
        LargeFile{"XmlUtf16Text", true,
                  [] {
                    return samples::utf16("<plist><string>", true) + std::string(kFill, '\x4E') +
                           samples::utf16("</string></plist>", true).substr(2);
                  }},
        LargeFile{"XmlData", true,
                  [] { return samples::xmlFile("<data>" + std::string(kFill, 'A') + "</data>"); }},
        LargeFile{"XmlEndlessTag", false, [] { return "<plist><" + std::string(kFill, 'a'); }},
        LargeFile{
            "XmlEndlessAttribute", false,
            [] { return "<plist version='" + std::string(kFill, 'a') + "'><true/></plist>"; }},
        LargeFile{"XmlEndlessComment", false,
                  [] { return "<!--" + std::string(kFill, 'a') + "--><plist><true/></plist>"; }},
        LargeFile{"XmlDepth", false, [] { return "<plist>" + repeated("<array>", kFill / 7); }}),
    [](const auto& test) { return test.param.name; });

}  // namespace
}  // namespace plist
