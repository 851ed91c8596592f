#include <algorithm>
#include <cstdio>
#include <ctime>
#include <gtest/gtest.h>
#include <vector>

#include "plist/Document.h"
#include "settings/PhoneSetup.h"
#include "tests/plist/Allocation.h"
#include "tests/plist/Build.h"
#include "tests/plist/OpenedPhone.h"
#include "tests/support/Figures.h"
#include "tests/support/TemporaryFolder.h"

namespace plist_tests {
namespace {

using plist::Value;
using samples::repeated;

constexpr std::size_t bytes = plist::Limits().bytes - 4096;
constexpr std::size_t nodes = plist::Limits().nodes - 8;
constexpr std::size_t mebibyte = 1024 * 1024;

std::string inDictionary(const std::string& key, const std::string& element) {
  return samples::xmlFile("<dict><key>" + key + "</key>" + element + "</dict>");
}

std::string listOf(const std::string& elements) {
  return inDictionary("enabledLotties", "<array>" + elements + "</array>");
}

/// As many of the element as a file takes, each of which counts as so many values.
std::string manyOf(const std::string& element, std::size_t count) {
  return listOf(repeated(element, std::min(bytes / element.size(), nodes / count)));
}

std::string manyNames(std::size_t count, const char* format) {
  std::string names;
  for (std::size_t i = 0; i < count && names.size() < bytes; ++i) {
    char name[64];
    std::snprintf(name, sizeof name, format, i);
    names += std::string("<string>") + name + "</string>";
  }
  return listOf(names);
}

std::string manyKeys(std::size_t count) {
  std::string entries;
  for (std::size_t i = 0; i < count && entries.size() < bytes; ++i) {
    entries += "<key>" + std::to_string(i) + "</key><true/>";
  }
  return samples::xmlFile("<dict>" + entries + "</dict>");
}

/// A text that is longer in UTF-8 than in the file.
std::string wideText() {
  const auto wide = [](const char* ascii) { return samples::utf16(ascii, true).substr(2); };
  return "\xfe\xff" + wide("<plist><dict><key>enabledLotties</key><array><string>") +
         std::string(bytes / 2 * 2, '\x4e') + wide("</string></array></dict></plist>");
}

/// A list of one element, again and again, which in a binary file stands there once.
std::string shared(const Value& element) {
  plist::Array list;
  while (list.size() < nodes / 2) list.append(element);
  plist::Dictionary settings;
  settings.set("enabledLotties", Value(list));
  return plist::writeBinary(Value(settings));
}

Value arrayOf(const Value& element) {
  plist::Array array;
  array.append(element);
  return Value(array);
}

/// A phone with that preferences file.
std::filesystem::path phoneWith(const std::string& file, const std::filesystem::path& folder) {
  settings::setUpPhone(desktop::PhoneFolder(folder));
  desktop::PhoneFolder(folder).replace(OpenedPhone::preferences, file);
  return folder;
}

struct LargePreferences {
  const char* name;
  std::string (*file)();
};

void PrintTo(const LargePreferences& file, std::ostream* out) { *out << file.name; }

class LargePreferencesTest : public testing::TestWithParam<LargePreferences> {
 protected:
  /// Notes how long a step takes the processor, which others may have as well.
  template <class Step>
  void measure(Step step) {
    const std::clock_t start = std::clock();
    step();
    slowest = std::max(slowest, std::clock() - start);
  }

  const support::TemporaryFolder folder;
  std::clock_t slowest = 0;
};

TEST_P(LargePreferencesTest, CostsLessThan64MebibytesAndASecond) {
  phoneWith(GetParam().file(), folder.path);
  const std::size_t before = allocation::inUse();
  allocation::resetPeak();
  std::optional<OpenedPhone> phone;
  measure([&] { phone.emplace(folder.path); });
  measure([&] { phone->openList(); });
  measure([&] { phone->changeList(); });
  const std::size_t most = allocation::peak() - before;
  EXPECT_LT(most, 64 * mebibyte);
  EXPECT_LT(slowest, CLOCKS_PER_SEC);
  support::note(std::string("large preferences: ") + GetParam().name,
                std::to_string(most / mebibyte) + " MiB, " +
                    std::to_string(slowest * 1000 / CLOCKS_PER_SEC) + " ms",
                "under 64 MiB and 1 s");
}

TEST(HonestPreferencesTest, AHundredThousandAnimationsAreListed) {
  const support::TemporaryFolder folder;
  OpenedPhone phone(phoneWith(manyNames(100'000, "animation-%010zu"), folder.path));
  phone.openList();
  for (const auto& [id, node] : phone.look()) {
    if (node["kind"] != "table") continue;
    EXPECT_EQ(node["sections"][0]["count"], 100'000);
  }
}

TEST(HonestPreferencesTest, TwentyThousandKeysAreKept) {
  const support::TemporaryFolder folder;
  OpenedPhone phone(phoneWith(manyKeys(20'000), folder.path));
  phone.openList();
  phone.changeList();
  const auto file = desktop::PhoneFolder(folder.path).read(OpenedPhone::preferences);
  EXPECT_EQ(plist::read(file.value()).root.dictionary()->size(), 20'001U);
}

INSTANTIATE_TEST_SUITE_P(
    Table, LargePreferencesTest,
    testing::Values(
        LargePreferences{"Animations", [] { return manyNames(100'000, "animation-%010zu"); }},
        LargePreferences{"Names", [] { return manyNames(nodes, "%zu"); }},
        LargePreferences{"Keys", [] { return manyKeys(20'000); }},
        LargePreferences{"MostKeys", [] { return manyKeys(nodes / 2); }},
        LargePreferences{"Booleans", [] { return manyOf("<true/>", 1); }},
        LargePreferences{"Data", [] { return manyOf("<data>AA==</data>", 1); }},
        LargePreferences{"Arrays", [] { return manyOf("<array><true/></array>", 2); }},
        LargePreferences{"Dictionaries",
                         [] { return manyOf("<dict><key>a</key><true/></dict>", 3); }},
        LargePreferences{"OneText",
                         [] { return listOf("<string>" + std::string(bytes, 'x') + "</string>"); }},
        LargePreferences{"OneWideText", &wideText},
        LargePreferences{"SharedText",
                         [] { return shared(Value::string(std::string(bytes / 2, 'x'))); }},
        LargePreferences{"SharedShortText",
                         [] { return shared(Value::string(std::string(128, 'x'))); }},
        LargePreferences{"SharedArray", [] { return shared(arrayOf(Value(true))); }}),
    [](const auto& test) { return test.param.name; });

}  // namespace
}  // namespace plist_tests
