#include <charconv>

#include "desktop/Foundation/ArrayBody.h"
#include "desktop/Foundation/Values.h"
#include "desktop/Preferences/SpecifierBody.h"
#include "desktop/UIKit/ControllerState.h"
#include "platform/Preferences/PSListController.h"
#include "prefs/Quillmere.h"
#include "settings/cli/Values.h"
#include "settings/cli/Words.h"

namespace settings::cli {

using nlohmann::json;

namespace {

const desktop::SpecifierBody& rowOf(const desktop::Cell& cell) {
  return *desktop::bodyAs<desktop::SpecifierBody>(cell.specifier());
}

/// In the fewest digits that tell a number of single width, which is what sliders hand over, from
/// its neighbours; a whole number without a point.
json jsonOf(double number) {
  std::array<char, 64> text{};
  const auto end =
      std::to_chars(text.data(), text.data() + text.size(), static_cast<float>(number)).ptr;
  return json::parse(text.data(), end, nullptr, false);
}

/// A string, a number or a boolean; null for none, and words for anything else.
json jsonOf(const platform::Object& object) {
  if (!object) return nullptr;
  const plist::Value value = desktop::unbox(object);
  if (const auto truth = value.boolean()) return *truth;
  if (const auto integer = value.integer()) return *integer;
  if (const auto real = value.real()) return jsonOf(*real);
  return desktop::description(object);
}

json jsonOf(const platform::NSArray& objects) {
  json list = json::array();
  const auto* body = desktop::bodyAs<desktop::ArrayBody>(objects);
  for (std::size_t i = 0; body && i < body->elements.size(); ++i) {
    list.push_back(jsonOf(body->elements[i]));
  }
  return list;
}

std::string textOf(const desktop::HexColor& color, bool alpha) {
  return alpha ? color.web() : color.web().substr(0, sizeof "#rrggbb" - 1);
}

constexpr const char* bothPositions = "on, off";

Description description(const desktop::SwitchBody* knob) {
  return {"switch", knob->on, quillmere::settings::enabledSwitch.defaultValue, bothPositions};
}

Description description(const desktop::SwitchCell* cell) {
  const platform::Object otherwise = rowOf(*cell).property("default");
  return {"switch", cell->isOn(), otherwise ? json(desktop::boolValue(otherwise)) : json(nullptr),
          bothPositions};
}

Description description(const desktop::SliderCell* cell) {
  const platform::Object otherwise = rowOf(*cell).property("default");
  const json min = jsonOf(cell->min());
  const json max = jsonOf(cell->max());
  const json step = cell->step() ? jsonOf(*cell->step()) : json(nullptr);
  std::string takes = plain(min) + " to " + plain(max);
  if (step.is_null()) takes += ", and all between";
  if (!step.is_null() && step != 1) takes += " in steps of " + plain(step);
  return {"slider",
          jsonOf(cell->value()),
          otherwise ? jsonOf(desktop::doubleValue(otherwise)) : json(nullptr),
          takes,
          {{"min", min}, {"max", max}, {"step", step}}};
}

Description description(const desktop::SegmentCell* cell) {
  const desktop::SpecifierBody& row = rowOf(*cell);
  const platform::Object stored = desktop::perform(*row.target, row.get, cell->specifier());
  Description about{"segment",
                    jsonOf(stored),
                    jsonOf(row.property("default")),
                    "",
                    {{"titles", cell->titles()}, {"values", jsonOf(row.values)}}};
  std::vector<std::string> segments;
  for (const json& value : about.bounds["values"]) segments.push_back(titled(about, value));
  about.takes = joined(segments);
  return about;
}

Description description(const desktop::ColorCell* cell) {
  const bool alpha = cell->offersAlpha();
  const auto otherwise =
      desktop::HexColor::parse(desktop::textOf(rowOf(*cell).property("fallback")));
  return {"color",
          textOf(cell->color(), alpha),
          otherwise ? json(textOf(*otherwise, alpha)) : json(nullptr),
          alpha ? "#rrggbb or #rrggbbaa" : "#rrggbb",
          {{"alpha", alpha}}};
}

}  // namespace

Description describe(const Control& control) {
  return std::visit([](const auto* known) { return description(known); }, control);
}

std::string plain(const json& value) {
  if (value.is_null()) return "";
  if (value.is_array()) return joined(value.get<std::vector<std::string>>());
  if (value.is_boolean()) return value.get<bool>() ? "on" : "off";
  return value.is_string() ? value.get<std::string>() : value.dump();
}

std::string titled(const Description& description, const json& value) {
  if (!description.bounds.contains("titles")) return plain(value);
  const json& values = description.bounds["values"];
  const json& titles = description.bounds["titles"];
  for (std::size_t i = 0; i < values.size() && i < titles.size(); ++i) {
    if (values[i] == value) return plain(value) + " (" + plain(titles[i]) + ")";
  }
  return plain(value);
}

std::string printed(const json& answer) {
  return answer.dump(2, ' ', false, json::error_handler_t::replace) + '\n';
}

}  // namespace settings::cli
