#include "settings/Screen.h"

#include <string>

#include "desktop/UIKit/ControllerState.h"
#include "settings/Nodes.h"

namespace settings {

using nlohmann::json;
using Page = desktop::NavigationController::Page;

namespace {

std::string pageId(const Page& page) { return "page" + std::to_string(page.number); }
std::string backId(const Page& page) { return pageId(page) + ".back"; }
std::string groupId(const Page& page, std::size_t section) {
  return pageId(page) + ".group" + std::to_string(section);
}
std::string rowId(const Page& page, std::size_t section, std::size_t row) {
  return groupId(page, section) + ".row" + std::to_string(row);
}

const std::string& titleOf(const Page& page) { return desktop::stateOf(*page.controller).title; }

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

/// Adds the page on top with all that it shows.
void addPage(Tree& tree, const Page& page, const Page* below) {
  json node = {{"kind", "page"},
               {"title", titleOf(page)},
               {"back", nullptr},
               {"style", styleNode(desktop::stateOf(*page.controller).appearance)},
               {"children", json::array()}};
  if (below) {
    node["back"] = backId(page);
    tree[backId(page)] = {{"kind", "back"}, {"label", titleOf(*below)}};
  }
  for (std::size_t section = 0; section < page.sections.size(); ++section) {
    node["children"].push_back(addSection(tree, page, section));
  }
  tree[pageId(page)] = std::move(node);
}

}  // namespace

Tree Screen::tree() const {
  Tree tree;
  json window = {{"kind", "window"}, {"children", json::array()}};
  const Page* below = nullptr;
  for (const Page& page : navigation_.pages()) {
    window["children"].push_back(pageId(page));
    if (&page == &navigation_.pages().back()) {
      addPage(tree, page, below);
    } else {
      tree[pageId(page)] = {{"kind", "page"}, {"title", titleOf(page)}};
    }
    below = &page;
  }
  tree["window"] = std::move(window);
  return tree;
}

desktop::AnyCell* Screen::cell(std::string_view id) {
  Page& page = navigation_.top();
  for (std::size_t section = 0; section < page.sections.size(); ++section) {
    auto& cells = page.sections[section].cells;
    for (std::size_t row = 0; row < cells.size(); ++row) {
      if (rowId(page, section, row) == id) return &cells[row];
    }
  }
  return nullptr;
}

bool Screen::isBackButton(std::string_view id) const {
  return navigation_.pages().size() > 1 && backId(navigation_.pages().back()) == id;
}

}  // namespace settings
