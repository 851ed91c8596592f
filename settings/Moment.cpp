#include "settings/Moment.h"

namespace settings {

Message message(const nlohmann::json& message) {
  return std::make_shared<const std::string>(
      message.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace));
}

Shown Moment::shown(const Viewport& viewport) {
  Shown& shown = shown_[viewport];
  if (!shown) shown = std::make_shared<const Tree>(draw_(viewport));
  return shown;
}

Message Moment::change(const Shown& before, const Shown& after) {
  if (!before) return message(screenMessage(*after));
  const auto [known, isNew] = changes_.try_emplace({before, after});
  if (isNew && *before != *after) known->second = message(updateMessage(*before, *after));
  return known->second;
}

}  // namespace settings
