#include <gtest/gtest.h>
#include <random>

#include "settings/Tree.h"

namespace settings_tests {
namespace {

using nlohmann::json;
using settings::Tree;
using settings::updateMessage;

/// What a page shows that showed `before` and got the message.
Tree applied(const Tree& before, const json& message) {
  Tree tree = before;
  for (const auto& id : message["removed"]) tree.erase(id.get<std::string>());
  for (const auto& [id, node] : message["nodes"].items()) tree[id] = node;
  return tree;
}

/// A tree of a few nodes from a small choice, so that two of them share some.
Tree randomTree(std::mt19937& random) {
  const auto below = [&](unsigned limit) { return static_cast<unsigned>(random() % limit); };
  Tree tree;
  for (unsigned count = below(8); count > 0; --count) {
    tree["node" + std::to_string(below(10))] = {{"kind", "switch"}, {"on", below(2) == 1}};
  }
  return tree;
}

const Tree one = {{"window", {{"kind", "window"}}}};

TEST(TreeTest, ScreenCarriesEveryNode) {
  EXPECT_EQ(settings::screenMessage(one),
            json::parse(R"({"kind":"screen","nodes":{"window":{"kind":"window"}}})"));
}

TEST(TreeTest, RefusalCarriesTheReason) {
  EXPECT_EQ(settings::refusedMessage("why"), json::parse(R"({"kind":"refused","reason":"why"})"));
}

TEST(TreeTest, NothingChangedIsAnEmptyUpdate) {
  EXPECT_EQ(updateMessage(one, one), json::parse(R"({"kind":"update","nodes":{},"removed":[]})"));
}

TEST(TreeTest, AnUpdateNamesNewChangedAndGoneNodesOnly) {
  const Tree before = {{"same", {{"a", 1}}}, {"changed", {{"a", 1}}}, {"gone", {{"a", 1}}}};
  const Tree after = {{"same", {{"a", 1}}}, {"changed", {{"a", 2}}}, {"new", {{"a", 1}}}};
  EXPECT_EQ(updateMessage(before, after),
            json::parse(R"({"kind":"update","nodes":{"changed":{"a":2},"new":{"a":1}},
                            "removed":["gone"]})"));
}

TEST(TreeTest, AnUpdateToTheFirstTreeIsAllOfIt) {
  EXPECT_EQ(applied({}, updateMessage({}, one)), one);
}

TEST(TreeTest, AnUpdateBringsAnyTreeToAnyOtherWithTheLeast) {
  std::mt19937 random(20240229);
  for (int round = 0; round < 2000; ++round) {
    const Tree before = randomTree(random);
    const Tree after = randomTree(random);
    const json message = updateMessage(before, after);
    ASSERT_EQ(applied(before, message), after) << message;
    for (const auto& [id, node] : message["nodes"].items()) {
      ASSERT_FALSE(before.contains(id) && before.at(id) == node) << id << " was sent in vain";
    }
    for (const auto& id : message["removed"]) {
      ASSERT_TRUE(before.contains(id.get<std::string>())) << id << " was not there";
    }
  }
}

}  // namespace
}  // namespace settings_tests
