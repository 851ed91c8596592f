#include "prefs/QMRoot.h"

#include "lotties/QMLottiesList.h"
#include "platform/Foundation/NSNumber.h"
#include "prefs/Rows.h"

namespace quillmere {

using namespace platform;

namespace {

constexpr const char* makerAccount = "orvalen";
constexpr const char* designerAccount = "orvalendesign";
constexpr const char* designerName = "Orvalen Design";
constexpr const char* designerImage = "Designer";

/// Where the credits stand, counted from 0: below what the list resource opens with.
constexpr std::size_t creditsPosition = 11;

PSSpecifier creditsRow(QMRoot& page) {
  PSSpecifier row = valueRow(NSString(), PSCellType::PSStaticTextCell, page);
  // Without the maker's library there is no such class, and a row takes no absent property.
  if (Class cell = NSClassFromString("OrvalenTripleCell")) row.setProperty(cell, "cellClass");
  row.setProperty(NSNumber::numberWithInt(120), "height");
  for (const char* key : {"twitterAccount", "twitterLabel", "redditAccount", "redditLabel"}) {
    row.setProperty(NSString(makerAccount), key);
  }
  row.setProperty(NSString(designerAccount), "designerAccount");
  row.setProperty(NSString(designerName), "designerLabel");
  row.setProperty(NSString(designerImage), "designerImageName");
  row.setProperty(NSString(accentHex), "tintColor");
  row.setProperty(NSString(bundlePath), "bundlePath");
  return row;
}

constexpr std::array rootMethods = joined(
    pageMethods, std::array{
                     method<&QMRoot::lottiesList>("lottiesList"),
                     method<&QMRoot::toggleState>("toggleState"),
                     method<&QMRoot::setEnableSwitchState>("setEnableSwitchState"),
                     method<&QMRoot::respring>("respring"),
                     method<&QMRoot::respringAfterEnable>("respringAfterEnable"),
                     method<&QMRoot::resetPreferences>("resetPreferences"),
                     method<&QMRoot::presentSupportMailController>("presentSupportMailController:"),
                     method<&QMRoot::scrollViewDidScroll>("scrollViewDidScroll:"),
                     getter<&QMRoot::titleLabel>("titleLabel"),
                     setter<&QMRoot::titleLabel>("setTitleLabel:"),
                     getter<&QMRoot::iconView>("iconView"),
                     setter<&QMRoot::iconView>("setIconView:"),
                     getter<&QMRoot::enableSwitch>("enableSwitch"),
                     setter<&QMRoot::enableSwitch>("setEnableSwitch:"),
                 });

}  // namespace

void QMRoot::lottiesList() {
  navigationController().pushViewController(UIViewController::make(QMLottiesList::className),
                                            Animated::Yes);
}

std::span<const Method> QMRoot::methods() const { return rootMethods; }

NSMutableArray QMRoot::buildRows() {
  NSMutableArray rows = loadSpecifiersFromPlistName("Root", *this).mutableCopy();
  rows.insertObject(groupRow("", "• Follow me on social media."), creditsPosition);
  rows.insertObject(creditsRow(*this), creditsPosition + 1);
  return rows;
}

}  // namespace quillmere
