#pragma once

#include "prefs/QMPage.h"

namespace quillmere {

/// The page of the lock screen's animated clock.
class QMClockVC : public QMPage {
 protected:
  platform::NSMutableArray buildRows() override;
};

}  // namespace quillmere
