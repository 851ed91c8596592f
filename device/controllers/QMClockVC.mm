#include "device/controllers/Page.h"

QUILLMERE_PAGE(QMClockVC)

@implementation QMClockVC
#include "device/controllers/Page.inc"
@end
