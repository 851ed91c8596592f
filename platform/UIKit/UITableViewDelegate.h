#pragma once

#include "platform/UIKit/NSIndexPath.h"
#include "platform/UIKit/UITableView.h"
#include "platform/UIKit/UITableViewDataSource.h"

namespace platform {

/// What a table asks of its behaviour; named as in `UITableViewDataSource`.
class UITableViewDelegate {
 public:
  virtual UITableViewCellEditingStyle editingStyleForRowAtIndexPath(
      const UITableView& tableView, const NSIndexPath& indexPath) = 0;
  virtual bool shouldIndentWhileEditingRowAtIndexPath(const UITableView& tableView,
                                                      const NSIndexPath& indexPath) = 0;

  /// Where a row that is dragged from `source` lands when it is let go at `proposed`.
  virtual NSIndexPath targetIndexPathForMoveFromRowAtIndexPath(const UITableView& tableView,
                                                               const NSIndexPath& source,
                                                               const NSIndexPath& proposed) = 0;

 protected:
  ~UITableViewDelegate() = default;
};

}  // namespace platform
