#include <gmock/gmock.h>
#include <string>

#include "tests/device/macho/Bundle.h"
#include "tests/device/macho/Signature.h"

namespace phone_tests {
namespace {

using testing::HasSubstr;
using testing::ThrowsMessage;

TEST_P(Bundle, IsSigned) { EXPECT_NO_THROW(checkSignature(contents(file))); }

TEST_P(Bundle, IsNotSignedOnceAByteOfItsCodeIsAnother) {
  std::string changed = contents(file);
  changed.at(0x4000) ^= 1;
  EXPECT_THAT([&] { checkSignature(changed); },
              ThrowsMessage<NotSigned>(HasSubstr("is not what was signed")));
}

TEST_P(Bundle, IsNotSignedOnceItIsCutShort) {
  std::string cut = contents(file);
  cut.pop_back();
  EXPECT_THAT([&] { checkSignature(cut); },
              ThrowsMessage<NotSigned>(HasSubstr("not the end of the file")));
}

}  // namespace
}  // namespace phone_tests
