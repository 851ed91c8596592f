#pragma once

#include <nlohmann/json.hpp>
#include <ostream>
#include <string>
#include <vector>

namespace crash_tests {

/// What stands on the phone before a change.
enum class Before {
  NoPhone,        ///< The folder is empty.
  NoPreferences,  ///< The phone was set up, and nothing was ever changed.
  Binary,
  Xml,
};

/// A kind of change, and how the program is asked for it.
struct Change {
  const char* name;
  Before before;
  /// Behind the phone's folder. None: the page is served, and touched.
  std::vector<std::string> arguments;
  /// The only key whose value differs afterwards; empty when all keys go.
  std::string key;
  /// The messages of a page, one after the other, and what is then shown when the last one was
  /// accepted: a node's id, and some of its properties.
  std::vector<nlohmann::json> touches{};
  std::string node{};
  nlohmann::json shown{};
};

const std::vector<Change>& changes();

/// For the names of tests.
std::ostream& operator<<(std::ostream& stream, const Change& change);

/// What the preferences file holds before a change, as elements of an XML property list: keys of
/// the program's and one of somebody else's.
extern const char* const preferencesBefore;

}  // namespace crash_tests
