#pragma once

#include "platform/Foundation/NSString.h"
#include "platform/Object.h"
#include "platform/UIKit/UIColor.h"

namespace platform {

/// The maker's screen that introduces an add-on in three points. Once the user has seen it, it
/// stores that under `showedWelcomeVC` in the add-on's domain.
class OrvalenWelcome : public Object {
 public:
  /// `new`; none when the maker's library is not installed.
  static OrvalenWelcome init();

  void setSubtitleText(const NSString& text);
  void setItem_one_title(const NSString& text);
  void setItem_one_description(const NSString& text);
  void setItem_two_title(const NSString& text);
  void setItem_two_description(const NSString& text);
  void setItem_three_title(const NSString& text);
  void setItem_three_description(const NSString& text);
  void setButtonTitle(const NSString& text);
  /// The small line under the button.
  void setButtonCaption(const NSString& text);
  void setTitleText(const NSString& text);
  /// The preferences domain.
  void setPackage_ID(const NSString& identifier);
  /// The path of the preference bundle.
  void setBundle_Name(const NSString& path);
  /// Of the button and the icons.
  void setTintColor(const UIColor& color);
};

}  // namespace platform
