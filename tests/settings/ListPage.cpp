#include "tests/settings/ListPage.h"

namespace settings_tests {

namespace {

std::string text(const platform::NSIndexPath& path) {
  return std::to_string(path.section) + '.' + std::to_string(path.row);
}

}  // namespace

void ListPage::viewDidLoad() {
  table = Table::initWithFrame({}, platform::UITableViewStyle::Grouped);
  table.setDataSource(*this);
  table.setDelegate(*this);
  table.setEditing(true, platform::Animated::No);
  view().addSubview(table);
}

platform::NSString ListPage::titleForHeaderInSection(const Table&, std::size_t section) {
  return platform::NSString("Section " + std::to_string(section));
}

std::size_t ListPage::numberOfRowsInSection(const Table&, std::size_t section) {
  return rows.at(section);
}

platform::UITableViewCell ListPage::cellForRowAtIndexPath(Table from, const Path& path) {
  asked.push_back(text(path));
  auto cell = from.dequeueReusableCellWithIdentifier("row");
  if (!cell) {
    cell = platform::UITableViewCell::initWithStyle(platform::UITableViewCellStyle::Default, "row");
  }
  cell.textLabel().setText(platform::NSString(text(path)));
  cell.textLabel().setTextColor(platform::UIColor::whiteColor());
  return cell;
}

ListPage::Style ListPage::editingStyleForRowAtIndexPath(const Table&, const Path& path) {
  return path.section == 0 ? Style::Delete : Style::Insert;
}

void ListPage::commitEditingStyle(const Table&, Style style, const Path& path) {
  changes.push_back((style == Style::Delete ? "delete " : "insert ") + text(path));
}

void ListPage::moveRowAtIndexPath(const Table&, const Path& source, const Path& destination) {
  changes.push_back("move " + text(source) + ' ' + text(destination));
}

std::vector<std::string> ListPageTest::shown(const settings::Viewport& view) {
  const settings::Tree now = tree(view);
  std::vector<std::string> labels;
  for (const auto& id : now.at(tableId())["children"]) labels.push_back(now.at(id)["label"]);
  return labels;
}

}  // namespace settings_tests
