#pragma once

#include <string>
#include <utility>
#include <vector>

#include "desktop/Body.h"
#include "platform/Foundation/NSArray.h"
#include "platform/Foundation/NSString.h"
#include "platform/ObjectiveC/Class.h"
#include "platform/Preferences/PSSpecifier.h"

namespace platform {
class PSListController;
}

namespace desktop {

/// What a row is made of.
class SpecifierBody : public Body {
 public:
  std::string_view className() const override { return "PSSpecifier"; }
  std::string description() const override;

  /// None when the row has no such property.
  platform::Object property(std::string_view key) const;
  void setProperty(const platform::Object& value, const std::string& key);

  platform::NSString name;
  platform::PSListController* target = nullptr;  ///< Not retained.
  std::string set;
  std::string get;
  std::string action;
  platform::Class detail;
  platform::PSCellType cell = platform::PSCellType::PSGroupCell;
  /// In the order in which they were first set.
  std::vector<std::pair<std::string, platform::Object>> properties;
  platform::NSArray values;
  platform::NSArray titles;
};

}  // namespace desktop
