#include "tests/device/macho/Stubs.h"

#include <filesystem>
#include <regex>
#include <stdexcept>
#include <utility>
#include <vector>

#include "tests/device/macho/Build.h"

namespace phone_tests {

namespace {

/// How a kind of name in a stub stands in a symbol table.
const std::vector<std::pair<std::string, std::string>> prefixes = {
    {"symbols", ""},
    {"objc-classes", "_OBJC_CLASS_$_"},
    {"objc-classes", "_OBJC_METACLASS_$_"},
    {"objc-eh-types", "_OBJC_EHTYPE_$_"},
    {"objc-ivars", "_OBJC_IVAR_$_"},
};

using Matches = std::sregex_iterator;

/// The names in each list of that kind.
std::set<std::string> names(const std::string& stub, const std::string& kind) {
  static const std::regex name("[^\\s,']+");
  const std::regex list("(?:^|\\n) *" + kind + ": \\[([^\\]]*)\\]");
  std::set<std::string> found;
  for (Matches each(stub.begin(), stub.end(), list); each != Matches(); ++each) {
    const std::string inside = (*each)[1];
    for (Matches one(inside.begin(), inside.end(), name); one != Matches(); ++one) {
      found.insert(one->str());
    }
  }
  return found;
}

std::string installName(const std::string& stub) {
  static const std::regex line("(?:^|\\n)install-name: '(.*)'\\n");
  std::smatch parts;
  if (!std::regex_search(stub, parts, line)) throw std::runtime_error("a stub of no library");
  return parts[1];
}

std::set<std::string> symbols(const std::string& stub) {
  std::set<std::string> found;
  for (const auto& [kind, prefix] : prefixes) {
    for (const std::string& name : names(stub, kind)) found.insert(prefix + name);
  }
  return found;
}

}  // namespace

std::map<std::string, std::set<std::string>> declaredImports(const std::string& layout) {
  const std::filesystem::path stubs = project() / "device/stubs";
  std::map<std::string, std::set<std::string>> declared;
  for (const auto& folder : {stubs, stubs / layout}) {
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
      if (entry.path().extension() != ".tbd") continue;
      const std::string stub = contents(entry.path());
      declared.emplace(installName(stub), symbols(stub));
    }
  }
  return declared;
}

}  // namespace phone_tests
