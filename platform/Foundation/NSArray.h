#pragma once

#include <cstddef>
#include <initializer_list>

#include "platform/Object.h"

namespace platform {

class NSMutableArray;
class NSPredicate;

/// An ordered list of objects; the same object may stand in it more than once, none never.
class NSArray : public Object {
 public:
  /// `isKindOfClass:`; false for none.
  static bool isKind(const Object& object);

  /// Raises `NSInvalidArgumentException` when one of the objects is none.
  static NSArray arrayWithObjects(std::initializer_list<Object> objects);

  /// 0 for none.
  std::size_t count() const;

  /// Raises `NSRangeException` past the end.
  Object objectAtIndex(std::size_t index) const;

  /// A new list of those objects of which the predicate is true.
  NSArray filteredArrayUsingPredicate(const NSPredicate& predicate) const;

  /// A new list with the same objects that can be changed.
  NSMutableArray mutableCopy() const;
};

/// A list that can be changed. An index past the end raises `NSRangeException`, an object that is
/// none `NSInvalidArgumentException`.
class NSMutableArray : public NSArray {
 public:
  /// A new empty list.
  static NSMutableArray array();

  /// A new list with the objects of `array`; empty for none.
  static NSMutableArray initWithArray(const NSArray& array);

  void addObject(const Object& object);

  /// Puts the object before the one that now stands at `index`; `count()` appends.
  void insertObject(const Object& object, std::size_t index);

  void replaceObjectAtIndex(std::size_t index, const Object& object);

  /// Removes every object that is equal to `object`.
  void removeObject(const Object& object);

  /// Removes every object that is equal to one of `objects`.
  void removeObjectsInArray(const NSArray& objects);

  /// A new list with the same objects that never changes.
  NSArray copy() const;
};

}  // namespace platform
