#include <algorithm>
#include <array>
#include <cstdio>

#include "tests/model/Operation.h"

/// Pages and their value rows.
namespace model {

namespace {

using support::Driver;

Deed openPage(Screen& screen, unsigned first, unsigned) {
  constexpr std::array pages = {"Clock", "Quick Actions", "Color"};
  const std::string page = pages[first % pages.size()];
  screen.open(page);
  return {page, [page](Driver& phone) { phone.tap(page); }};
}

Deed goBack(Screen& screen, unsigned, unsigned) {
  screen.back();
  return {"", &Driver::back};
}

Deed toggle(Screen& screen, const Setting& setting, unsigned number) {
  const bool on = number % 2 == 0;
  screen.change(setting, on);
  return {on ? "on" : "off", [&setting, on](Driver& phone) { phone.toggle(setting.key, on); }};
}

/// To a place between two stops, also past the slider's ends.
Deed slide(Screen& screen, const Setting& setting, unsigned number) {
  const double stop =
      setting.min - 10 + number % static_cast<unsigned>(setting.max - setting.min + 20);
  const double place = stop + (number % 2 == 0 ? 0.25 : -0.25);
  screen.change(setting, std::clamp(stop, setting.min, setting.max));
  return {std::to_string(place),
          [&setting, place](Driver& phone) { phone.slide(setting.key, place); }};
}

Deed select(Screen& screen, const Setting& setting, unsigned number) {
  const unsigned segment = number % 2;
  screen.change(setting, static_cast<long long>(segment) + 1);
  return {std::to_string(segment),
          [&setting, segment](Driver& phone) { phone.select(setting.key, segment); }};
}

/// Is stored with alpha in front, in upper case.
Deed pick(Screen& screen, const Setting& setting, unsigned number) {
  std::array<char, 32> web{};
  std::array<char, 32> stored{};
  const unsigned alpha = number % 256;
  std::snprintf(web.data(), web.size(), "#%06x%02x", number * 1663, alpha);
  std::snprintf(stored.data(), stored.size(), "%02X%06X", alpha, number * 1663);
  screen.change(setting, std::string(stored.data()));
  return {web.data(), [&setting, web](Driver& phone) { phone.pick(setting.key, web.data()); }};
}

bool hasRows(const Screen& screen) {
  return !screen.isRestarting && !screen.isCovered() && !screen.shown.empty();
}

Deed changeRow(Screen& screen, unsigned first, unsigned second) {
  std::vector<const Setting*> rows;
  for (const Setting& setting : settings()) {
    if (setting.page == screen.page) rows.push_back(&setting);
  }
  const Setting& setting = *rows[first % rows.size()];
  constexpr std::array hands = {&toggle, &slide, &select, &pick};
  const auto hand = hands[static_cast<std::size_t>(setting.control)];
  Deed deed = hand(screen, setting, second);
  deed.what = std::string(setting.key) + " to " + deed.what;
  return deed;
}

}  // namespace

std::vector<Rule> pageRules() {
  return {
      {"open", 20, [](const Screen& screen) { return screen.isOn("") && !screen.isBlurred; },
       &openPage},
      {"go back", 8,
       [](const Screen& screen) {
         return !screen.isRestarting && !screen.isCovered() && !screen.page.empty();
       },
       &goBack},
      {"change", 40, &hasRows, &changeRow},
  };
}

}  // namespace model
