#include "desktop/Preferences/Cells.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "desktop/Foundation/ArrayBody.h"
#include "desktop/Foundation/Values.h"
#include "desktop/ObjectiveC/ClassBody.h"
#include "desktop/Phone.h"
#include "desktop/Preferences/SpecifierBody.h"
#include "desktop/UIKit/ControllerState.h"
#include "desktop/UIKit/NavigationController.h"
#include "platform/Preferences/PSListController.h"

namespace desktop {

using platform::PSCellType;

namespace {

std::vector<platform::Object> objectsOf(const platform::NSArray& array) {
  const auto* body = bodyAs<ArrayBody>(array);
  return body ? body->elements.objects() : std::vector<platform::Object>();
}

/// Pushes a new page of that class.
void open(const std::string& className, const std::string& title, NavigationController& stack) {
  auto controller = makeController(className);
  if (!controller) return Phone::current().report("there is no class " + className + " to open");
  setTitle(*controller, title);
  if (controller->init()) stack.push(std::move(controller));
}

}  // namespace

SwitchCell::SwitchCell(platform::PSSpecifier specifier)
    : Cell(std::move(specifier)), on_(boolValue(performGetter())) {}

void SwitchCell::toggle(bool on) {
  on_ = on;
  performSetterWithValue(box(plist::Value(on)));
}

SliderCell::SliderCell(platform::PSSpecifier specifier)
    : Cell(std::move(specifier)),
      min_(bound("min", 0)),
      max_(bound("max", 1)),
      value_(doubleValue(performGetter())) {
  max_ = std::max(min_, max_);
  value_ = std::isnan(value_) ? min_ : std::clamp(value_, min_, max_);
}

double SliderCell::bound(const char* property, double otherwise) const {
  const platform::Object given = row().property(property);
  return given && std::isfinite(doubleValue(given)) ? doubleValue(given) : otherwise;
}

std::optional<double> SliderCell::step() const {
  const double segments = doubleValue(row().property("segmentCount"));
  if (!flag("isSegmented") || !(segments >= 1)) return std::nullopt;
  return (max_ - min_) / segments;
}

bool SliderCell::showsValue() const { return flag("showValue"); }

double SliderCell::nearestStop(double value) const {
  value = std::clamp(value, min_, max_);
  const auto stop = step();
  return stop ? min_ + std::round((value - min_) / *stop) * *stop : value;
}

bool SliderCell::slide(double value) {
  if (std::isnan(value)) return false;
  // The platform's sliders hand over a single-width number, also at whole stops.
  const auto stop = static_cast<float>(nearestStop(value));
  value_ = static_cast<double>(stop);
  performSetterWithValue(box(plist::Value::real(stop)));
  return true;
}

std::optional<double> SliderCell::number(std::string_view text) {
  const auto isSpace = [](char letter) { return letter == ' ' || letter == '\t'; };
  while (!text.empty() && isSpace(text.front())) text.remove_prefix(1);
  while (!text.empty() && isSpace(text.back())) text.remove_suffix(1);
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  // Names of numbers, "inf" and the like, are numbers to from_chars only.
  if (text.find_first_not_of("-.0123456789") != std::string_view::npos) return std::nullopt;
  double value = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value, std::chars_format::fixed);
  return error == std::errc() && stop == end ? std::optional(value) : std::nullopt;
}

bool SliderCell::type(std::string_view text) {
  const auto value = number(text);
  return value && slide(*value);
}

SegmentCell::SegmentCell(platform::PSSpecifier specifier) : Cell(std::move(specifier)) {
  const platform::Object stored = performGetter();
  const auto& values = objectsOf(row().values);
  const auto found = std::ranges::find_if(
      values, [&](const platform::Object& value) { return value.isEqual(stored); });
  if (found != values.end()) selected_ = static_cast<std::size_t>(found - values.begin());
}

std::vector<std::string> SegmentCell::titles() const {
  std::vector<std::string> titles;
  for (const platform::Object& title : objectsOf(row().titles)) titles.push_back(textOf(title));
  return titles;
}

bool SegmentCell::select(std::size_t index) {
  const auto& values = objectsOf(row().values);
  if (index >= values.size()) return false;
  selected_ = index;
  performSetterWithValue(values[index]);
  return true;
}

bool ActionCell::isLink() const { return row().cell == PSCellType::PSLinkCell; }

void ActionCell::tap() const {
  // The action may take its own page, and this cell with it, off the screen.
  const platform::PSSpecifier sender = specifier();
  const SpecifierBody& tapped = row();
  const std::string title = label();
  // A class that no library has is none; its name still stands in the list resource's row.
  const std::string detail = tapped.detail ? nameOfClass(tapped.detail) : text("detail");
  if (!tapped.action.empty()) perform(*tapped.target, tapped.action, sender);
  if (!detail.empty()) open(detail, title, *stateOf(*tapped.target).navigation);
}

AnyCell makeCell(const platform::PSSpecifier& specifier) {
  const auto& row = *bodyAs<SpecifierBody>(specifier);
  const std::string cellClass = nameOfClass(row.property("cellClass"));
  if (cellClass == "CSColorDisplayCell") return ColorCell(specifier);
  if (cellClass == "OrvalenTripleCell") return CreditsCell(specifier);
  switch (row.cell) {
    case PSCellType::PSSwitchCell:
      return SwitchCell(specifier);
    case PSCellType::PSSliderCell:
      return SliderCell(specifier);
    case PSCellType::PSSegmentCell:
      return SegmentCell(specifier);
    case PSCellType::PSLinkCell:
    case PSCellType::PSButtonCell:
      return ActionCell(specifier);
    default:
      return TextCell(specifier);
  }
}

}  // namespace desktop
