#pragma once

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/support/Driver.h"

/// A phone on which scenarios open the animation list.
class OpenedList : public testing::Test {
 protected:
  using Names = std::vector<std::string>;

  static constexpr const char* key = "enabledLotties";

  static plist::Value list(const Names& names) {
    plist::Array array;
    for (const std::string& name : names) array.append(plist::Value::string(name));
    return plist::Value(array);
  }

  /// A preferences file with that value as its list, and with another key.
  static plist::Dictionary fileWith(const plist::Value& stored) {
    plist::Dictionary dictionary;
    dictionary.set("clockDigitSize", plist::Value::integer(80));
    dictionary.set(key, stored);
    return dictionary;
  }

  /// Opens the list over a folder of these files, and forgets what that took.
  void open(const Names& files) {
    phone.putAnimations(files);
    visit();
  }
  void open(const Names& files, const plist::Value& stored) {
    phone.putFile(fileWith(stored));
    open(files);
  }
  void open(const Names& files, const Names& stored) { open(files, list(stored)); }

  /// What storing a list asks of the platform, the file being there and readable; the list as the
  /// journal writes it.
  static Names saving(const std::string& names) {
    const std::string file = "\"/var/mobile/Library/Preferences/com.orvalen.quillmere.plist\"";
    return {"NSFileManager defaultManager",
            "NSFileManager fileExistsAtPath:" + file,
            "NSMutableDictionary initWithContentsOfFile:" + file,
            "NSMutableDictionary setObject:" + names + " forKey:\"enabledLotties\"",
            "NSMutableDictionary writeToFile:" + file + " atomically:YES",
            "HBPreferences initWithIdentifier:\"com.orvalen.quillmere\"",
            "HBPreferences setObject:" + names + " forKey:\"enabledLotties\""};
  }

  void visit() {
    phone.tap("Lotties");
    phone.forget();
  }
  void visitAgain() {
    phone.back();
    visit();
  }

  Names enabled() { return phone.list().at(0).rows; }
  Names disabled() { return phone.list().at(1).rows; }

  /// The place of a name among the disabled ones, whose order is the folder's.
  std::size_t disabledRow(const std::string& name) {
    const Names names = disabled();
    const auto found = std::ranges::find(names, name);
    EXPECT_NE(found, names.end()) << name << " is not disabled";
    return static_cast<std::size_t>(found - names.begin());
  }

  /// The names in the folder, as it lists them.
  Names listed() {
    Names names = phone.animationFiles();
    for (std::string& name : names) name.resize(name.rfind('.'));
    return names;
  }

  support::Driver phone;
};
