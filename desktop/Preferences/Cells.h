#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "desktop/Colors/HexColor.h"
#include "desktop/Preferences/Cell.h"

namespace desktop {

/// Cell type 6. It shows a stored number or text as the platform's `boolValue` takes it.
class SwitchCell : public Cell {
 public:
  explicit SwitchCell(platform::PSSpecifier specifier);

  bool isOn() const { return on_; }
  /// The user put the switch there.
  void toggle(bool on);

 private:
  bool on_;
};

/// Cell type 5. A segmented slider stops only at the ends of its segments.
class SliderCell : public Cell {
 public:
  explicit SliderCell(platform::PSSpecifier specifier);

  /// What is shown, from `min` to `max`, in the row's own unit; so are the two ends.
  double value() const { return value_; }
  double min() const { return min_; }
  double max() const { return max_; }
  /// The distance between two stops; none for a slider that stops anywhere.
  std::optional<double> step() const;
  bool showsValue() const;

  /// The stop nearest to `value`, within the slider's range; any number of it without stops.
  double nearestStop(double value) const;

  /// Moves to the stop nearest to `value`. False for NaN.
  bool slide(double value);

  /// The decimal number that somebody typed; none when it is no number.
  static std::optional<double> number(std::string_view text);

  /// As `slide`, with what somebody typed. False when it is no number.
  bool type(std::string_view text);

 private:
  double bound(const char* property, double otherwise) const;

  double min_;
  double max_;
  double value_;
};

/// Cell type 9.
class SegmentCell : public Cell {
 public:
  explicit SegmentCell(platform::PSSpecifier specifier);

  std::vector<std::string> titles() const;
  /// None when the stored value is not among those that the row offers.
  std::optional<std::size_t> selected() const { return selected_; }
  /// False when there is no such segment.
  bool select(std::size_t index);

 private:
  std::optional<std::size_t> selected_;
};

/// Cell types 1 and 13: a row that opens its detail page, sends its action, or both.
class ActionCell : public Cell {
 public:
  explicit ActionCell(platform::PSSpecifier specifier) : Cell(std::move(specifier)) {}

  /// Whether it is drawn as leading on to another page.
  bool isLink() const;
  void tap() const;
};

/// The colour library's CSColorDisplayCell.
class ColorCell : public Cell {
 public:
  explicit ColorCell(platform::PSSpecifier specifier);

  HexColor color() const { return color_; }
  /// Whether the picker offers transparency.
  bool offersAlpha() const;
  /// The picker went away with this colour.
  void pick(HexColor color);

 private:
  HexColor shownColor() const;

  HexColor color_;
};

/// The maker's library's OrvalenTripleCell: who made the add-on.
class CreditsCell : public Cell {
 public:
  struct Person {
    std::string name;
    /// Where the person is met, such as "Reddit".
    std::string place;
    /// The person's page there.
    std::string url;
    /// The file in the bundle that shows the person; empty for none.
    std::string picture;
  };

  explicit CreditsCell(platform::PSSpecifier specifier) : Cell(std::move(specifier)) {}

  std::vector<Person> people() const;
  HexColor tint() const;
};

/// Any other type: a line of text.
class TextCell : public Cell {
 public:
  explicit TextCell(platform::PSSpecifier specifier) : Cell(std::move(specifier)) {}
};

using AnyCell =
    std::variant<SwitchCell, SliderCell, SegmentCell, ActionCell, ColorCell, CreditsCell, TextCell>;

/// The cell that draws a row: its `cellClass` if it has one that is known, else by its type.
AnyCell makeCell(const platform::PSSpecifier& specifier);

}  // namespace desktop
