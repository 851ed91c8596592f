#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "desktop/UIKit/TableBody.h"
#include "tests/desktop/PhoneTest.h"

namespace desktop_tests {

/// The rows of a table: those of the first section can be deleted, those of others inserted; all
/// can be moved but the first one.
class Rows : public platform::UITableViewDataSource, public platform::UITableViewDelegate {
 public:
  using Table = platform::UITableView;
  using Path = platform::NSIndexPath;
  using Style = platform::UITableViewCellEditingStyle;

  virtual ~Rows() = default;

  std::size_t numberOfSectionsInTableView(const Table&) override {
    ++timesCounted;
    return counts.size();
  }
  platform::NSString titleForHeaderInSection(const Table&, std::size_t section) override {
    return platform::NSString("Section " + std::to_string(section));
  }
  std::size_t numberOfRowsInSection(const Table&, std::size_t section) override {
    return counts.at(section);
  }
  platform::UITableViewCell cellForRowAtIndexPath(Table table, const Path& path) override;
  bool canEditRowAtIndexPath(const Table&, const Path&) override { return canEdit; }
  bool canMoveRowAtIndexPath(const Table&, const Path& path) override { return path != Path(); }
  Style editingStyleForRowAtIndexPath(const Table&, const Path& path) override {
    return path.section == 0 ? Style::Delete : Style::Insert;
  }
  bool shouldIndentWhileEditingRowAtIndexPath(const Table&, const Path&) override { return false; }
  Path targetIndexPathForMoveFromRowAtIndexPath(const Table&, const Path&,
                                                const Path& proposed) override {
    return landing.value_or(proposed);
  }
  void commitEditingStyle(const Table&, Style style, const Path& path) override {
    changes.push_back((style == Style::Delete ? "delete " : "insert ") + text(path));
  }
  void moveRowAtIndexPath(const Table&, const Path& source, const Path& destination) override {
    changes.push_back("move " + text(source) + ' ' + text(destination));
  }

  static std::string text(const Path& path) {
    return std::to_string(path.section) + '.' + std::to_string(path.row);
  }

  std::vector<std::size_t> counts{3, 2};
  bool canEdit = true;
  /// Where every dragged row lands, if not where it is let go.
  std::optional<Path> landing;

  int timesCounted = 0;
  /// The rows whose cells were asked for, in order.
  std::vector<std::string> asked;
  /// How many cells had to be made for want of one to use again.
  std::size_t made = 0;
  std::vector<std::string> changes;
};

/// A table over such rows that is being edited.
class TableTest : public PhoneTest {
 protected:
  TableTest() {
    table.setDataSource(rows);
    table.setDelegate(rows);
    table.setEditing(true, platform::Animated::No);
  }

  desktop::TableBody& body() { return *desktop::bodyAs<desktop::TableBody>(table); }
  std::string labelOf(const platform::NSIndexPath& row);

  Rows rows;
  platform::UITableView table =
      platform::UITableView::initWithFrame({}, platform::UITableViewStyle::Grouped);
};

}  // namespace desktop_tests
