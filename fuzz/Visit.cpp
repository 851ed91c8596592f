#include "fuzz/Visit.h"

#include <algorithm>
#include <charconv>
#include <nlohmann/json.hpp>

#include "desktop/Foundation/PropertyListFile.h"
#include "fuzz/Require.h"
#include "settings/Touch.h"

namespace fuzz {

using nlohmann::json;

namespace {

/// The properties of a node, and of what stands in one, that hold ids.
constexpr std::string_view references[] = {
    "back",    "banner", "cancel", "children", "confirm", "control",   "covers",
    "dismiss", "header", "id",     "overlay",  "send",    "titleView", "trailing",
};

bool isDictionary(const desktop::PhoneFolder& folder, const char* path) {
  try {
    return desktop::readPropertyList(folder, path).has_value();
  } catch (const desktop::UnreadableFile&) {
    return false;
  }
}

/// What a page gets, as text; fails where that cannot be.
std::string sent(const json& message) {
  return message.dump(-1, ' ', false, json::error_handler_t::replace);
}

}  // namespace

Visit::Visit(const std::filesystem::path& folder) : phone_(folder) {
  phone_.report = [](const std::string& line) {
    require(!line.starts_with("a touch failed"), line.c_str());
  };
  phone_.mainQueue.now = [this] { return time_; };
  // Fewer pixels cost less, and nothing that is tried depends on them.
  phone_.screenScale = 0.125;
  phone_.identity.productVersion = "12.5";
}

void Visit::store(std::string_view bytes) {
  phone_.folder.replace(preferences, bytes);
  unreadable_.reset();
  if (!isDictionary(phone_.folder, preferences)) unreadable_ = bytes;
}

void Visit::open() {
  phone_.preferences.settleAll();
  phone_.springBoard.open("prefs:root=Quillmere");
  look();
}

void Visit::say(std::string_view line) {
  if (line == "wait") {
    time_ += std::chrono::seconds(1);
    phone_.mainQueue.run();
  } else {
    touch(spliced(line));
  }
  look();
  requireWholePreferences();
}

void Visit::openAnimations() {
  const auto number = phone_.springBoard.navigation()->top().number;
  say(R"({"kind":"tap","id":"page)" + std::to_string(number) + R"(.group0.row0"})");
  require(screen_.table() != nullptr, "the list of animations does not open");
}

void Visit::viewAllRows() {
  const auto table = std::ranges::find_if(
      shown_, [](const auto& each) { return each.second.at("kind") == "table"; });
  if (table == shown_.end()) return;
  viewport_ = {table->first, 0, settings::Viewport::maximumRows};
  look();
}

std::string Visit::spliced(std::string_view line) const {
  std::string text;
  for (std::size_t at = 0; at < line.size();) {
    std::size_t number = 0;
    const char* const end = line.data() + line.size();
    const auto [rest, error] = std::from_chars(line.data() + at + 1, end, number);
    const bool isId = line[at] == '{' && error == std::errc() && rest != end && *rest == '}';
    if (isId && !ids_.empty()) {
      text += ids_[number % ids_.size()];
      at = static_cast<std::size_t>(rest - line.data()) + 1;
    } else {
      text += line[at++];
    }
  }
  return text;
}

void Visit::touch(const std::string& message) {
  try {
    settings::touch(phone_.springBoard, viewport_, message);
  } catch (const settings::RefusedTouch& refused) {
    sent(settings::refusedMessage(refused.what()));
  }
}

void Visit::look() {
  settings::Tree tree = screen_.tree(viewport_, pictures_);
  sent(shown_.empty() ? settings::screenMessage(tree) : settings::updateMessage(shown_, tree));
  shown_ = std::move(tree);
  ids_.clear();
  collectIds(shown_.at("window"));
}

void Visit::collectIds(const json& node) {
  for (const auto& [property, value] : node.items()) {
    const bool isReference = std::ranges::find(references, property) != std::end(references);
    if (value.is_object()) collectIds(value);
    if (value.is_string() && isReference) addId(value.get_ref<const std::string&>());
    if (!value.is_array()) continue;
    for (const json& each : value) {
      if (each.is_object()) collectIds(each);
      if (each.is_string() && isReference) addId(each.get_ref<const std::string&>());
    }
  }
}

void Visit::addId(const std::string& id) {
  ids_.push_back(id);
  if (const auto named = shown_.find(id); named != shown_.end()) collectIds(named->second);
}

void Visit::requireWholePreferences() const {
  const auto bytes = phone_.folder.read(preferences);
  if (unreadable_) {
    require(bytes == unreadable_, "a file that cannot be read was changed");
  } else {
    require(!bytes || isDictionary(phone_.folder, preferences), "the preferences are damaged");
  }
}

}  // namespace fuzz
