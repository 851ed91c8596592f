#pragma once

#include <functional>
#include <map>
#include <string>

#include "tests/model/Settings.h"
#include "tests/model/Store.h"

namespace model {

/// What the user should see, what should be stored, and what is to happen later. Written from what
/// the bundle promises and not from how it keeps that.
class Screen {
 public:
  explicit Screen(Kept kept = {});

  enum class Over { Nothing, Respring, SwitchRespring, Reset, Welcome, Mail };

  /// @name The user's hands
  /// @{
  void open(const std::string& name);
  void back();
  void change(const Setting& setting, const Item& stored);
  void flip(bool on, bool inside);
  void scroll(double y) { titleIsIcon = y > 60; }
  void show(Over screen) { over = screen; }
  void confirm();
  void cancel() { over = Over::Nothing; }
  void leaveWelcome();
  void reopen();
  void insert(std::size_t row);
  void remove(std::size_t row);
  void drag(std::size_t row, std::size_t toRow);
  /// @}

  void pass(double seconds);

  bool isOn(const std::string& name) const { return !isRestarting && page == name && !isCovered(); }
  bool isCovered() const { return over != Over::Nothing; }

  Store store;
  Names posted;      ///< Notifications since somebody emptied this.
  Names animations;  ///< Those installed, in their folder's own order, which nobody can foretell.

  bool isRestarting = false;
  bool hasWelcome = false;  ///< Whether the system is one that has the welcome screen.
  std::string page;         ///< Of the page on top; empty for the first page.
  Over over = Over::Nothing;

  bool switchIsOn = true;
  bool titleIsIcon = false;
  bool isBlurred = false;
  std::map<std::string, std::string> shown;  ///< By the value rows of the page on top.
  Names enabled;
  Names disabled;

 private:
  void start();
  void appear();
  void drawRoot();
  void drawList();
  void respring();
  void eraseFile();
  void storeList();
  void later(double seconds, std::function<void()> work);

  double now_ = 0;
  std::multimap<double, std::function<void()>> waiting_;
};

}  // namespace model
