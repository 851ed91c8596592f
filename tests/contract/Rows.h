#pragma once

#include <string>
#include <utility>
#include <vector>

#include "tests/support/Driver.h"

/// Rows as the pages are expected to build them.
namespace expected {

using Properties = std::vector<std::pair<std::string, std::string>>;

inline std::string quoted(const std::string& text) { return '"' + text + '"'; }

inline support::RowFacts group(const std::string& name, const std::string& footer = {}) {
  Properties properties;
  if (!footer.empty()) properties = {{"footerText", quoted(footer)}};
  return {quoted(name), 0, "", "", properties, "", ""};
}

inline support::RowFacts value(const std::string& name, long long cell, Properties properties) {
  return {
      name, cell, "setPreferenceValue:specifier:", "readPreferenceValue:", std::move(properties),
      "",   ""};
}

inline support::RowFacts toggle(const std::string& label, const std::string& key) {
  return value(
      quoted(label), 6,
      {{"defaults", "\"com.orvalen.quillmere\""}, {"key", quoted(key)}, {"default", "YES"}});
}

inline support::RowFacts slider(const std::string& label, const std::string& key, int min, int max,
                                int initial) {
  return value(quoted(label), 5,
               {{"max", std::to_string(max)},
                {"min", std::to_string(min)},
                {"showValue", "YES"},
                {"isSegmented", "YES"},
                {"segmentCount", std::to_string(max - min)},
                {"defaults", "\"com.orvalen.quillmere\""},
                {"default", std::to_string(initial)},
                {"key", quoted(key)}});
}

}  // namespace expected

namespace support {

/// For readable failures.
inline std::ostream& operator<<(std::ostream& out, const RowFacts& row) {
  out << row.name << " cell " << row.cell << " set " << row.set << " get " << row.get;
  for (const auto& [key, value] : row.properties) out << "; " << key << " = " << value;
  return out << "; values " << row.values << "; titles " << row.titles;
}

}  // namespace support
