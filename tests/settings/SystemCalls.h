#pragma once

#include <functional>
#include <map>
#include <string>

namespace settings_tests {

/// How many system calls there were of a kind: "open", "create" (an open that makes a file),
/// "write", "rename", "sync", and "other change" for what else changes files or folders
/// (ptrace(2)).
using SystemCalls = std::map<std::string, int>;

/// Does the work in a child of this process, and counts what it asks of the system. What it does to
/// files stays, what it does in memory goes with the child. Throws `std::runtime_error` when the
/// work fails.
SystemCalls systemCallsOf(const std::function<void()>& work);

}  // namespace settings_tests
