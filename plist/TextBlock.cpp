#include "plist/TextBlock.h"

#include <algorithm>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <utility>

#include "plist/Nodes.h"
#include "plist/Text.h"

namespace plist {
namespace {

/// What one allocation holds, unless one string takes more.
constexpr std::size_t kBlock = std::size_t{64} * 1024;

}  // namespace

std::optional<Value> TextBlock::append(std::string_view bytes) {
  if (bytes.size() > Internals::kMaxSize) throw std::length_error("256 MiB in one string");
  if (!isText(bytes)) return {};
  if (!block_ || block_->bytes().capacity() - block_->bytes().size() < bytes.size()) {
    std::string room;
    room.reserve(std::max(kBlock, bytes.size()));
    block_.emplace(std::move(room));
  }
  const auto offset = static_cast<std::uint32_t>(block_->bytes().size());
  block_->bytes().append(bytes);
  return Internals::slice(Internals::Kind::String, block_->take(), offset,
                          static_cast<std::uint32_t>(bytes.size()));
}

Value part(const Value& string, std::size_t offset, std::size_t size) noexcept {
  return Internals::part(string, static_cast<std::uint32_t>(offset),
                         static_cast<std::uint32_t>(size));
}

}  // namespace plist
