#include "settings/Nodes.h"

#include "desktop/Cephei/AppearanceBody.h"
#include "desktop/UIKit/ColorBody.h"

namespace settings {

using nlohmann::json;

namespace {

json node(const desktop::SwitchCell& cell) { return {{"kind", "switch"}, {"on", cell.isOn()}}; }

json node(const desktop::SliderCell& cell) {
  const auto step = cell.step();
  return {{"kind", "slider"},
          {"value", cell.value()},
          {"min", cell.min()},
          {"max", cell.max()},
          {"step", step ? json(*step) : json(nullptr)},
          {"showValue", cell.showsValue()}};
}

json node(const desktop::SegmentCell& cell) {
  const auto selected = cell.selected();
  return {{"kind", "segment"},
          {"titles", cell.titles()},
          {"selected", selected ? json(*selected) : json(-1)}};
}

json node(const desktop::ActionCell& cell) { return {{"kind", cell.isLink() ? "link" : "button"}}; }

json node(const desktop::ColorCell& cell) {
  return {{"kind", "color"}, {"color", cell.color().web()}, {"alpha", cell.offersAlpha()}};
}

json node(const desktop::CreditsCell& cell) {
  json people = json::array();
  for (const auto& person : cell.people()) {
    json column = {{"name", person.name}, {"detail", person.place}, {"url", person.url}};
    if (!person.picture.empty()) column["image"] = "bundle/" + person.picture;
    people.push_back(std::move(column));
  }
  return {{"kind", "credits"}, {"tint", cell.tint().web()}, {"people", std::move(people)}};
}

json node(const desktop::TextCell&) { return {{"kind", "text"}}; }

}  // namespace

json rowNode(const desktop::AnyCell& cell) {
  return std::visit(
      [](const auto& known) {
        json row = node(known);
        row["label"] = known.label();
        if (const std::string key = known.key(); !key.empty()) row["key"] = key;
        if (!known.enabled()) row["enabled"] = false;
        if (known.height() > 0) row["height"] = known.height();
        return row;
      },
      cell);
}

json styleNode(const platform::HBAppearanceSettings& appearance) {
  const auto* look = desktop::bodyAs<desktop::AppearanceBody>(appearance);
  json style = json::object();
  if (!look) return style;
  const std::pair<const char*, const platform::UIColor&> colors[] = {
      {"tint", look->tint},
      {"bar", look->navigationBarBackground},
      {"barText", look->navigationBarTitle},
      {"barTint", look->navigationBarTint},
      {"text", look->cellText},
      {"separator", look->cellSeparator},
  };
  style["translucent"] = look->translucentNavigationBar;
  for (const auto& [name, color] : colors) {
    if (color) style[name] = desktop::webColor(color);
  }
  return style;
}

}  // namespace settings
