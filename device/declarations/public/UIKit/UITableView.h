#pragma once

#import <UIKit/UITableViewProtocols.h>

typedef NS_ENUM(NSInteger, UITableViewStyle) { UITableViewStyleGrouped = 1 };

@interface UITableView : UIScrollView
- (instancetype)initWithFrame:(CGRect)frame style:(UITableViewStyle)style;
@property(nonatomic, weak) id<UITableViewDataSource> dataSource;
@property(nonatomic, weak) id<UITableViewDelegate> delegate;
- (void)reloadData;
@property(nonatomic, getter=isEditing) BOOL editing;
- (void)setEditing:(BOOL)editing animated:(BOOL)animated;
@property(nonatomic) BOOL allowsSelection;
@property(nonatomic, strong) UIColor* separatorColor;
@property(nonatomic, strong) UIView* tableHeaderView;
- (__kindof UITableViewCell*)dequeueReusableCellWithIdentifier:(NSString*)identifier;
@end
