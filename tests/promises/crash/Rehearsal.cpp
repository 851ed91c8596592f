#include "tests/promises/crash/Rehearsal.h"

#include <algorithm>
#include <map>
#include <memory>
#include <stdexcept>
#include <string_view>

#include "plist/Document.h"
#include "tests/promises/crash/Page.h"

namespace crash_tests {

namespace fs = std::filesystem;

namespace {

/// Changed by the restart, and by no change of the table.
constexpr const char* restartKey = "quickActionsSize";

/// In the name of a file whose contents are to take another's place.
constexpr std::string_view asideMark = ".quillmere-aside-";

plist::Dictionary without(plist::Dictionary dictionary, const std::string& key) {
  dictionary.erase(key);
  return dictionary;
}

/// How the change is asked for; what a page saw goes into `isAcknowledged`.
Command commandFor(const Change& change, const fs::path& phone, bool& isAcknowledged) {
  Command command{{"--root", phone.string(), "--ios-version", "12.4"}};
  if (change.arguments.empty()) {
    command.arguments.emplace_back("--no-open");
    command.meanwhile = [&](int output) { isAcknowledged = touchPage(change, output); };
  }
  command.arguments.insert(command.arguments.end(), change.arguments.begin(),
                           change.arguments.end());
  return command;
}

/// The first path that one of them lacks, or that differs; empty when they are the same.
std::string difference(const Contents& found, const Contents& wanted) {
  const auto [one, other] = std::mismatch(found.begin(), found.end(), wanted.begin(), wanted.end());
  if (one == found.end()) return other == wanted.end() ? "" : other->first;
  return other == wanted.end() ? one->first : std::min(one->first, other->first);
}

}  // namespace

Rehearsal::Rehearsal(const Change& change) : change_(change) {
  crash_tests::prepare(before_, change.before);
  old_ = settingsOf(before_);
  const fs::path phone = folder_.path / "after";
  copyPhone(before_, phone);
  bool isAcknowledged = false;
  const Command command = commandFor(change, phone, isAcknowledged);
  const Run undisturbed = record(command);
  if (!command.meanwhile) isAcknowledged = undisturbed.exitCode == 0;
  if (!isAcknowledged) throw std::runtime_error("the change is not made: " + undisturbed.said);
  calls_ = undisturbed.calls;
  new_ = settingsOf(phone);
  besides_ = besidesSettings(contentsOf(phone));
  expectTheChange();
}

void Rehearsal::expectTheChange() const {
  const bool isRight =
      change_.key.empty()
          ? new_.empty() && !old_.empty()
          : new_.contains(change_.key) && without(new_, change_.key) == without(old_, change_.key);
  if (!isRight || new_ == old_) throw std::runtime_error("the change is another than it should");
}

void Rehearsal::prepare(const fs::path& phone) const { copyPhone(before_, phone); }

Rehearsal::Attempt Rehearsal::attempt(const fs::path& phone, const Fault& fault, std::size_t nth,
                                      Executable executable) const {
  bool isAcknowledged = false;
  Command command = commandFor(change_, phone, isAcknowledged);
  command.executable = std::move(executable);
  Run made = run(command, fault, nth);
  if (!command.meanwhile) isAcknowledged = made.exitCode == 0;
  return {isAcknowledged, std::move(made)};
}

Verdict Rehearsal::judge(const fs::path& phone, bool isAcknowledged) const {
  try {
    const Verdict verdict = judgeSettings(phone, isAcknowledged);
    return verdict.kind == Verdict::Whole ? judgeRestart(phone) : verdict;
  } catch (const plist::Unreadable& reason) {
    return {Verdict::Torn, std::string("torn: ") + reason.what()};
  }
}

Verdict Rehearsal::judgeSettings(const fs::path& phone, bool isAcknowledged) const {
  const plist::Dictionary settings = settingsOf(phone);
  if (settings != old_ && settings != new_) return {Verdict::Lost, "keys are lost"};
  if (isAcknowledged && settings != new_) return {Verdict::Old, "acknowledged, and not there"};
  return {};
}

Verdict Rehearsal::judgeRestart(const fs::path& phone) const {
  const Contents left = contentsOf(phone);
  if (isKnownToRestart(left)) return {};
  const plist::Dictionary settings = settingsOf(phone);
  const Run restarted = run({{"--root", phone.string(), "set", restartKey, "60"}});
  const plist::Dictionary afterwards = settingsOf(phone);
  if (without(afterwards, restartKey) != settings) {
    return {Verdict::Lost, "keys are lost by a restart"};
  }
  if (restarted.exitCode != 0 || !afterwards.contains(restartKey)) {
    return {Verdict::Broken, "no change is possible after a restart: " + restarted.said};
  }
  const std::string odd = difference(besidesSettings(contentsOf(phone)), besides_);
  if (!odd.empty()) {
    const bool isAside = odd.find(asideMark) != std::string::npos;
    return {isAside ? Verdict::Left : Verdict::Broken, odd + " is odd after a restart"};
  }
  const std::scoped_lock lock(mutex_);
  restarting_.insert(left);
  return {};
}

bool Rehearsal::isKnownToRestart(const Contents& left) const {
  const std::scoped_lock lock(mutex_);
  return restarting_.contains(left);
}

const Rehearsal& rehearsalOf(const Change& change) {
  static std::map<std::string, std::unique_ptr<const Rehearsal>> all;
  auto& found = all[change.name];
  if (!found) found = std::make_unique<const Rehearsal>(change);
  return *found;
}

}  // namespace crash_tests
