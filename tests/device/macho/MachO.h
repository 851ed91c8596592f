#pragma once

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <vector>

/// What the phone's loader and Objective-C run time read of a built bundle, by llvm-objdump. Each
/// function throws std::runtime_error when the file is not Mach-O.
namespace phone_tests {

/// The words of the Mach header: architecture, file type, flags.
std::set<std::string> headerOf(const std::filesystem::path& file);

/// A load command's fields by name, "cmd" being its own. A name that comes again, as a tool's does,
/// keeps its first value.
using LoadCommand = std::map<std::string, std::string>;
std::vector<LoadCommand> loadCommandsOf(const std::filesystem::path& file);

/// The names of the sections, as in "__text".
std::set<std::string> sectionsOf(const std::filesystem::path& file);

/// The libraries' install names, and whether each may be missing.
std::map<std::string, bool> librariesOf(const std::filesystem::path& file);

/// A symbol that is bound to a library.
struct Import {
  std::string library;  ///< Its short name: "UIKit", "libc++".
  std::string symbol;
  bool mayBeMissing;
};
inline bool operator<(const Import& left, const Import& right) {
  return std::tie(left.library, left.symbol, left.mayBeMissing) <
         std::tie(right.library, right.symbol, right.mayBeMissing);
}
std::set<Import> importsOf(const std::filesystem::path& file);

/// The bindings that the loader would look for in every library: those of no ordinal.
std::vector<std::string> weakBindingsOf(const std::filesystem::path& file);

struct ClassFacts {
  std::string superclass;
  std::set<std::string> methods;  ///< The class's own, of its instances.
};
/// The classes that the file defines.
std::map<std::string, ClassFacts> classesOf(const std::filesystem::path& file);

}  // namespace phone_tests
