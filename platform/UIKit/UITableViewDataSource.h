#pragma once

#include <cstddef>

#include "platform/UIKit/NSIndexPath.h"
#include "platform/UIKit/UITableView.h"

namespace platform {

/// The control that a row has while the table is being edited; the numbers are UIKit's.
enum class UITableViewCellEditingStyle : long {
  None = 0,
  Delete = 1,
  Insert = 2,
};

/// What a table asks for its rows. All selectors begin with `tableView:`, so each function has the
/// name of its selector's second part.
class UITableViewDataSource {
 public:
  virtual std::size_t numberOfSectionsInTableView(const UITableView& tableView) = 0;
  virtual NSString titleForHeaderInSection(const UITableView& tableView, std::size_t section) = 0;
  virtual std::size_t numberOfRowsInSection(const UITableView& tableView, std::size_t section) = 0;
  virtual UITableViewCell cellForRowAtIndexPath(UITableView tableView,
                                                const NSIndexPath& indexPath) = 0;
  virtual bool canEditRowAtIndexPath(const UITableView& tableView,
                                     const NSIndexPath& indexPath) = 0;
  virtual bool canMoveRowAtIndexPath(const UITableView& tableView,
                                     const NSIndexPath& indexPath) = 0;

  /// The user used the row's editing control.
  virtual void commitEditingStyle(const UITableView& tableView, UITableViewCellEditingStyle style,
                                  const NSIndexPath& indexPath) = 0;

  /// The user dropped a row in another place.
  virtual void moveRowAtIndexPath(const UITableView& tableView, const NSIndexPath& source,
                                  const NSIndexPath& destination) = 0;

 protected:
  ~UITableViewDataSource() = default;
};

}  // namespace platform
