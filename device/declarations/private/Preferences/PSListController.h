#pragma once

#import <Preferences/PSViewController.h>

@interface PSListController : PSViewController <UITableViewDelegate, UITableViewDataSource> {
  NSMutableArray* _specifiers;
}
@property(nonatomic, retain) NSMutableArray* specifiers;
@property(nonatomic, retain) UITableView* table;
- (NSMutableArray*)loadSpecifiersFromPlistName:(NSString*)name target:(PSListController*)target;
@end
