#include "platform/UIKit/UIView.h"

#include <utility>

#include "desktop/CoreGraphics/Geometry.h"
#include "desktop/Message.h"
#include "desktop/QuartzCore/LayerBody.h"
#include "desktop/UIKit/AnchorBody.h"
#include "desktop/UIKit/ViewBody.h"

namespace platform {

using desktop::Edge;
using desktop::send;
using desktop::ViewBody;

namespace {

/// The duration of the animation whose changes are being collected, in seconds; else 0.
double animationDuration = 0;

void collect(double duration, const std::function<void()>& animations) {
  struct Restore {
    double before;
    ~Restore() { animationDuration = before; }
  } const restore{std::exchange(animationDuration, duration)};
  animations();
}

NSLayoutAnchor anchor(const UIView& view, Edge edge) {
  return view ? desktop::make<NSLayoutAnchor, desktop::AnchorBody>(view, edge) : NSLayoutAnchor();
}

}  // namespace

UIView UIView::init() {
  return desktop::sendClass("UIView", "new", {}, [] { return desktop::make<UIView, ViewBody>(); });
}

CGRect UIView::frame() const {
  return send<ViewBody>(*this, "frame", {}, [](ViewBody& self) { return self.frame; });
}

void UIView::setFrame(const CGRect& frame) {
  send<ViewBody>(*this, "setFrame:", {std::string_view(desktop::text(frame))},
                 [&](ViewBody& self) { self.frame = frame; });
}

CGRect UIView::bounds() const {
  return send<ViewBody>(*this, "bounds", {}, [](ViewBody& self) {
    return CGRect{{}, self.frame.size};
  });
}

CALayer UIView::layer() const {
  return send<ViewBody>(*this, "layer", {}, [&](ViewBody&) {
    return desktop::make<CALayer, desktop::LayerBody>(*this);
  });
}

void UIView::setAlpha(double alpha) {
  send<ViewBody>(*this, "setAlpha:", {alpha}, [&](ViewBody& self) {
    self.alpha = alpha;
    self.fade = animationDuration;
  });
}

void UIView::setBackgroundColor(const UIColor& color) {
  send<ViewBody>(*this, "setBackgroundColor:", {color},
                 [&](ViewBody& self) { self.background = color; });
}

void UIView::setClipsToBounds(bool clips) {
  send<ViewBody>(*this, "setClipsToBounds:", {clips},
                 [&](ViewBody& self) { self.clipsToBounds = clips; });
}

void UIView::setContentMode(UIViewContentMode mode) {
  send<ViewBody>(*this, "setContentMode:", {static_cast<double>(mode)},
                 [&](ViewBody& self) { self.contentMode = mode; });
}

void UIView::setAutoresizingMask(UIViewAutoresizing mask) {
  // The page lays the views out, by rules of its own.
  send<ViewBody>(*this, "setAutoresizingMask:", {static_cast<double>(mask)}, [](ViewBody&) {});
}

void UIView::setTintColor(const UIColor& color) {
  send<ViewBody>(*this, "setTintColor:", {color}, [&](ViewBody& self) { self.tint = color; });
}

void UIView::setTranslatesAutoresizingMaskIntoConstraints(bool translates) {
  send<ViewBody>(*this, "setTranslatesAutoresizingMaskIntoConstraints:", {translates},
                 [](ViewBody&) {});
}

NSLayoutAnchor UIView::topAnchor() const { return anchor(*this, Edge::Top); }
NSLayoutAnchor UIView::leadingAnchor() const { return anchor(*this, Edge::Leading); }
NSLayoutAnchor UIView::trailingAnchor() const { return anchor(*this, Edge::Trailing); }
NSLayoutAnchor UIView::bottomAnchor() const { return anchor(*this, Edge::Bottom); }

void UIView::addSubview(const UIView& view) {
  send<ViewBody>(*this, "addSubview:", {view}, [&](ViewBody& self) {
    if (!view) return;
    std::erase(self.subviews, view);  // One that is there already comes to the top.
    self.subviews.push_back(view);
  });
}

void UIView::animateWithDuration(double duration, const std::function<void()>& animations) {
  desktop::sendClass("UIView", "animateWithDuration:animations:", {duration},
                     [&] { collect(duration, animations); });
}

void UIView::animateWithDuration(double duration, double delay, UIViewAnimationOptions options,
                                 const std::function<void()>& animations,
                                 std::function<void(bool finished)> completion) {
  desktop::sendClass("UIView", "animateWithDuration:delay:options:animations:completion:",
                     {duration, delay, static_cast<double>(options)}, [&] {
                       collect(duration, animations);
                       if (!completion) return;
                       desktop::Phone::current().mainQueue.after(
                           std::chrono::duration_cast<std::chrono::nanoseconds>(
                               std::chrono::duration<double>(duration + delay)),
                           [completion = std::move(completion)] { completion(true); });
                     });
}

}  // namespace platform
