#include <array>

#include "tests/model/Operation.h"

/// The first page, what lies over it, and time.
namespace model {

namespace {

using Over = Screen::Over;
using support::Driver;

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

Deed flip(Screen& screen, unsigned first, unsigned second) {
  const bool on = first % 2 == 0;
  const bool inside = second % 4 != 0;
  screen.flip(on, inside);
  return {std::string(on ? "on" : "off") + (inside ? "" : ", let go outside"),
          [on, inside](Driver& phone) { phone.flip(on, inside); }};
}

Deed scroll(Screen& screen, unsigned first, unsigned) {
  constexpr std::array places = {-20.0, 0.0, 59.5, 60.0, 60.5, 300.0};
  const double y = places[first % places.size()];
  screen.scroll(y);
  return {std::to_string(y), [y](Driver& phone) { phone.scroll(y); }};
}

template <Over over>
Deed tap(Screen& screen, unsigned, unsigned) {
  const std::string label = over == Over::Respring ? "Respring"
                            : over == Over::Reset  ? "Reset All Settings"
                                                   : "Write to Support";
  screen.show(over);
  return {label, [label](Driver& phone) { phone.tap(label); }};
}

Deed confirm(Screen& screen, unsigned, unsigned) {
  screen.confirm();
  return {"", [](Driver& phone) { phone.answer("Confirm"); }};
}

Deed cancel(Screen& screen, unsigned, unsigned) {
  screen.cancel();
  return {"", [](Driver& phone) { phone.answer("Cancel"); }};
}

Deed leaveWelcome(Screen& screen, unsigned, unsigned) {
  screen.leaveWelcome();
  return {"", &Driver::leaveWelcome};
}

Deed endMail(Screen& screen, unsigned first, unsigned) {
  using End = Driver::MailEnd;
  const End end = std::array{End::Send, End::Save, End::Cancel}[first % 3];
  screen.cancel();
  return {"in way " + std::to_string(first % 3), [end](Driver& phone) { phone.endMail(end); }};
}

Deed reopen(Screen& screen, unsigned, unsigned) {
  screen.reopen();
  return {"", &Driver::reopen};
}

/// No multiple of these is 0.1 s, so that nothing depends on which of two came first.
Deed pass(Screen& screen, unsigned first, unsigned) {
  constexpr std::array times = {0.0625, 0.125, 0.5, 1.0, 2.0, 3.0};
  const double seconds = times[first % times.size()];
  screen.pass(seconds);
  return {std::to_string(seconds), [seconds](Driver& phone) { phone.pass(seconds); }};
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
