#include "platform/UIKit/UINavigationItem.h"

#include "desktop/Message.h"
#include "desktop/UIKit/NavigationItemBody.h"

namespace platform {

using desktop::BarButtonItemBody;
using desktop::NavigationItemBody;
using desktop::send;

UIBarButtonItem UIBarButtonItem::initWithCustomView(const UIView& view) {
  return desktop::sendClass("UIBarButtonItem", "initWithCustomView:", {view}, [&] {
    return desktop::make<UIBarButtonItem, BarButtonItemBody>(view);
  });
}

void UIBarButtonItem::setTitle(const NSString& title) {
  send<BarButtonItemBody>(*this, "setTitle:", {title},
                          [&](BarButtonItemBody& self) { self.title = title; });
}

NSString UINavigationItem::title() const {
  return send<NavigationItemBody>(*this, "title", {},
                                  [](NavigationItemBody& self) { return self.title; });
}

void UINavigationItem::setTitle(const NSString& title) {
  send<NavigationItemBody>(*this, "setTitle:", {title},
                           [&](NavigationItemBody& self) { self.title = title; });
}

UIView UINavigationItem::titleView() const {
  return send<NavigationItemBody>(*this, "titleView", {},
                                  [](NavigationItemBody& self) { return self.titleView; });
}

void UINavigationItem::setTitleView(const UIView& view) {
  send<NavigationItemBody>(*this, "setTitleView:", {view},
                           [&](NavigationItemBody& self) { self.titleView = view; });
}

void UINavigationItem::setRightBarButtonItem(const UIBarButtonItem& item) {
  send<NavigationItemBody>(*this, "setRightBarButtonItem:", {item},
                           [&](NavigationItemBody& self) { self.rightItem = item; });
}

}  // namespace platform
