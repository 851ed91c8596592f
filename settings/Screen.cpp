#include "settings/Screen.h"

#include <algorithm>
#include <span>
#include <string>

#include "desktop/Phone.h"
#include "desktop/UIKit/ControllerState.h"
#include "desktop/UIKit/NavigationItemBody.h"
#include "settings/Moment.h"
#include "settings/Nodes.h"
#include "settings/Overlay.h"
#include "settings/Table.h"
#include "settings/Views.h"

namespace settings {

using desktop::bodyAs;
using desktop::NavigationController;
using desktop::TableBody;
using desktop::titleOf;
using nlohmann::json;
using Page = NavigationController::Page;

namespace {

std::string pageId(const Page& page) { return "page" + std::to_string(page.number); }
std::string backId(const Page& page) { return pageId(page) + ".back"; }
std::string groupId(const Page& page, std::size_t section) {
  return pageId(page) + ".group" + std::to_string(section);
}
std::string rowId(const Page& page, std::size_t section, std::size_t row) {
  return groupId(page, section) + ".row" + std::to_string(row);
}

const desktop::ControllerState& stateOf(const Page& page) {
  return desktop::stateOf(*page.controller);
}

const desktop::NavigationItemBody& itemOf(const Page& page) {
  return *bodyAs<desktop::NavigationItemBody>(stateOf(page).navigationItem);
}

/// The view in the bar's trailing place; none when there is none.
platform::UIView trailingView(const Page& page) {
  const auto* item = bodyAs<desktop::BarButtonItemBody>(itemOf(page).rightItem);
  return item ? item->customView : platform::UIView();
}

/// The views that the controller has put into its own.
const std::vector<platform::UIView>& viewsOn(const Page& page) {
  return desktop::viewOf(stateOf(page).view)->subviews;
}

/// The table that fills the page; null when there is none.
TableBody* tableOn(const Page& page) {
  for (const platform::UIView& view : viewsOn(page)) {
    if (auto* table = bodyAs<TableBody>(view)) return table;
  }
  return nullptr;
}

/// Whether the controller has put a view over what the page shows: it takes all touches but those
/// of the bar.
bool isCovered(const Page& page) {
  return std::ranges::any_of(viewsOn(page),
                             [](const auto& view) { return !bodyAs<TableBody>(view); });
}

/// Adds the section's nodes to the tree; its id.
std::string addSection(Tree& tree, const Page& page, std::size_t number) {
  const desktop::Section& section = page.sections[number];
  const std::string id = groupId(page, number);
  json group = {{"kind", "group"}, {"title", section.title}, {"children", json::array()}};
  if (section.footer) group["footer"] = *section.footer;
  for (std::size_t row = 0; row < section.cells.size(); ++row) {
    group["children"].push_back(rowId(page, number, row));
    tree[rowId(page, number, row)] = rowNode(section.cells[row]);
  }
  tree[id] = std::move(group);
  return id;
}

/// Adds what the bar holds besides the title's text.
void addBar(Tree& tree, json& node, const Page& page, const Page* below, Pictures& pictures) {
  node["titleView"] = addView(tree, itemOf(page).titleView, pictures);
  node["trailing"] = addBarSwitch(tree, trailingView(page), titleOf(*page.controller));
  node["back"] = nullptr;
  if (!below) return;
  node["back"] = backId(page);
  tree[backId(page)] = {{"kind", "back"}, {"label", titleOf(*below->controller)}};
}

/// Adds what stands below the bar: the header and the groups, or a table, and what covers them.
void addContent(Tree& tree, json& node, const Page& page, const Viewport& viewport,
                Pictures& pictures) {
  const auto* list = bodyAs<TableBody>(stateOf(page).table);
  node["header"] = list ? addView(tree, list->header, pictures) : json(nullptr);
  const bool scrolls = list && desktop::listensToScrolling(*page.controller);
  node["offset"] = scrolls ? json(list->contentOffset.y) : json(nullptr);
  node["children"] = json::array();
  node["covers"] = json::array();
  for (std::size_t section = 0; section < page.sections.size(); ++section) {
    node["children"].push_back(addSection(tree, page, section));
  }
  for (const platform::UIView& view : viewsOn(page)) {
    if (auto* table = bodyAs<TableBody>(view)) {
      node["children"].push_back(addTable(tree, *table, viewport));
    } else {
      node["covers"].push_back(addView(tree, view, pictures));
    }
  }
}

/// Adds the banner that says so; its id, or null when nothing is to be said.
json addBanner(Tree& tree, const std::string& text) {
  if (text.empty()) return nullptr;
  tree[std::string(bannerId)] = {{"kind", "banner"}, {"text", text}};
  return bannerId;
}

}  // namespace

Tree Screen::tree(const Viewport& viewport, Pictures& pictures) const {
  Tree tree;
  json window = {{"kind", "window"}, {"children", json::array()}};
  const Page* below = nullptr;
  NavigationController* navigation = board_.navigation();
  for (const Page& page : navigation ? std::span(navigation->pages()) : std::span<const Page>()) {
    json node = {{"kind", "page"}, {"title", titleOf(*page.controller)}};
    if (&page == top()) {
      node["style"] = styleNode(stateOf(page).appearance);
      addBar(tree, node, page, below, pictures);
      addContent(tree, node, page, viewport, pictures);
    }
    tree[pageId(page)] = std::move(node);
    window["children"].push_back(pageId(page));
    below = &page;
  }
  window["overlay"] = addOverlay(tree, board_);
  window["banner"] = addBanner(tree, desktop::Phone::current().banner);
  tree["window"] = std::move(window);
  return tree;
}

std::optional<Resource> Screen::file(std::string_view address, Pictures& pictures) const {
  if (address == screenAddress) {
    return Resource{"application/json", *message(screenMessage(tree({}, pictures)))};
  }
  if (auto picture = pictures.file(address)) return picture;
  NavigationController* navigation = board_.navigation();
  if (auto attached = navigation ? attachment(*navigation, address) : std::nullopt) return attached;
  return bundlePicture(desktop::Phone::current(), address);
}

const Page* Screen::top() const {
  NavigationController* navigation = board_.navigation();
  return navigation ? &navigation->top() : nullptr;
}

desktop::AnyCell* Screen::cell(std::string_view id) const {
  if (!top() || isCovered(*top())) return nullptr;
  Page& page = board_.navigation()->top();
  for (std::size_t section = 0; section < page.sections.size(); ++section) {
    auto& cells = page.sections[section].cells;
    for (std::size_t row = 0; row < cells.size(); ++row) {
      if (rowId(page, section, row) == id) return &cells[row];
    }
  }
  return nullptr;
}

desktop::SwitchBody* Screen::barSwitch() const {
  return top() ? bodyAs<desktop::SwitchBody>(trailingView(*top())) : nullptr;
}

desktop::SwitchBody* Screen::barSwitch(std::string_view id) const {
  auto* knob = barSwitch();
  return knob && viewId(*knob) == id ? knob : nullptr;
}

TableBody* Screen::scroller(std::string_view id) const {
  const bool isTop = top() && pageId(*top()) == id;
  return isTop && !isCovered(*top()) ? bodyAs<TableBody>(stateOf(*top()).table) : nullptr;
}

TableBody* Screen::table() const { return top() && !isCovered(*top()) ? tableOn(*top()) : nullptr; }

bool Screen::isBackButton(std::string_view id) const {
  return top() && board_.navigation()->pages().size() > 1 && backId(*top()) == id;
}

}  // namespace settings
