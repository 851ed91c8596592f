#include <map>
#include <memory>
#include <stdexcept>

#include "tests/promises/crash/Disk.h"
#include "tests/promises/crash/EveryChange.h"

namespace crash_tests {
namespace {

constexpr std::size_t pointsInShort = 9;

struct Cut {
  const char* name;
  const char* fileSystem;
  Disk::Journal journal;
};

std::ostream& operator<<(std::ostream& stream, const Cut& cut) { return stream << cut.name; }

constexpr Cut cuts[] = {
    {"Ext4JournalLost", "ext4", Disk::Journal::Lost},
    {"Ext4JournalKept", "ext4", Disk::Journal::Kept},
    {"XfsJournalLost", "xfs", Disk::Journal::Lost},
    {"XfsJournalKept", "xfs", Disk::Journal::Kept},
};

class PowerCut : public EveryChange<Cut> {
 protected:
  static void TearDownTestSuite() {
    disks.clear();
    support::note(std::to_string(changes().size()) + " changes, power cut on ext4 and xfs at " +
                      (support::isLong() ? "every system call" : "some system calls"),
                  missing.empty() ? tally.text() : notShown, "0 of each");
  }

  void SetUp() override {
    try {
      auto& found = disks[happening().fileSystem];
      while (missing.empty() && found.size() < workers) {
        found.push_back(std::make_unique<Disk>(happening().fileSystem));
      }
    } catch (const std::runtime_error& reason) {
      missing = reason.what();
    }
    if (!missing.empty()) GTEST_SKIP() << notShown << " (" << missing << ")";
  }

  /// The power goes when the program is killed at that call, or has done its work.
  Verdict attempt(std::size_t point, std::size_t worker) const {
    constexpr Fault killed{"KilledBefore", Blow::KilledBefore};
    Disk& disk = *disks[happening().fileSystem][worker];
    const auto phone = disk.path() / "phone";
    rehearsal().prepare(phone);
    disk.sync();
    const auto made = rehearsal().attempt(phone, killed, point);
    disk.cutPower(happening().journal);
    Verdict verdict = rehearsal().judge(phone, made.isAcknowledged);
    verdict.words = made.run.lastCall() + ": " + verdict.words;
    return verdict;
  }

  static constexpr const char* notShown = "not shown: this machine allows no loop mounts";
  /// One for each worker, of each type.
  inline static std::map<std::string, std::vector<std::unique_ptr<Disk>>> disks;
  /// Why there are none.
  inline static std::string missing;
};

TEST_P(PowerCut, LosesNothing) {
  auto points = chosen(callsInPhone(rehearsal()), pointsInShort, nextTurn());
  points.push_back(never);
  tally.tryEach(points,
                [&](std::size_t point, std::size_t worker) { return attempt(point, worker); });
}

INSTANTIATE_TEST_SUITE_P(EveryChange, PowerCut,
                         testing::Combine(testing::ValuesIn(changes()), testing::ValuesIn(cuts)),
                         &PowerCut::nameOf);

}  // namespace
}  // namespace crash_tests
