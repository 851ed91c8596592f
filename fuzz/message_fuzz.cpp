#include <algorithm>

#include "fuzz/Input.h"
#include "fuzz/Visit.h"

namespace {

/// More would only make inputs slow.
constexpr std::size_t maximumLines = 48;

}  // namespace

/// What a page says over its WebSocket, a message on each line, to a phone that was just switched
/// on. "wait" lets a second pass, and a line that begins with "<" is a preferences file, which
/// another program puts there. In the first line "new" makes the system one on which the add-on
/// introduces itself.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  static fuzz::Installation installation;
  fuzz::Visit visit(installation.restored());
  std::vector<std::string_view> lines = fuzz::split(fuzz::view(bytes, size), '\n');
  lines.resize(std::min(lines.size(), maximumLines));
  auto next = lines.begin();
  if (next != lines.end() && *next == "new") {
    visit.bringUpToDate();
    ++next;
  }
  if (next != lines.end() && next->starts_with('<')) visit.store(*next++);
  visit.open();
  for (; next != lines.end(); ++next) {
    if (next->starts_with('<')) {
      visit.store(*next);
    } else {
      visit.say(*next);
    }
  }
  return 0;
}
