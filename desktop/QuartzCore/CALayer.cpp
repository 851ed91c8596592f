#include "platform/QuartzCore/CALayer.h"

#include "desktop/CoreGraphics/Drawing.h"
#include "desktop/Message.h"
#include "desktop/QuartzCore/LayerBody.h"
#include "desktop/UIKit/ContextBody.h"

namespace desktop {

namespace {

using platform::CGRect;

void drawView(cairo_t& context, const ViewBody& view);

void drawBackground(cairo_t& context, const ViewBody& view, const CGRect& bounds) {
  const auto* color = bodyAs<ColorBody>(view.background);
  if (!color || !canDraw(context, bounds)) return;
  setColor(context, *color);
  traceRounded(context, bounds, view.cornerRadius);
  cairo_fill(&context);
}

void clipToShape(cairo_t& context, const ViewBody& view, const CGRect& bounds) {
  // What cannot be drawn leaves an empty path, and so nothing.
  if (canDraw(context, bounds)) traceRounded(context, bounds, view.cornerRadius);
  cairo_clip(&context);
}

/// On top of everything, and wholly inside the view's edge.
void drawBorder(cairo_t& context, const ViewBody& view, const CGRect& bounds) {
  const auto* color = bodyAs<ColorBody>(view.borderColor);
  const double width = view.borderWidth;
  if (!color || !(width > 0) || !canDraw(context, bounds)) return;
  const CGRect inside = platform::CGRectInset(bounds, width, width);
  const SavedState state(context);
  setColor(context, *color);
  cairo_set_fill_rule(&context, CAIRO_FILL_RULE_EVEN_ODD);
  traceRounded(context, bounds, view.cornerRadius);
  if (canDraw(context, inside)) traceRounded(context, inside, view.cornerRadius - width);
  cairo_fill(&context);
}

void drawSubviews(cairo_t& context, const ViewBody& view) {
  for (const platform::UIView& subview : view.subviews) {
    const ViewBody& body = *viewOf(subview);
    const platform::CGPoint& origin = body.frame.origin;
    // A movement by what is no number would spoil the context for good.
    if (!canDraw(context, {origin, {1, 1}})) continue;
    const SavedState state(context);
    cairo_translate(&context, origin.x, origin.y);
    drawView(context, body);
  }
}

void drawOpaquely(cairo_t& context, const ViewBody& view) {
  const CGRect bounds{{}, view.frame.size};
  drawBackground(context, view, bounds);
  {
    const SavedState state(context);
    if (view.clipsToBounds) clipToShape(context, view, bounds);
    view.drawContent(context);
    drawSubviews(context, view);
  }
  drawBorder(context, view, bounds);
}

void drawView(cairo_t& context, const ViewBody& view) {
  if (view.alpha >= 1) return drawOpaquely(context, view);
  if (!(view.alpha > 0)) return;
  // As a whole, so that what lies behind one part does not shine through to the next.
  cairo_push_group(&context);
  drawOpaquely(context, view);
  cairo_pop_group_to_source(&context);
  cairo_paint_with_alpha(&context, view.alpha);
}

}  // namespace

}  // namespace desktop

namespace platform {

using desktop::LayerBody;
using desktop::send;

void CALayer::setBorderWidth(double width) {
  send<LayerBody>(*this, "setBorderWidth:", {width},
                  [&](const LayerBody& self) { self.view().borderWidth = width; });
}

void CALayer::setBorderColor(const CGColor& color) {
  send<LayerBody>(*this, "setBorderColor:", {color},
                  [&](const LayerBody& self) { self.view().borderColor = color; });
}

void CALayer::setCornerRadius(double radius) {
  send<LayerBody>(*this, "setCornerRadius:", {radius},
                  [&](const LayerBody& self) { self.view().cornerRadius = radius; });
}

void CALayer::renderInContext(const CGContext& context) const {
  send<LayerBody>(*this, "renderInContext:", {context}, [&](const LayerBody& self) {
    auto* target = desktop::bodyAs<desktop::ContextBody>(context);
    if (!target) return;
    target->drawNow([&](cairo_t& cairo) { desktop::drawView(cairo, self.view()); });
  });
}

}  // namespace platform
