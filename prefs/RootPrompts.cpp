#include "platform/Cephei/HBPreferences.h"
#include "platform/Cephei/HBRespringController.h"
#include "platform/Foundation/NSFileManager.h"
#include "platform/Foundation/NSNumber.h"
#include "platform/UIKit/UIAlertController.h"
#include "platform/UIKit/UIVisualEffectView.h"
#include "platform/dispatch/dispatch.h"
#include "prefs/QMRoot.h"
#include "prefs/Quillmere.h"

namespace quillmere {

using namespace platform;

namespace {

/// How long the blur takes to come up before a respring, in seconds.
constexpr double blurDuration = 1.0;

/// What the preferences service gets to write its file before that is deleted.
constexpr std::chrono::milliseconds resetDelay{100};

void respringNow() {
  HBRespringController::respringAndReturnTo(
      NSURL::URLWithString(NSString::stringWithFormat("prefs:root=%@", {NSString(productName)})));
}

void reset() {
  HBPreferences::initWithIdentifier(domain).removeAllObjects();
  dispatch_after(resetDelay, [] {
    NSFileManager::defaultManager().removeItemAtPath(preferencesFile);
    respringNow();
  });
}

}  // namespace

void QMRoot::toggleState() {
  HBPreferences preferences = HBPreferences::initWithIdentifier(domain);
  preferences.setObject(NSNumber::numberWithBool(enableSwitch.isOn()), settings::enabledSwitch.key);
  respringAfterEnable();
}

void QMRoot::setEnableSwitchState() {
  const Object stored =
      HBPreferences::initWithIdentifier(domain).objectForKey(settings::enabledSwitch.key);
  const bool on = stored ? stored.as<NSNumber>().boolValue() : settings::enabledSwitch.defaultValue;
  enableSwitch.setOn(on, Animated::Yes);
}

void QMRoot::respring() {
  prompt("Do you really want to respring?", [this] { blurAndRespring(); });
}

void QMRoot::respringAfterEnable() {
  prompt("Enabling or Disabling the tweak requires a respring, Do you want to respring?",
         [this] { blurAndRespring(); });
}

void QMRoot::resetPreferences() { prompt("Do you really want to Reset All Settings?", &reset); }

void QMRoot::blurAndRespring() {
  UIVisualEffectView blur =
      UIVisualEffectView::initWithEffect(UIBlurEffect::effectWithStyle(UIBlurEffectStyle::Regular));
  blur.setFrame(view().bounds());
  blur.setAlpha(0.0);
  view().addSubview(blur);
  UIView::animateWithDuration(
      blurDuration, 0.0, UIViewAnimationOptions::CurveEaseOut, [&blur] { blur.setAlpha(1.0); },
      [](bool) { respringNow(); });
}

void QMRoot::prompt(const char* message, std::function<void()> confirmed) {
  UIAlertController alert = UIAlertController::alertControllerWithTitle(
      productName, message, UIAlertControllerStyle::Alert);
  alert.addAction(UIAlertAction::actionWithTitle("Confirm", UIAlertActionStyle::Destructive,
                                                 std::move(confirmed)));
  alert.addAction(UIAlertAction::actionWithTitle("Cancel", UIAlertActionStyle::Cancel, {}));
  presentViewController(alert, Animated::Yes);
}

}  // namespace quillmere
