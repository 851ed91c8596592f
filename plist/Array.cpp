#include "plist/Array.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <memory>
#include <utility>

#include "plist/Nodes.h"

namespace plist {
namespace {

auto at(ArrayNode& node, std::size_t index) {
  return node.items.begin() + static_cast<std::ptrdiff_t>(index);
}

}  // namespace

Array::Array(const Array& other) noexcept : node_(other.node_) {
  if (node_ != nullptr) node_->retain();
}

Array& Array::operator=(Array other) noexcept {
  std::swap(node_, other.node_);
  return *this;
}

Array::~Array() {
  if (node_ != nullptr) node_->release();
}

std::size_t Array::size() const noexcept { return node_ == nullptr ? 0 : node_->items.size(); }

const Value& Array::operator[](std::size_t index) const noexcept { return node_->items[index]; }

const Value* Array::begin() const noexcept {
  return node_ == nullptr ? nullptr : node_->items.data();
}

const Value* Array::end() const noexcept { return begin() + size(); }

ArrayNode& Array::own() {
  if (node_ == nullptr) {
    node_ = new ArrayNode;
  } else if (node_->isShared()) {
    auto copy = std::make_unique<ArrayNode>();
    copy->items = node_->items;
    node_->release();
    node_ = copy.release();
  }
  return *node_;
}

void Array::reserve(std::size_t count) { own().items.reserve(count); }

void Array::append(Value value) { own().items.push_back(std::move(value)); }

void Array::set(std::size_t index, Value value) { own().items[index] = std::move(value); }

void Array::insert(std::size_t index, Value value) {
  ArrayNode& node = own();
  node.items.insert(at(node, index), std::move(value));
}

void Array::erase(std::size_t index) {
  ArrayNode& node = own();
  node.items.erase(at(node, index));
}

void Array::eraseIf(const std::function<bool(const Value&)>& isDoomed) {
  const Value* const first = std::find_if(begin(), end(), isDoomed);
  if (first == end()) return;
  if (!node_->isShared()) {
    std::vector<Value>& items = node_->items;
    items.erase(std::remove_if(at(*node_, static_cast<std::size_t>(first - begin())), items.end(),
                               isDoomed),
                items.end());
    return;
  }
  Array kept;
  kept.reserve(size());
  std::copy(begin(), first, std::back_inserter(kept.node_->items));
  std::remove_copy_if(first, end(), std::back_inserter(kept.node_->items), isDoomed);
  *this = std::move(kept);
}

}  // namespace plist
