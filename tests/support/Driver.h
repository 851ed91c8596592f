#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "plist/Document.h"
#include "tests/support/TemporaryFolder.h"

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

/// A row of the animation list as it is shown.
struct ListSection {
  std::string title;
  std::vector<std::string> rows;
  bool operator==(const ListSection&) const = default;
};

/// A cell of the animation list as it is drawn.
struct CellFacts {
  std::string text;
  std::string color;  ///< "#rrggbbaa".
  bool operator==(const CellFacts&) const = default;
};

/// A row of the animation list, or of a section that it does not have.
struct ListPosition {
  std::size_t section;
  std::size_t row;
  bool operator==(const ListPosition&) const = default;
};

/// What the animation list answers to its table's questions about a row and its section.
struct ListAnswers {
  std::size_t sections;
  std::string title;
  std::size_t rows;
  bool canEdit;
  bool canMove;
  long editingStyle;
  bool indents;
  bool operator==(const ListAnswers&) const = default;
};

/// An alert as it is shown: its answers with their styles, as in "Cancel (1)".
struct AlertFacts {
  std::string title;
  std::string message;
  std::vector<std::string> actions;
  bool operator==(const AlertFacts&) const = default;
};

/// The welcome screen as it is shown.
struct WelcomeFacts {
  std::string title;
  std::string subtitle;
  std::vector<std::pair<std::string, std::string>> items;
  std::string button;
  std::string caption;
  std::string tint;  ///< "#rrggbbaa".
};

/// The mail composer as it is shown.
struct MailFacts {
  std::string to;
  std::string subject;
  std::string body;
  bool isHTML;
  struct Attachment {
    std::string name;
    std::string type;
    std::string bytes;
  };
  std::vector<Attachment> attachments;
};

/// What a phone says of itself.
struct Device {
  std::optional<std::string> type;
  std::optional<std::string> version;
  std::optional<std::string> build;
};

/// A phone with the bundle installed and its first page open. Scenarios speak to the bundle
/// through it alone, so that they run over every implementation of the platform.
class Driver {
 public:
  /// A new phone, which goes with the driver.
  Driver();
  /// The phone in that folder, made when the folder is empty, and started as the program starts
  /// it. The folder stays.
  explicit Driver(const std::filesystem::path& folder);
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
  /// The master switch in the bar; a finger that is lifted outside of it is no tap.
  void flip(bool on, bool inside = true);
  /// Moves the content of the page on top to `y` points.
  void scroll(double y);
  /// Answers the alert.
  void answer(const std::string& action);
  /// The animation list: the insert control of a disabled animation, the delete control of an
  /// enabled one with its confirmation, and a drag from a row to another.
  void insert(std::size_t row);
  void remove(std::size_t row);
  void drag(std::size_t section, std::size_t row, std::size_t toSection, std::size_t toRow);
  /// Leaves the welcome screen.
  void leaveWelcome();
  enum class MailEnd { Send, Save, Cancel };
  void endMail(MailEnd end);
  /// @}

  /// Lets time pass, and with it what was put off until later.
  void pass(double seconds);

  /// What the row of that key shows: "on", "75", "Default", "#f69240ff".
  std::string shown(const std::string& key) const;

  bool switchIsOn() const;
  /// How much is to be seen of the title's text and of the icon in its place, from 0 to 1.
  std::pair<double, double> titleAlphas() const;
  /// The title's text.
  std::string titleText() const;
  std::optional<AlertFacts> alert() const;
  std::optional<WelcomeFacts> welcome() const;
  std::optional<MailFacts> mail() const;
  /// The sections of the animation list with the rows that they show.
  std::vector<ListSection> list();
  /// What one of those rows shows; only its cell is asked for.
  CellFacts cell(ListPosition row);
  /// @name The table's callbacks, which take any row and any editing style.
  /// @{
  ListAnswers answersFor(ListPosition row);
  ListPosition dropTarget(ListPosition source, ListPosition proposed);
  void commit(long editingStyle, ListPosition row);
  void move(ListPosition source, ListPosition destination);
  /// @}
  /// How much is to be seen of the blur over the page; none while there is none.
  std::optional<double> blur() const;
  /// Whether the screen is being restarted: no page is to be seen then.
  bool isRestarting() const;

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

  /// Whether the page on top has a method of that name, and what calling it answers, as the journal
  /// writes it.
  bool answers(const std::string& selector) const;
  std::string call(const std::string& selector);

  /// Takes the title of the page on top away.
  void takeTitleAway();
  /// Has the page on top load once more, its table being that wide, in points.
  void load(double width);
  /// Gives the animation list a button to turn editing on and off with.
  void giveEditButton();

  /// What the phone is; iOS 12.5 unless set, so that no welcome screen is in the way.
  void setDevice(const Device& device);

  /// Makes the folder of animations hold just these entries; one that ends in a slash is a folder.
  void putAnimations(const std::vector<std::string>& names);
  /// The names in that folder, in the order in which the system lists them.
  std::vector<std::string> animationFiles() const;
  void removeAnimationFolder();
  /// Puts a file where that folder belongs.
  void obstructAnimationFolder();
  /// Deletes one of the bundle's files, such as "Header.png".
  void removeBundleFile(const std::string& name);
  /// Puts a file anywhere on the phone.
  void putPhoneFile(const std::string& path, const std::string& bytes);

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

  /// Replaces the "Root" list resource by one of that many rows, "Row 0", "Row 1" and so on. It
  /// leaves the page's title alone unless it has one.
  void putListResource(int rows, const std::string& title = {});

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
  explicit Driver(std::unique_ptr<TemporaryFolder> folder);

  std::unique_ptr<TemporaryFolder> folder_;  ///< None when the phone's folder stays.
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace support
