#pragma once

#include "platform/Foundation/NSArray.h"
#include "platform/Foundation/NSString.h"
#include "platform/UIKit/UIBarButtonItem.h"
#include "platform/UIKit/UITableView.h"
#include "platform/UIKit/UITableViewDataSource.h"
#include "platform/UIKit/UITableViewDelegate.h"
#include "platform/UIKit/UIViewController.h"

namespace quillmere {

/// The list of the installed animations, on which the user enables, disables and orders them. Made
/// anew for each visit.
class QMLottiesList : public platform::UIViewController,
                      public platform::UITableViewDataSource,
                      public platform::UITableViewDelegate {
 public:
  static constexpr const char* className = "QMLottiesList";

  /// Builds the catalogue and the table, which is in editing mode from then on.
  bool init() override;

  /// Stores the enabled animations, in the preferences file and in the preferences service.
  void save();

  /// Turns editing mode on or off. Nothing calls it: the list is always being edited.
  void edit();

  /// @name The table's questions
  /// @{
  std::size_t numberOfSectionsInTableView(const platform::UITableView& tableView) override;
  platform::NSString titleForHeaderInSection(const platform::UITableView& tableView,
                                             std::size_t section) override;
  std::size_t numberOfRowsInSection(const platform::UITableView& tableView,
                                    std::size_t section) override;
  platform::UITableViewCell cellForRowAtIndexPath(platform::UITableView tableView,
                                                  const platform::NSIndexPath& indexPath) override;
  bool canEditRowAtIndexPath(const platform::UITableView& tableView,
                             const platform::NSIndexPath& indexPath) override;
  bool canMoveRowAtIndexPath(const platform::UITableView& tableView,
                             const platform::NSIndexPath& indexPath) override;
  platform::UITableViewCellEditingStyle editingStyleForRowAtIndexPath(
      const platform::UITableView& tableView, const platform::NSIndexPath& indexPath) override;
  bool shouldIndentWhileEditingRowAtIndexPath(const platform::UITableView& tableView,
                                              const platform::NSIndexPath& indexPath) override;
  platform::NSIndexPath targetIndexPathForMoveFromRowAtIndexPath(
      const platform::UITableView& tableView, const platform::NSIndexPath& source,
      const platform::NSIndexPath& proposed) override;
  /// @}

  /// @name The user's changes: each is stored at once, and the table is loaded anew.
  /// @{
  /// Disables an enabled animation (`Delete`), or enables a disabled one (`Insert`), which then
  /// stands first.
  void commitEditingStyle(const platform::UITableView& tableView,
                          platform::UITableViewCellEditingStyle style,
                          const platform::NSIndexPath& indexPath) override;
  /// Moves an enabled animation; a place past the end of the list is its end.
  void moveRowAtIndexPath(const platform::UITableView& tableView,
                          const platform::NSIndexPath& source,
                          const platform::NSIndexPath& destination) override;
  /// @}

  std::span<const platform::Method> methods() const override;

  platform::NSMutableArray allViews;       ///< The animations found, in the folder's order.
  platform::NSMutableArray defaultViews;   ///< What is enabled until something is stored.
  platform::NSMutableArray enabledViews;   ///< The enabled animations, in the user's order.
  platform::NSMutableArray disabledViews;  ///< Those found that are not enabled.

  platform::UITableView tableView;
  platform::UIBarButtonItem editButton;  ///< None, always: there is no such button.
  platform::NSString appName;            ///< Unused.

 private:
  void buildCatalogue();
  void buildTable();
  void enable(std::size_t row);
  void disable(std::size_t row);
  void saveAndReload();
};

}  // namespace quillmere
