#include <gmock/gmock.h>
#include <map>
#include <set>
#include <string>

#include "platform/Bundle.h"
#include "plist/Document.h"
#include "tests/device/macho/Bundle.h"
#include "tests/device/macho/MachO.h"

namespace phone_tests {
namespace {

using testing::Contains;
using testing::Key;

using Names = std::set<std::string>;

const std::map<std::string, std::string> superclasses = {
    {"QMRoot", "HBRootListController"},    {"QMColorVC", "HBRootListController"},
    {"QMClockVC", "HBRootListController"}, {"QMQuickActionsVC", "HBRootListController"},
    {"QMLottiesList", "UIViewController"},
};

/// What the system calls by names of its own, besides the product's tables.
const Names ofAnyController = {"init", "viewDidLoad", "viewWillAppear:", "viewDidAppear:"};
const Names ofAnyPage = {"specifiers", "readPreferenceValue:", "setPreferenceValue:specifier:"};
const std::map<std::string, Names> callbacks = {
    {"QMRoot", {"mailComposeController:didFinishWithResult:error:", "scrollViewDidScroll:"}},
    {"QMLottiesList",
     {"numberOfSectionsInTableView:", "tableView:titleForHeaderInSection:",
      "tableView:numberOfRowsInSection:", "tableView:cellForRowAtIndexPath:",
      "tableView:canEditRowAtIndexPath:", "tableView:canMoveRowAtIndexPath:",
      "tableView:commitEditingStyle:forRowAtIndexPath:",
      "tableView:moveRowAtIndexPath:toIndexPath:", "tableView:editingStyleForRowAtIndexPath:",
      "tableView:shouldIndentWhileEditingRowAtIndexPath:",
      "tableView:targetIndexPathForMoveFromRowAtIndexPath:toProposedIndexPath:"}},
};

Names neededOf(const std::string& name, const ClassFacts& facts) {
  Names needed = ofAnyController;
  if (facts.superclass == "HBRootListController") needed.insert(ofAnyPage.begin(), ofAnyPage.end());
  if (const auto own = callbacks.find(name); own != callbacks.end()) {
    needed.insert(own->second.begin(), own->second.end());
  }
  return needed;
}

/// Those of `needed` that are not among `present`.
Names missing(const Names& needed, const Names& present) {
  Names absent = needed;
  for (const std::string& each : present) absent.erase(each);
  return absent;
}

plist::Value propertyList(const std::string& path) {
  return plist::read(contents(project() / path)).root;
}

/// The text under that key; "" when there is none.
std::string textAt(const plist::Value& dictionary, const char* key) {
  const plist::Value* value = dictionary.dictionary()->find(key);
  return std::string(value ? value->string().value() : "");
}

/// The texts that the rows of the root page have under that key.
Names ofRows(const char* key) {
  const plist::Value page = propertyList("resources/Root.plist");
  Names found;
  for (const plist::Value& row : *page.dictionary()->find("items")->array()) {
    if (const std::string text = textAt(row, key); !text.empty()) found.insert(text);
  }
  return found;
}

TEST_P(Bundle, HasTheFiveClassesWithTheirSuperclasses) {
  std::map<std::string, std::string> found;
  for (const auto& [name, facts] : classesOf(file)) found.emplace(name, facts.superclass);
  EXPECT_EQ(found, superclasses);
}

TEST_P(Bundle, AnswersEachSelectorThatTheProductLists) {
  const auto classes = classesOf(file);
  Names listing;
  for (const platform::ControllerClass& known : platform::bundleClasses()) {
    Names listed;
    for (const platform::Method& method : known.make()->methods()) {
      listed.emplace(method.selector.name);
    }
    if (!listed.empty()) listing.insert(known.name);
    ASSERT_THAT(classes, Contains(Key(known.name)));
    EXPECT_EQ(missing(listed, classes.at(known.name).methods), Names()) << known.name;
  }
  // Each controller has a table, so an empty one is a table that was not read.
  EXPECT_EQ(listing.size(), superclasses.size());
}

TEST_P(Bundle, AnswersWhatTheSystemAsks) {
  const auto classes = classesOf(file);
  for (const auto& [name, superclass] : superclasses) {
    ASSERT_THAT(classes, Contains(Key(name)));
    const ClassFacts& facts = classes.at(name);
    EXPECT_EQ(missing(neededOf(name, facts), facts.methods), Names()) << name;
  }
}

TEST_P(Bundle, HasTheClassesThatTheResourcesName) {
  Names named = ofRows("detail");
  EXPECT_FALSE(named.empty());
  named.insert(textAt(propertyList("resources/Info.plist"), "NSPrincipalClass"));
  const plist::Value entry = propertyList("packaging/Quillmere.plist");
  named.insert(textAt(*entry.dictionary()->find("entry"), "detail"));
  Names present;
  for (const auto& [name, facts] : classesOf(file)) present.insert(name);
  EXPECT_EQ(missing(named, present), Names());
}

TEST_P(Bundle, HasTheActionsThatTheResourcesName) {
  const plist::Value info = propertyList("resources/Info.plist");
  EXPECT_EQ(textAt(info, "CFBundleExecutable"), file.filename());
  const Names actions = ofRows("action");
  EXPECT_FALSE(actions.empty());
  EXPECT_EQ(missing(actions, classesOf(file).at(textAt(info, "NSPrincipalClass")).methods),
            Names());
}

}  // namespace
}  // namespace phone_tests
