#pragma once

#include <gtest/gtest.h>
#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "desktop/Phone.h"
#include "desktop/SettingsApplication.h"
#include "plist/Document.h"
#include "settings/PhoneSetup.h"
#include "settings/Screen.h"
#include "settings/Touch.h"
#include "tests/support/TemporaryFolder.h"

namespace settings_tests {

/// A new phone with the add-on's first page on its screen.
class PhoneScreenTest : public testing::Test {
 protected:
  static constexpr const char* preferences =
      "/var/mobile/Library/Preferences/com.orvalen.quillmere.plist";

  PhoneScreenTest() {
    phone.report = [this](const std::string& line) { reports.push_back(line); };
    settings::setUpPhone(phone.folder);
    application = std::make_unique<desktop::SettingsApplication>("Quillmere");
  }

  void touch(const nlohmann::json& message) {
    settings::touch(application->navigation, message.dump());
  }
  void tap(const std::string& id) { touch({{"kind", "tap"}, {"id", id}}); }
  settings::Tree tree() const { return settings::Screen(application->navigation).tree(); }

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
  desktop::Phone phone{folder.path};
  std::unique_ptr<desktop::SettingsApplication> application;
};

/// Where the rows of the first page stand that open the others.
inline constexpr const char* clockRow = "page1.group0.row1";
inline constexpr const char* quickActionsRow = "page1.group0.row2";
inline constexpr const char* colorRow = "page1.group0.row3";

}  // namespace settings_tests
