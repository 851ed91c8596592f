#include "tests/plist/OpenedPhone.h"

#include "settings/Touch.h"

namespace plist_tests {

using nlohmann::json;

OpenedPhone::OpenedPhone(const std::filesystem::path& folder) : phone_(folder) {
  phone_.report = [](const std::string&) {};
  phone_.identity.productVersion = "12.5";
  phone_.springBoard.open("prefs:root=Quillmere");
  look();
}

void OpenedPhone::openList() {
  const auto number = phone_.springBoard.navigation()->top().number;
  touch({{"kind", "tap"}, {"id", "page" + std::to_string(number) + ".group0.row0"}});
}

void OpenedPhone::changeList() {
  json message;
  for (const auto& [id, node] : shown_) {
    if (node["kind"] != "cell") continue;
    if (node["editing"] == "insert") return touch({{"kind", "tap"}, {"id", node["control"]}});
    if (node["row"] == 0) message = {{"kind", "drag"}, {"id", id}, {"section", 0}, {"row", 1}};
  }
  if (shown_.contains(message.value("id", ""))) touch(message);
}

const settings::Tree& OpenedPhone::look() {
  settings::Tree tree = screen_.tree(viewport_, pictures_);
  const json message =
      shown_.empty() ? settings::screenMessage(tree) : settings::updateMessage(shown_, tree);
  static_cast<void>(message.dump(-1, ' ', false, json::error_handler_t::replace));
  return shown_ = std::move(tree);
}

void OpenedPhone::touch(const json& message) {
  try {
    settings::touch(phone_.springBoard, viewport_, message.dump());
  } catch (const settings::RefusedTouch&) {
    // Some lists have but one row.
  }
  look();
}

}  // namespace plist_tests
