#include "plist/Document.h"

#include <algorithm>
#include <utility>

#include "plist/BinaryFile.h"
#include "plist/ReadBinary.h"
#include "plist/ReadPlainXml.h"
#include "plist/ReadXml.h"

namespace plist {

Unreadable::Unreadable(const std::string& reason, std::optional<std::size_t> offset)
    : std::runtime_error(offset ? reason + " (at byte " + std::to_string(*offset) + ")" : reason),
      offset_(offset) {}

Document read(std::string bytes, const Limits& limits) {
  if (bytes.size() > std::min(limits.bytes, Limits::kMostBytes)) throw Unreadable("too large");
  if (bytes.starts_with(binary::kMagic)) {
    return {readBinary(std::move(bytes), limits), Form::Binary};
  }
  if (std::optional<Value> plain = readPlainXml(bytes, limits)) {
    return {*std::move(plain), Form::Xml};
  }
  return {readXml(bytes, limits), Form::Xml};
}

}  // namespace plist
