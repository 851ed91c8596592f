#include "tests/desktop/BadFiles.h"

#include <sys/stat.h>

#include "tests/desktop/PhoneTest.h"

namespace desktop_tests {

namespace fs = std::filesystem;

namespace {

std::string repeated(std::string_view text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

std::string arrayRoot(plist::Form form) {
  plist::Array array;
  array.append(plist::Value::integer(1));
  const plist::Value root(array);
  return plist::write(root, form).value();
}

void writeTenThousandLevels(const fs::path& file) {
  writeBytes(file, "<plist version=\"1.0\">" + repeated("<dict><key>k</key>", 10000) + "<true/>" +
                       repeated("</dict>", 10000) + "</plist>");
}

void writeHundredMegabytes(const fs::path& file) {
  writeBytes(file, "bplist00");
  fs::resize_file(file, 100'000'000);
}

void writeForNobody(const fs::path& file) {
  writeBytes(file, "<plist version=\"1.0\"><dict/></plist>");
  fs::permissions(file, fs::perms::none);
}

}  // namespace

const std::vector<BadFile>& badFiles() {
  static const std::vector<BadFile> files = {
      {"Empty", [](const fs::path& file) { writeBytes(file, ""); }},
      {"PlainText", [](const fs::path& file) { writeBytes(file, "colorMode = 2\n"); }},
      {"Json", [](const fs::path& file) { writeBytes(file, "{\"colorMode\": 2}"); }},
      {"XmlArray", [](const fs::path& file) { writeBytes(file, arrayRoot(plist::Form::Xml)); }},
      {"BinaryArray",
       [](const fs::path& file) { writeBytes(file, arrayRoot(plist::Form::Binary)); }},
      {"InvalidUtf8",
       [](const fs::path& file) {
         writeBytes(file, "<plist version=\"1.0\"><dict><key>a\xff</key><true/></dict></plist>");
       }},
      {"TwoRoots", [](const fs::path& file) { writeBytes(file, "<plist><dict/><dict/></plist>"); }},
      {"OnlyZeros", [](const fs::path& file) { writeBytes(file, std::string(4096, '\0')); }},
      {"TenThousandLevels", &writeTenThousandLevels},
      {"HundredMegabytes", &writeHundredMegabytes},
      {"ForNobodyToRead", &writeForNobody},
      {"Folder", [](const fs::path& file) { fs::create_directory(file); }},
      {"FullFolder", [](const fs::path& file) { fs::create_directories(file / "inside"); }},
      {"Fifo", [](const fs::path& file) { EXPECT_EQ(mkfifo(file.c_str(), 0600), 0); }},
      {"LinkToItself", [](const fs::path& file) { fs::create_symlink(file.filename(), file); }},
  };
  return files;
}

}  // namespace desktop_tests
