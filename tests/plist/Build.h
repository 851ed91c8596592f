#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "plist/Value.h"

/// Files made by hand, byte by byte, so that a test can make them wrong.
namespace samples {

/// The numbers of a trailer, to be changed one at a time; negative ones mean "as it should be".
struct Trailer {
  int offsetSize = -1;
  int referenceSize = -1;
  std::int64_t objectCount = -1;
  std::int64_t topObject = -1;
  std::int64_t tableAt = -1;
};

/// A binary file of those objects, whose first is the top one, with references of 1 byte.
std::string binaryFile(const std::vector<std::string>& objects, const Trailer& trailer = {});

/// `number` in `width` bytes, the high byte first.
std::string bigEndian(std::uint64_t number, std::size_t width);

/// Bytes given as hexadecimal digits; blanks between them mean nothing.
std::string hex(std::string_view digits);

/// A whole XML file around the elements of the property list.
std::string xmlFile(std::string_view elements);

/// ASCII as UTF-16 with a byte-order mark.
std::string utf16(std::string_view ascii, bool bigEndian);

/// `text` several times over.
std::string repeated(std::string_view text, std::size_t times);

/// `depth` arrays, each but the innermost holding the next one.
plist::Value nestedArrays(std::size_t depth);

}  // namespace samples
