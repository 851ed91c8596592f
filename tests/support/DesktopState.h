#pragma once

#include <functional>
#include <stdexcept>

#include "desktop/Foundation/Values.h"
#include "desktop/Message.h"
#include "desktop/Phone.h"
#include "desktop/Preferences/SpecifierBody.h"
#include "desktop/UIKit/ControllerState.h"
#include "desktop/UIKit/NavigationController.h"
#include "desktop/UIKit/NavigationItemBody.h"
#include "desktop/UIKit/SwitchBody.h"
#include "desktop/UIKit/TableBody.h"
#include "platform/Preferences/PSListController.h"
#include "settings/PhoneSetup.h"
#include "tests/support/Driver.h"

namespace support {

/// The driver over the desktop's stand-in phone.
struct Driver::State {
  explicit State(const std::filesystem::path& folder) : path(folder), phone(path) {
    phone.report = [this](const std::string& line) { reports.push_back(line); };
    phone.notifications.observe([this](const std::string& name) { posted.push_back(name); });
    phone.journal.start();
    phone.mainQueue.now = [this] { return time; };
    phone.identity = {std::nullopt, "12.5", std::nullopt};
    settings::sweepPhone(phone.folder);
    settings::setUpPhone(phone.folder);
    phone.preferences.settleAll();
    open();
  }

  void open() { phone.springBoard.open("prefs:root=Quillmere"); }

  desktop::NavigationController& navigation() {
    if (desktop::NavigationController* pages = phone.springBoard.navigation()) return *pages;
    throw std::runtime_error("nothing to touch: the screen is being restarted");
  }
  desktop::NavigationController::Page& top() { return navigation().top(); }
  const desktop::ControllerState& controller() { return desktop::stateOf(*top().controller); }
  const desktop::NavigationItemBody& item() {
    return *desktop::bodyAs<desktop::NavigationItemBody>(controller().navigationItem);
  }
  desktop::SwitchBody& barSwitch() {
    const auto* button = desktop::bodyAs<desktop::BarButtonItemBody>(item().rightItem);
    auto* knob = button ? desktop::bodyAs<desktop::SwitchBody>(button->customView) : nullptr;
    if (!knob) throw std::runtime_error("there is no switch in the bar");
    return *knob;
  }
  /// The first of the views on the page that is of this kind; none when there is none.
  template <class View>
  platform::UIView viewOnPage() {
    for (const platform::UIView& view : desktop::viewOf(controller().view)->subviews) {
      if (desktop::bodyAs<View>(view)) return view;
    }
    return {};
  }
  platform::UITableView tableHandle() {
    if (const auto table = viewOnPage<desktop::TableBody>())
      return table.as<platform::UITableView>();
    throw std::runtime_error("there is no table on the page");
  }
  desktop::TableBody& table() { return *desktop::bodyAs<desktop::TableBody>(tableHandle()); }
  platform::PSListController& page() {
    return dynamic_cast<platform::PSListController&>(*top().controller);
  }

  /// The first cell of this type for which `matches` holds.
  template <class Cell>
  Cell& cell(const std::string& what, const std::function<bool(const Cell&)>& matches) {
    for (desktop::Section& section : top().sections) {
      for (desktop::AnyCell& any : section.cells) {
        auto* cell = std::get_if<Cell>(&any);
        if (cell && matches(*cell)) return *cell;
      }
    }
    throw std::runtime_error("nothing to touch: " + what);
  }
  template <class Cell>
  Cell& keyed(const std::string& key) {
    return cell<Cell>(key, [&](const Cell& candidate) { return candidate.key() == key; });
  }

  platform::PSSpecifier loose(const LooseRow& row) {
    auto specifier = desktop::make<platform::PSSpecifier, desktop::SpecifierBody>();
    auto& body = *desktop::bodyAs<desktop::SpecifierBody>(specifier);
    body.target = &page();
    for (const auto& [key, value] : row.properties) body.setProperty(desktop::box(value), key);
    return specifier;
  }

  std::filesystem::path animationFolder() const { return path / "Library/Lotties/Quillmere"; }

  std::filesystem::path path;
  std::vector<std::string> reports;
  std::vector<std::string> posted;
  desktop::Phone phone;
  desktop::MainQueue::Clock::time_point time{};
};

}  // namespace support
