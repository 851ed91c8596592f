#include "platform/Cephei/HBPreferences.h"
#include "platform/Foundation/NSProcessInfo.h"
#include "platform/OrvalenPrefs/OrvalenWelcome.h"
#include "platform/dlfcn/dlopen.h"
#include "prefs/Appearance.h"
#include "prefs/QMRoot.h"
#include "prefs/Quillmere.h"

namespace quillmere {

using namespace platform;

namespace {

/// The first system that has what the welcome screen is drawn with.
constexpr NSOperatingSystemVersion firstWithWelcome{13, 0, 0};

constexpr const char* onBoardingKit = "/System/Library/PrivateFrameworks/OnBoardingKit.framework";

OrvalenWelcome makeWelcome() {
  OrvalenWelcome welcome = OrvalenWelcome::init();
  welcome.setSubtitleText("Animations for your Lockscreen");
  welcome.setItem_one_title("Info");
  welcome.setItem_one_description(
      "This tweak is an animation engine that can let you run Lottie animations with ease.");
  welcome.setItem_two_title("Lockscreen");
  welcome.setItem_two_description("Use Lottie animations to animate your Lockscreen elements.");
  welcome.setItem_three_title("Download");
  welcome.setItem_three_description(
      "You can download and use millions of Lottie animation from your package manager or from "
      "Google and apply them through settings.");
  welcome.setButtonTitle("Continue");
  welcome.setButtonCaption("Coded with ❤️ by Orvalen");
  welcome.setTitleText(productName);
  welcome.setPackage_ID(domain);
  welcome.setBundle_Name(bundlePath);
  welcome.setTintColor(accentColor());
  return welcome;
}

}  // namespace

void QMRoot::viewDidAppear(Animated) {
  // The superclass's `viewDidLoad`, and not its `viewDidAppear`, on purpose: the page has always
  // been set up twice, and what the superclass does on appearing is left out.
  QMPage::viewDidLoad();
  if (!NSProcessInfo::processInfo().isOperatingSystemAtLeastVersion(firstWithWelcome)) return;
  dlopen(onBoardingKit, DlopenMode::Global);
  const HBPreferences preferences = HBPreferences::initWithIdentifier(domain);
  if (preferences.objectForKey(showedWelcomeKey)) return;
  presentViewController(makeWelcome(), Animated::Yes);
}

}  // namespace quillmere
