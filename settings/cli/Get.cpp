#include "settings/cli/Get.h"

#include "prefs/Quillmere.h"
#include "settings/cli/Hands.h"
#include "settings/cli/Lotties.h"
#include "settings/cli/Values.h"
#include "settings/cli/Words.h"

namespace settings::cli {

namespace {

/// A line for each name of a list, one for any other value.
std::string lines(const nlohmann::json& value) {
  if (!value.is_array()) return visible(plain(value)) + '\n';
  std::string text;
  for (const nlohmann::json& name : value) text += visible(plain(name)) + '\n';
  return text;
}

}  // namespace

std::string get(Hands& hands, const Request& request) {
  const std::string& key = request.arguments[0];
  const Description about = key == quillmere::enabledLottiesKey
                                ? describeLotties(hands)
                                : describe(rowWithKey(hands, key).control);
  // Any other value can have come from the file alone.
  if (about.value == about.otherwise) hands.tellOfUnreadable();
  return request.json ? printed(about.value) : lines(about.value);
}

}  // namespace settings::cli
