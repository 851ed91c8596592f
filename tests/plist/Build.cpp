#include "tests/plist/Build.h"

#include <utility>

namespace samples {
namespace {

std::uint64_t orElse(std::int64_t wanted, std::uint64_t right) {
  return wanted < 0 ? right : static_cast<std::uint64_t>(wanted);
}

int nibble(char digit) { return digit <= '9' ? digit - '0' : (digit | 0x20) - 'a' + 10; }

}  // namespace

std::string bigEndian(std::uint64_t number, std::size_t width) {
  std::string bytes(width, '\0');
  for (std::size_t at = width; at > 0; --at, number >>= 8) {
    bytes[at - 1] = static_cast<char>(number & 0xFF);
  }
  return bytes;
}

std::string binaryFile(const std::vector<std::string>& objects, const Trailer& trailer) {
  std::string file = "bplist00";
  const std::size_t offsetSize = orElse(trailer.offsetSize, 4);
  std::string table;
  for (const std::string& object : objects) {
    table += bigEndian(file.size(), offsetSize);
    file += object;
  }
  const std::size_t tableAt = file.size();
  file += table + std::string(6, '\0');
  file += bigEndian(offsetSize, 1) + bigEndian(orElse(trailer.referenceSize, 1), 1);
  file += bigEndian(orElse(trailer.objectCount, objects.size()), 8);
  file += bigEndian(orElse(trailer.topObject, 0), 8);
  file += bigEndian(orElse(trailer.tableAt, tableAt), 8);
  return file;
}

std::string hex(std::string_view digits) {
  std::string bytes;
  int high = -1;
  for (const char digit : digits) {
    if (digit == ' ') continue;
    if (high < 0) {
      high = nibble(digit);
    } else {
      bytes.push_back(static_cast<char>(high * 16 + nibble(digit)));
      high = -1;
    }
  }
  return bytes;
}

std::string xmlFile(std::string_view elements) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
         "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
         "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
         "<plist version=\"1.0\">" +
         std::string(elements) + "</plist>\n";
}

std::string utf16(std::string_view ascii, bool bigEndian) {
  std::string bytes = bigEndian ? "\xFE\xFF" : "\xFF\xFE";
  for (const char byte : ascii) {
    if (bigEndian) bytes.push_back('\0');
    bytes.push_back(byte);
    if (!bigEndian) bytes.push_back('\0');
  }
  return bytes;
}

std::string repeated(std::string_view text, std::size_t times) {
  std::string all;
  all.reserve(text.size() * times);
  for (; times > 0; --times) all += text;
  return all;
}

plist::Value nestedArrays(std::size_t depth) {
  plist::Value value{plist::Array()};
  for (std::size_t i = 1; i < depth; ++i) {
    plist::Array outer;
    outer.append(std::move(value));
    value = plist::Value(std::move(outer));
  }
  return value;
}

}  // namespace samples
