#include "tests/model/KilledRun.h"

#include <algorithm>
#include <chrono>

#include "tests/model/Disk.h"
#include "tests/model/Victim.h"
#include "tests/support/TemporaryFolder.h"

namespace model {

namespace {

/// About 50 of both kinds together.
constexpr unsigned writingOperationsToAKill = 30;
constexpr unsigned otherOperationsToAKill = 100;
constexpr unsigned startsToAKill = 10;
/// As long as what is killed may take, in microseconds.
constexpr unsigned operationTakes = 500;
constexpr unsigned startTakes = 20'000;

class Killing {
 public:
  explicit Killing(unsigned seed) : random_(seed) {}

  KilledRun run(std::size_t count) {
    start();
    while (run_.operations < count && run_.failure.empty()) next();
    return run_;
  }

 private:
  void start() {
    // The first start makes the phone; later ones may be killed as well.
    const bool isFirst = run_.kills == 0;
    do {
      what_ = "the start";
      screen_.emplace(kept_);
      const auto death = moment(!isFirst && oneIn(startsToAKill), startTakes);
      victim_.emplace(folder_.path, kept_, death);
      await(death.has_value());
    } while (!victim_ && run_.failure.empty());
    for (const std::string& name : leftAside(folder_.path)) fail(name + " is left");
  }

  void next() {
    ++run_.operations;
    const Operation operation = randomOperation(*screen_, random_);
    const Rule& rule = rules()[operation.rule];
    remember();
    screen_->animations = animationsIn(folder_.path);
    what_ = rule.name + (' ' + rule.act(*screen_, operation.first, operation.second).what);
    const bool writes = !screen_->store.steps.empty();
    const auto death =
        moment(oneIn(writes ? writingOperationsToAKill : otherOperationsToAKill), operationTakes);
    victim_->order(operation, death);
    await(death.has_value());
    if (victim_) return expectNothing(victim_->line());
    if (run_.failure.empty()) start();
  }

  /// What is there now is what a kill may leave from here on, besides what follows.
  void remember() {
    kept_ = screen_->store;
    screen_->store.steps.clear();
  }

  /// Of something that takes so long at most. Most takes less by far: early moments come more
  /// often.
  Victim::Moment moment(bool kill, unsigned takes) {
    if (!kill) return std::nullopt;
    return std::chrono::microseconds(1 + (random_() % takes >> random_() % 4));
  }

  /// Waits until it is done or was killed in the middle of it; kills it just after it at the
  /// latest.
  void await(bool kill) {
    const auto line = victim_->line();
    if (line || !kill) expectNothing(line);
    if (line) {
      remember();
      screen_->store.settle();  // Comparing asks the service for values, which settles.
    }
    if (kill) judge(line.has_value());
  }

  void expectNothing(const std::optional<std::string>& line) {
    if (!line) return fail("died of itself");
    if (!line->empty()) fail(*line);
  }

  /// Says what the dead program has left, and goes on from there.
  void judge(bool isDone) {
    victim_.reset();
    ++run_.kills;
    std::vector<Kept> allowed = screen_->store.steps;
    allowed.insert(allowed.begin(), kept_);
    const std::string found = textOnDisk(folder_.path);
    const auto left =
        std::ranges::find(allowed, found, [](const Kept& each) { return textOf(each); });
    if (left == allowed.end()) return fail(notAllowed(found, allowed));
    if (!isDone) {
      ++run_.inTheMiddle;
      if (found != textOf(kept_) && found != textOf(allowed.back())) ++run_.halfDone;
    }
    kept_ = *left;
  }

  static std::string notAllowed(const std::string& found, const std::vector<Kept>& allowed) {
    std::string text = "it left\n" + found;
    for (const Kept& each : allowed) text += "which should have been\n" + textOf(each);
    return text;
  }

  void fail(const std::string& what) {
    run_.failure +=
        "operation " + std::to_string(run_.operations) + ", " + what_ + ": " + what + '\n';
  }

  bool oneIn(unsigned many) { return random_() % many == 0; }

  const support::TemporaryFolder folder_;
  std::mt19937 random_;
  Kept kept_;  ///< Before what is being done.
  std::string what_;
  std::optional<Screen> screen_;
  std::optional<Victim> victim_;
  KilledRun run_;
};

}  // namespace

KilledRun runKilled(unsigned seed, std::size_t count) { return Killing(seed).run(count); }

}  // namespace model
