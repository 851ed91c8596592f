#pragma once

#include <span>
#include <stdexcept>
#include <string>
#include <vector>

namespace settings::cli {

class Hands;

/// A mistake of whoever gave the command: a key, a name or a value that nothing offers. `what()` is
/// the message for them.
class UsageError : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// What was given with a sub-command.
struct Request {
  /// As many as the sub-command names.
  std::vector<std::string> arguments;
  /// Whether the answer is to be JSON.
  bool json = false;
  /// Whether what cannot be undone is confirmed.
  bool yes = false;
  /// Whether the respring that a change offers is confirmed.
  bool respring = false;
};

/// A flag that some sub-commands take.
struct Flag {
  const char* name;  ///< "--json".
  const char* meaning;
  bool Request::*part;
};

/// All flags; a sub-command takes some of them.
std::span<const Flag> flags();

/// What the command line can ask for instead of the page.
struct SubCommand {
  struct Argument {
    const char* name;  ///< "KEY".
    const char* meaning;
  };

  const char* name;  ///< "get"; one below another has both names: "lotties move".
  const char* meaning;
  std::vector<Argument> arguments;
  std::vector<std::string> flags;  ///< Their names.
  const char* example;             ///< What stands behind the program's name.
  /// Whether it changes something, and so makes a phone where there is none yet.
  enum class Effect { Reads, Changes } effect;

  /// Does it; what is to be printed. Throws `UsageError`, and `std::runtime_error` when it could
  /// not be done, each with a message for the user.
  std::string (*perform)(Hands& hands, const Request& request);
};

/// All sub-commands, those below one other side by side.
std::span<const SubCommand> subCommands();

}  // namespace settings::cli
