#include "bench/support/Animations.h"

#include <algorithm>
#include <fstream>
#include <random>
#include <stdexcept>

namespace bench {

namespace fs = std::filesystem;

namespace {

void write(const fs::path& file, std::string_view bytes) {
  std::ofstream out(file, std::ios::binary);
  out << bytes;
  if (!out.flush()) throw std::runtime_error(file.string() + " was not written");
}

void storeEnabled(const std::vector<std::string>& names, const fs::path& preferences,
                  plist::Form form) {
  plist::Array enabled;
  for (const std::string& name : names) enabled.append(plist::Value::string(name));
  plist::Dictionary settings;
  settings.set("enabledSwitch", plist::Value(true));
  settings.set("enabledLotties", plist::Value(std::move(enabled)));
  write(preferences, plist::write(plist::Value(std::move(settings)), form).value());
}

}  // namespace

AnimationFolder::AnimationFolder(const fs::path& phone)
    : animations(phone / "Library/Lotties/Quillmere"),
      preferences(phone / "var/mobile/Library/Preferences/com.orvalen.quillmere.plist") {
  fs::create_directories(animations);
  fs::create_directories(preferences.parent_path());
}

std::vector<std::string> animationNames(std::size_t count) {
  std::vector<std::string> names(count);
  for (std::size_t i = 0; i < count; ++i) names[i] = "Animation " + std::to_string(i);
  std::ranges::shuffle(names, std::minstd_rand());
  return names;
}

AnimationFolder installAnimations(std::size_t count, const fs::path& phone, plist::Form form) {
  AnimationFolder folder(phone);
  std::vector<std::string> names = animationNames(count);
  for (const std::string& name : names) write(folder.animations / (name + ".lottie"), "");
  names.resize(count / 2);
  storeEnabled(names, folder.preferences, form);
  return folder;
}

AnimationFolder enableAnimations(std::size_t count, const fs::path& phone, plist::Form form) {
  AnimationFolder folder(phone);
  storeEnabled(animationNames(count), folder.preferences, form);
  return folder;
}

}  // namespace bench
