#pragma once

#include <filesystem>
#include <mutex>
#include <set>
#include <string>
#include <vector>

#include "plist/Value.h"
#include "tests/promises/crash/Change.h"
#include "tests/promises/crash/Phone.h"
#include "tests/promises/crash/Trace.h"
#include "tests/support/TemporaryFolder.h"

namespace crash_tests {

/// What an attempt left.
struct Verdict {
  enum Kind {
    Whole,
    Torn,    ///< The preferences file cannot be read.
    Lost,    ///< It holds neither what it held nor what it was to hold.
    Old,     ///< The change was acknowledged, and is not there.
    Left,    ///< A temporary file is there after a restart.
    Broken,  ///< Another file is missing or another after a restart, or nothing can be changed.
    Kinds,
  } kind = Whole;
  std::string words{};
};

/// A change that has been made once as it should, so that it is known what comes of it.
class Rehearsal {
 public:
  explicit Rehearsal(const Change& change);

  /// Of the undisturbed run, in order.
  const std::vector<SystemCall>& calls() const { return calls_; }

  /// Makes `phone` what stands before the change.
  void prepare(const std::filesystem::path& phone) const;

  /// Makes the change in a prepared phone, with a fault.
  struct Attempt {
    bool isAcknowledged;
    Run run;
  };
  Attempt attempt(const std::filesystem::path& phone, const Fault& fault, std::size_t nth,
                  Executable executable = {}) const;

  /// Judges what the attempt left, and what is there after the program was started once more.
  Verdict judge(const std::filesystem::path& phone, bool isAcknowledged) const;

 private:
  Verdict judgeSettings(const std::filesystem::path& phone, bool isAcknowledged) const;
  Verdict judgeRestart(const std::filesystem::path& phone) const;
  bool isKnownToRestart(const Contents& left) const;
  void expectTheChange() const;

  const Change change_;
  const support::TemporaryFolder folder_;
  const std::filesystem::path before_ = folder_.path / "before";
  plist::Dictionary old_;
  plist::Dictionary new_;
  std::vector<SystemCall> calls_;
  Contents besides_;  ///< Besides the settings, after the undisturbed run and any restart.
  /// What restarts are known to come well of, so that they need not be tried each time.
  mutable std::set<Contents> restarting_;
  mutable std::mutex mutex_;
};

/// The change's rehearsal, made at the first call.
const Rehearsal& rehearsalOf(const Change& change);

}  // namespace crash_tests
