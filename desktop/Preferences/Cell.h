#pragma once

#include <string>

#include "platform/Foundation/NSArray.h"
#include "platform/Foundation/NSString.h"
#include "platform/Preferences/PSSpecifier.h"

namespace desktop {

class SpecifierBody;

/// A row as the Settings app shows it. A cell takes its value from the row's getter when it is
/// drawn, shows from then on what the user does to it, and hands that to the row's setter.
class Cell {
 public:
  explicit Cell(platform::PSSpecifier specifier) : specifier_(std::move(specifier)) {}

  std::string label() const;

  /// The preference key; empty for rows that hold no value.
  std::string key() const;

  /// The row's height in points; 0 leaves it to the screen.
  double height() const;

  /// False for a row that its list resource disables.
  bool enabled() const;

  /// The row that it draws.
  const platform::PSSpecifier& specifier() const { return specifier_; }

 protected:
  const SpecifierBody& row() const;

  /// The property as text; empty when it is absent or no text.
  std::string text(const char* property) const;
  bool flag(const char* property) const;

  platform::Object performGetter() const;
  void performSetterWithValue(const platform::Object& value) const;

 private:
  platform::PSSpecifier specifier_;
};

}  // namespace desktop
