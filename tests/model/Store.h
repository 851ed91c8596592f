#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "plist/Document.h"

namespace model {

using Names = std::vector<std::string>;

/// What a key can hold in these tests.
using Item = std::variant<bool, long long, double, std::string, Names>;
using Items = std::map<std::string, Item>;

/// The same as a property list has it.
plist::Value valueOf(const Item& item);

/// A value as text, which tells the types apart, but not the two widths of reals: XML knows one.
std::string textOf(const plist::Value& value);

/// What outlives the program: the preferences file and what is kept beside it.
struct Kept {
  enum class State { Missing, Unreadable, Readable };

  State state = State::Missing;
  plist::Form form = plist::Form::Binary;
  Items items;

  bool cleared = false;  ///< Kept beside the file: all keys were removed,
  Items pending;         ///< and then these were set.
};

/// The preferences file as it should be, and what the service should keep beside it.
struct Store : Kept {
  Store() = default;
  explicit Store(Kept kept) : Kept(std::move(kept)) {}

  /// What a page does to the file itself: nothing unless it can be read.
  void writeThroughPage(const std::string& key, const Item& item);
  /// What the animation list does to it: it also makes the file.
  void writeThroughList(const std::string& key, const Item& item);

  /// @name The service
  /// @{
  void set(const std::string& key, const Item& item);
  void clear();
  std::optional<Item> value(const std::string& key);
  /// Brings what was kept beside the file into it, if that is possible.
  void settle();
  /// @}

  /// What the file itself has for the key.
  std::optional<Item> inFile(const std::string& key) const;

  /// Somebody else removes the file, spoils it or replaces it.
  void remove();
  void spoil();
  void replace(Items items, plist::Form itsForm);

  bool keepsChanges() const { return cleared || !pending.empty(); }

  /// What was kept after each step that writes, since somebody emptied this. A program that is
  /// killed leaves one of these, or what was there before them.
  std::vector<Kept> steps;

 private:
  void make();
  void written() { steps.push_back(*this); }
};

}  // namespace model
