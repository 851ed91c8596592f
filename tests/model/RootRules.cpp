#include <array>

#include "tests/model/Operation.h"

/// The first page, what lies over it, and time.
namespace model {

namespace {

using Over = Screen::Over;

bool isRoot(const Screen& screen) { return screen.isOn(""); }
bool hasRootRows(const Screen& screen) { return isRoot(screen) && !screen.isBlurred; }
bool isRunning(const Screen& screen) { return !screen.isRestarting; }
template <Over over>
bool shows(const Screen& screen) {
  return isRunning(screen) && screen.over == over;
}
bool isAsking(const Screen& screen) {
  return shows<Over::Respring>(screen) || shows<Over::SwitchRespring>(screen) ||
         shows<Over::Reset>(screen);
}

std::string flip(World& world, unsigned first, unsigned second) {
  const bool on = first % 2 == 0;
  const bool inside = second % 4 != 0;
  world.phone.flip(on, inside);
  world.screen.flip(on, inside);
  return std::string(on ? "on" : "off") + (inside ? "" : ", let go outside");
}

std::string scroll(World& world, unsigned first, unsigned) {
  constexpr std::array places = {-20.0, 0.0, 59.5, 60.0, 60.5, 300.0};
  const double y = places[first % places.size()];
  world.phone.scroll(y);
  world.screen.scroll(y);
  return std::to_string(y);
}

template <Over screen>
std::string tap(World& world, unsigned, unsigned) {
  const std::string label = screen == Over::Respring ? "Respring"
                            : screen == Over::Reset  ? "Reset All Settings"
                                                     : "Write to Support";
  world.phone.tap(label);
  world.screen.show(screen);
  return label;
}

std::string confirm(World& world, unsigned, unsigned) {
  world.phone.answer("Confirm");
  world.screen.confirm();
  return "";
}

std::string cancel(World& world, unsigned, unsigned) {
  world.phone.answer("Cancel");
  world.screen.cancel();
  return "";
}

std::string leaveWelcome(World& world, unsigned, unsigned) {
  world.phone.leaveWelcome();
  world.screen.leaveWelcome();
  return "";
}

std::string endMail(World& world, unsigned first, unsigned) {
  using End = support::Driver::MailEnd;
  world.phone.endMail(std::array{End::Send, End::Save, End::Cancel}[first % 3]);
  world.screen.cancel();
  return "in way " + std::to_string(first % 3);
}

std::string reopen(World& world, unsigned, unsigned) {
  world.phone.reopen();
  world.screen.reopen();
  return "";
}

/// No multiple of these is 0.1 s, so that nothing depends on which of two came first.
std::string pass(World& world, unsigned first, unsigned) {
  constexpr std::array times = {0.0625, 0.125, 0.5, 1.0, 2.0, 3.0};
  const double seconds = times[first % times.size()];
  world.phone.pass(seconds);
  world.screen.pass(seconds);
  return std::to_string(seconds);
}

}  // namespace

std::vector<Rule> rootRules() {
  return {
      {"flip the switch", 10, &isRoot, &flip},
      {"scroll to", 8, &isRoot, &scroll},
      {"tap", 3, &hasRootRows, &tap<Over::Respring>},
      {"tap", 4, &hasRootRows, &tap<Over::Reset>},
      {"tap", 1, &hasRootRows, &tap<Over::Mail>},
      {"confirm", 20, &isAsking, &confirm},
      {"cancel", 20, &isAsking, &cancel},
      {"leave the welcome screen", 30, &shows<Over::Welcome>, &leaveWelcome},
      {"end the mail", 60, &shows<Over::Mail>, &endMail},
      {"open the bundle anew", 2, &isRunning, &reopen},
      {"let seconds pass:", 12, [](const Screen&) { return true; }, &pass},
  };
}

}  // namespace model
