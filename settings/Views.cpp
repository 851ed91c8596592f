#include "settings/Views.h"

#include "desktop/Foundation/Values.h"
#include "desktop/UIKit/ColorBody.h"
#include "desktop/UIKit/ImageBody.h"
#include "desktop/UIKit/ImageViewBody.h"
#include "desktop/UIKit/LabelBody.h"
#include "desktop/UIKit/VisualEffectBody.h"

namespace settings {

using desktop::viewOf;
using nlohmann::json;

namespace {

constexpr const char* nameOf(platform::NSTextAlignment alignment) {
  switch (alignment) {
    case platform::NSTextAlignment::Center:
      return "center";
    case platform::NSTextAlignment::Right:
      return "right";
    default:
      return "left";
  }
}

constexpr const char* nameOf(platform::UIViewContentMode mode) {
  switch (mode) {
    case platform::UIViewContentMode::ScaleAspectFit:
      return "fit";
    case platform::UIViewContentMode::Center:
      return "center";
    default:
      return "fill";
  }
}

json labelNode(const desktop::LabelBody& label) {
  const auto* font = desktop::bodyAs<desktop::FontBody>(label.font);
  return {{"kind", "label"},
          {"text", desktop::textOf(label.text)},
          {"color", desktop::webColor(label.textColor)},
          {"size", font ? font->size : 17},
          {"bold", font != nullptr},
          {"align", nameOf(label.alignment)}};
}

json imageNode(const desktop::ImageViewBody& view, Pictures& pictures) {
  json node = {{"kind", "image"},
               {"source", nullptr},
               {"width", view.frame.size.width},
               {"height", view.frame.size.height},
               {"mode", nameOf(view.contentMode)}};
  if (const auto* image = desktop::bodyAs<desktop::ImageBody>(view.image)) {
    node["source"] = pictures.address(view.image);
    node["imageWidth"] = image->size().width;
    node["imageHeight"] = image->size().height;
  }
  return node;
}

json nodeOf(const desktop::ViewBody& view, Pictures& pictures) {
  if (const auto* label = dynamic_cast<const desktop::LabelBody*>(&view)) return labelNode(*label);
  if (const auto* image = dynamic_cast<const desktop::ImageViewBody*>(&view)) {
    return imageNode(*image, pictures);
  }
  const bool isBlur = dynamic_cast<const desktop::VisualEffectBody*>(&view) != nullptr;
  return {{"kind", isBlur ? "blur" : "view"}};
}

}  // namespace

std::string viewId(const desktop::ViewBody& view) { return "view" + std::to_string(view.number); }

json addView(Tree& tree, const platform::UIView& view, Pictures& pictures) {
  const desktop::ViewBody* body = viewOf(view);
  if (!body) return nullptr;
  json node = nodeOf(*body, pictures);
  node["alpha"] = body->alpha;
  node["fade"] = body->fade;
  node["children"] = json::array();
  for (const platform::UIView& held : body->subviews) {
    node["children"].push_back(addView(tree, held, pictures));
  }
  tree[viewId(*body)] = std::move(node);
  return viewId(*body);
}

json addBarSwitch(Tree& tree, const platform::UIView& view, const std::string& label) {
  const auto* knob = desktop::bodyAs<desktop::SwitchBody>(view);
  if (!knob) return nullptr;
  tree[viewId(*knob)] = {{"kind", "barSwitch"},
                         {"label", label},
                         {"on", knob->on},
                         {"tint", desktop::webColor(knob->onTint)},
                         {"width", knob->frame.size.width},
                         {"height", knob->frame.size.height},
                         {"radius", knob->cornerRadius},
                         {"borderWidth", knob->borderWidth},
                         {"borderColor", desktop::webColor(knob->borderColor)}};
  return viewId(*knob);
}

}  // namespace settings
