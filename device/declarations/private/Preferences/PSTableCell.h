#pragma once

#import <UIKit/UIKit.h>

typedef NS_ENUM(NSInteger, PSCellType) {
  PSGroupCell,
  PSLinkCell,
  PSLinkListCell,
  PSListItemCell,
  PSTitleValueCell,
  PSSliderCell,
  PSSwitchCell,
  PSStaticTextCell,
  PSEditTextCell,
  PSSegmentCell,
  PSGiantIconCell,
  PSGiantCell,
  PSSecureEditTextCell,
  PSButtonCell,
  PSEditTextViewCell,
};
