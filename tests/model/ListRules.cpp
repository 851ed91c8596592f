#include "tests/model/Operation.h"

/// The animation list.
namespace model {

namespace {

Names animationsIn(const Names& files) {
  const std::string ending = ".lottie";
  Names names;
  for (const std::string& file : files) {
    if (file.ends_with(ending)) names.push_back(file.substr(0, file.size() - ending.size()));
  }
  return names;
}

std::string openList(World& world, unsigned, unsigned) {
  const Names names = animationsIn(world.phone.animationFiles());
  world.phone.tap("Lotties");
  world.screen.open("Lotties", names);
  return "";
}

std::string insert(World& world, unsigned first, unsigned) {
  const std::size_t row = first % world.screen.disabled.size();
  world.phone.insert(row);
  world.screen.insert(row);
  return std::to_string(row);
}

std::string remove(World& world, unsigned first, unsigned) {
  const std::size_t row = first % world.screen.enabled.size();
  world.phone.remove(row);
  world.screen.remove(row);
  return std::to_string(row);
}

std::string drag(World& world, unsigned first, unsigned second) {
  const std::size_t rows = world.screen.enabled.size();
  const std::size_t row = first % rows;
  const std::size_t toRow = second % rows;
  world.phone.drag(0, row, 0, toRow);
  world.screen.drag(row, toRow);
  return std::to_string(row) + " to " + std::to_string(toRow);
}

/// A drag into the other section leads nowhere.
std::string dragAway(World& world, unsigned first, unsigned second) {
  const std::size_t row = first % world.screen.enabled.size();
  world.phone.drag(0, row, 1, second % 3);
  return std::to_string(row);
}

std::string dragDisabled(World& world, unsigned first, unsigned second) {
  const std::size_t row = first % world.screen.disabled.size();
  world.phone.drag(1, row, second % 2, 0);
  return std::to_string(row);
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
