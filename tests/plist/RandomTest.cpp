#include <gtest/gtest.h>

#include "plist/Document.h"
#include "tests/plist/Describe.h"
#include "tests/plist/RandomTree.h"

namespace plist {
namespace {

using samples::RandomTree;

TEST_F(RandomTree, SurvivesBinaryExactly) {
  forEach({}, [](const Value& tree) {
    const std::string file = writeBinary(tree);
    const Document document = read(file);
    EXPECT_EQ(document.root, tree);
    EXPECT_EQ(samples::describe(document.root), samples::describe(tree));  // order as well
    EXPECT_LE(writeBinary(document.root).size(), file.size());
  });
}

TEST_F(RandomTree, SurvivesXmlExactlyWhereXmlCarriesIt) {
  const samples::Variety carried = {.anyDates = false, .anyText = false, .uids = false};
  std::size_t written = 0;
  forEach(carried, [&](const Value& tree) {
    const auto file = writeXml(tree);
    if (!file) return;  // a NaN with a payload
    ++written;
    const Document document = read(*file);
    EXPECT_EQ(document.root, samples::widened(tree));
    EXPECT_EQ(samples::describe(document.root), samples::describe(samples::widened(tree)));
    EXPECT_EQ(writeXml(document.root), file);
  });
  EXPECT_GT(written, 0U);
}

TEST_F(RandomTree, WhateverXmlTakesItGivesBack) {
  forEach({}, [](const Value& tree) {
    if (const auto file = writeXml(tree)) {
      EXPECT_EQ(read(*file).root, samples::widened(tree));
    }
  });
}

TEST_F(RandomTree, IsWrittenJustWhereItIsReadBack) {
  forEach({}, [](const Value& tree) {
    const std::string file = writeBinary(tree);
    for (std::uint32_t depth = 1; depth < 5; ++depth) {
      for (std::uint32_t nodes = 1; nodes < 40; ++nodes) {
        const Limits limits = {.depth = depth, .nodes = nodes};
        bool isRead = true;
        try {
          read(file, limits);
        } catch (const Unreadable&) {
          isRead = false;
        }
        ASSERT_EQ(write(tree, Form::Binary, limits).has_value(), isRead) << depth << ' ' << nodes;
      }
    }
  });
}

// Damage has to end in a refusal or in a value that survives both forms, never in anything else.
TEST_F(RandomTree, DamagedFilesAreRefusedOrWhole) {
  forEach({}, [](const Value& tree) {
    std::mt19937_64 random(setting("QUILLMERE_SEED", 1));
    std::string file = writeBinary(tree);
    for (int i = 0; i < 20; ++i) {
      file[random() % file.size()] = static_cast<char>(random());
      try {
        const Document document = read(file);
        EXPECT_EQ(read(writeBinary(document.root)).root, document.root);
      } catch (const Unreadable&) {
      }
    }
  });
}

}  // namespace
}  // namespace plist
