#include "bench/runner/Competitor.h"

#include <algorithm>
#include <cmath>
#include <iostream>
#include <optional>
#include <stdexcept>
#include <sysexits.h>

namespace bench {

namespace {

/// Short enough that other programs leave many a batch alone on a busy machine.
constexpr double nanosecondsWanted = 5e6;

/// How many times more operations are tried at once while the length of a batch is looked for.
constexpr double greatestStep = 10;

}  // namespace

Competitor::Competitor(const Entry& entry, std::string_view task, std::size_t size,
                       const std::filesystem::path& programs, const std::filesystem::path& folder)
    : name_(entry.name), folder_(folder) {
  const std::filesystem::path program = programs / entry.program;
  if (!std::filesystem::exists(program)) return;
  std::filesystem::remove_all(folder);
  std::filesystem::create_directories(folder);
  program_ = std::make_unique<Program>(std::vector<std::string>{
      program.native(), std::string(task), std::to_string(size), folder.native()});
  if (program_->readLine() == "ready") {
    findBatch();
    return;
  }
  const int status = program_->wait();
  program_.reset();
  if (status != EX_UNAVAILABLE) {
    std::cerr << name_ << " failed with status " << status << std::endl;
  }
}

Competitor::~Competitor() {
  program_.reset();
  std::error_code ignored;
  std::filesystem::remove_all(folder_, ignored);
}

double Competitor::time(std::size_t operations) {
  program_->writeLine(std::to_string(operations));
  const std::optional<std::string> answer = program_->readLine();
  if (!answer) throw std::runtime_error(name_ + " ended in the middle of a race");
  return std::stod(*answer);
}

void Competitor::findBatch() {
  for (;;) {
    nanosecondsOfBatch_ = time(batch_);
    const double factor = std::min(nanosecondsWanted / (nanosecondsOfBatch_ + 1), greatestStep);
    if (factor < 1.5) return;
    batch_ = static_cast<std::size_t>(std::ceil(static_cast<double>(batch_) * factor));
  }
}

}  // namespace bench
