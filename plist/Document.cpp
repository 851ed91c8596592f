#include "plist/Document.h"

#include <algorithm>
#include <utility>

#include "plist/BinaryFile.h"
#include "plist/ReadBinary.h"
#include "plist/ReadXml.h"

namespace plist {

namespace {

// Offsets of 32 bits reach all of it, even after UTF-16 has become longer UTF-8.
constexpr std::uint32_t kMostBytes = 1U << 30;

}  // namespace

Unreadable::Unreadable(const std::string& reason, std::optional<std::size_t> offset)
    : std::runtime_error(offset ? reason + " (at byte " + std::to_string(*offset) + ")" : reason),
      offset_(offset) {}

Document read(std::string bytes, const Limits& limits) {
  if (bytes.size() > std::min(limits.bytes, kMostBytes)) throw Unreadable("too large");
  if (bytes.starts_with(binary::kMagic)) {
    return {readBinary(std::move(bytes), limits), Form::Binary};
  }
  return {readXml(bytes, limits), Form::Xml};
}

std::string write(const Value& value, Form wanted) {
  if (wanted == Form::Xml) {
    if (std::optional<std::string> xml = writeXml(value)) return *std::move(xml);
  }
  return writeBinary(value);
}

}  // namespace plist
