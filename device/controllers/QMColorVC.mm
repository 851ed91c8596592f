#include "device/controllers/Page.h"

QUILLMERE_PAGE(QMColorVC)

@implementation QMColorVC
#include "device/controllers/Page.inc"
@end
