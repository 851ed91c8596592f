#include <algorithm>
#include <gmock/gmock.h>
#include <regex>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "tests/device/macho/Bundle.h"
#include "tests/device/macho/MachO.h"
#include "tests/device/macho/Stubs.h"

namespace phone_tests {
namespace {

using testing::IsEmpty;
using testing::Not;

using Symbols = std::set<std::pair<std::string, std::string>>;  // library's short name, symbol

/// Which library a symbol is to come from, by its name: told apart from the stubs, so that a symbol
/// in the wrong stub is found. The first that fits counts.
const std::vector<std::pair<std::regex, std::string>> origins = {
    {std::regex(R"(_OBJC_(META)?CLASS_\$_UI.*|_UI.*)"), "UIKit"},
    {std::regex(R"(_OBJC_CLASS_\$_MF.*)"), "MessageUI"},
    {std::regex(R"(_OBJC_(CLASS|IVAR)_\$_PS.*)"), "Preferences"},
    {std::regex(R"(_OBJC_CLASS_\$_HB(Preferences|RespringController))"), "Cephei"},
    {std::regex(R"(_OBJC_(META)?CLASS_\$_HB(RootListController|AppearanceSettings))"),
     "CepheiPrefs"},
    {std::regex(R"(_OBJC_(CLASS|EHTYPE)_\$_NS(Mutable)?(Array|Dictionary|Data|URL|Exception))"),
     "CoreFoundation"},
    {std::regex(R"((_CF|_kCF|___CF).*)"), "CoreFoundation"},
    {std::regex(R"(_OBJC_METACLASS_\$_NSObject|(_objc_|_sel_|_object_|_class_|___?objc_).*)"),
     "libobjc"},
    {std::regex(R"(_OBJC_CLASS_\$_NS.*|_NS.*)"), "Foundation"},
    {std::regex(R"(__Z.*|___cxa_.*|___dynamic_cast|___gxx_personality_v0)"), "libc++"},
    {std::regex(R"(_MG.*)"), "libMobileGestalt"},
    {std::regex(R"(.*)"), "libSystem"},
};

std::string originOf(const std::string& symbol) {
  return std::ranges::find_if(
             origins, [&](const auto& origin) { return std::regex_match(symbol, origin.first); })
      ->second;
}

/// "libSystem" for "/usr/lib/libSystem.B.dylib": how the loader's tables are printed.
std::string shortName(const std::string& installName) {
  static const std::regex ending(R"((\.[0-9A-Z]+)?\.dylib$)");
  return std::regex_replace(std::filesystem::path(installName).filename().string(), ending, "");
}

Symbols declaredSymbols(const std::string& layout) {
  Symbols declared;
  for (const auto& [installName, symbols] : declaredImports(layout)) {
    for (const std::string& symbol : symbols) declared.emplace(shortName(installName), symbol);
  }
  return declared;
}

/// A declared class is a class and a metaclass, of which one may be all that is used.
Symbols withoutMetaclasses(const Symbols& symbols) {
  static const std::regex metaclass("^_OBJC_METACLASS_");
  Symbols plain;
  for (const auto& [library, symbol] : symbols) {
    plain.emplace(library, std::regex_replace(symbol, metaclass, "_OBJC_CLASS_"));
  }
  return plain;
}

Symbols difference(const Symbols& left, const Symbols& right) {
  Symbols only = left;
  for (const auto& each : right) only.erase(each);
  return only;
}

TEST_P(Bundle, CanDoWithoutTheSymbolsOfCepheiAndNoOthers) {
  const std::set<Import> imports = importsOf(file);
  EXPECT_THAT(imports, Not(IsEmpty()));
  for (const Import& import : imports) {
    const bool isOfCephei = import.library == "Cephei" || import.library == "CepheiPrefs";
    EXPECT_EQ(import.mayBeMissing, isOfCephei) << import.symbol;
  }
}

TEST_P(Bundle, TakesEachSymbolFromTheLibraryThatHasIt) {
  EXPECT_THAT(weakBindingsOf(file), IsEmpty());
  const std::set<Import> imports = importsOf(file);
  EXPECT_THAT(imports, Not(IsEmpty()));
  for (const Import& import : imports) {
    EXPECT_EQ(import.library, originOf(import.symbol)) << import.symbol;
  }
}

TEST_P(Bundle, TakesWhatTheStubsDeclareAndNoMore) {
  const Symbols declared = declaredSymbols(GetParam().name);
  Symbols taken;
  for (const Import& import : importsOf(file)) taken.emplace(import.library, import.symbol);
  EXPECT_THAT(difference(taken, declared), IsEmpty());
  EXPECT_THAT(difference(withoutMetaclasses(declared), withoutMetaclasses(taken)), IsEmpty());
}

}  // namespace
}  // namespace phone_tests
