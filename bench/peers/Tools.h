#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>

#include "bench/peers/Command.h"

namespace bench {

/// A program of the command line that gets and sets one setting. In its commands, KEY stands for
/// the setting, VALUE for what is stored, and DIR for the folder that all is kept in.
struct Tool {
  const char* get;
  /// Null for a tool that only gets.
  const char* set;
  /// The setting that is got and set, a boolean, and how its two values are written.
  const char* key;
  const char* on;
  const char* off;
  /// Stores that many settings in the folder. Answers what they need for as long as they are used.
  std::shared_ptr<void> (*prepare)(const Tool& tool, std::size_t size,
                                   const std::filesystem::path& folder);
};

/// A statically linked program that does nothing: what any command takes.
extern const Tool nothing;
extern const Tool ours;

extern const Tool gsettings;
extern const Tool dconf;
extern const Tool kconfig;
/// GNUstep's programs: one for a user's defaults, and two that get from and merge into a file.
extern const Tool defaults;
extern const Tool plmerge;
/// Prints a whole property list, for want of a way to get one setting.
extern const Tool plistutil;

/// One of the tool's commands for a setting and a value.
Command commandOf(const char* line, const char* key, const char* value,
                  const std::filesystem::path& folder);

}  // namespace bench
