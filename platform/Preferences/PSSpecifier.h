#pragma once

#include "platform/Foundation/NSArray.h"
#include "platform/Foundation/NSString.h"
#include "platform/Object.h"
#include "platform/ObjectiveC/Class.h"
#include "platform/ObjectiveC/SEL.h"

namespace platform {

class PSListController;

/// What a row is drawn as; the numbers are the Preferences framework's.
enum class PSCellType : long long {
  PSGroupCell = 0,
  PSLinkCell = 1,
  PSLinkListCell = 2,
  PSListItemCell = 3,
  PSTitleValueCell = 4,
  PSSliderCell = 5,
  PSSwitchCell = 6,
  PSStaticTextCell = 7,
  PSEditTextCell = 8,
  PSSegmentCell = 9,
  PSGiantIconCell = 10,
  PSGiantCell = 11,
  PSSecureEditTextCell = 12,
  PSButtonCell = 13,
  PSEditTextViewCell = 14,
};

/// One row of a settings page: a label, a cell type and a dictionary of properties.
class PSSpecifier : public Object {
 public:
  /// A row that reads and writes through `target` (not retained) with the selectors `get`
  /// (answers the value for the row) and `set` (takes the value and the row).
  static PSSpecifier preferenceSpecifierNamed(const NSString& name, PSListController& target,
                                              SEL set, SEL get, const Class& detail,
                                              PSCellType cell, const Class& edit);

  /// The header of a group of rows.
  static PSSpecifier groupSpecifierWithName(const NSString& name);

  /// Raises `NSInvalidArgumentException` when the value is none.
  void setProperty(const Object& value, const NSString& key);

  /// None when the row has no such property.
  Object propertyForKey(const NSString& key) const;

  /// The values that the row offers and, one for one, the titles that stand for them.
  void setValues(const NSArray& values, const NSArray& titles);
};

}  // namespace platform
