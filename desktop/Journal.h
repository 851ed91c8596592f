#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/Object.h"

namespace desktop {

/// One argument of a recorded message.
class Argument {
 public:
  Argument(const platform::Object& object) : value_(&object) {}
  Argument(bool yes) : value_(yes) {}
  Argument(double number) : value_(number) {}
  /// The name of a selector, a class or a constant: written as it is.
  Argument(std::string_view name) : value_(name) {}
  Argument(const char* name) : value_(std::string_view(name)) {}

  std::string text() const;

 private:
  std::variant<const platform::Object*, bool, double, std::string_view> value_;
};

/// What the bundle asked of the platform, in order. Silent until it is started, so that it costs
/// nothing in everyday use.
class Journal {
 public:
  /// Records from now on.
  void start() { recording_ = true; }
  bool isRecording() const { return recording_; }
  /// Forgets what was recorded.
  void clear() { lines_.clear(); }

  /// One line a message, as in `NSMutableDictionary setObject:1 forKey:"colorMode"`.
  const std::vector<std::string>& lines() const { return lines_; }

  /// Adds a message: the arguments follow the selector's colons. Who sends asks `isRecording`
  /// first, so that silence costs nothing.
  void record(std::string_view receiver, std::string_view selector,
              std::initializer_list<Argument> arguments);

 private:
  bool recording_ = false;
  std::vector<std::string> lines_;
};

}  // namespace desktop
