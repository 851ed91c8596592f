#pragma once

#include <nlohmann/json.hpp>
#include <string>

#include "settings/cli/Rows.h"

namespace settings::cli {

/// What a control shows and offers.
struct Description {
  const char* kind;  ///< "switch", "slider", "segment", "color" or "list".
  /// For a switch a boolean, for a slider a number, for a color its text, for a segment what is
  /// stored, for a list its names.
  nlohmann::json value;
  /// What an absent value stands for; null when the row does not say.
  nlohmann::json otherwise;
  /// What is taken, in words.
  std::string takes;
  /// The same for programs: `min`, `max` and `step`; `titles` and `values`; `alpha`.
  nlohmann::json bounds = nlohmann::json::object();
};

Description describe(const Control& control);

/// A value as it is printed alone.
std::string plain(const nlohmann::json& value);

/// The control's value, or another that it takes, with the title that it goes by, if it has one.
std::string titled(const Description& description, const nlohmann::json& value);

/// Does what a finger would do for the row to have that value. Throws `UsageError` when it does not
/// take it, for nothing is bounded or rounded, and `std::runtime_error` when it is disabled.
void change(const Row& row, const std::string& text);

/// JSON as it is printed, with a line end.
std::string printed(const nlohmann::json& answer);

}  // namespace settings::cli
