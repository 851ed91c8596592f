#include "plist/PlainLayout.h"

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "plist/BinaryFile.h"
#include "plist/BinaryScalars.h"
#include "plist/Text.h"

namespace plist {
namespace {

using binary::File;
using binary::Marker;
using binary::Object;

/// Goes through a file from its first object to its last: nothing may lie between them, and each
/// is to be referred to once, in that order. So nothing can be shared, lie over something else, or
/// contain itself.
class Survey {
 public:
  Survey(std::string_view bytes, const Limits& limits)
      : bytes_(bytes), file_(bytes), limits_(limits) {}

  /// Throws Unreadable where a value is none.
  bool isPlain() {
    if (file_.topObject() != 0 || file_.objectCount() > limits_.nodes) return false;
    if (file_.object(0).marker != Marker::Dictionary) return false;
    for (std::uint64_t number = 0; number < file_.objectCount(); ++number) {
      if (number == levelEnd_ && !goDeeper()) return false;
      if (file_.offset(number) != end_ || end_ >= file_.tableAt()) return false;
      if (!passText() && !pass(number)) return false;
    }
    return end_ == file_.tableAt();
  }

 private:
  /// All elements of one depth come before those of the next, if somebody refers to any there.
  bool goDeeper() {
    ++depth_;
    return std::exchange(levelEnd_, referred_) < referred_;
  }

  /// Passes by what most objects are, ASCII text of up to 255 characters, with no more work than
  /// that takes; false where there is something else. Bytes of the table always follow.
  bool passText() {
    std::size_t size = byteAt(end_) - kEmptyText;
    std::size_t head = 1;
    if (size == binary::kLongLength && byteAt(end_ + 1) == kLengthOfOneByte) {
      size = byteAt(end_ + 2);
      head = 3;
    } else if (size >= binary::kLongLength) {
      return false;
    }
    if (head + size > file_.tableAt() - end_) return false;
    if (!isAscii(bytes_.substr(end_ + head, size))) return false;
    end_ += head + size;
    return true;
  }

  std::uint8_t byteAt(std::size_t at) const { return static_cast<std::uint8_t>(bytes_[at]); }

  /// Passes by any object; false where it is not laid out plainly.
  bool pass(std::uint64_t number) {
    const Object object = file_.object(number);
    end_ = file_.endOf(object);
    if (isKey(number) && !object.isText()) return false;
    switch (object.marker) {
      case Marker::Ascii:
        return isAscii(object.bytes);
      case Marker::Utf16:
      case Marker::Data:
        return true;
      case Marker::Array:
        return refersToNext(object, object.count);
      case Marker::Dictionary:
        keys_.push_back({referred_, referred_ + object.count});
        return refersToNext(object, 2 * object.count);
      default:
        binary::readScalar(object);
        return true;
    }
  }

  bool refersToNext(const Object& container, std::uint64_t count) {
    if (depth_ > limits_.depth) return false;
    for (std::uint64_t index = 0; index < count; ++index) {
      if (file_.reference(container, index) != referred_ + index) return false;
    }
    referred_ += count;
    return true;
  }

  bool isKey(std::uint64_t number) {
    while (nextKeys_ < keys_.size() && number >= keys_[nextKeys_].end) ++nextKeys_;
    return nextKeys_ < keys_.size() && number >= keys_[nextKeys_].begin;
  }

  /// The numbers of a dictionary's keys.
  struct Keys {
    std::uint64_t begin;
    std::uint64_t end;
  };

  static constexpr unsigned kEmptyText = static_cast<unsigned>(Marker::Ascii) << 4;
  static constexpr unsigned kLengthOfOneByte = static_cast<unsigned>(Marker::Integer) << 4;

  const std::string_view bytes_;
  const File file_;
  const Limits& limits_;
  std::size_t end_ = binary::kMagic.size();  // of the objects so far
  std::uint64_t referred_ = 1;               // to so many objects, the first among them
  std::uint64_t levelEnd_ = 0;
  std::uint32_t depth_ = 0;
  std::vector<Keys> keys_;
  std::size_t nextKeys_ = 0;
};

}  // namespace

bool isLaidOutPlainly(std::string_view bytes, const Limits& limits) {
  try {
    return bytes.starts_with(binary::kMagic) && Survey(bytes, limits).isPlain();
  } catch (const Unreadable&) {
    return false;  // for those to say who read the file
  }
}

}  // namespace plist
