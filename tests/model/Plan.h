#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace model {

/// How many random operations are done, from which seeds.
struct Plan {
  std::vector<unsigned> seeds;
  std::size_t operations;

  /// As asked for in the environment, by QUILLMERE_MODEL_SEED and QUILLMERE_MODEL_OPERATIONS; else
  /// 100 seeds of 10,000 operations in the full form, and as many as given in the short one. Throws
  /// `std::runtime_error` when what the environment holds is no number.
  Plan(unsigned briefSeeds, std::size_t briefOperations);

  /// The environment that gives one of the seeds again.
  std::string again(unsigned seed) const;

  /// "100 × 10,000".
  std::string text() const;
};

}  // namespace model
