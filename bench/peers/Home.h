#pragma once

#include <filesystem>

namespace bench {

/// Makes `folder` the home of this program and of those that it starts: whatever a library keeps
/// for a user is kept below it, and no session of the user's own is talked to. To be called before
/// the first use of the library.
void liveIn(const std::filesystem::path& folder);

/// The same for GNUstep, which takes its places from the environment before `main` begins: to be
/// called first there, with a contestant's arguments. Starts this program again, in its new home.
void startAtHome(int argc, char** argv);

}  // namespace bench
