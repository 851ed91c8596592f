#include <charconv>
#include <cstdlib>
#include <gtest/gtest.h>
#include <iostream>
#include <set>
#include <string_view>

#include "tests/model/Run.h"

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

std::vector<unsigned> seeds() {
  if (const auto seed = numberIn(seedVariable)) return {*seed};
  return {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
}

std::string shortest(const model::Operations& failing) {
  const auto fails = [](const model::Operations& operations) {
    return !model::replay(operations).failure.empty();
  };
  const model::Run run = model::replay(model::shrink(failing, fails));
  std::string text = "The shortest operations that were found to fail:\n";
  for (const std::string& line : run.trace) text += "  " + line + '\n';
  return text + run.failure;
}

/// Random operations on a phone and on a simple model of it, which are compared after each.
class RandomOperations : public testing::TestWithParam<unsigned> {};

TEST_P(RandomOperations, LeaveThePhoneAsTheModelSays) {
  const unsigned seed = GetParam();
  const unsigned count = numberIn(operationsVariable).value_or(1000);
  const std::string again = std::string(seedVariable) + '=' + std::to_string(seed) + ' ' +
                            operationsVariable + '=' + std::to_string(count);
  std::cout << again << std::endl;  // At once: the run may end in a crash.
  const model::Run run = model::runRandom(seed, count);
  if (!run.failure.empty()) {
    FAIL() << again << " fails at operation " << run.operations.size() << ", " << run.trace.back()
           << ":\n"
           << run.failure << shortest(run.operations);
  }
  EXPECT_EQ(run.operations.size(), count);
}

TEST(RandomOperationsOfOneRun, AreOfEveryKind) {
  std::set<std::size_t> kinds;
  for (const model::Operation& each : model::runRandom(1, 2000).operations) kinds.insert(each.rule);
  EXPECT_EQ(kinds.size(), model::rules().size());
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomOperations, testing::ValuesIn(seeds()),
                         [](const auto& seed) { return std::to_string(seed.param); });

}  // namespace
