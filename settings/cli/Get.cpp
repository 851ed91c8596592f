#include "settings/cli/Get.h"

#include "settings/cli/Lotties.h"
#include "settings/cli/Values.h"
#include "settings/cli/Words.h"

namespace settings::cli {

namespace {

std::string lines(const std::vector<std::string>& names) {
  std::string text;
  for (const std::string& name : names) text += visible(name) + '\n';
  return text;
}

}  // namespace

std::string get(Hands& hands, const Request& request) {
  const std::string& key = request.arguments[0];
  if (key == enabledLottiesKey) {
    const auto names = enabledLotties(hands);
    return request.json ? printed(names) : lines(names);
  }
  const nlohmann::json value = describe(rowWithKey(hands, key).control).value;
  return request.json ? printed(value) : visible(plain(value)) + '\n';
}

}  // namespace settings::cli
