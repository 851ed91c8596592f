#include "settings/cli/Set.h"

#include <iostream>

#include "desktop/Foundation/Values.h"
#include "prefs/Quillmere.h"
#include "settings/cli/Hands.h"
#include "settings/cli/Values.h"

namespace settings::cli {

using quillmere::settings::enabledSwitch;

namespace {

/// Throws `UsageError` for what the request cannot mean.
void check(const Request& request) {
  const std::string& key = request.arguments[0];
  if (key == quillmere::enabledLottiesKey) {
    throw UsageError(key + " is changed by lotties enable, disable and move");
  }
  if (request.respring && key != enabledSwitch.key) {
    throw UsageError(std::string("--respring goes with ") + enabledSwitch.key + ", and not with " +
                     key);
  }
}

/// Answers the prompt that the master switch brings up.
void answerPrompt(Hands& hands, bool respring) {
  if (!respring) {
    std::cerr << "quillmere-settings: \"" << desktop::textOf(hands.alert().message)
              << "\" was answered with Cancel (--respring confirms it)" << std::endl;
  }
  hands.answerAlert(respring);
}

}  // namespace

std::string set(Hands& hands, const Request& request) {
  check(request);
  const Row row = rowWithKey(hands, request.arguments[0]);
  nlohmann::json value;
  hands.change([&] {
    change(row, request.arguments[1]);
    // The control does not outlive a respring.
    value = describe(row.control).value;
    if (row.key == enabledSwitch.key) answerPrompt(hands, request.respring);
  });
  return request.json ? printed(value) : "";
}

}  // namespace settings::cli
