#include "tests/promises/crash/Change.h"

namespace crash_tests {

const char* const preferencesBefore =
    "<key>clockDigitSize</key><integer>90</integer>"
    "<key>tintColor</key><string>#00ff00</string>"
    "<key>flashEnabled</key><false/>"
    "<key>enabledLotties</key><array><string>Snow</string><string>Clock</string>"
    "<string>Rain</string></array>"
    "<key>ofAnother</key><dict><key>depth</key><real>0.1</real><key>kept</key>"
    "<data>AAEC/w==</data></dict>";

const std::vector<Change>& changes() {
  static const std::vector<Change> all{
      {"ExistingKey", Before::Binary, {"set", "clockDigitSize", "80"}, "clockDigitSize"},
      {"NewKeyInXml", Before::Xml, {"set", "colonHeight", "60"}, "colonHeight"},
      {"FirstChange", Before::NoPreferences, {"set", "flashEnabled", "off"}, "flashEnabled"},
      {"FirstStart", Before::NoPhone, {"set", "cameraEnabled", "off"}, "cameraEnabled"},
      {"MasterSwitch", Before::Binary, {"set", "enabledSwitch", "off"}, "enabledSwitch"},
      {"Reset", Before::Binary, {"reset", "--yes"}, ""},
      {"LottieEnabled", Before::Binary, {"lotties", "enable", "Wind"}, "enabledLotties"},
      {"LottieDisabled", Before::Xml, {"lotties", "disable", "Clock"}, "enabledLotties"},
      {"LottieMoved", Before::Binary, {"lotties", "move", "Snow", "3"}, "enabledLotties"},
      {"Touch",
       Before::Binary,
       {},
       "clockEnabled",
       {{{"kind", "tap"}, {"id", "page1.group0.row1"}},
        {{"kind", "toggle"}, {"id", "page2.group0.row0"}, {"on", false}}},
       "page2.group0.row0",
       {{"on", false}}},
  };
  return all;
}

std::ostream& operator<<(std::ostream& stream, const Change& change) {
  return stream << change.name;
}

}  // namespace crash_tests
