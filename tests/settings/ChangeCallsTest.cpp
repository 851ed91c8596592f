#include <gmock/gmock.h>

#include "tests/settings/PhoneScreenTest.h"
#include "tests/settings/SystemCalls.h"

namespace settings_tests {
namespace {

using testing::Pair;
using testing::UnorderedElementsAre;

constexpr const char* key = "clockDigitSize";

/// What one change asks of the system: the least with which it is durable and whole at every
/// moment.
class ChangeCallsTest : public PhoneScreenTest {
 protected:
  void store(plist::Form form) {
    plist::Dictionary settings;
    settings.set(key, plist::Value::integer(50));
    phone.folder.replace(preferences, plist::write(plist::Value(settings), form).value());
  }

  void expectTheLeast(plist::Form form) {
    store(form);
    tap(clockRow);
    auto& size = std::get<desktop::SliderCell>(pages().top().sections.at(2).cells.at(0));
    const SystemCalls calls = systemCallsOf([&] { size.slide(80); });
    // Opened: the page's file and its folder, what is kept beside the service's file, and that
    // file.
    EXPECT_THAT(calls, UnorderedElementsAre(Pair("open", 4), Pair("create", 1), Pair("write", 1),
                                            Pair("rename", 1), Pair("sync", 2)));
    EXPECT_EQ(stored(key)->real(), 80);
  }
};

TEST_F(ChangeCallsTest, OneFileIsWrittenSyncedAndRenamedAndItsFolderSynced) {
  expectTheLeast(plist::Form::Binary);
}

TEST_F(ChangeCallsTest, AFileOfXmlTakesNoMore) { expectTheLeast(plist::Form::Xml); }

TEST_F(ChangeCallsTest, AFileThatHoldsTheValueIsOnlyRead) {
  store(plist::Form::Binary);
  EXPECT_THAT(systemCallsOf([&] {
                phone.preferences.set("com.orvalen.quillmere", key, plist::Value::integer(50));
              }),
              UnorderedElementsAre(Pair("open", 2)));
}

}  // namespace
}  // namespace settings_tests
