#pragma once

#include "desktop/Body.h"
#include "desktop/Foundation/Elements.h"
#include "platform/Foundation/NSArray.h"

namespace desktop {

/// A list of objects, of the class NSArray or NSMutableArray.
class ArrayBody final : public Body {
 public:
  enum class Mutable : bool { No, Yes };

  ArrayBody(Elements contents, Mutable isMutable)
      : elements(std::move(contents)), isMutable_(isMutable) {}

  std::string_view className() const override {
    return isMutable_ == Mutable::Yes ? "NSMutableArray" : "NSArray";
  }
  /// Of a long list the first objects, and how many there are.
  std::string description() const override;
  bool isEqual(const Body& other) const override;

  Elements elements;

 private:
  Mutable isMutable_;
};

/// Raises `NSInvalidArgumentException` for none, which no array holds.
inline void requireObject(const platform::Object& object) {
  if (!object) throw invalidArgument("an array takes no nil object");
}

/// An `NSRangeException` that names the index of no object of an array.
Exception beyondTheEnd(std::size_t index);

/// Raises `NSRangeException` for the index of none of `count` objects.
inline void requireIndex(std::size_t index, std::size_t count) {
  if (index >= count) throw beyondTheEnd(index);
}

/// The objects of an array that is an argument; none has none. Raises
/// `NSInvalidArgumentException` for objects of other classes.
Elements elementsIn(const platform::NSArray& array);
std::vector<platform::Object> objectsIn(const platform::NSArray& array);

}  // namespace desktop
