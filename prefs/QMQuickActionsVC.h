#pragma once

#include "prefs/QMPage.h"

namespace quillmere {

/// The page of the animated flashlight and camera buttons.
class QMQuickActionsVC : public QMPage {
 protected:
  platform::NSMutableArray buildRows() override;
};

}  // namespace quillmere
