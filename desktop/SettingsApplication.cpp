#include "desktop/SettingsApplication.h"

#include <stdexcept>

#include "desktop/Foundation/PropertyListFile.h"
#include "desktop/Foundation/Values.h"
#include "desktop/Phone.h"
#include "desktop/UIKit/ControllerState.h"

namespace desktop {

namespace {

constexpr const char* loaderFolder = "/Library/PreferenceLoader/Preferences";

plist::Dictionary dictionaryAt(const std::string& path) {
  try {
    const auto file = readPropertyList(Phone::current().folder, path);
    return file ? file->entries.all() : plist::Dictionary();
  } catch (const UnreadableFile& reason) {
    Phone::current().report(path + " cannot be read: " + reason.what());
    return {};
  }
}

/// The name of the bundle whose loader entry has this label.
std::string bundleLabelled(const std::string& label) {
  for (const std::string& name : Phone::current().folder.list(loaderFolder)) {
    if (!name.ends_with(".plist")) continue;
    const plist::Dictionary file = dictionaryAt(std::string(loaderFolder) + "/" + name);
    const plist::Value* entry = file.find("entry");
    if (!entry || !entry->dictionary() || textAt(*entry->dictionary(), "label") != label) continue;
    return textAt(*entry->dictionary(), "bundle");
  }
  throw std::runtime_error("no entry in " + std::string(loaderFolder) + " is labelled " + label);
}

}  // namespace

SettingsApplication::SettingsApplication(const std::string& label) {
  Phone::current().preferences.forgetAnswers();
  std::string& bundle = Phone::current().bundle;
  bundle = "/Library/PreferenceBundles/" + bundleLabelled(label) + ".bundle";
  const std::string name = textAt(dictionaryAt(bundle + "/Info.plist"), "NSPrincipalClass");
  auto controller = makeController(name);
  if (!controller) throw std::runtime_error("the bundle has no class \"" + name + "\"");
  setTitle(*controller, label);
  if (!controller->init()) throw std::runtime_error(name + " could not be initialised");
  navigation.push(std::move(controller));
}

}  // namespace desktop
