#include "platform/UIKit/UILabel.h"

#include "desktop/CoreGraphics/Geometry.h"
#include "desktop/Message.h"
#include "desktop/UIKit/LabelBody.h"

namespace platform {

using desktop::LabelBody;
using desktop::send;

UIFont UIFont::boldSystemFontOfSize(double size) {
  return desktop::sendClass("UIFont", "boldSystemFontOfSize:", {size},
                            [&] { return desktop::make<UIFont, desktop::FontBody>(size); });
}

UILabel UILabel::initWithFrame(const CGRect& frame) {
  return desktop::sendClass("UILabel", "initWithFrame:", {std::string_view(desktop::text(frame))},
                            [&] {
                              auto label = desktop::make<UILabel, LabelBody>();
                              desktop::viewOf(label)->frame = frame;
                              return label;
                            });
}

void UILabel::setFont(const UIFont& font) {
  send<LabelBody>(*this, "setFont:", {font}, [&](LabelBody& self) { self.font = font; });
}

void UILabel::setText(const NSString& text) {
  send<LabelBody>(*this, "setText:", {text}, [&](LabelBody& self) { self.text = text; });
}

void UILabel::setTextColor(const UIColor& color) {
  send<LabelBody>(*this, "setTextColor:", {color},
                  [&](LabelBody& self) { self.textColor = color; });
}

void UILabel::setTextAlignment(NSTextAlignment alignment) {
  send<LabelBody>(*this, "setTextAlignment:", {static_cast<double>(alignment)},
                  [&](LabelBody& self) { self.alignment = alignment; });
}

}  // namespace platform
