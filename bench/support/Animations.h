#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "plist/Document.h"

namespace bench {

/// Where a phone below `phone` keeps its animations, and the file that names the enabled ones.
struct AnimationFolder {
  explicit AnimationFolder(const std::filesystem::path& phone);

  std::filesystem::path animations;
  std::filesystem::path preferences;
};

/// `count` names of animations, in an order of their own, as a person has moved them about: the
/// same each time.
std::vector<std::string> animationNames(std::size_t count);

/// Makes a phone with `count` animations, half of them enabled; `form` is that of the preferences.
AnimationFolder installAnimations(std::size_t count, const std::filesystem::path& phone,
                                  plist::Form form = plist::Form::Binary);

/// Makes a phone with a list of `count` enabled animations, none of which is installed: what is
/// done to the list asks for no file.
AnimationFolder enableAnimations(std::size_t count, const std::filesystem::path& phone,
                                 plist::Form form = plist::Form::Binary);

}  // namespace bench
