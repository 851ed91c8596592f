#include "settings/cli/SubCommand.h"

#include "settings/cli/Get.h"
#include "settings/cli/List.h"
#include "settings/cli/Lotties.h"
#include "settings/cli/Reset.h"
#include "settings/cli/Set.h"

namespace settings::cli {

std::span<const Flag> flags() {
  static constexpr Flag all[] = {
      {"--json", "Answer in JSON", &Request::json},
      {"--yes", "Confirm without being asked", &Request::yes},
      {"--respring", "Confirm the respring that the change of enabledSwitch offers",
       &Request::respring},
  };
  return all;
}

std::span<const SubCommand> subCommands() {
  using Effect = SubCommand::Effect;
  static const SubCommand::Argument key{"KEY", "A setting's key, as list tells it"};
  static const SubCommand::Argument name{"NAME", "An animation's name, as lotties list tells it"};
  static const SubCommand all[] = {
      {"list",
       "Show every setting: key, value, what it takes and its default",
       {},
       {"--json"},
       "list",
       Effect::Reads,
       &list},
      {"get",
       "Print the value of a setting",
       {key},
       {"--json"},
       "get clockDigitSize",
       Effect::Reads,
       &get},
      {"set",
       "Change a setting",
       {key,
        {"VALUE",
         "on or off for a switch, a number for a slider, the value or title of a\n"
         "segment, #rrggbb or #rrggbbaa for a color"}},
       {"--json", "--respring"},
       "set clockDigitSize 80",
       Effect::Changes,
       &set},
      {"reset",
       "Reset all settings, and respring",
       {},
       {"--json", "--yes"},
       "reset --yes",
       Effect::Changes,
       &reset},
      {"lotties list",
       "Show the enabled animations in their order, and the others",
       {},
       {"--json"},
       "lotties list",
       Effect::Reads,
       &listLotties},
      {"lotties enable",
       "Enable an animation, which then stands first",
       {name},
       {"--json"},
       "lotties enable Rain",
       Effect::Changes,
       &enableLottie},
      {"lotties disable",
       "Disable an animation",
       {name},
       {"--json"},
       "lotties disable Rain",
       Effect::Changes,
       &disableLottie},
      {"lotties move",
       "Move an enabled animation",
       {name, {"POSITION", "Where it is to stand: 1 is the first place"}},
       {"--json"},
       "lotties move Clock 1",
       Effect::Changes,
       &moveLottie},
  };
  return all;
}

}  // namespace settings::cli
