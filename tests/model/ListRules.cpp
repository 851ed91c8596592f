#include "tests/model/Operation.h"

/// The animation list.
namespace model {

namespace {

using support::Driver;

Deed openList(Screen& screen, unsigned, unsigned) {
  screen.open("Lotties");
  return {"", [](Driver& phone) { phone.tap("Lotties"); }};
}

Deed insert(Screen& screen, unsigned first, unsigned) {
  const std::size_t row = first % screen.disabled.size();
  screen.insert(row);
  return {std::to_string(row), [row](Driver& phone) { phone.insert(row); }};
}

Deed remove(Screen& screen, unsigned first, unsigned) {
  const std::size_t row = first % screen.enabled.size();
  screen.remove(row);
  return {std::to_string(row), [row](Driver& phone) { phone.remove(row); }};
}

Deed drag(Screen& screen, unsigned first, unsigned second) {
  const std::size_t rows = screen.enabled.size();
  const std::size_t row = first % rows;
  const std::size_t toRow = second % rows;
  screen.drag(row, toRow);
  return {std::to_string(row) + " to " + std::to_string(toRow),
          [row, toRow](Driver& phone) { phone.drag(0, row, 0, toRow); }};
}

/// A drag into the other section leads nowhere.
Deed dragAway(Screen& screen, unsigned first, unsigned second) {
  const std::size_t row = first % screen.enabled.size();
  return {std::to_string(row),
          [row, toRow = second % 3](Driver& phone) { phone.drag(0, row, 1, toRow); }};
}

Deed dragDisabled(Screen& screen, unsigned first, unsigned second) {
  const std::size_t row = first % screen.disabled.size();
  return {std::to_string(row),
          [row, section = second % 2](Driver& phone) { phone.drag(1, row, section, 0); }};
}

bool hasDisabled(const Screen& screen) {
  return screen.isOn("Lotties") && !screen.disabled.empty();
}

bool hasEnabled(const Screen& screen) { return screen.isOn("Lotties") && !screen.enabled.empty(); }

}  // namespace

std::vector<Rule> listRules() {
  return {
      {"open the list", 20,
       [](const Screen& screen) { return screen.isOn("") && !screen.isBlurred; }, &openList},
      {"insert row", 20, &hasDisabled, &insert},
      {"remove row", 14, &hasEnabled, &remove},
      {"drag row", 20, &hasEnabled, &drag},
      {"drag into the other section row", 3, &hasEnabled, &dragAway},
      {"drag disabled row", 2, &hasDisabled, &dragDisabled},
  };
}

}  // namespace model
