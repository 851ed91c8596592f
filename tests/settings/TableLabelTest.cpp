#include "tests/settings/PhoneScreenTest.h"

namespace settings_tests {
namespace {

class TableLabelTest : public PhoneScreenTest {
 protected:
  /// What the first row of the animation list shows of a name.
  std::string shown(const std::string& name) {
    plist::Array names;
    names.append(plist::Value::string(name));
    plist::Dictionary settings;
    settings.set("enabledLotties", plist::Value(names));
    phone.folder.replace(preferences, plist::writeBinary(plist::Value(settings)));
    open();
    tap("page" + std::to_string(pages().top().number - firstNumber + 1) + ".group0.row0");
    for (const auto& [id, node] : tree()) {
      if (node["kind"] == "cell" && node["section"] == 0) return node["label"];
    }
    throw std::runtime_error("the list is empty");
  }

 private:
  const unsigned firstNumber = pages().top().number;
};

std::string letters(std::size_t count) {
  std::string text;
  for (std::size_t i = 0; i < count; ++i) text += "é";
  return text;
}

TEST_F(TableLabelTest, ShowsNamesOfFilesWhole) {
  const std::string longest(255, 'a');
  EXPECT_EQ(shown(longest), longest);
}

// Each message would hold them as often as there are rows in view.
TEST_F(TableLabelTest, CutsTextsOfMegabytesBetweenLetters) {
  EXPECT_EQ(shown(letters(512)), letters(512));
  EXPECT_EQ(shown(letters(1 << 20)), letters(512) + "…");
  EXPECT_EQ(shown("a" + letters(1 << 20)), "a" + letters(511) + "…");
}

}  // namespace
}  // namespace settings_tests
