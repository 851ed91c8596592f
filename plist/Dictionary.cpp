#include "plist/Dictionary.h"

#include <memory>
#include <stdexcept>
#include <utility>

#include "plist/Nodes.h"

namespace plist {

Dictionary::Dictionary(const Dictionary& other) noexcept : node_(other.node_) {
  if (node_ != nullptr) node_->retain();
}

Dictionary& Dictionary::operator=(Dictionary other) noexcept {
  std::swap(node_, other.node_);
  return *this;
}

Dictionary::~Dictionary() {
  if (node_ != nullptr) node_->release();
}

std::size_t Dictionary::size() const noexcept {
  return node_ == nullptr ? 0 : node_->entries.size();
}

const Dictionary::Entry* Dictionary::begin() const noexcept {
  return node_ == nullptr ? nullptr : node_->entries.data();
}

const Dictionary::Entry* Dictionary::end() const noexcept { return begin() + size(); }

const Value* Dictionary::find(std::string_view key) const noexcept {
  const Entry* const entry = node_ == nullptr ? nullptr : node_->find(key);
  return entry == nullptr ? nullptr : &entry->value();
}

DictionaryNode& Dictionary::own() {
  if (node_ == nullptr) {
    node_ = new DictionaryNode;
  } else if (node_->isShared()) {
    auto copy = std::make_unique<DictionaryNode>();
    copy->entries = node_->entries;
    copy->reserve(copy->entries.size());
    node_->release();
    node_ = copy.release();
  }
  return *node_;
}

void Dictionary::reserve(std::size_t count) { own().reserve(count); }

void Dictionary::set(std::string_view key, Value value) {
  if (const Entry* const entry = node_ == nullptr ? nullptr : node_->find(key)) {
    const auto position = static_cast<std::size_t>(entry - begin());
    Internals::value(own().entries[position]) = std::move(value);
  } else {
    Value text = Value::string(key);
    own().add(std::move(text), std::move(value));
  }
}

bool Dictionary::erase(std::string_view key) {
  const Entry* const entry = node_ == nullptr ? nullptr : node_->find(key);
  if (entry == nullptr) return false;
  const auto position = static_cast<std::size_t>(entry - begin());
  own().erase(position);
  return true;
}

}  // namespace plist
