#include <algorithm>
#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <sys/inotify.h>
#include <unistd.h>
#include <utility>
#include <variant>

#include "desktop/Descriptor.h"
#include "tests/settings/PhoneScreenTest.h"

namespace settings_tests {
namespace {

using testing::Pair;
using testing::UnorderedElementsAre;

/// How often each file was opened to be read, and each folder, as "folder/".
using Opened = std::map<std::string, int>;

/// The rows of the first page that open the others.
enum : std::size_t { lottiesRow, clockRow, quickActionsRow, colorRow };

constexpr const char* settingsFile = "com.orvalen.quillmere.plist";

/// Looked through by each page that is drawn, for changes that could not be stored.
const std::pair<const std::string, int> changesThatWait{"Preferences/", 1};

/// Counts what is opened in some folders (inotify(7)).
class Watch {
 public:
  void add(const std::filesystem::path& folder) {
    // Told of the ends as well, since beginnings that follow one another are told once.
    const int number =
        inotify_add_watch(events_.number(), folder.c_str(), IN_OPEN | IN_CLOSE_NOWRITE);
    EXPECT_GE(number, 0) << folder;
    folders_[number] = folder.filename().string() + '/';
  }

  /// Since it was asked last.
  Opened opened() {
    Opened counts;
    alignas(inotify_event) std::array<char, 16384> bytes;
    for (ssize_t size; (size = read(events_.number(), bytes.data(), bytes.size())) > 0;) {
      for (ssize_t at = 0; at < size;) {
        const auto& event = *reinterpret_cast<const inotify_event*>(bytes.data() + at);
        if ((event.mask & IN_OPEN) != 0) {
          ++counts[event.len > 0 ? std::string(event.name) : folders_[event.wd]];
        }
        at += static_cast<ssize_t>(sizeof event + event.len);
      }
    }
    return counts;
  }

 private:
  const desktop::Descriptor events_{inotify_init1(IN_NONBLOCK | IN_CLOEXEC)};
  std::map<int, std::string> folders_;
};

/// What opening a page reads: no more than it shows, each setting as it is stored now.
class FileReadsTest : public PhoneScreenTest {
 protected:
  FileReadsTest() {
    plist::Dictionary settings;
    settings.set("clockDigitSize", plist::Value::integer(80));
    phone.folder.replace(preferences, plist::writeBinary(plist::Value(settings)));
    for (const char* path : {"/var/mobile/Library/Preferences", "/Library/Lotties/Quillmere",
                             "/Library/PreferenceBundles/Quillmere.bundle"}) {
      watch.add(folder.path / std::string(path).substr(1));
    }
    phone.journal.start();
  }

  /// Opens the page behind a row of the first one.
  void push(std::size_t row) {
    std::get<desktop::ActionCell>(pages().top().sections.at(0).cells.at(row)).tap();
  }

  /// How many settings the page on top shows in its rows.
  int settingsInRows() {
    int count = 0;
    for (const desktop::Section& section : pages().top().sections) {
      for (const desktop::AnyCell& cell : section.cells) {
        count += std::visit([](const auto& known) { return known.key().empty() ? 0 : 1; }, cell);
      }
    }
    return count;
  }

  /// How many the bundle asked the preferences service for.
  int settingsAskedFor() const {
    return static_cast<int>(std::ranges::count_if(phone.journal.lines(), [](const auto& line) {
      return line.starts_with("HBPreferences objectForKey:");
    }));
  }

  Watch watch;
};

TEST_F(FileReadsTest, OfTheFirstPageAreItsListResourceAndWhatItsBarAndHeaderShow) {
  open();
  EXPECT_EQ(settingsInRows(), 0);
  EXPECT_GT(settingsAskedFor(), 0);
  EXPECT_THAT(watch.opened(),
              UnorderedElementsAre(Pair("Info.plist", 1), Pair("Root.plist", 1),
                                   Pair("Icon@2x.png", 1), Pair("Header.png", 1), changesThatWait,
                                   Pair(settingsFile, settingsAskedFor())));
}

TEST_F(FileReadsTest, OfAPageOfSettingsAreOneForEachRow) {
  for (const std::size_t row : {clockRow, quickActionsRow, colorRow}) {
    push(row);
    EXPECT_GT(settingsInRows(), 1) << row;
    EXPECT_EQ(settingsAskedFor(), 0) << row;
    EXPECT_THAT(watch.opened(),
                UnorderedElementsAre(changesThatWait, Pair(settingsFile, settingsInRows())))
        << row;
    pages().pop();
    watch.opened();
    phone.journal.clear();
  }
}

TEST_F(FileReadsTest, OfTheListAreItsFolderAndItsSetting) {
  push(lottiesRow);
  EXPECT_EQ(settingsAskedFor(), 1);
  EXPECT_THAT(watch.opened(),
              UnorderedElementsAre(changesThatWait, Pair("Quillmere/", 1), Pair(settingsFile, 1)));
}

TEST_F(FileReadsTest, OfAPageThatIsShownAgainAreNone) {
  push(clockRow);
  watch.opened();
  tree();
  tree();
  EXPECT_THAT(watch.opened(), testing::IsEmpty());
}

}  // namespace
}  // namespace settings_tests
