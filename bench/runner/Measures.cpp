#include "bench/runner/Measures.h"

#include <stdexcept>

#include "bench/runner/Program.h"

namespace bench {

std::span<const Measure> measures() {
  static const std::vector<Measure> all = {
      {"memory",
       "memory of the program while nobody does anything, before and after its page was opened",
       {"node", "bench/browser/memory.js", "--program", "build/bench/settings/quillmere-settings",
        "--listen", "build/bench/bench/limits/listen"}},
      {"browser",
       "the page in headless Chromium beside the smallest page with a WebSocket, whose server "
       "replaces and syncs a file of the same bytes for each tap: from the tap to the frame that "
       "shows the answer, the first paint, and a long list being scrolled",
       {"node", "bench/browser/run.js", "--program", "build/bench/settings/quillmere-settings",
        "--minimal", "build/bench/bench/browser/minimal"}},
      {"bundle-size",
       "the phone's bundle, as ./build-device makes it",
       {"build/bench/bench/ours/sizes"}},
      {"rescale-quality",
       "how near a picture of 1024 x 1024 pixels, scaled to 120 points, is to what vips makes",
       {"build/bench/bench/ours/picture-quality", "build/bench/bench/picture-quality"}},
  };
  return all;
}

void run(const Measure& measure, const std::function<void(const Result&)>& found) {
  Program program(measure.command);
  program.endInput();
  while (const auto line = program.readLine()) found(fromJson(*line));
  if (const int status = program.wait(); status != 0) {
    throw std::runtime_error(std::string(measure.name) + " failed with status " +
                             std::to_string(status));
  }
}

}  // namespace bench
