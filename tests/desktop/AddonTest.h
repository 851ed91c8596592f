#pragma once

#include <string>

#include "tests/desktop/PhoneTest.h"

namespace desktop_tests {

/// A phone on which an add-on is installed: the bundle "Addon", whose principal class is
/// "TestPage", and its loader entry.
class AddonTest : public PhoneTest {
 protected:
  AddonTest() {
    std::filesystem::create_directories(loader);
    std::filesystem::create_directories(bundle);
    writeBytes(loader / "Addon.plist", entryFor("Addon"));
    writeBytes(bundle / "Info.plist", infoWith("TestPage"));
  }

  static std::string entryFor(const std::string& label) {
    return "<plist><dict><key>entry</key><dict><key>label</key><string>" + label +
           "</string><key>bundle</key><string>Addon</string></dict></dict></plist>";
  }
  static std::string infoWith(const std::string& principalClass) {
    return "<plist><dict><key>NSPrincipalClass</key><string>" + principalClass +
           "</string></dict></plist>";
  }

  const std::filesystem::path loader = host("/Library/PreferenceLoader/Preferences");
  const std::filesystem::path bundle = host("/Library/PreferenceBundles/Addon.bundle");
};

}  // namespace desktop_tests
