#include "settings/cli/Hands.h"

#include <algorithm>
#include <stdexcept>

#include "desktop/Foundation/PropertyListFile.h"
#include "desktop/Preferences/SpecifierBody.h"
#include "prefs/Quillmere.h"
#include "settings/Overlay.h"
#include "settings/Touch.h"
#include "settings/cli/Words.h"

namespace settings::cli {

using quillmere::preferencesFile;
using Phase = desktop::SpringBoard::Phase;

namespace {

std::string actionOf(const desktop::AnyCell& cell) {
  const auto* row = std::get_if<desktop::ActionCell>(&cell);
  return row ? desktop::bodyAs<desktop::SpecifierBody>(row->specifier())->action : "";
}

bool cancels(const platform::UIAlertAction& action) {
  return desktop::bodyAs<desktop::AlertActionBody>(action)->style ==
         platform::UIAlertActionStyle::Cancel;
}

}  // namespace

Hands::Hands(const Options& options)
    : session_(options, loop_),
      timer_(loop_, session_.phone.mainQueue, [this] { session_.runQueue(); }) {
  const SubCommand* const command = options.subCommand;
  if (command && command->effect == SubCommand::Effect::Changes) held_.emplace(session_.alone());
  session_.phone.report = [say = session_.phone.report](const std::string& line) {
    say(visible(line));
  };
  clearScreen();
}

void Hands::tapRow(std::string_view action) {
  for (const desktop::Section& section : pages().top().sections) {
    for (const desktop::AnyCell& cell : section.cells) {
      if (actionOf(cell) == action) return std::get<desktop::ActionCell>(cell).tap();
    }
  }
  throw std::runtime_error("no row of the page does \"" + std::string(action) + '"');
}

const desktop::AlertBody& Hands::alert() {
  const auto* shown = desktop::bodyAs<desktop::AlertBody>(pages().presented());
  if (!shown) throw std::runtime_error("the page did not ask whether that is wanted");
  return *shown;
}

void Hands::answerAlert(bool confirmed) {
  const auto& actions = alert().actions;
  const auto answer = std::ranges::find(actions, !confirmed, &cancels);
  if (answer == actions.end()) throw std::runtime_error("the page's question has no such answer");
  settings::answerAlert(pages(), *answer);
}

void Hands::tellOfUnreadable() const {
  try {
    readPropertyList(session_.phone.folder, preferencesFile);
  } catch (const desktop::UnreadableFile& reason) {
    session_.phone.report(std::string(preferencesFile) + " cannot be read (" + reason.what() +
                          "): shown is what counts without it");
  }
}

bool Hands::waitFor(const std::function<bool()>& person) {
  held_.reset();
  const bool answer = person();
  held_.emplace(session_.alone());
  return answer;
}

void Hands::change(const std::function<void()>& touch) {
  const std::size_t losses = session_.phone.losses;
  if (!held_) held_.emplace(session_.alone());
  if (leaveOutdatedPage(board())) {
    throw std::runtime_error("what is stored is not what it was at first: nothing was changed");
  }
  touch();
  held_.reset();    // The user's commands may take their time.
  loop_.restart();  // The change before this one left the loop out of work, and so stopped.
  while (!board().isStuck() && loop_.run_one() > 0) {
  }
  if (session_.phone.losses != losses)
    throw std::runtime_error("the change was not stored where it belongs (see above)");
  if (board().phase() != Phase::Running) throw std::runtime_error("the phone did not restart");
}

}  // namespace settings::cli
