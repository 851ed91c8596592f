#include "device/controllers/Page.h"

QUILLMERE_PAGE(QMQuickActionsVC)

@implementation QMQuickActionsVC
#include "device/controllers/Page.inc"
@end
