#pragma once

#include <functional>

#include "platform/Foundation/NSString.h"
#include "platform/Object.h"

namespace platform {

/// The numbers are UIKit's.
enum class UIAlertControllerStyle : long { ActionSheet = 0, Alert = 1 };
enum class UIAlertActionStyle : long { Default = 0, Cancel = 1, Destructive = 2 };

/// One of the answers that an alert offers.
class UIAlertAction : public Object {
 public:
  /// `handler` runs when the user chooses the answer; none does nothing.
  static UIAlertAction actionWithTitle(const NSString& title, UIAlertActionStyle style,
                                       std::function<void()> handler);
};

/// A question to the user. Any answer takes it away.
class UIAlertController : public Object {
 public:
  static UIAlertController alertControllerWithTitle(const NSString& title, const NSString& message,
                                                    UIAlertControllerStyle preferredStyle);

  /// Adds an answer after those that are there.
  void addAction(const UIAlertAction& action);
};

}  // namespace platform
