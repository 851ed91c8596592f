#include "bench/runner/Result.h"

#include <array>
#include <cstdio>
#include <nlohmann/json.hpp>
#include <stdexcept>

namespace bench {

namespace {

using nlohmann::json;

template <class T>
json orNull(const std::optional<T>& value) {
  return value ? json(*value) : json(nullptr);
}

template <class T>
std::optional<T> optionalIn(const json& line, const char* key) {
  const auto found = line.find(key);
  if (found == line.end() || found->is_null()) return std::nullopt;
  return found->get<T>();
}

// What must hold may be given as the number that the ratio may reach.
std::string mustIn(const json& line) {
  const auto found = line.find("must");
  if (found == line.end() || found->is_null()) return "";
  return found->is_string() ? found->get<std::string>() : "≤ " + found->dump();
}

}  // namespace

std::string rounded(double number) {
  std::array<char, 32> text;
  std::snprintf(text.data(), text.size(),
                number < 10    ? "%.2f"
                : number < 100 ? "%.1f"
                               : "%.0f",
                number);
  return text.data();
}

std::string toJson(const Result& result) {
  return nlohmann::ordered_json{{"race", result.race},
                                {"size", result.size},
                                {"contestant", result.contestant},
                                {"unit", result.unit},
                                {"median", result.median},
                                {"ratio", orNull(result.ratio)},
                                {"lowest", orNull(result.lowest)},
                                {"highest", orNull(result.highest)},
                                {"must", result.must},
                                {"holds", orNull(result.holds)}}
      .dump();
}

Result fromJson(std::string_view text) try {
  const json line = json::parse(text);
  return {.race = line.at("race"),
          .size = line.value("size", std::size_t{0}),
          .contestant = line.at("contestant"),
          .unit = line.at("unit"),
          .median = line.at("median"),
          .ratio = optionalIn<double>(line, "ratio"),
          .lowest = optionalIn<double>(line, "lowest"),
          .highest = optionalIn<double>(line, "highest"),
          .must = mustIn(line),
          .holds = optionalIn<bool>(line, "holds")};
} catch (const json::exception& mistake) {
  throw std::invalid_argument(std::string(text) + ": " + mistake.what());
}

}  // namespace bench
