#include "settings/Touch.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <string>
#include <type_traits>

#include "desktop/Exception.h"
#include "desktop/Phone.h"
#include "settings/Overlay.h"
#include "settings/Screen.h"
#include "settings/Table.h"
#include "settings/Views.h"

namespace settings {

using desktop::NavigationController;
using nlohmann::json;

namespace {

void require(bool holds, const std::string& otherwise) {
  if (!holds) throw RefusedTouch(otherwise);
}

/// The message's field of that name and type.
template <class T>
T field(const json& message, const char* name) {
  const auto found = message.find(name);
  require(found != message.end(), std::string("there is no \"") + name + '"');
  bool fits = false;
  if constexpr (std::is_same_v<T, bool>) fits = found->is_boolean();
  if constexpr (std::is_same_v<T, double>) fits = found->is_number();
  if constexpr (std::is_same_v<T, std::size_t>) fits = found->is_number_unsigned();
  if constexpr (std::is_same_v<T, std::string>) fits = found->is_string();
  require(fits, std::string("\"") + name + "\" is of the wrong type");
  return found->get<T>();
}

/// The longest text that is typed at once, in bytes.
constexpr std::size_t maximumText = 32 * 1024;

/// Whose hands they are, and what they touch.
struct Hands {
  desktop::SpringBoard& board;
  Viewport& viewport;
  const Screen screen{board};

  /// The pages, when nothing lies over them that takes all touches.
  NavigationController& pages() const {
    NavigationController* navigation = board.navigation();
    require(navigation, "the phone is restarting");
    require(!navigation->presented(), "that is covered");
    return *navigation;
  }
};

/// The cell that the message is about, which must be one of this kind and not disabled.
template <class Cell>
Cell& cellIn(const Hands& hands, const json& message) {
  hands.pages();
  const auto id = field<std::string>(message, "id");
  desktop::AnyCell* cell = hands.screen.cell(id);
  require(cell, "there is no " + id + " on the screen");
  auto* fitting = std::get_if<Cell>(cell);
  require(fitting, id + " does not take this touch");
  require(fitting->enabled(), id + " is disabled");
  return *fitting;
}

/// Taps a row, which takes back a confirmation that is awaited, or a button of it; false when `id`
/// is none.
bool tapTable(desktop::TableBody* table, const std::string& id) {
  const auto target = table ? tableTarget(*table, id) : std::nullopt;
  if (!target) return false;
  switch (target->part) {
    case TableTarget::Part::Row:
      table->cancelConfirmation();
      break;
    case TableTarget::Part::Control:
      table->tapControl(target->path);
      break;
    case TableTarget::Part::Confirm:
      table->confirm();
      break;
  }
  return true;
}

void tap(const Hands& hands, const json& message) {
  const auto id = field<std::string>(message, "id");
  if (id == bannerId) return desktop::Phone::current().banner.clear();
  NavigationController* navigation = hands.board.navigation();
  require(navigation, "the phone is restarting");
  if (tapOverlay(*navigation, id)) return;
  NavigationController& pages = hands.pages();
  if (hands.screen.isBackButton(id)) return pages.pop();
  if (!tapTable(hands.screen.table(), id)) cellIn<desktop::ActionCell>(hands, message).tap();
}

void toggle(const Hands& hands, const json& message) {
  const bool on = field<bool>(message, "on");
  hands.pages();
  if (auto* knob = hands.screen.barSwitch(field<std::string>(message, "id"))) {
    knob->toggle(on, field<bool>(message, "inside"));
  } else {
    cellIn<desktop::SwitchCell>(hands, message).toggle(on);
  }
}

void slide(const Hands& hands, const json& message) {
  const double value = field<double>(message, "value");
  require(cellIn<desktop::SliderCell>(hands, message).slide(value), "that is no number");
}

void type(const Hands& hands, const json& message) {
  const auto id = field<std::string>(message, "id");
  const auto text = field<std::string>(message, "text");
  require(text.size() <= maximumText, "\"text\" is too long");
  NavigationController* navigation = hands.board.navigation();
  if (navigation && typeIntoOverlay(*navigation, id, text)) return;
  require(cellIn<desktop::SliderCell>(hands, message).type(text), "\"" + text + "\" is no number");
}

void select(const Hands& hands, const json& message) {
  const auto index = field<std::size_t>(message, "index");
  require(cellIn<desktop::SegmentCell>(hands, message).select(index), "there is no such segment");
}

void pick(const Hands& hands, const json& message) {
  const auto color = desktop::HexColor::parseWeb(field<std::string>(message, "color"));
  require(color.has_value(), "\"color\" is not of the form #rrggbbaa");
  cellIn<desktop::ColorCell>(hands, message).pick(*color);
}

void scroll(const Hands& hands, const json& message) {
  const double y = field<double>(message, "y");
  hands.pages();
  const auto id = field<std::string>(message, "id");
  desktop::TableBody* scroller = hands.screen.scroller(id);
  require(scroller, id + " does not scroll");
  scroller->scroll(y);
}

void window(const Hands& hands, const json& message) {
  const auto id = field<std::string>(message, "id");
  const auto first = field<std::size_t>(message, "first");
  const auto count = field<std::size_t>(message, "count");
  const desktop::TableBody* table = hands.screen.table();
  require(table && viewId(*table) == id, "there is no table " + id + " on the screen");
  require(count <= Viewport::maximumRows, "these are too many rows");
  hands.viewport = {id, first, count};
}

void drag(const Hands& hands, const json& message) {
  const auto id = field<std::string>(message, "id");
  const platform::NSIndexPath proposed{field<std::size_t>(message, "section"),
                                       field<std::size_t>(message, "row")};
  hands.pages();
  desktop::TableBody* table = hands.screen.table();
  const auto target = table ? tableTarget(*table, id) : std::nullopt;
  require(target && target->part == TableTarget::Part::Row, "there is no " + id + " on the screen");
  require(table->isMovable(target->path), id + " cannot be moved");
  require(table->contains(proposed), "there is no such place");
  table->drag(target->path, proposed);
}

/// Where something was not stored, the page shows what is instead.
void showTruth(desktop::SpringBoard& board) {
  if (board.navigation() && !leaveOutdatedPage(board)) board.navigation()->redraw();
}

/// The id that the message names, whatever it is.
std::string_view idIn(const json& message) {
  const auto id = message.find("id");
  if (id == message.end() || !id->is_string()) return {};
  return id->get_ref<const std::string&>();
}

/// Leaves the page on top when the touch acts on what it shows and that is not what is stored; a
/// touch that was to leave it is done then, any other is refused.
bool leaveInstead(const Hands& hands, const json& message) {
  if (idIn(message) == bannerId) return false;
  const bool leaves = hands.screen.isBackButton(idIn(message));
  if (!leaveOutdatedPage(hands.board)) return false;
  require(leaves, "what is stored is not what this page shows any more: open it again");
  return true;
}

struct Kind {
  std::string_view name;
  void (*perform)(const Hands&, const json&);
  enum { Acts, Looks } effect = Acts;
};

constexpr Kind kinds[] = {
    {"tap", &tap},
    {"toggle", &toggle},
    {"slide", &slide},
    {"type", &type},
    {"select", &select},
    {"pick", &pick},
    {"drag", &drag},
    {"scroll", &scroll, Kind::Looks},
    {"window", &window, Kind::Looks},
};

}  // namespace

bool leaveOutdatedPage(desktop::SpringBoard& board) {
  desktop::PreferencesService& preferences = desktop::Phone::current().preferences;
  if (!board.navigation() || !preferences.answersAreOutdated()) return false;
  preferences.forgetAnswers();
  board.navigation()->pop();
  return true;
}

void touch(desktop::SpringBoard& board, Viewport& viewport, std::string_view text) {
  const json message = json::parse(text, nullptr, false);
  require(message.is_object(), "a touch is a JSON object");
  const auto name = field<std::string>(message, "kind");
  const auto* kind = std::ranges::find(kinds, name, &Kind::name);
  require(kind != std::end(kinds), "there is no touch \"" + name + '"');
  const std::size_t& losses = desktop::Phone::current().losses;
  const std::size_t before = losses;
  try {
    const Hands hands{board, viewport};
    if (kind->effect == Kind::Acts && leaveInstead(hands, message)) return;
    kind->perform(hands, message);
    if (losses != before) showTruth(board);
  } catch (const desktop::Exception& raised) {
    // On a phone the Settings app would end here; at a desk, hearing of it is worth more.
    desktop::Phone::current().report(raised.what());
    throw RefusedTouch(raised.what());
  } catch (const RefusedTouch&) {
    throw;
  } catch (const std::exception& failure) {
    desktop::Phone::current().report(std::string("a touch failed: ") + failure.what());
    throw RefusedTouch("it could not be done");
  }
}

}  // namespace settings
