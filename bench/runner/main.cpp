#include <CLI/CLI.hpp>
#include <algorithm>
#include <fstream>
#include <iostream>
#include <set>
#include <string>
#include <vector>

#include "bench/runner/Contest.h"
#include "bench/runner/Measures.h"
#include "bench/runner/Picture.h"
#include "bench/runner/Table.h"

namespace {

using namespace bench;

struct Wish {
  std::vector<std::string> only;
  std::string json;
  std::string picture;
  Ground ground;
};

/// Everything that was found, printed as it comes.
class Report {
 public:
  void add(const Result& result) {
    std::cout << tableLine(result) << std::endl;
    results_.push_back(result);
  }

  /// What did not run at all is said, and the rest goes on.
  void fail(std::string_view name, const std::exception& failure) {
    std::cerr << name << ": " << failure.what() << std::endl;
    failed_ = true;
  }

  bool allHolds() const {
    return !failed_ && std::ranges::all_of(
                           results_, [](const Result& one) { return one.holds.value_or(true); });
  }

  void write(const std::string& file) const {
    std::ofstream out(file);
    for (const Result& result : results_) out << toJson(result) << '\n';
  }

  void draw(const std::string& file) const { bench::draw(results_, file); }

 private:
  std::vector<Result> results_;
  bool failed_ = false;
};

bool isWished(const Wish& wish, std::string_view name) {
  return wish.only.empty() || std::ranges::find(wish.only, name) != wish.only.end();
}

void runRaces(const Wish& wish, Report& report) {
  for (const Race& race : races()) {
    if (!isWished(wish, race.name)) continue;
    for (const Distance& distance : race.distances) try {
        run(race, distance, wish.ground, [&](const Result& result) { report.add(result); });
      } catch (const std::exception& failure) {
        report.fail(race.name, failure);
      }
  }
}

void runMeasures(const Wish& wish, Report& report) {
  for (const Measure& measure : measures()) {
    if (!isWished(wish, measure.name)) continue;
    try {
      run(measure, [&](const Result& result) { report.add(result); });
    } catch (const std::exception& failure) {
      report.fail(measure.name, failure);
    }
  }
}

std::string rows() {
  std::string text = "What is measured:\n";
  for (const Race& race : races()) {
    text += "  " + std::string(race.name) + ": " + std::string(race.what) + '\n';
  }
  for (const Measure& measure : measures()) {
    text += "  " + std::string(measure.name) + ": " + std::string(measure.what) + '\n';
  }
  return text;
}

}  // namespace

int main(int argc, char** argv) try {
  Wish wish{
      .only = {}, .json = {}, .picture = {}, .ground = {"build/bench/bench", "build/bench/races"}};
  CLI::App app(
      "Measures how fast the program is, beside others and beside what the machine allows.",
      "bench/run");
  app.footer(rows());
  app.add_option("--only", wish.only, "Only this row; may be given again")->type_name("NAME");
  app.add_option("--json", wish.json, "Also writes the results there, a line of JSON each")
      ->type_name("FILE");
  app.add_option("--picture", wish.picture, "Also draws how time grows with size, as SVG")
      ->type_name("FILE");
  CLI11_PARSE(app, argc, argv);

  Report report;
  std::cout << tableHead() << std::endl;
  runRaces(wish, report);
  runMeasures(wish, report);
  if (!wish.json.empty()) report.write(wish.json);
  if (!wish.picture.empty()) report.draw(wish.picture);
  return report.allHolds() ? EXIT_SUCCESS : EXIT_FAILURE;
} catch (const std::exception& failure) {
  std::cerr << "bench/run: " << failure.what() << '\n';
  return EXIT_FAILURE;
}
