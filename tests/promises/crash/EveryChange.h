#pragma once

#include <gtest/gtest.h>
#include <string>
#include <tuple>

#include "tests/promises/crash/Change.h"
#include "tests/promises/crash/Points.h"
#include "tests/promises/crash/Rehearsal.h"
#include "tests/support/Figures.h"

namespace crash_tests {

/// A change, and what happens to it: something of a table, which has a name.
template <class Happening>
class EveryChange : public testing::TestWithParam<std::tuple<Change, Happening>> {
 public:
  /// "ExistingKey_EIO"
  static std::string nameOf(const testing::TestParamInfo<std::tuple<Change, Happening>>& info) {
    return std::string(std::get<0>(info.param).name) + "_" + std::get<1>(info.param).name;
  }

 protected:
  const Change& change() const { return std::get<0>(this->GetParam()); }
  const Happening& happening() const { return std::get<1>(this->GetParam()); }
  const Rehearsal& rehearsal() const { return rehearsalOf(change()); }

  /// Counts the tests, so that each takes other points in the short form.
  static std::size_t nextTurn() {
    static std::size_t turn = 0;
    return turn++ * 7;
  }

  inline static Tally tally;
};

}  // namespace crash_tests
