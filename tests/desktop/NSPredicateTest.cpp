#include <gtest/gtest.h>

#include "desktop/Exception.h"
#include "desktop/Foundation/PredicateBody.h"
#include "platform/Foundation/NSNumber.h"
#include "platform/Foundation/NSPredicate.h"
#include "tests/desktop/PhoneTest.h"

namespace desktop_tests {
namespace {

using platform::NSPredicate;
using platform::NSString;
using platform::Object;

class NSPredicateTest : public PhoneTest {
 protected:
  static bool isTrueOf(const char* format, const Object& object) {
    const NSPredicate predicate = NSPredicate::predicateWithFormat(format);
    return desktop::bodyAs<desktop::PredicateBody>(predicate)->isTrueOf(object);
  }
};

TEST_F(NSPredicateTest, ComparesTheEndExactly) {
  constexpr const char* format = "self ENDSWITH '.lottie'";
  EXPECT_TRUE(isTrueOf(format, NSString("a.lottie")));
  EXPECT_TRUE(isTrueOf(format, NSString(".lottie")));
  EXPECT_FALSE(isTrueOf(format, NSString("a.LOTTIE")));
  EXPECT_FALSE(isTrueOf(format, NSString("a.lottie ")));
  EXPECT_FALSE(isTrueOf(format, NSString("lottie")));
  EXPECT_FALSE(isTrueOf(format, NSString("")));
}

TEST_F(NSPredicateTest, RaisesOnWhatIsNoString) {
  EXPECT_THROW(isTrueOf("self ENDSWITH 'a'", platform::NSNumber::numberWithInt(1)),
               desktop::Exception);
  EXPECT_THROW(isTrueOf("self ENDSWITH 'a'", Object()), desktop::Exception);
}

TEST_F(NSPredicateTest, ReadsKeywordsInEitherCaseAndAnySpace) {
  for (const char* format :
       {"SELF endswith \"a\"", "Self EndsWith'a'", " \tself\n ENDSWITH  'a' "}) {
    EXPECT_TRUE(isTrueOf(format, NSString("cba"))) << format;
  }
}

TEST_F(NSPredicateTest, ReadsEscapes) {
  EXPECT_TRUE(isTrueOf(R"(self ENDSWITH 'it\'s')", NSString("it's")));
  EXPECT_TRUE(isTrueOf(R"(self ENDSWITH "\"\\\t\n")", NSString("\"\\\t\n")));
  EXPECT_TRUE(isTrueOf(R"(self ENDSWITH "'")", NSString("it'")));
  EXPECT_TRUE(isTrueOf("self ENDSWITH 'é%@'", NSString("é%@")));
}

TEST_F(NSPredicateTest, RaisesOnWhatItCannotParse) {
  for (const char* format :
       {"", "self", "self ENDSWITH", "self ENDSWITH .lottie", "self ENDSWITH 'a",
        "self ENDSWITH a'", "self ENDSWITH 'a\"", "selfENDSWITH 'a'", "self ENDSWITH 'a' b",
        "self ENDSWITH[c] 'a'", "name ENDSWITH 'a'", "self BEGINSWITH 'a'", R"(self ENDSWITH 'a\')",
        R"(self ENDSWITH '\q')", "self ENDSWITH 'a' AND self ENDSWITH 'b'"}) {
    EXPECT_THROW(NSPredicate::predicateWithFormat(format), desktop::Exception) << format;
  }
  EXPECT_THROW(NSPredicate::predicateWithFormat(NSString()), desktop::Exception);
}

TEST_F(NSPredicateTest, StandsInTheJournalAsTheFormat) {
  phone->journal.start();
  NSPredicate::predicateWithFormat("self ENDSWITH 'a'");
  EXPECT_EQ(phone->journal.lines(),
            std::vector<std::string>{R"(NSPredicate predicateWithFormat:"self ENDSWITH 'a'")"});
}

}  // namespace
}  // namespace desktop_tests
