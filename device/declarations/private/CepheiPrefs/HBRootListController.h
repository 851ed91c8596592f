#pragma once

#import <CepheiPrefs/HBListController.h>

@interface HBRootListController : HBListController
@end
