#pragma once

#include <memory>
#include <string>
#include <vector>

#include "desktop/UIKit/TableBody.h"
#include "platform/UIKit/UITableView.h"
#include "platform/UIKit/UITableViewDataSource.h"
#include "platform/UIKit/UITableViewDelegate.h"
#include "platform/UIKit/UIViewController.h"
#include "tests/settings/PhoneScreenTest.h"

namespace settings_tests {

/// A page with a table that is being edited. A row is labelled "SECTION.ROW". Those of the first
/// section can be deleted and moved, those of the second inserted, and those of others neither.
class ListPage : public platform::UIViewController,
                 public platform::UITableViewDataSource,
                 public platform::UITableViewDelegate {
 public:
  /// `rowCounts` of each section.
  explicit ListPage(std::vector<std::size_t> rowCounts) : rows(std::move(rowCounts)) {}

  void viewDidLoad() override;
  /// Puts a view over the table.
  void cover(const platform::UIView& with) { view().addSubview(with); }

  using Table = platform::UITableView;
  using Path = platform::NSIndexPath;
  using Style = platform::UITableViewCellEditingStyle;
  std::size_t numberOfSectionsInTableView(const Table&) override { return rows.size(); }
  platform::NSString titleForHeaderInSection(const Table&, std::size_t section) override;
  std::size_t numberOfRowsInSection(const Table&, std::size_t section) override;
  platform::UITableViewCell cellForRowAtIndexPath(Table table, const Path& path) override;
  bool canEditRowAtIndexPath(const Table&, const Path& path) override { return path.section < 2; }
  bool canMoveRowAtIndexPath(const Table&, const Path& path) override { return path.section == 0; }
  Style editingStyleForRowAtIndexPath(const Table&, const Path& path) override;
  bool shouldIndentWhileEditingRowAtIndexPath(const Table&, const Path&) override { return false; }
  Path targetIndexPathForMoveFromRowAtIndexPath(const Table&, const Path&,
                                                const Path& proposed) override {
    return proposed;
  }
  void commitEditingStyle(const Table&, Style style, const Path& path) override;
  void moveRowAtIndexPath(const Table&, const Path& source, const Path& destination) override;

  const std::vector<std::size_t> rows;
  Table table;
  /// The labels of the rows whose cells were asked for, in order.
  std::vector<std::string> asked;
  /// What the user changed, as in "delete 0.3" and "move 0.1 0.2".
  std::vector<std::string> changes;
};

/// A phone with such a page on top of the first one.
class ListPageTest : public PhoneScreenTest {
 protected:
  void show(std::vector<std::size_t> rowCounts) {
    page = std::make_shared<ListPage>(std::move(rowCounts));
    pages().push(page);
  }

  std::string tableId() { return tree().at("page2")["children"][0]; }
  nlohmann::json table() { return tree().at(tableId()); }
  /// What the tree calls that row, as in "0.3".
  std::string rowId(const std::string& row) {
    const unsigned reloads = desktop::bodyAs<desktop::TableBody>(page->table)->reloads();
    return tableId() + ".load" + std::to_string(reloads) + ".row" + row;
  }
  nlohmann::json row(const std::string& row) { return tree().at(rowId(row)); }

  /// The labels of the rows that the table shows.
  std::vector<std::string> shown() { return shown(viewport); }
  std::vector<std::string> shown(const settings::Viewport& view);

  std::shared_ptr<ListPage> page;
};

}  // namespace settings_tests
