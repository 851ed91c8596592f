#pragma once

#include <string>

#include "bench/runner/Result.h"

namespace bench {

/// The table's first lines. It is Markdown, and its columns are of one width besides.
std::string tableHead();

/// One line of it.
std::string tableLine(const Result& result);

}  // namespace bench
