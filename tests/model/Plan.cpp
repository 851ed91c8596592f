#include "tests/model/Plan.h"

#include <charconv>
#include <cstdlib>
#include <numeric>
#include <optional>
#include <stdexcept>
#include <string_view>

#include "tests/support/Figures.h"

namespace model {

namespace {

constexpr const char* seedVariable = "QUILLMERE_MODEL_SEED";
constexpr const char* operationsVariable = "QUILLMERE_MODEL_OPERATIONS";

std::optional<unsigned> numberIn(const char* variable) {
  const char* const set = std::getenv(variable);
  if (!set) return std::nullopt;
  const std::string_view text = set;
  unsigned number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error == std::errc() && end == text.data() + text.size()) return number;
  throw std::runtime_error(std::string(variable) + " is no number");
}

}  // namespace

Plan::Plan(unsigned briefSeeds, std::size_t briefOperations)
    : seeds(support::inForm(briefSeeds, 100U)),
      operations(support::inForm<std::size_t>(briefOperations, 10'000)) {
  std::iota(seeds.begin(), seeds.end(), 1U);
  if (const auto seed = numberIn(seedVariable)) seeds = {*seed};
  if (const auto count = numberIn(operationsVariable)) operations = *count;
}

std::string Plan::again(unsigned seed) const {
  return std::string(seedVariable) + '=' + std::to_string(seed) + ' ' + operationsVariable + '=' +
         std::to_string(operations);
}

std::string Plan::text() const {
  return std::to_string(seeds.size()) + " × " + support::grouped(operations);
}

}  // namespace model
