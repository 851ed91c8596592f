#include "prefs/QMColorVC.h"

#include "platform/Foundation/NSNumber.h"
#include "prefs/Rows.h"

namespace quillmere {

using namespace platform;

namespace {

PSSpecifier colorModeRow(QMColorVC& page) {
  PSSpecifier row = valueRow("Color Mode", PSCellType::PSSegmentCell, page);
  row.setProperty(NSString(domain), "defaults");
  row.setValues(NSArray::arrayWithObjects({NSNumber::numberWithInt(originalColors),
                                           NSNumber::numberWithInt(customColor)}),
                NSArray::arrayWithObjects({NSString("Default"), NSString("Custom Color")}));
  row.setProperty(NSNumber::numberWithInt(settings::colorMode.defaultValue), "default");
  row.setProperty(NSString(settings::colorMode.key), "key");
  return row;
}

PSSpecifier tintColorRow(QMColorVC& page) {
  PSSpecifier row = valueRow("Custom Color", PSCellType::PSLinkCell, page);
  // Without the colour cell's library there is no such class, and a row takes no absent property.
  if (Class cell = NSClassFromString("CSColorDisplayCell")) row.setProperty(cell, "cellClass");
  row.setProperty(NSString(domain), "defaults");
  row.setProperty(NSString(bundlePath), "defaultsPath");
  row.setProperty(NSString(settings::tintColor.defaultValue), "fallback");
  row.setProperty(NSString("Custom Color"), "label");
  row.setProperty(NSNumber::numberWithBool(true), "showAlphaSlider");
  row.setProperty(NSString(settings::tintColor.key), "key");
  return row;
}

}  // namespace

NSMutableArray QMColorVC::buildRows() {
  NSMutableArray rows = NSMutableArray::array();
  rows.addObject(groupRow("Color", "• Default: Will use Lottie animation original colors."));
  rows.addObject(colorModeRow(*this));
  rows.addObject(groupRow("Custom Color"));
  rows.addObject(tintColorRow(*this));
  return rows;
}

}  // namespace quillmere
