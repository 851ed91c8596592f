#include "tests/promises/crash/EveryChange.h"

namespace crash_tests {
namespace {

constexpr std::size_t pointsInShort = 12;

class CrashPoint : public EveryChange<Fault> {
 protected:
  static void TearDownTestSuite() {
    support::note(
        std::to_string(changes().size()) + " changes, " + std::to_string(std::size(callFaults)) +
            (support::isLong() ? " faults at every system call" : " faults at some system calls"),
        tally.text(), "0 of each");
  }

  Verdict attempt(std::size_t point) const {
    const support::TemporaryFolder folder;
    const auto phone = folder.path / "phone";
    rehearsal().prepare(phone);
    const auto made = rehearsal().attempt(phone, happening(), point);
    Verdict verdict = rehearsal().judge(phone, made.isAcknowledged);
    verdict.words = made.run.lastCall() + ": " + verdict.words;
    return verdict;
  }
};

TEST_P(CrashPoint, LosesNothing) {
  tally.tryEach(chosen(callsFor(happening(), rehearsal()), pointsInShort, nextTurn()),
                [&](std::size_t point, std::size_t) { return attempt(point); });
}

INSTANTIATE_TEST_SUITE_P(EveryChange, CrashPoint,
                         testing::Combine(testing::ValuesIn(changes()),
                                          testing::ValuesIn(callFaults)),
                         &CrashPoint::nameOf);

}  // namespace
}  // namespace crash_tests
