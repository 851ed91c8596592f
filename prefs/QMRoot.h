#pragma once

#include "platform/MessageUI/MFMailComposeViewController.h"
#include "platform/UIKit/UIImageView.h"
#include "platform/UIKit/UILabel.h"
#include "platform/UIKit/UIScrollView.h"
#include "platform/UIKit/UISwitch.h"
#include "prefs/QMPage.h"

namespace quillmere {

/// The add-on's first page: the rows of the "Root" list resource and, after its first 11, the
/// credits; the master switch in the navigation bar, and what the rows' actions do.
class QMRoot : public QMPage, public platform::MFMailComposeViewControllerDelegate {
 public:
  /// @name The bar and the header: RootChrome.cpp
  /// @{
  bool init() override;
  void viewDidLoad() override;
  void viewWillAppear(platform::Animated animated) override;

  /// Shows the title's text near the top of the page and the icon further down.
  void scrollViewDidScroll(const platform::UIScrollView& scrollView);
  /// @}

  /// Introduces the add-on until that was seen once: RootWelcome.cpp
  void viewDidAppear(platform::Animated animated) override;

  /// @name The master switch, respring and reset: RootPrompts.cpp
  /// @{
  /// Stores where the user put the switch, and offers the respring that it takes.
  void toggleState();
  /// Puts the switch where the stored preference has it.
  void setEnableSwitchState();
  void respring();
  void respringAfterEnable();
  void resetPreferences();
  /// @}

  /// Opens the list of animations.
  void lottiesList();

  /// @name The mail to support: RootSupportMail.cpp
  /// @{
  void presentSupportMailController(const platform::Object& sender);
  void didFinishWithResult(const platform::MFMailComposeViewController& controller,
                           platform::MFMailComposeResult result,
                           const platform::NSError& error) override;
  /// @}

  std::span<const platform::Method> methods() const override;

  platform::UILabel titleLabel;     ///< The title view's text.
  platform::UIImageView iconView;   ///< The title view's picture, invisible at first.
  platform::UISwitch enableSwitch;  ///< The add-on's master switch.

 protected:
  platform::NSMutableArray buildRows() override;

 private:
  void installEnableSwitch();
  void installTitleView();
  void blurAndRespring();
  void prompt(const char* message, std::function<void()> confirmed);
};

}  // namespace quillmere
