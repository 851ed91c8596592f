#include "platform/CoreFoundation/CFNotificationCenter.h"

#include "desktop/Message.h"

namespace platform {

namespace {

class DarwinCenter : public desktop::Body {
 public:
  std::string_view className() const override { return "CFNotificationCenter"; }
  std::string debugDescription() const override { return "darwin"; }
};

}  // namespace

CFNotificationCenter CFNotificationCenterGetDarwinNotifyCenter() {
  return desktop::make<CFNotificationCenter, DarwinCenter>();
}

void CFNotificationCenterPostNotification(const CFNotificationCenter& center, const NSString& name,
                                          const Object& object, const Object& userInfo,
                                          DeliverImmediately deliverImmediately) {
  desktop::send<DarwinCenter>(
      center, "post:object:userInfo:deliverImmediately:",
      {name, object, userInfo, deliverImmediately == DeliverImmediately::Yes},
      [&](DarwinCenter&) { desktop::Phone::current().notifications.post(name.UTF8String()); });
}

}  // namespace platform
