#include <gtest/gtest.h>
#include <sstream>

#include "tests/model/Disk.h"
#include "tests/model/Operation.h"

namespace model {

namespace {

using Over = Screen::Over;

/// Collects where two things differ.
class Differences {
 public:
  template <class Thing>
  void compare(const std::string& what, const Thing& expected, const Thing& actual) {
    if (expected == actual) return;
    text_ << what << ": " << testing::PrintToString(expected) << " expected, but "
          << testing::PrintToString(actual) << '\n';
  }
  std::string text() const { return text_.str(); }

 private:
  std::ostringstream text_;
};

void compareService(World& world, std::size_t step, Differences& differences) {
  Names keys = {"enabledSwitch", "showedWelcomeVC", "enabledLotties", "foreign"};
  for (const Setting& setting : settings()) keys.emplace_back(setting.key);
  for (std::size_t i = 0; i < keys.size(); ++i) {
    if (world.screen.store.state == Store::State::Readable && i != step % keys.size()) continue;
    const auto expected = world.screen.store.value(keys[i]);
    const auto actual = world.phone.serviceValue(keys[i]);
    differences.compare<std::string>("service's " + keys[i],
                                     expected ? textOf(valueOf(*expected)) : "nothing",
                                     actual ? textOf(*actual) : "nothing");
  }
}

const char* messageOf(Over over) {
  switch (over) {
    case Over::Respring:
      return "Do you really want to respring?";
    case Over::SwitchRespring:
      return "Enabling or Disabling the tweak requires a respring, Do you want to respring?";
    case Over::Reset:
      return "Do you really want to Reset All Settings?";
    default:
      return "";
  }
}

void compareOver(World& world, Differences& differences) {
  const Over over = world.screen.over;
  const auto alert = world.phone.alert();
  differences.compare<std::string>("alert", messageOf(over), alert ? alert->message : "");
  if (alert) {
    differences.compare<std::string>("alert's title", "Quillmere", alert->title);
    differences.compare("alert's answers", Names{"Confirm (2)", "Cancel (1)"}, alert->actions);
  }
  differences.compare("welcome", over == Over::Welcome, world.phone.welcome().has_value());
  differences.compare("mail", over == Over::Mail, world.phone.mail().has_value());
}

void compareRoot(World& world, Differences& differences) {
  const Screen& screen = world.screen;
  differences.compare("switch", screen.switchIsOn, world.phone.switchIsOn());
  differences.compare("title's text", std::string("Quillmere"), world.phone.titleText());
  const std::pair<double, double> alphas = {screen.titleIsIcon ? 0 : 1, screen.titleIsIcon ? 1 : 0};
  differences.compare("title and icon", alphas, world.phone.titleAlphas());
  differences.compare("blur", screen.isBlurred ? std::optional(1.0) : std::nullopt,
                      world.phone.blur());
}

void comparePage(World& world, Differences& differences) {
  const Screen& screen = world.screen;
  Names titles = {"Quillmere"};
  if (!screen.page.empty()) titles.push_back(screen.page);
  differences.compare("titles", titles, world.phone.titles());
  if (screen.page.empty()) compareRoot(world, differences);
  for (const auto& [key, text] : screen.shown) {
    differences.compare("row " + key, text, world.phone.shown(key));
  }
  if (screen.page != "Lotties") return;
  const auto list = world.phone.list();
  differences.compare("headers", Names{"Enabled Lotties", "Disabled Lotties"},
                      Names{list.at(0).title, list.at(1).title});
  differences.compare("enabled animations", screen.enabled, list.at(0).rows);
  differences.compare("disabled animations", screen.disabled, list.at(1).rows);
}

}  // namespace

std::string difference(World& world, std::size_t step) {
  Differences differences;
  differences.compare("notifications", world.screen.posted, world.phone.notifications());
  differences.compare("on disk", textOf(world.screen.store), textOnDisk(world.folder));
  compareService(world, step, differences);
  differences.compare("restarting", world.screen.isRestarting, world.phone.isRestarting());
  if (!world.screen.isRestarting && !world.phone.isRestarting()) {
    comparePage(world, differences);
    compareOver(world, differences);
  }
  return differences.text();
}

}  // namespace model
