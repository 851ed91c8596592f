#pragma once

#include <vector>

#include "desktop/Body.h"

namespace desktop {

/// A list of objects, of the class NSArray or NSMutableArray.
class ArrayBody : public Body {
 public:
  enum class Mutable : bool { No, Yes };

  ArrayBody(std::vector<platform::Object> contents, Mutable isMutable)
      : objects(std::move(contents)), isMutable_(isMutable) {}

  std::string_view className() const override {
    return isMutable_ == Mutable::Yes ? "NSMutableArray" : "NSArray";
  }
  std::string description() const override;
  bool isEqual(const Body& other) const override;

  std::vector<platform::Object> objects;

 private:
  Mutable isMutable_;
};

}  // namespace desktop
