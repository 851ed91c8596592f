#pragma once

#include <map>
#include <set>
#include <string>

namespace phone_tests {

/// The declared imports: install names and symbols of the libraries in device/stubs that serve
/// this layout. The files are text stubs, version 4 (LLVM's llvm/TextAPI).
std::map<std::string, std::set<std::string>> declaredImports(const std::string& layout);

}  // namespace phone_tests
