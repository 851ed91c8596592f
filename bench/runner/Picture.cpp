#include "bench/runner/Picture.h"

#include <algorithm>
#include <array>
#include <cairo-svg.h>
#include <cairo.h>
#include <cmath>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace bench {

namespace {

// Points of the picture.
constexpr double panelWidth = 430;
constexpr double panelHeight = 300;
constexpr double left = 56;
constexpr double top = 34;
constexpr double plotWidth = 220;
constexpr double plotHeight = 220;
constexpr double lineOfText = 12;
constexpr int panelsInARow = 2;

struct Color {
  double red, green, blue;
};
constexpr Color ink{0.2, 0.2, 0.22};
constexpr Color rule{0.88, 0.88, 0.9};
// Told apart by color-blind eyes as well (Okabe and Ito, "Color Universal Design", 2008).
constexpr Color limitColor{0.45, 0.45, 0.47};
constexpr Color oursColor{0.84, 0.37, 0};
constexpr std::array peerColors{Color{0, 0.45, 0.7},   Color{0, 0.62, 0.45}, Color{0.8, 0.47, 0.65},
                                Color{0.34, 0.7, 0.9}, Color{0.9, 0.62, 0},  Color{0.55, 0.5, 0.1}};

struct Point {
  double size;
  double time;
};
/// A contestant's points, by size.
struct Line {
  std::string contestant;
  std::vector<Point> points;
};
struct Panel {
  std::string race;
  std::vector<Line> lines;
};

/// The first contestant of a race is its limit, the second is ours.
Color colorOf(std::size_t line) {
  if (line == 0) return limitColor;
  return line == 1 ? oursColor : peerColors[(line - 2) % peerColors.size()];
}

template <class Named>
Named& named(std::vector<Named>& all, std::string Named::*name, const std::string& wanted) {
  const auto found = std::ranges::find(all, wanted, name);
  if (found != all.end()) return *found;
  Named& added = all.emplace_back();
  added.*name = wanted;
  return added;
}

std::vector<Panel> panelsOf(std::span<const Result> results) {
  std::vector<Panel> panels;
  for (const Result& result : results) {
    if (result.unit != "ns" || result.size == 0) continue;
    Panel& panel = named(panels, &Panel::race, result.race);
    Line& line = named(panel.lines, &Line::contestant, result.contestant);
    line.points.push_back({static_cast<double>(result.size), result.median});
  }
  std::erase_if(panels, [](const Panel& panel) { return panel.lines.front().points.size() < 2; });
  return panels;
}

/// From the power of ten below the least to that above the greatest.
struct Axis {
  double from = HUGE_VAL;
  double to = -HUGE_VAL;

  void take(double value) {
    from = std::min(from, std::floor(std::log10(value)));
    to = std::max(to, std::ceil(std::log10(value)));
  }
  double part(double value) const { return (std::log10(value) - from) / (to - from); }
};

class Drawing {
 public:
  Drawing(const std::filesystem::path& file, double width, double height)
      : surface_(cairo_svg_surface_create(file.c_str(), width, height), &cairo_surface_destroy),
        cairo_(cairo_create(surface_.get()), &cairo_destroy) {
    cairo_select_font_face(cairo_.get(), "sans-serif", CAIRO_FONT_SLANT_NORMAL,
                           CAIRO_FONT_WEIGHT_NORMAL);
    cairo_set_font_size(cairo_.get(), 10);
    color({1, 1, 1});
    cairo_paint(cairo_.get());
  }

  void finish() {
    cairo_surface_finish(surface_.get());
    if (cairo_surface_status(surface_.get()) != CAIRO_STATUS_SUCCESS) {
      throw std::runtime_error("the picture cannot be written");
    }
  }

  void moveTo(double x, double y) {
    cairo_identity_matrix(cairo_.get());
    cairo_translate(cairo_.get(), x, y);
  }

  void line(const std::vector<std::pair<double, double>>& points, Color of, double width) {
    color(of);
    cairo_set_line_width(cairo_.get(), width);
    cairo_new_path(cairo_.get());
    for (const auto& [x, y] : points) cairo_line_to(cairo_.get(), x, y);
    cairo_stroke(cairo_.get());
  }

  void dot(double x, double y, Color of) {
    color(of);
    cairo_new_path(cairo_.get());
    cairo_arc(cairo_.get(), x, y, 2, 0, 2 * M_PI);
    cairo_fill(cairo_.get());
  }

  /// `anchor` is the part of the text's width that lies left of `x`.
  void text(double x, double y, const std::string& words, Color of, double anchor = 0) {
    cairo_text_extents_t extents;
    cairo_text_extents(cairo_.get(), words.c_str(), &extents);
    color(of);
    cairo_move_to(cairo_.get(), x - anchor * extents.x_advance, y);
    cairo_show_text(cairo_.get(), words.c_str());
  }

 private:
  void color(Color of) { cairo_set_source_rgb(cairo_.get(), of.red, of.green, of.blue); }

  std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)> surface_;
  std::unique_ptr<cairo_t, decltype(&cairo_destroy)> cairo_;
};

/// A power of ten of nanoseconds.
std::string timeOf(double exponent) {
  static constexpr std::array names{"1 ns", "10 ns", "100 ns", "1 µs", "10 µs", "100 µs",
                                    "1 ms", "10 ms", "100 ms", "1 s",  "10 s",  "100 s"};
  return names[std::min(static_cast<std::size_t>(exponent), names.size() - 1)];
}

/// A power of ten.
std::string sizeOf(double exponent) {
  static constexpr std::array names{"1",      "10",      "100",       "1,000",
                                    "10,000", "100,000", "1,000,000", "10,000,000"};
  return names[std::min(static_cast<std::size_t>(exponent), names.size() - 1)];
}

void drawAxes(Drawing& drawing, const Axis& sizes, const Axis& times) {
  for (double each = times.from; each <= times.to; ++each) {
    const double y = top + plotHeight * (1 - times.part(std::pow(10, each)));
    drawing.line({{left, y}, {left + plotWidth, y}}, rule, 0.5);
    drawing.text(left - 5, y + 3.5, timeOf(each), ink, 1);
  }
  for (double each = sizes.from; each <= sizes.to; ++each) {
    const double x = left + plotWidth * sizes.part(std::pow(10, each));
    drawing.line({{x, top}, {x, top + plotHeight}}, rule, 0.5);
    drawing.text(x, top + plotHeight + 14, sizeOf(each), ink, 0.5);
  }
}

/// Where the names stand beside the ends of their lines: in the lines' order, none over another.
std::vector<double> namePlaces(const std::vector<std::pair<double, double>>& ends) {
  std::multimap<double, std::size_t> order;
  for (std::size_t i = 0; i < ends.size(); ++i) order.emplace(ends[i].second, i);
  const double all = lineOfText * static_cast<double>(ends.size());
  std::vector<double> places(ends.size());
  double free = top;
  double rest = all;
  for (const auto& [end, line] : order) {
    const double latest = top + plotHeight + lineOfText - rest;
    places[line] = std::max(free, std::min(end, latest));
    free = places[line] + lineOfText;
    rest -= lineOfText;
  }
  return places;
}

void drawPanel(Drawing& drawing, const Panel& panel) {
  Axis sizes, times;
  for (const Line& line : panel.lines) {
    for (const Point& point : line.points) {
      sizes.take(point.size);
      times.take(point.time);
    }
  }
  drawing.text(left, top - 14, panel.race, ink);
  drawAxes(drawing, sizes, times);
  std::vector<std::pair<double, double>> ends(panel.lines.size());
  for (std::size_t i = panel.lines.size(); i-- > 0;) {
    std::vector<std::pair<double, double>> way;
    for (const Point& point : panel.lines[i].points) {
      way.emplace_back(left + plotWidth * sizes.part(point.size),
                       top + plotHeight * (1 - times.part(point.time)));
    }
    drawing.line(way, colorOf(i), i == 1 ? 2.2 : 1.1);
    for (const auto& [x, y] : way) drawing.dot(x, y, colorOf(i));
    ends[i] = way.back();
  }
  const std::vector<double> places = namePlaces(ends);
  for (std::size_t i = 0; i < panel.lines.size(); ++i) {
    const double x = left + plotWidth + 12;
    drawing.line({{ends[i].first + 4, ends[i].second}, {x, places[i]}}, colorOf(i), 0.4);
    drawing.text(x + 3, places[i] + 3.5, panel.lines[i].contestant, colorOf(i));
  }
}

}  // namespace

void draw(std::span<const Result> results, const std::filesystem::path& file) {
  const std::vector<Panel> panels = panelsOf(results);
  const int count = static_cast<int>(panels.size());
  const int rows = (count + panelsInARow - 1) / panelsInARow;
  Drawing drawing(file, panelsInARow * panelWidth, std::max(rows, 1) * panelHeight);
  for (int i = 0; i < count; ++i) {
    drawing.moveTo(i % panelsInARow * panelWidth, i / panelsInARow * panelHeight);
    drawPanel(drawing, panels[static_cast<std::size_t>(i)]);
  }
  drawing.finish();
}

}  // namespace bench
