#include "tests/device/macho/Archive.h"

#include <fstream>
#include <regex>
#include <stdexcept>

#include "tests/device/macho/Command.h"

namespace phone_tests {

namespace {

Member memberOf(const std::string& line) {
  static const std::regex columns(R"((\S+) (\S+) +\d+ (\S+ \S+) (.+))");
  std::smatch parts;
  if (!std::regex_match(line, parts, columns)) throw std::runtime_error("no member: " + line);
  return {parts[1], parts[2], parts[3], parts[4]};
}

}  // namespace

Archive::Archive(const std::string& bytes) { std::ofstream(path_, std::ios::binary) << bytes; }

std::vector<Member> Archive::members() const {
  std::vector<Member> members;
  for (const std::string& line :
       linesOf(output({"tar", "--list", "--verbose", "--numeric-owner", "--full-time", "--utc",
                       "--file", path_.string()}))) {
    members.push_back(memberOf(line));
  }
  return members;
}

std::string Archive::file(const std::string& name) const {
  return output({"tar", "--extract", "--to-stdout", "--file", path_.string(), name});
}

}  // namespace phone_tests
