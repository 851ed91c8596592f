#include "prefs/QMQuickActionsVC.h"

#include "prefs/Rows.h"

namespace quillmere {

using namespace platform;
using namespace settings;

NSMutableArray QMQuickActionsVC::buildRows() {
  return makeRows(
      {
          Group{"Quick Actions Buttons", respringFooter},
          Switch{"Flash Animation", flashEnabled},
          Switch{"Camera Animation", cameraEnabled},
          Group{"Loop Animation", defaultFooter(quickActionsLoopAnimation)},
          Switch{"Loop Animation", quickActionsLoopAnimation},
          Group{"Size", defaultFooter(quickActionsSize)},
          Slider{"Size", quickActionsSize, 1, 200},
      },
      *this);
}

}  // namespace quillmere
