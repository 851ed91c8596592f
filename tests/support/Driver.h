#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "plist/Document.h"

namespace support {

/// A row as a page built it.
struct RowFacts {
  std::string name;  ///< "nil" for none, else in quotes.
  long long cell;
  std::string set;
  std::string get;
  /// Keys and values, in the order in which they were set; values as the journal writes them.
  std::vector<std::pair<std::string, std::string>> properties;
  std::string values;
  std::string titles;

  bool operator==(const RowFacts&) const = default;
};

/// A phone with the bundle installed and its first page open. Scenarios speak to the bundle
/// through it alone, so that they run over every implementation of the platform.
class Driver {
 public:
  Driver();
  ~Driver();

  /// @name The user's hands. Each throws `std::runtime_error` when there is no such thing to touch.
  /// @{
  void tap(const std::string& label);
  void back();
  void toggle(const std::string& key, bool on);
  void slide(const std::string& key, double value);
  void select(const std::string& key, std::size_t index);
  /// "#rrggbbaa".
  void pick(const std::string& key, const std::string& color);
  /// @}

  /// What the row of that key shows: "on", "75", "Default", "#f69240ff".
  std::string shown(const std::string& key) const;

  /// The titles of the pages on the stack, the first one first.
  std::vector<std::string> titles() const;

  /// The rows of the page on top, asked for anew.
  std::vector<RowFacts> rows();
  /// Whether the page on top answers the very same list each time.
  bool listIsCached();

  /// A row of the page on top that is not on it: its properties, in order. Reading or writing it
  /// calls the page's own operations.
  struct LooseRow {
    std::vector<std::pair<std::string, plist::Value>> properties;
  };
  std::optional<plist::Value> read(const LooseRow& row);
  void write(const LooseRow& row, const plist::Value& value);

  /// @name The preferences file (of the add-on's domain unless another is named).
  /// @{
  void putFile(const std::string& bytes, const std::string& domain = {});
  void putFile(const plist::Dictionary& dictionary, plist::Form form = plist::Form::Binary,
               const std::string& domain = {});
  void removeFile();
  /// None when there is no file.
  std::optional<std::string> fileBytes(const std::string& domain = {}) const;
  /// The file's dictionary; the test fails when it is missing or unreadable.
  plist::Dictionary file(const std::string& domain = {}) const;
  /// @}

  /// The domain as the preferences service answers it.
  std::optional<plist::Value> serviceValue(const std::string& key) const;

  /// Replaces the "Root" list resource by one of that many rows, "Row 0", "Row 1" and so on.
  void putListResource(int rows);

  /// Opens the bundle's first page anew, with a new controller.
  void reopen();

  /// Makes a class unavailable, as when its library is not installed.
  void withoutClass(const std::string& name);

  /// Whether a controller of that class can be initialised while its superclass refuses.
  bool initSucceeds(const std::string& className, bool superclassRefuses);

  /// What was asked of the platform since the last call of `forget`.
  std::vector<std::string> journal() const;
  void forget();

  /// The Darwin notifications posted since the last call of `forget`, in order.
  std::vector<std::string> notifications() const;

  /// What the desktop told the person in front of it.
  std::vector<std::string> reports() const;

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace support
