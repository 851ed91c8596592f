#pragma once

#include "platform/Foundation/NSString.h"
#include "platform/UIKit/Animated.h"
#include "platform/UIKit/UIScrollView.h"
#include "platform/UIKit/UITableViewCell.h"

namespace platform {

class UITableViewDataSource;
class UITableViewDelegate;

/// The number is UIKit's.
enum class UITableViewStyle : long { Grouped = 1 };

/// A list of rows in sections. It asks its data source for what is to be seen, and only for that.
class UITableView : public UIScrollView {
 public:
  static UITableView initWithFrame(const CGRect& frame, UITableViewStyle style);

  /// Neither is retained.
  void setDelegate(UITableViewDelegate& delegate);
  void setDataSource(UITableViewDataSource& dataSource);

  void setSeparatorColor(const UIColor& color);
  void setAllowsSelection(bool allows);
  /// The view above the first row; none takes it away.
  void setTableHeaderView(const UIView& view);

  bool isEditing() const;
  void setEditing(bool editing, Animated animated);

  /// Forgets all that was asked of the data source.
  void reloadData();

  /// A cell with that identifier that no row needs any more; none when there is none.
  UITableViewCell dequeueReusableCellWithIdentifier(const NSString& identifier);
};

}  // namespace platform
