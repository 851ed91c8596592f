#pragma once

#include "prefs/QMPage.h"

namespace quillmere {

/// The add-on's first page: the rows of the "Root" list resource and, after its first 11, the
/// credits.
class QMRoot : public QMPage {
 protected:
  platform::NSMutableArray buildRows() override;
};

}  // namespace quillmere
