#include "tests/model/Screen.h"

#include <algorithm>
#include <utility>

namespace model {

namespace {

constexpr const char* changed = "com.orvalen.quillmere.prefs-changed";
constexpr const char* listKey = "enabledLotties";
constexpr const char* switchKey = "enabledSwitch";
constexpr const char* seenKey = "showedWelcomeVC";

bool holds(const Names& names, const std::string& name) {
  return std::ranges::find(names, name) != names.end();
}

/// Takes the name in that row out, with all that equal it.
std::string take(Names& names, std::size_t row) {
  const std::string name = names.at(row);
  std::erase(names, name);
  return name;
}

}  // namespace

Screen::Screen(Kept kept) : store(std::move(kept)) { start(); }

void Screen::start() {
  isRestarting = false;
  page.clear();
  over = Over::Nothing;
  titleIsIcon = isBlurred = false;
  drawRoot();
  appear();
}

void Screen::drawRoot() {
  switchIsOn = isYes(store.value(switchKey), true);
  shown.clear();
}

void Screen::appear() {
  if (hasWelcome && !isCovered() && !store.value(seenKey)) show(Over::Welcome);
}

void Screen::open(const std::string& name) {
  page = name;
  store.settle();
  if (name == "Lotties") drawList();
  for (const Setting& setting : settings()) {
    if (setting.page == name) shown[setting.key] = setting.shown(store.inFile(setting.key));
  }
}

void Screen::drawList() {
  const auto stored = store.value(listKey);
  const auto* names = stored ? std::get_if<Names>(&*stored) : nullptr;
  enabled = names ? *names : stored ? Names() : Names{"Clock", "Nice Buttons"};
  disabled.clear();
  std::ranges::copy_if(animations, std::back_inserter(disabled),
                       [this](const auto& name) { return !holds(enabled, name); });
}

void Screen::back() {
  page.clear();
  drawRoot();
  appear();
}

void Screen::change(const Setting& setting, const Item& stored) {
  store.writeThroughPage(setting.key, stored);
  store.set(setting.key, stored);
  shown[setting.key] = setting.shown(stored);
  posted.emplace_back(changed);
}

void Screen::flip(bool on, bool inside) {
  switchIsOn = on;
  if (!inside) return;
  store.set(switchKey, on);
  show(Over::SwitchRespring);
}

void Screen::confirm() {
  if (over == Over::Reset) {
    store.clear();
    later(0.1, [this] { eraseFile(); });
  } else {
    isBlurred = true;
    later(1.0, [this] { respring(); });
  }
  over = Over::Nothing;
}

void Screen::eraseFile() {
  store.remove();
  respring();
}

void Screen::respring() {
  isRestarting = true;
  waiting_.clear();
  later(2.0, [this] { start(); });
}

void Screen::leaveWelcome() {
  store.set(seenKey, true);
  over = Over::Nothing;
}

void Screen::reopen() { start(); }

void Screen::insert(std::size_t row) {
  enabled.insert(enabled.begin(), take(disabled, row));
  storeList();
}

void Screen::remove(std::size_t row) {
  disabled.push_back(take(enabled, row));
  storeList();
}

void Screen::drag(std::size_t row, std::size_t toRow) {
  if (row == toRow) return;
  const std::string name = take(enabled, row);
  const std::size_t place = std::min(toRow, enabled.size());
  enabled.insert(enabled.begin() + static_cast<std::ptrdiff_t>(place), name);
  storeList();
}

void Screen::storeList() {
  store.writeThroughList(listKey, enabled);
  store.set(listKey, enabled);
}

void Screen::later(double seconds, std::function<void()> work) {
  waiting_.emplace(now_ + seconds, std::move(work));
}

/// What is put off while time passes counts from when that happened.
void Screen::pass(double seconds) {
  const double end = now_ + seconds;
  while (!waiting_.empty() && waiting_.begin()->first <= end) {
    now_ = std::max(now_, waiting_.begin()->first);
    waiting_.extract(waiting_.begin()).mapped()();
  }
  now_ = end;
}

}  // namespace model
