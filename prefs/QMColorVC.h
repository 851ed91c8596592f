#pragma once

#include "prefs/QMPage.h"

namespace quillmere {

/// The page on which animations keep their own colours or take one that the user picks.
class QMColorVC : public QMPage {
 protected:
  platform::NSMutableArray buildRows() override;
};

}  // namespace quillmere
