#include <gtest/gtest.h>
#include <ostream>

#include "plist/Document.h"
#include "tests/plist/Build.h"

namespace plist {
namespace {

using samples::bigEndian;
using samples::hex;

constexpr std::size_t kTimes = 1000;

/// An array of kTimes objects that all stand at one place; the object after them is true.
std::string overlaid(const std::string& object) {
  std::string file = "bplist00" + hex("AF 11") + bigEndian(kTimes, 2);
  for (std::size_t i = 1; i <= kTimes; ++i) file += bigEndian(i, 2);
  const std::size_t objectAt = file.size();
  file += object;
  const std::size_t trueAt = file.size();
  file += hex("09");
  const std::size_t tableAt = file.size();
  file += bigEndian(8, 3);
  for (std::size_t i = 0; i < kTimes; ++i) file += bigEndian(objectAt, 3);
  file += bigEndian(trueAt, 3);
  return file + std::string(6, '\0') + hex("03 02") + bigEndian(kTimes + 2, 8) + bigEndian(0, 8) +
         bigEndian(tableAt, 8);
}

/// An array of 300 times the one object.
std::string repeatedly(const std::string& object) {
  return samples::binaryFile({hex("AF 11 012C") + std::string(300, '\1'), object});
}

struct Case {
  const char* name;
  std::string object;
};

void PrintTo(const Case& overlap, std::ostream* out) { *out << overlap.name; }

class Overlap : public testing::TestWithParam<Case> {};

TEST_P(Overlap, ManyObjectsOverTheSameBytesAreUnreadable) {
  EXPECT_THROW(read(overlaid(GetParam().object)), Unreadable);
}

TEST_P(Overlap, OneObjectInManyPlacesIsCountedOnce) {
  EXPECT_EQ(read(repeatedly(GetParam().object)).root.array()->size(), 300U);
}

INSTANTIATE_TEST_SUITE_P(
    Table, Overlap,
    testing::Values(Case{"Data", hex("4F 11 1000") + std::string(0x1000, 'd')},
                    Case{"ShortData", hex("4E") + std::string(14, 'd')},
                    Case{"ShortText", hex("5F 10 64") + std::string(100, 't')},
                    Case{"LongText", hex("5F 11 1000") + std::string(0x1000, 't')},
                    Case{"Utf16Text", hex("6F 10 64") + std::string(200, '\x4E')}),
    [](const auto& test) { return test.param.name; });

TEST(BinaryOverlap, ManyArraysOverTheSameBytesAreUnreadable) {
  const std::string elements = samples::repeated(bigEndian(kTimes + 1, 2), 100);
  EXPECT_THROW(read(overlaid(hex("AF 10 64") + elements)), Unreadable);
}

TEST(BinaryOverlap, ObjectsSideBySideAreRead) {
  // The bytes of the objects are all of the file that a writer can make them.
  Array array;
  for (int i = 0; i < 300; ++i) array.append(Value::data(std::string(4096, 'd')));
  EXPECT_EQ(read(writeBinary(Value(array))).root, Value(array));
}

TEST(BinaryOverlap, TextsThatBeginInsideOneAnotherAreUnreadable) {
  // Each text begins inside the one before: n of them would add up to n^2 bytes.
  std::string head = "bplist00" + hex("AF 11 03E8");
  for (int i = 1; i <= 1000; ++i) head += bigEndian(static_cast<std::uint64_t>(i), 2);
  const std::size_t textsAt = head.size();
  std::string texts;
  for (int i = 0; i < 1000; ++i) texts += hex("6F 12 00000800");
  texts += std::string(8192, '\0');
  std::string file = head + texts;
  const std::size_t tableAt = file.size();
  file += bigEndian(8, 4);
  for (std::size_t i = 0; i < 1000; ++i) file += bigEndian(textsAt + 6 * i, 4);
  file += std::string(6, '\0') + hex("04 02") + bigEndian(1001, 8) + bigEndian(0, 8) +
          bigEndian(tableAt, 8);
  EXPECT_THROW(read(file), Unreadable);
}

}  // namespace
}  // namespace plist
