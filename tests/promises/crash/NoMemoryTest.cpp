#include <fcntl.h>
#include <numeric>
#include <stdexcept>
#include <sys/mman.h>
#include <unistd.h>

#include "tests/promises/crash/EveryChange.h"
#include "tests/promises/crash/failing/Count.h"

namespace crash_tests {
namespace {

constexpr std::size_t pointsInShort = 36;
constexpr Fault noMemory[] = {{"NoMemory", Blow::NoMemory}};

/// An allocation's number, and how many there were, shared with the program.
class SharedCount {
 public:
  explicit SharedCount(const std::filesystem::path& file) : file_(file) {
    const int number = open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (number < 0 || ftruncate(number, sizeof(AllocationCount)) != 0) fail();
    void* const shared =
        mmap(nullptr, sizeof(AllocationCount), PROT_READ | PROT_WRITE, MAP_SHARED, number, 0);
    close(number);
    if (shared == MAP_FAILED) fail();
    count = static_cast<AllocationCount*>(shared);
  }
  SharedCount(const SharedCount&) = delete;
  SharedCount& operator=(const SharedCount&) = delete;
  ~SharedCount() { munmap(count, sizeof *count); }

  /// The program that counts there.
  Executable executable() const {
    return {STARVED_PROGRAM, {std::string(AllocationCount::variable) + "=" + file_.string()}};
  }

  AllocationCount* count;

 private:
  [[noreturn]] static void fail() { throw std::runtime_error("no memory can be shared"); }

  std::filesystem::path file_;
};

class NoMemory : public EveryChange<Fault> {
 protected:
  static void TearDownTestSuite() {
    support::note(std::to_string(changes().size()) +
                      (support::isLong() ? " changes, every allocation failing in turn"
                                         : " changes, some allocations failing in turn"),
                  tally.text(), "0 of each");
  }

  /// Makes the change with that allocation failing, none with 0.
  Verdict attempt(std::uint64_t failing) {
    const support::TemporaryFolder folder;
    const SharedCount shared(folder.path / "count");
    const auto phone = folder.path / "phone";
    rehearsal().prepare(phone);
    shared.count->failing = failing;
    const auto made = rehearsal().attempt(phone, happening(), never, shared.executable());
    if (failing == 0) allocations = shared.count->made;
    Verdict verdict = rehearsal().judge(phone, made.isAcknowledged);
    verdict.words += " (" + made.run.said + ")";
    return verdict;
  }

  std::uint64_t allocations = 0;
};

TEST_P(NoMemory, LosesNothing) {
  ASSERT_EQ(attempt(0).kind, Verdict::Whole);
  ASSERT_GT(allocations, 100U);
  std::vector<std::size_t> numbers(allocations);
  std::iota(numbers.begin(), numbers.end(), 1U);
  tally.tryEach(chosen(numbers, pointsInShort, nextTurn()),
                [&](std::size_t failing, std::size_t) { return attempt(failing); });
}

INSTANTIATE_TEST_SUITE_P(EveryChange, NoMemory,
                         testing::Combine(testing::ValuesIn(changes()),
                                          testing::ValuesIn(noMemory)),
                         &NoMemory::nameOf);

}  // namespace
}  // namespace crash_tests
