#include <gtest/gtest.h>
#include <ostream>

#include "plist/Document.h"
#include "tests/plist/Build.h"

namespace plist {
namespace {

using samples::binaryFile;
using samples::hex;
using samples::Trailer;

struct Case {
  const char* name;
  std::vector<std::string> objects;
};

void PrintTo(const Case& bad, std::ostream* out) { *out << bad.name; }

class BadObject : public testing::TestWithParam<Case> {};

TEST_P(BadObject, IsUnreadable) { EXPECT_THROW(read(binaryFile(GetParam().objects)), Unreadable); }

INSTANTIATE_TEST_SUITE_P(
    Table, BadObject,
    testing::Values(
        Case{"Null", {hex("00")}}, Case{"Fill", {hex("0F")}},
        Case{"Url", {hex("0C 01"), hex("50")}}, Case{"UrlWithBase", {hex("0D 01 01"), hex("50")}},
        Case{"Uuid", {hex("0E 00000000000000000000000000000000")}},
        Case{"Utf8Text", {hex("71 61")}}, Case{"UnknownMarker9", {hex("90")}},
        Case{"OrderedSet", {hex("B1 01"), hex("09")}}, Case{"Set", {hex("C1 01"), hex("09")}},
        Case{"UnknownMarkerE", {hex("E0")}}, Case{"UnknownMarkerF", {hex("F0")}},
        Case{"IntegerOf32Bytes", {hex("15") + std::string(32, '\0')}},
        Case{"IntegerAboveRange", {hex("14 0000000000000001 0000000000000000")}},
        Case{"IntegerBelowRange", {hex("14 FFFFFFFFFFFFFFFF 7FFFFFFFFFFFFFFF")}},
        Case{"IntegerCutOff", {hex("13 00")}}, Case{"RealOf2Bytes", {hex("21 0000")}},
        Case{"RealOf16Bytes", {hex("24") + std::string(16, '\0')}},
        Case{"DateOf4Bytes", {hex("32 00000000")}}, Case{"DateCutOff", {hex("33 00")}},
        Case{"UidAbove32Bits", {hex("84 0100000000")}}, Case{"UidCutOff", {hex("8F 00")}},
        Case{"AsciiWithHighByte", {hex("51 80")}}, Case{"AsciiCutOff", {hex("52 61")}},
        Case{"Utf16CutOff", {hex("61 00")}}, Case{"DataCutOff", {hex("42 00")}},
        Case{"ArrayCutOff", {hex("A2 00")}}, Case{"DictionaryCutOff", {hex("D1 00")}},
        Case{"LengthThatIsNoInteger", {hex("5F 51 61")}}, Case{"LengthMissing", {hex("5F")}},
        Case{"LengthCutOff", {hex("5F 13 00")}},
        Case{"KeyThatIsAnArrayReadBefore",
             {hex("A2 01 02"), hex("A1 03"), hex("D1 01 03"), hex("09")}},
        Case{"LengthOf16Bytes", {hex("4F 14") + std::string(16, '\0')}},
        Case{"LengthThatOverflows", {hex("6F 13 8000000000000001")}},
        Case{"HugeArray", {hex("AF 13 FFFFFFFFFFFFFFFF")}},
        Case{"HugeDictionary", {hex("DF 13 8000000000000000")}},
        Case{"NegativeLength", {hex("4F 13 FFFFFFFFFFFFFFFF")}},
        Case{"ReferenceToNoObject", {hex("A1 01")}},
        Case{"KeyThatIsAnInteger", {hex("D1 01 02"), hex("10 01"), hex("09")}},
        Case{"KeyThatIsAnArray", {hex("D1 01 02"), hex("A0"), hex("09")}},
        Case{"KeyThatIsTheDictionary", {hex("D1 00 01"), hex("09")}},
        Case{"ArrayInItself", {hex("A1 00")}}, Case{"CycleOfTwo", {hex("A1 01"), hex("A1 00")}},
        Case{"CycleThroughADictionary", {hex("D1 01 02"), hex("51 61"), hex("A1 00")}}),
    [](const auto& test) { return test.param.name; });

struct TrailerCase {
  const char* name;
  Trailer trailer;
};

void PrintTo(const TrailerCase& bad, std::ostream* out) { *out << bad.name; }

class BadTrailer : public testing::TestWithParam<TrailerCase> {};

TEST_P(BadTrailer, IsUnreadable) {
  EXPECT_THROW(read(binaryFile({hex("A1 01"), hex("09")}, GetParam().trailer)), Unreadable);
}

INSTANTIATE_TEST_SUITE_P(Table, BadTrailer,
                         testing::Values(TrailerCase{"OffsetsOfNoBytes", {.offsetSize = 0}},
                                         TrailerCase{"OffsetsOf9Bytes", {.offsetSize = 9}},
                                         TrailerCase{"ReferencesOfNoBytes", {.referenceSize = 0}},
                                         TrailerCase{"ReferencesOf9Bytes", {.referenceSize = 9}},
                                         TrailerCase{"NoObjects", {.objectCount = 0}},
                                         TrailerCase{"TooManyObjects", {.objectCount = 3}},
                                         TrailerCase{"TooFewObjects", {.objectCount = 1}},
                                         TrailerCase{"ObjectsThatOverflow",
                                                     {.objectCount = INT64_MAX / 2 + 2}},
                                         TrailerCase{"NoSuchTopObject", {.topObject = 2}},
                                         TrailerCase{"HugeTopObject", {.topObject = INT64_MAX}},
                                         TrailerCase{"TableInTheMagic", {.tableAt = 8}},
                                         TrailerCase{"TableAtTheWrongPlace", {.tableAt = 10}},
                                         TrailerCase{"TableBeyondTheFile", {.tableAt = 1000}},
                                         TrailerCase{"TableThatOverflows", {.tableAt = INT64_MAX}}),
                         [](const auto& test) { return test.param.name; });

TEST(BadBinary, AnyPrefixIsUnreadable) {
  const std::string file = binaryFile({hex("D1 01 02"), hex("51 61"), hex("10 07")});
  for (std::size_t size = 0; size < file.size(); ++size) {
    EXPECT_THROW(read(file.substr(0, size)), Unreadable) << size;
  }
}

TEST(BadBinary, TrailingBytesAreUnreadable) {
  EXPECT_THROW(read(binaryFile({hex("09")}) + std::string(1, '\0')), Unreadable);
}

TEST(BadBinary, OtherVersionsAreUnreadable) {
  for (const char* version : {"bplist01", "bplist0x", "bplist15", "bplist16"}) {
    std::string file = binaryFile({hex("09")});
    EXPECT_THROW(read(file.replace(0, 8, version)), Unreadable) << version;
  }
}

TEST(BadBinary, OffsetOutsideTheObjectsIsUnreadable) {
  for (const char offset : {'\0', '\7', '\x9', '\x20', '\xFF'}) {
    std::string file = binaryFile({hex("09")}, {.offsetSize = 1});
    file[9] = offset;
    EXPECT_THROW(read(file), Unreadable) << int{offset};
  }
}

TEST(BadBinary, ReferencesTooNarrowForTheObjectsAreUnreadable) {
  EXPECT_NO_THROW(read(binaryFile(std::vector<std::string>(255, hex("09")))));
  EXPECT_THROW(read(binaryFile(std::vector<std::string>(256, hex("09")))), Unreadable);
}

TEST(BadBinary, OffsetsTooNarrowForTheFileAreUnreadable) {
  const std::string object = hex("4F 11 012C") + std::string(300, '\0');
  EXPECT_NO_THROW(read(binaryFile({object})));
  EXPECT_THROW(read(binaryFile({object}, {.offsetSize = 1})), Unreadable);
}

TEST(BadBinary, ReasonAndPlaceAreGiven) {
  try {
    read(binaryFile({hex("A1 01"), hex("51 80")}));
    FAIL();
  } catch (const Unreadable& unreadable) {
    EXPECT_STREQ(unreadable.what(), "text beyond ASCII (at byte 10)");
    EXPECT_EQ(unreadable.offset(), 10U);
  }
}

}  // namespace
}  // namespace plist
