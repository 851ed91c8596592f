#pragma once

#include <cstddef>
#include <string>

namespace fuzz {

/// Reads a property list, and requires that what is read survives both forms exactly. Nothing else
/// than a refusal may happen: an exception from reading what was written ends the run.
void requireSurvival(const std::string& file);

}  // namespace fuzz
