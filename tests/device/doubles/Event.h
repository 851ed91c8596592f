#pragma once

#import <Foundation/Foundation.h>
#include <optional>
#include <type_traits>

#include "desktop/Exception.h"

namespace doubles {

/// Runs what the stand-in asks of the bundle as the platform runs an event: with an autorelease
/// pool of its own. What is raised there goes on as an exception of the stand-in's.
template <class Work>
std::invoke_result_t<Work> event(Work&& work) {
  using Result = std::invoke_result_t<Work>;
  std::optional<desktop::Exception> raised;
  std::conditional_t<std::is_void_v<Result>, char, Result> result{};
  @autoreleasepool {
    @try {
      if constexpr (std::is_void_v<Result>) {
        work();
      } else {
        result = work();
      }
    } @catch (NSException* exception) {
      raised.emplace([[exception name] UTF8String], [[exception reason] UTF8String]);
    }
  }
  if (raised) throw *raised;
  if constexpr (!std::is_void_v<Result>) return result;
}

}  // namespace doubles
