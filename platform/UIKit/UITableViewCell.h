#pragma once

#include "platform/Foundation/NSString.h"
#include "platform/UIKit/UILabel.h"

namespace platform {

/// The number is UIKit's.
enum class UITableViewCellStyle : long { Default = 0 };

/// One row of a table as it is drawn.
class UITableViewCell : public UIView {
 public:
  /// A new cell, which tables reuse for rows that ask for the same identifier.
  static UITableViewCell initWithStyle(UITableViewCellStyle style, const NSString& reuseIdentifier);

  UILabel textLabel() const;
};

}  // namespace platform
