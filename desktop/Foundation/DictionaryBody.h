#pragma once

#include <string>

#include "desktop/Body.h"
#include "plist/Document.h"
#include "plist/Value.h"

namespace desktop {

/// Values by key, of the class NSDictionary or NSMutableDictionary.
class DictionaryBody : public Body {
 public:
  enum class Mutable : bool { No, Yes };

  DictionaryBody(plist::Dictionary contents, Mutable isMutable,
                 plist::Form cameFrom = plist::Form::Binary)
      : dictionary(std::move(contents)), form(cameFrom), isMutable_(isMutable) {}

  std::string_view className() const override {
    return isMutable_ == Mutable::Yes ? "NSMutableDictionary" : "NSDictionary";
  }
  std::string description() const override;
  bool isEqual(const Body& other) const override;

  plist::Dictionary dictionary;
  /// The form of the file that it was read from, and is written in again.
  plist::Form form;

 private:
  Mutable isMutable_;
};

}  // namespace desktop
