#include "tests/model/Store.h"

namespace model {

namespace {

plist::Value arrayOf(const Names& names) {
  plist::Array array;
  for (const std::string& name : names) array.append(plist::Value::string(name));
  return plist::Value(array);
}

std::string textOf(const plist::Array& array) {
  std::string text;
  for (const plist::Value& each : array) text += (text.empty() ? "" : ", ") + model::textOf(each);
  return '(' + text + ')';
}

}  // namespace

plist::Value valueOf(const Item& item) {
  if (const auto* truth = std::get_if<bool>(&item)) return plist::Value(*truth);
  if (const auto* integer = std::get_if<long long>(&item)) return plist::Value::integer(*integer);
  if (const auto* real = std::get_if<double>(&item)) return plist::Value::real(*real);
  if (const auto* text = std::get_if<std::string>(&item)) return plist::Value::string(*text);
  return arrayOf(std::get<Names>(item));
}

std::string textOf(const plist::Value& value) {
  if (const auto truth = value.boolean()) return *truth ? "YES" : "NO";
  if (const auto integer = value.integer()) return std::to_string(*integer);
  if (const auto real = value.real()) return "real " + std::to_string(*real);
  if (const auto text = value.string()) return '"' + std::string(*text) + '"';
  return value.array() ? textOf(*value.array()) : "something else";
}

void Store::make() {
  if (state != State::Missing) return;
  state = State::Readable;
  form = plist::Form::Binary;
}

void Store::writeThroughPage(const std::string& key, const Item& item) {
  if (state == State::Readable) items[key] = item;
  written();
}

void Store::writeThroughList(const std::string& key, const Item& item) {
  make();
  writeThroughPage(key, item);
}

void Store::set(const std::string& key, const Item& item) {
  settle();
  if (state != State::Unreadable) return writeThroughList(key, item);
  pending[key] = item;
  written();
}

void Store::clear() {
  settle();
  cleared = state == State::Unreadable;
  pending.clear();
  items.clear();
  written();
}

std::optional<Item> Store::value(const std::string& key) {
  settle();
  const Items& from = state == State::Unreadable ? pending : items;
  const auto found = from.find(key);
  return found == from.end() ? std::nullopt : std::optional(found->second);
}

void Store::settle() {
  if (state == State::Unreadable || !keepsChanges()) return;
  if (cleared) items.clear();
  if (!pending.empty()) make();
  for (const auto& [key, item] : pending) items[key] = item;
  written();  // Merged, and still kept: to merge them once more changes nothing.
  pending.clear();
  cleared = false;
  written();
}

std::optional<Item> Store::inFile(const std::string& key) const {
  const auto found = items.find(key);
  return found == items.end() ? std::nullopt : std::optional(found->second);
}

void Store::remove() {
  state = State::Missing;
  items.clear();
  written();
}

void Store::spoil() {
  state = State::Unreadable;
  items.clear();
  written();
}

void Store::replace(Items its, plist::Form itsForm) {
  state = State::Readable;
  items = std::move(its);
  form = itsForm;
  written();
}

}  // namespace model
