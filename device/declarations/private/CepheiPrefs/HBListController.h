#pragma once

#import <Preferences/PSListController.h>

@interface HBListController : PSListController
@end
