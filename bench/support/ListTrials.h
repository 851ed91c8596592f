#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>

#include "bench/support/Contestant.h"

namespace bench {

/// @name What is timed of a list that is open: one change, undone outside the time where it would
/// make the list shorter or longer. `List` is made of a size and a folder.
/// @{
template <class List>
Trial disabling(std::size_t size, const std::filesystem::path& folder) {
  auto list = std::make_shared<List>(size, folder);
  list->disable();
  return {[list] { list->enable(); }, [list] { list->disable(); }};
}

template <class List>
Trial enabling(std::size_t size, const std::filesystem::path& folder) {
  auto list = std::make_shared<List>(size, folder);
  return {[list] { list->disable(); }, [list] { list->enable(); }};
}

template <class List>
Trial moving(std::size_t size, const std::filesystem::path& folder) {
  return [list = std::make_shared<List>(size, folder)] { list->move(); };
}
/// @}

}  // namespace bench
