#pragma once

#include <gtest/gtest.h>
#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "desktop/Phone.h"
#include "plist/Document.h"
#include "settings/PhoneSetup.h"
#include "settings/Screen.h"
#include "settings/Touch.h"
#include "tests/support/TemporaryFolder.h"

namespace settings_tests {

/// A new phone with the add-on's first page on its screen, and time that passes when the test says.
/// Its system is too old for the welcome screen. Pages go by the numbers that they have on the
/// first phone of a program, whatever phones there were before.
class PhoneScreenTest : public testing::Test {
 protected:
  static constexpr const char* preferences =
      "/var/mobile/Library/Preferences/com.orvalen.quillmere.plist";

  PhoneScreenTest() {
    phone.report = [this](const std::string& line) { reports.push_back(line); };
    phone.mainQueue.now = [this] { return time; };
    phone.identity.productVersion = "12.5";
    settings::setUpPhone(phone.folder);
    open();
    pagesBefore = static_cast<int>(pages().top().number) - 1;
  }

  /// Opens the first page anew.
  void open() { phone.springBoard.open("prefs:root=Quillmere"); }
  desktop::NavigationController& pages() { return *phone.springBoard.navigation(); }

  void touch(const nlohmann::json& message) { touch(viewport, message); }
  void touch(settings::Viewport& view, const nlohmann::json& message) {
    settings::touch(phone.springBoard, view, shifted(message.dump(), pagesBefore));
  }
  void tap(const std::string& id) { touch({{"kind", "tap"}, {"id", id}}); }

  /// The reason for which the message is refused; empty when it is carried out.
  std::string refusalOf(const std::string& message) {
    try {
      settings::touch(phone.springBoard, viewport, shifted(message, pagesBefore));
      return "";
    } catch (const settings::RefusedTouch& refused) {
      return shifted(refused.what(), -pagesBefore);
    }
  }
  std::string refusal(const nlohmann::json& message) { return refusalOf(message.dump()); }

  settings::Tree tree() { return tree(viewport); }
  settings::Tree tree(const settings::Viewport& view) {
    const nlohmann::json shown = screen.tree(view, pictures);
    return nlohmann::json::parse(shifted(shown.dump(), -pagesBefore)).get<settings::Tree>();
  }
  /// The node that `id` names in the tree; null for null.
  nlohmann::json node(const nlohmann::json& id) {
    return id.is_null() ? nlohmann::json() : tree().at(id.get<std::string>());
  }
  /// What lies over the pages.
  nlohmann::json overlay() { return node(tree().at("window")["overlay"]); }

  void pass(desktop::MainQueue::Clock::duration duration) {
    time += duration;
    phone.mainQueue.run();
  }

  /// The value in the preferences file; none without a file or a key.
  std::optional<plist::Value> stored(const char* key) const {
    const auto bytes = phone.folder.read(preferences);
    if (!bytes) return std::nullopt;
    const plist::Document document = plist::read(*bytes);
    const plist::Value* found = document.root.dictionary()->find(key);
    return found ? std::optional(*found) : std::nullopt;
  }

  const support::TemporaryFolder folder;
  std::vector<std::string> reports;
  desktop::MainQueue::Clock::time_point time{};
  desktop::Phone phone{folder.path};
  const settings::Screen screen{phone.springBoard};
  settings::Pictures pictures;
  settings::Viewport viewport;

 private:
  /// The text with that added to the numbers of pages.
  static std::string shifted(std::string_view text, int by);

  /// The number that was given last before the phone's first page.
  int pagesBefore = 0;
};

/// Where the rows of the first page stand that open the others.
inline constexpr const char* lottiesRow = "page1.group0.row0";
inline constexpr const char* clockRow = "page1.group0.row1";
inline constexpr const char* quickActionsRow = "page1.group0.row2";
inline constexpr const char* colorRow = "page1.group0.row3";

}  // namespace settings_tests
