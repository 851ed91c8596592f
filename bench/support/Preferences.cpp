#include "bench/support/Preferences.h"

#include <algorithm>
#include <string>
#include <utility>

namespace bench {

namespace {

using plist::Value;

Value names() {
  plist::Array array;
  for (const char* name : {"aurora", "ember", "lagoon"}) array.append(Value::string(name));
  return Value(std::move(array));
}

plist::Dictionary ownPreferences() {
  plist::Dictionary own;
  for (const char* key : {"enabledSwitch", "clockEnabled", "clockLoopAnimation", "flashEnabled",
                          "cameraEnabled", "quickActionsLoopAnimation", "showedWelcomeVC"}) {
    own.set(key, Value(true));
  }
  own.set("colorMode", Value::integer(2));
  own.set("tintColor", Value::string("f69240"));
  own.set("clockDigitSize", Value::integer(75));
  own.set("clockVerticalAlignment", Value::integer(0));
  own.set("clockDigitsSpacing", Value::integer(-20));
  own.set("colonHeight", Value::integer(50));
  own.set("quickActionsSize", Value::integer(75));
  own.set("enabledLotties", names());
  return own;
}

std::string digitsOf(std::size_t number) {
  const std::string digits = std::to_string(number);
  return std::string(5 - std::min<std::size_t>(5, digits.size()), '0') + digits;
}

Value madeUp(std::size_t number) {
  switch (number % 4) {
    case 2:
      return Value::integer(number);
    case 3:
      return Value(number % 8 == 3);
    default:
      return Value::string("value " + digitsOf(number));
  }
}

}  // namespace

plist::Dictionary preferencesOf(std::size_t keys) {
  plist::Dictionary all = ownPreferences();
  for (std::size_t number = all.size(); number < keys; ++number) {
    all.set("key" + digitsOf(number), madeUp(number));
  }
  return all;
}

}  // namespace bench
