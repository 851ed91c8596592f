#include "settings/Touch.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <string>
#include <type_traits>

#include "desktop/Exception.h"
#include "desktop/Phone.h"
#include "settings/Screen.h"

namespace settings {

using desktop::NavigationController;
using nlohmann::json;

namespace {

void require(bool holds, const std::string& otherwise) {
  if (!holds) throw RefusedTouch(otherwise);
}

/// The message's field of that name and type.
template <class T>
T field(const json& message, const char* name) {
  const auto found = message.find(name);
  require(found != message.end(), std::string("there is no \"") + name + '"');
  bool fits = false;
  if constexpr (std::is_same_v<T, bool>) fits = found->is_boolean();
  if constexpr (std::is_same_v<T, double>) fits = found->is_number();
  if constexpr (std::is_same_v<T, std::size_t>) fits = found->is_number_unsigned();
  if constexpr (std::is_same_v<T, std::string>) fits = found->is_string();
  require(fits, std::string("\"") + name + "\" is of the wrong type");
  return found->get<T>();
}

/// The cell that the message is about, which must be one of this kind and not disabled.
template <class Cell>
Cell& cellIn(NavigationController& navigation, const json& message) {
  const auto id = field<std::string>(message, "id");
  desktop::AnyCell* cell = Screen(navigation).cell(id);
  require(cell, "there is no " + id + " on the screen");
  auto* fitting = std::get_if<Cell>(cell);
  require(fitting, id + " does not take this touch");
  require(fitting->enabled(), id + " is disabled");
  return *fitting;
}

void tap(NavigationController& navigation, const json& message) {
  if (Screen(navigation).isBackButton(field<std::string>(message, "id"))) {
    navigation.pop();
  } else {
    cellIn<desktop::ActionCell>(navigation, message).tap();
  }
}

void toggle(NavigationController& navigation, const json& message) {
  const bool on = field<bool>(message, "on");
  cellIn<desktop::SwitchCell>(navigation, message).toggle(on);
}

void slide(NavigationController& navigation, const json& message) {
  const double value = field<double>(message, "value");
  require(cellIn<desktop::SliderCell>(navigation, message).slide(value), "that is no number");
}

void type(NavigationController& navigation, const json& message) {
  const auto text = field<std::string>(message, "text");
  require(cellIn<desktop::SliderCell>(navigation, message).type(text),
          "\"" + text + "\" is no number");
}

void select(NavigationController& navigation, const json& message) {
  const auto index = field<std::size_t>(message, "index");
  require(cellIn<desktop::SegmentCell>(navigation, message).select(index),
          "there is no such segment");
}

void pick(NavigationController& navigation, const json& message) {
  const auto color = desktop::HexColor::parseWeb(field<std::string>(message, "color"));
  require(color.has_value(), "\"color\" is not of the form #rrggbbaa");
  cellIn<desktop::ColorCell>(navigation, message).pick(*color);
}

struct Kind {
  std::string_view name;
  void (*perform)(NavigationController&, const json&);
};

constexpr Kind kinds[] = {
    {"tap", &tap},   {"toggle", &toggle}, {"slide", &slide},
    {"type", &type}, {"select", &select}, {"pick", &pick},
};

}  // namespace

void touch(NavigationController& navigation, std::string_view text) {
  const json message = json::parse(text, nullptr, false);
  require(message.is_object(), "a touch is a JSON object");
  const auto name = field<std::string>(message, "kind");
  const auto* kind = std::ranges::find(kinds, name, &Kind::name);
  require(kind != std::end(kinds), "there is no touch \"" + name + '"');
  try {
    kind->perform(navigation, message);
  } catch (const desktop::Exception& raised) {
    // On a phone the Settings app would end here; at a desk, hearing of it is worth more.
    desktop::Phone::current().report(raised.what());
    throw RefusedTouch(raised.what());
  } catch (const RefusedTouch&) {
    throw;
  } catch (const std::exception& failure) {
    desktop::Phone::current().report(std::string("a touch failed: ") + failure.what());
    throw RefusedTouch("it could not be done");
  }
}

}  // namespace settings
