#include <gtest/gtest.h>

#include "plist/Document.h"
#include "tests/plist/Build.h"

namespace plist {
namespace {

using samples::bigEndian;
using samples::repeated;

constexpr std::uint32_t kDeep = 10'000;
constexpr Limits kNoDepthLimit = {.depth = 1'000'000};

std::string deepXml(std::size_t depth) {
  return samples::xmlFile(repeated("<array>", depth) + repeated("</array>", depth));
}

std::string deepBinary(std::size_t depth) {
  std::vector<std::string> arrays;
  for (std::size_t i = 1; i < depth; ++i) arrays.push_back("\xA1" + bigEndian(i, 4));
  arrays.push_back("\xA0");
  return samples::binaryFile(arrays, {.referenceSize = 4});
}

TEST(Depth, FiveHundredAndTwelveAreReadAndOneMoreIsNot) {
  EXPECT_EQ(read(deepXml(512)).root, samples::nestedArrays(512));
  EXPECT_EQ(read(deepBinary(512)).root, samples::nestedArrays(512));
  EXPECT_THROW(read(deepXml(513)), Unreadable);
  EXPECT_THROW(read(deepBinary(513)), Unreadable);
}

TEST(Depth, TenThousandLevelsAreUnreadable) {
  EXPECT_THROW(read(deepXml(kDeep)), Unreadable);
  EXPECT_THROW(read(deepBinary(kDeep)), Unreadable);
}

TEST(Depth, SharedContainerCountsWhereItIsDeepest) {
  // The root shows one array directly and once more at the end of a chain.
  const auto file = [] {
    return samples::binaryFile({"\xA2\x03\x01", "\xA1\x02", "\xA1\x03", "\xA1\x04", "\x09"});
  };
  EXPECT_NO_THROW(read(file(), {.depth = 4}));
  EXPECT_THROW(read(file(), {.depth = 3}), Unreadable);
}

// A call of its own for each level would need more stack than there is.
TEST(Depth, NothingCallsItselfForEachLevel) {
  constexpr std::size_t kLevels = 200'000;
  const Value value = samples::nestedArrays(kLevels);
  const Value same = samples::nestedArrays(kLevels);
  EXPECT_EQ(value, same);
  const std::string binary = writeBinary(value);
  EXPECT_EQ(read(binary, kNoDepthLimit).root, value);
}

TEST(Depth, DeepXmlIsWrittenAndReadWithoutCallingItself) {
  const Value value = samples::nestedArrays(kDeep);
  EXPECT_EQ(read(deepXml(kDeep), kNoDepthLimit).root, value);
  const std::string xml = *writeXml(samples::nestedArrays(2000));
  EXPECT_EQ(read(xml, kNoDepthLimit).root, samples::nestedArrays(2000));
}

}  // namespace
}  // namespace plist
