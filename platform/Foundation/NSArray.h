#pragma once

#include <cstddef>
#include <initializer_list>

#include "platform/Object.h"

namespace platform {

class NSMutableArray;

/// An ordered list of objects; the same object may stand in it more than once, none never.
class NSArray : public Object {
 public:
  /// Raises `NSInvalidArgumentException` when one of the objects is none.
  static NSArray arrayWithObjects(std::initializer_list<Object> objects);

  /// 0 for none.
  std::size_t count() const;

  /// Raises `NSRangeException` past the end.
  Object objectAtIndex(std::size_t index) const;

  /// A new list with the same objects that can be changed.
  NSMutableArray mutableCopy() const;
};

/// A list that can be changed. An index past the end raises `NSRangeException`, an object that is
/// none `NSInvalidArgumentException`.
class NSMutableArray : public NSArray {
 public:
  /// A new empty list.
  static NSMutableArray array();

  void addObject(const Object& object);

  /// Puts the object before the one that now stands at `index`; `count()` appends.
  void insertObject(const Object& object, std::size_t index);

  /// A new list with the same objects that never changes.
  NSArray copy() const;
};

}  // namespace platform
