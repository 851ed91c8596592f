#include "tests/promises/server/Times.h"

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <sstream>

#include "tests/support/Figures.h"

namespace promises {

double Times::at(double share) const {
  if (times_.empty()) return 0;
  std::vector<Clock::duration> sorted = times_;
  std::ranges::sort(sorted);
  const auto rank = static_cast<std::size_t>(std::ceil(share * static_cast<double>(sorted.size())));
  return std::chrono::duration<double, std::milli>(sorted[rank - 1]).count();
}

std::string Times::text() const {
  std::ostringstream text;
  text << std::fixed << std::setprecision(1) << "p99 " << p99() << " ms, longest " << longest()
       << " ms, of " << support::grouped(times_.size());
  return text.str();
}

}  // namespace promises
