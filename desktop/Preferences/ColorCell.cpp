#include "desktop/Foundation/Values.h"
#include "desktop/Preferences/Cells.h"
#include "desktop/Preferences/SpecifierBody.h"
#include "platform/Foundation/NSDictionary.h"

namespace desktop {

namespace {

/// Shown when nothing else names a colour: the library's own red.
constexpr HexColor lastResort{255, 0, 0, 255};

}  // namespace

ColorCell::ColorCell(platform::PSSpecifier specifier)
    : Cell(std::move(specifier)), color_(shownColor()) {}

HexColor ColorCell::shownColor() const {
  if (const auto stored = HexColor::parse(textOf(performGetter()))) return *stored;
  const std::string file = text("defaultsPath") + "/defaults.plist";
  const auto packaged =
      platform::NSDictionary::dictionaryWithContentsOfFile(platform::NSString(file));
  const std::string initial = textOf(packaged.objectForKey(platform::NSString(key())));
  if (const auto color = HexColor::parse(initial)) return *color;
  return HexColor::parse(text("fallback")).value_or(lastResort);
}

bool ColorCell::offersAlpha() const { return flag("showAlphaSlider") || flag("alpha"); }

void ColorCell::pick(HexColor color) {
  if (!offersAlpha()) color.alpha = 255;
  color_ = color;
  performSetterWithValue(platform::NSString(color.text()));
}

}  // namespace desktop
