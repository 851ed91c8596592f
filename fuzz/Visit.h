#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "desktop/Phone.h"
#include "settings/Pictures.h"
#include "settings/Screen.h"

namespace fuzz {

/// The folder of a phone, in memory, laid out once for the whole run and deleted at its end.
class Installation {
 public:
  Installation();
  Installation(const Installation&) = delete;
  Installation& operator=(const Installation&) = delete;
  ~Installation();

  /// The phone's folder as it was at first, so that every input finds the same.
  std::filesystem::path restored();

 private:
  std::filesystem::path path_;
};

/// Somebody who opens the Settings application on a phone, with time passing as they say. After
/// each step it is required that the screen can be sent to a page, and that the preferences file is
/// as whole as it was found.
class Visit {
 public:
  static constexpr const char* preferences =
      "/var/mobile/Library/Preferences/com.orvalen.quillmere.plist";

  explicit Visit(const std::filesystem::path& folder);

  /// Gives the phone a system that add-ons introduce themselves on.
  void bringUpToDate() { phone_.identity.productVersion = "14.5"; }

  /// Puts a preferences file there, as another program does.
  void store(std::string_view bytes);

  /// Opens the add-on's first page.
  void open();

  /// What one page says to the program, where "{3}" stands for the fourth id on the screen: nobody
  /// guesses ids. "wait" lets a second pass.
  void say(std::string_view line);

  /// Opens the list of animations from the first page.
  void openAnimations();

  /// Brings all rows of the table on the screen into view.
  void viewAllRows();

 private:
  std::string spliced(std::string_view line) const;
  void touch(const std::string& message);
  /// Sees what is on the screen, as a page does.
  void look();
  /// Adds the ids in a node, and those in the nodes that it names, in an order in which the numbers
  /// in them have no part: those differ from run to run.
  void collectIds(const nlohmann::json& node);
  void addId(const std::string& id);
  void requireWholePreferences() const;

  desktop::MainQueue::Clock::time_point time_{};
  desktop::Phone phone_;
  const settings::Screen screen_{phone_.springBoard};
  settings::Pictures pictures_;
  settings::Viewport viewport_;
  settings::Tree shown_;
  std::vector<std::string> ids_;
  /// What was stored and is no dictionary: nobody may touch it.
  std::optional<std::string> unreadable_;
};

}  // namespace fuzz
