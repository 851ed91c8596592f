#include "prefs/QMClockVC.h"

#include "prefs/Rows.h"

namespace quillmere {

using namespace platform;
using namespace settings;

NSMutableArray QMClockVC::buildRows() {
  return makeRows(
      {
          Group{"Clock", respringFooter},
          Switch{"Enabled", clockEnabled},
          Group{"Loop Animation", defaultFooter(clockLoopAnimation)},
          Switch{"Loop Animation", clockLoopAnimation},
          Group{"Size", defaultFooter(clockDigitSize)},
          Slider{"Size", clockDigitSize, 1, 200},
          Group{"Vertical Alignment", defaultFooter(clockVerticalAlignment)},
          Slider{"Vertical Alignment", clockVerticalAlignment, -100, 100},
          Group{"Digits Spacing", defaultFooter(clockDigitsSpacing)},
          Slider{"Digits Spacing", clockDigitsSpacing, -100, 100},
          Group{"Clock Colon Size", defaultFooter(colonHeight)},
          Slider{"Size", colonHeight, 1, 200},
      },
      *this);
}

}  // namespace quillmere
