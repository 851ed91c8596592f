#include <array>
#include <atomic>
#include <stdexcept>
#include <sys/syscall.h>
#include <unistd.h>

#include "bench/support/Contestant.h"
#include "bench/support/Preferences.h"
#include "desktop/Foundation/ArrayBody.h"
#include "desktop/Foundation/PropertyListFile.h"
#include "desktop/Foundation/Values.h"
#include "desktop/FreedMemory.h"
#include "desktop/Phone.h"
#include "desktop/UIKit/ControllerState.h"
#include "platform/Preferences/PSListController.h"

namespace {

bool syncs = true;

}  // namespace

/// Stands before the C library's, so that a change can be timed without the disk.
extern "C" int fsync(int file) { return syncs ? static_cast<int>(syscall(SYS_fsync, file)) : 0; }

namespace {

using bench::Trial;
using desktop::Phone;
using plist::Form;

constexpr const char* domainFile = "/var/mobile/Library/Preferences/com.orvalen.quillmere.plist";
constexpr const char* key = "clockDigitSize";

/// A phone with the Clock page open, and that page's row for the setting.
class OpenPage {
 public:
  OpenPage(const std::filesystem::path& host, std::size_t keys, Form form) : phone_(host) {
    phone_.folder.makeFolders("/var/mobile/Library/Preferences");
    phone_.folder.makeLink("/User", "var/mobile");
    writePropertyList(phone_.folder, domainFile,
                      {desktop::Entries(bench::preferencesOf(keys)), form});
    page_ =
        std::dynamic_pointer_cast<platform::PSListController>(desktop::makeController("QMClockVC"));
    page_->init();
    row_ = rowWithKey();
  }

  platform::Object read() { return desktop::perform(*page_, "readPreferenceValue:", row_); }

  void change(int value) {
    desktop::perform(
        *page_, "setPreferenceValue:specifier:", desktop::box(plist::Value::integer(value)), row_);
    if (phone_.losses > 0) throw std::runtime_error(phone_.banner);
  }

 private:
  platform::PSSpecifier rowWithKey() {
    for (const platform::Object& row : desktop::objectsIn(page_->specifiers())) {
      const auto specifier = row.as<platform::PSSpecifier>();
      if (desktop::textOf(specifier.propertyForKey("key")) == key) return specifier;
    }
    throw std::runtime_error("the page has no such row");
  }

  Phone phone_;
  std::shared_ptr<platform::PSListController> page_;
  platform::PSSpecifier row_;
};

Trial changing(std::size_t keys, const std::filesystem::path& folder) {
  const auto page = std::make_shared<OpenPage>(folder, keys, Form::Binary);
  return Trial([page, next = 0]() mutable { page->change(++next); });
}

Trial reading(std::size_t keys, const std::filesystem::path& folder, Form form) {
  const auto page = std::make_shared<OpenPage>(folder, keys, form);
  return Trial([page] {
    if (desktop::doubleValue(page->read()) != 75) throw std::runtime_error("another value");
  });
}

constexpr std::array cases{
    bench::Case{"change", changing},
    bench::Case{"change-unsynced",
                [](std::size_t keys, const std::filesystem::path& folder) {
                  syncs = false;
                  return changing(keys, folder);
                }},
    bench::Case{"read-binary",
                [](std::size_t keys, const std::filesystem::path& folder) {
                  return reading(keys, folder, Form::Binary);
                }},
    bench::Case{"read-xml",
                [](std::size_t keys, const std::filesystem::path& folder) {
                  return reading(keys, folder, Form::Xml);
                }},
};

}  // namespace

int main(int argc, char** argv) {
  desktop::keepFreedMemory();  // As the program does.
  return bench::compete(argc, argv, cases);
}
