#pragma once

#include "bench/peers/Objc.h"
#include "bench/peers/Settings.h"

namespace bench {

inline id objectOf(const std::string& value) { return text(value.c_str()); }
inline id objectOf(int value) { return send(classNamed("NSNumber"), "numberWithInt:", value); }
inline id objectOf(bool value) {
  return send(classNamed("NSNumber"), "numberWithBool:", static_cast<BOOL>(value));
}

/// Puts all settings into a mutable dictionary, or into anything else that is set so.
inline void fill(id keeper, std::size_t size) {
  forEachSetting(size, [&](const std::string& key, const auto& value) {
    send<void>(keeper, "setObject:forKey:", objectOf(value), text(key.c_str()));
  });
}

}  // namespace bench
