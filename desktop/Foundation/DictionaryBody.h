#pragma once

#include <string>

#include "desktop/Body.h"
#include "desktop/Foundation/PropertyListFile.h"

namespace desktop {

/// Values by key, of the class NSDictionary or NSMutableDictionary.
class DictionaryBody : public Body {
 public:
  enum class Mutable : bool { No, Yes };

  DictionaryBody(PropertyListFile contents, Mutable isMutable)
      : file(std::move(contents)), isMutable_(isMutable) {}

  std::string_view className() const override {
    return isMutable_ == Mutable::Yes ? "NSMutableDictionary" : "NSDictionary";
  }
  std::string description() const override;
  bool isEqual(const Body& other) const override;

  /// What it holds, and the form of the file that it was read from and is written in again.
  PropertyListFile file;

 private:
  Mutable isMutable_;
};

}  // namespace desktop
