#include "tests/model/Settings.h"

#include <algorithm>
#include <cctype>
#include <sstream>

namespace model {

namespace {

using Control = Setting::Control;

constexpr Setting all[] = {
    {"Clock", "clockEnabled", Control::Switch},
    {"Clock", "clockLoopAnimation", Control::Switch},
    {"Clock", "clockDigitSize", Control::Slider, 75, 1, 200},
    {"Clock", "clockVerticalAlignment", Control::Slider, 0, -100, 100},
    {"Clock", "clockDigitsSpacing", Control::Slider, -20, -100, 100},
    {"Clock", "colonHeight", Control::Slider, 50, 1, 200},
    {"Quick Actions", "flashEnabled", Control::Switch},
    {"Quick Actions", "cameraEnabled", Control::Switch},
    {"Quick Actions", "quickActionsLoopAnimation", Control::Switch},
    {"Quick Actions", "quickActionsSize", Control::Slider, 75, 1, 200},
    {"Color", "colorMode", Control::Segments},
    {"Color", "tintColor", Control::Color},
};

/// The number in a value; none for texts and lists.
std::optional<double> numberIn(const Item& item) {
  if (const auto* truth = std::get_if<bool>(&item)) return *truth ? 1 : 0;
  if (const auto* integer = std::get_if<long long>(&item)) return static_cast<double>(*integer);
  if (const auto* real = std::get_if<double>(&item)) return *real;
  return std::nullopt;
}

std::string shownBySegments(const std::optional<Item>& stored) {
  const auto number = stored ? numberIn(*stored) : 1;
  if (number == 1) return "Default";
  return number == 2 ? "Custom Color" : "none";
}

/// Stored as alpha and colour in eight digits, or as a colour in six; anything else is the accent.
std::string shownByColor(const std::optional<Item>& stored) {
  const auto* text = stored ? std::get_if<std::string>(&*stored) : nullptr;
  std::string digits = text ? *text : "";
  if (digits.find_first_not_of("0123456789abcdefABCDEF") != std::string::npos) digits.clear();
  if (digits.size() != 6 && digits.size() != 8) digits = "f69240";
  std::ranges::transform(digits, digits.begin(),
                         [](unsigned char each) { return static_cast<char>(std::tolower(each)); });
  const bool withAlpha = digits.size() == 8;
  return '#' + (withAlpha ? digits.substr(2) + digits.substr(0, 2) : digits + "ff");
}

}  // namespace

std::string Setting::shown(const std::optional<Item>& stored) const {
  if (control == Control::Segments) return shownBySegments(stored);
  if (control == Control::Color) return shownByColor(stored);
  if (control == Control::Switch) return isYes(stored, true) ? "on" : "off";
  std::ostringstream text;
  text << std::clamp(stored ? numberIn(*stored).value_or(0) : initial, min, max);
  return text.str();
}

std::span<const Setting> settings() { return all; }

bool isYes(const std::optional<Item>& stored, bool otherwise) {
  if (!stored) return otherwise;
  if (const auto* text = std::get_if<std::string>(&*stored)) return *text == "YES";
  return numberIn(*stored).value_or(0) != 0;
}

}  // namespace model
