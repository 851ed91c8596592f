#include <gtest/gtest.h>
#include <ostream>

#include "plist/PlainBinary.h"
#include "tests/plist/Build.h"

namespace plist {
namespace {

using samples::binaryFile;
using samples::hex;

struct Layout {
  const char* name;
  std::vector<std::string> objects;
};

void PrintTo(const Layout& layout, std::ostream* out) { *out << layout.name; }

class OtherLayout : public testing::TestWithParam<Layout> {};

TEST_P(OtherLayout, IsLeftToTheReader) {
  std::string file = binaryFile(GetParam().objects);
  EXPECT_FALSE(PlainBinary::in(file));
  EXPECT_FALSE(file.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Table, OtherLayout,
    testing::Values(
        Layout{"Array", {hex("A1 01"), hex("09")}}, Layout{"Text", {hex("51 61")}},
        Layout{"ValuesBeforeKeys", {hex("D1 02 01"), hex("09"), hex("51 61")}},
        Layout{"SharedValue", {hex("D2 01 02 03 03"), hex("51 61"), hex("51 62"), hex("51 63")}},
        Layout{"KeyAsItsValue", {hex("D1 01 01"), hex("51 61")}},
        Layout{"UnusedObject", {hex("D1 01 02"), hex("51 61"), hex("09"), hex("09")}},
        Layout{"UnusedObjectBetween", {hex("D1 01 03"), hex("51 61"), hex("09"), hex("09")}},
        Layout{"UnusedContainerOfItself", {hex("D0"), hex("A1 01")}},
        Layout{"DepthBeforeBreadth",
               {hex("D2 01 02 03 05"), hex("51 61"), hex("51 62"), hex("A1 04"), hex("09"),
                hex("A0")}},
        Layout{"KeyThatIsAnInteger", {hex("D1 01 02"), hex("10 01"), hex("09")}},
        Layout{"InnerKeyThatIsAnInteger",
               {hex("D1 01 02"), hex("51 61"), hex("D1 03 04"), hex("10 01"), hex("09")}},
        Layout{"AsciiWithHighByte", {hex("D1 01 02"), hex("51 80"), hex("09")}},
        Layout{"LongAsciiWithHighByte", {hex("D1 01 02"), hex("5F 10 01 80"), hex("09")}},
        Layout{"Null", {hex("D1 01 02"), hex("51 61"), hex("00")}},
        Layout{"ValueBeyondTheObjects", {hex("D1 01 02"), hex("51 61"), ""}},
        Layout{"InItself", {hex("D1 01 00"), hex("51 61")}}),
    [](const auto& test) { return test.param.name; });

TEST(PlainLayout, LeavesObjectsWithSomethingBetween) {
  std::string file = binaryFile({hex("D1 01 02"), hex("51 61 FF"), hex("09")});
  EXPECT_NO_THROW(read(file));
  EXPECT_FALSE(PlainBinary::in(file));
  file = binaryFile({hex("D1 01 02"), hex("51 61"), hex("09 FF")});
  EXPECT_NO_THROW(read(file));
  EXPECT_FALSE(PlainBinary::in(file));
}

TEST(PlainLayout, LeavesARootThatIsNotTheFirstObject) {
  std::string file = binaryFile({hex("09"), hex("D0")}, {.topObject = 1});
  EXPECT_NE(read(file).root.dictionary(), nullptr);
  EXPECT_FALSE(PlainBinary::in(file));
}

/// Long and short texts end where the table begins, and not behind it.
TEST(PlainLayout, LeavesTextThatGoesBeyondTheObjects) {
  for (const char* const text : {"52 61", "5F 10 02 61", "5F 11 0002 61"}) {
    std::string file = binaryFile({hex("D1 01 02"), hex("51 61"), hex(text)});
    EXPECT_THROW(read(file), Unreadable) << text;
    EXPECT_FALSE(PlainBinary::in(file)) << text;
  }
  for (const char* const text : {"52 61 61", "5F 10 02 61 61", "5F 11 0002 61 61"}) {
    std::string file = binaryFile({hex("D1 01 02"), hex("51 61"), hex(text)});
    const auto plain = PlainBinary::in(file);
    ASSERT_TRUE(plain) << text;
    EXPECT_EQ(plain->find("a"), Value::string("aa")) << text;
  }
}

}  // namespace
}  // namespace plist
