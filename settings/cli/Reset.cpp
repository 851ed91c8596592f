#include "settings/cli/Reset.h"

#include <iostream>
#include <unistd.h>

#include "desktop/Foundation/Values.h"
#include "settings/cli/Hands.h"
#include "settings/cli/Values.h"
#include "settings/cli/Words.h"

namespace settings::cli {

namespace {

constexpr const char* resetAction = "resetPreferences";

/// Whether whoever sits at the terminal says yes. Throws `UsageError` when nobody does.
bool isConfirmed(const std::string& question) {
  if (!isatty(STDIN_FILENO) || !isatty(STDERR_FILENO)) {
    throw UsageError('"' + question + "\" needs --yes where there is no terminal to ask on");
  }
  std::cerr << question << " [y/N] " << std::flush;
  std::string answer;
  std::getline(std::cin, answer);
  return isSameWord(answer, "y") || isSameWord(answer, "yes");
}

}  // namespace

std::string reset(Hands& hands, const Request& request) {
  hands.tapRow(resetAction);
  const std::string question = desktop::textOf(hands.alert().message);
  const bool confirmed = request.yes || hands.waitFor([&] { return isConfirmed(question); });
  hands.answerAlert(confirmed);
  if (!confirmed) throw std::runtime_error("nothing was reset");
  // What is not stored counts from here on only: the deletion to come makes good what clearing
  // cannot.
  hands.wait();
  return request.json ? printed({{"reset", true}}) : "";
}

}  // namespace settings::cli
