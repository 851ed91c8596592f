#pragma once

#include "device/Bridge.h"

/// Which class of the frameworks a handle's class stands for: the one of the same name.
#define QUILLMERE_NATIVE(Name)            \
  @class Name;                            \
  namespace platform {                    \
  class Name;                             \
  }                                       \
  template <>                             \
  struct device::Native<platform::Name> { \
    using Class = ::Name;                 \
  }

QUILLMERE_NATIVE(NSArray);
QUILLMERE_NATIVE(NSData);
QUILLMERE_NATIVE(NSDictionary);
QUILLMERE_NATIVE(NSError);
QUILLMERE_NATIVE(NSFileHandle);
QUILLMERE_NATIVE(NSFileManager);
QUILLMERE_NATIVE(NSMutableArray);
QUILLMERE_NATIVE(NSMutableDictionary);
QUILLMERE_NATIVE(NSNumber);
QUILLMERE_NATIVE(NSPipe);
QUILLMERE_NATIVE(NSPredicate);
QUILLMERE_NATIVE(NSProcessInfo);
QUILLMERE_NATIVE(NSString);
QUILLMERE_NATIVE(NSTask);
QUILLMERE_NATIVE(NSURL);

QUILLMERE_NATIVE(CALayer);
QUILLMERE_NATIVE(NSLayoutAnchor);
QUILLMERE_NATIVE(NSLayoutConstraint);
QUILLMERE_NATIVE(UIAlertAction);
QUILLMERE_NATIVE(UIAlertController);
QUILLMERE_NATIVE(UIBarButtonItem);
QUILLMERE_NATIVE(UIBlurEffect);
QUILLMERE_NATIVE(UIColor);
QUILLMERE_NATIVE(UIControl);
QUILLMERE_NATIVE(UIFont);
QUILLMERE_NATIVE(UIImage);
QUILLMERE_NATIVE(UIImageView);
QUILLMERE_NATIVE(UILabel);
QUILLMERE_NATIVE(UINavigationController);
QUILLMERE_NATIVE(UINavigationItem);
QUILLMERE_NATIVE(UIScrollView);
QUILLMERE_NATIVE(UISwitch);
QUILLMERE_NATIVE(UITableView);
QUILLMERE_NATIVE(UITableViewCell);
QUILLMERE_NATIVE(UIView);
QUILLMERE_NATIVE(UIVisualEffectView);

QUILLMERE_NATIVE(HBAppearanceSettings);
QUILLMERE_NATIVE(HBPreferences);
QUILLMERE_NATIVE(MFMailComposeViewController);
QUILLMERE_NATIVE(OrvalenWelcome);
QUILLMERE_NATIVE(PSSpecifier);

#undef QUILLMERE_NATIVE
