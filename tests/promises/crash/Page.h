#pragma once

#include "tests/promises/crash/Change.h"

namespace crash_tests {

/// Does with the served program what somebody at a browser does: reads its address from `output`,
/// and touches. Whether the last touch was acknowledged: its answer is an update, after which the
/// screen shows the new value, and no word of anything that failed.
bool touchPage(const Change& change, int output);

}  // namespace crash_tests
