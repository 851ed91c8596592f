#pragma once

#include "platform/Foundation/NSString.h"
#include "platform/Object.h"

namespace platform {

/// Whether a notification also reaches processes that are suspended.
enum class DeliverImmediately : bool { No = false, Yes = true };

/// A centre that passes notifications on to whoever observes their names.
class CFNotificationCenter : public Object {};

/// The centre that all processes of the phone share. It carries names only: no objects, no user
/// info.
CFNotificationCenter CFNotificationCenterGetDarwinNotifyCenter();

/// Announces `name`; `object` and `userInfo` are none for the Darwin centre.
void CFNotificationCenterPostNotification(const CFNotificationCenter& center, const NSString& name,
                                          const Object& object, const Object& userInfo,
                                          DeliverImmediately deliverImmediately);

}  // namespace platform
