#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "bench/runner/Program.h"
#include "bench/runner/Races.h"

namespace bench {

/// A contestant in a race: its process, and the times that it took so far.
class Competitor {
 public:
  /// Starts the entry's program, lets it prepare itself in the folder (made anew), and finds out
  /// how many operations take about 5 ms. One that fails before it is ready is said, and is not
  /// here; one that ends later throws `std::runtime_error`.
  Competitor(const Entry& entry, std::string_view task, std::size_t size,
             const std::filesystem::path& programs, const std::filesystem::path& folder);
  Competitor(const Competitor&) = delete;
  Competitor& operator=(const Competitor&) = delete;
  /// Removes the folder.
  ~Competitor();

  const std::string& name() const { return name_; }

  /// Whether it can run on this machine.
  bool isHere() const { return program_ != nullptr; }

  /// What a batch took when its length was found.
  double nanosecondsOfBatch() const { return nanosecondsOfBatch_; }

  void runBatch() { times_.push_back(time(batch_) / static_cast<double>(batch_)); }

  /// Nanoseconds of one operation, one for each batch.
  const std::vector<double>& times() const { return times_; }

 private:
  double time(std::size_t operations);
  void findBatch();

  std::string name_;
  std::filesystem::path folder_;
  std::unique_ptr<Program> program_;
  std::size_t batch_ = 1;
  double nanosecondsOfBatch_ = 0;
  std::vector<double> times_;
};

}  // namespace bench
