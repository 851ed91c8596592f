#include "tests/device/macho/MachO.h"

#include <optional>
#include <regex>
#include <stdexcept>

#include "tests/device/macho/Command.h"

namespace phone_tests {

namespace {

using Path = std::filesystem::path;

std::vector<std::string> ask(const Path& file, const std::string& question) {
  return linesOf(output({"/usr/lib/llvm-14/bin/llvm-objdump", "--macho", question, file.string()}));
}

/// "  name Foundation (offset 24)" without the offset, which is of no interest.
void addField(LoadCommand& command, const std::string& line) {
  static const std::regex field(R"(\s*(\S+)\s*(.*?)(?: \(offset \d+\))?\s*)");
  std::smatch parts;
  if (std::regex_match(line, parts, field)) command.emplace(parts[1], parts[2]);
}

/// The name behind the prefix; none when the text does not begin with it.
std::optional<std::string> behind(const std::string& prefix, const std::string& text) {
  if (!text.starts_with(prefix)) return std::nullopt;
  return text.substr(prefix.size());
}

constexpr const char* classSymbol = "_OBJC_CLASS_$_";

/// Takes the dump's lines one by one. A class begins with "ADDRESS VALUE SYMBOL"; what follows
/// until its metaclass is its own.
class ClassReader {
 public:
  void take(const std::vector<std::string>& words) {
    if (words.size() >= 2 && words[0].size() == 16 && words[1].starts_with("0x")) {
      name_ = words.size() == 3 ? behind(classSymbol, words[2]) : std::nullopt;
      inMethods_ = false;
    } else if (words.size() >= 2 && words[0] == "Meta" && words[1] == "Class") {
      name_.reset();
    } else if (name_ && !words.empty()) {
      takeField(words);
    }
  }

  std::map<std::string, ClassFacts> classes;

 private:
  void takeField(const std::vector<std::string>& words) {
    if (words[0] == "superclass" && words.size() == 3) {
      classes[*name_].superclass = behind(classSymbol, words[2]).value_or(words[2]);
    } else if (words[0].starts_with("base")) {
      inMethods_ = words[0] == "baseMethods";
    } else if (inMethods_ && words[0] == "name" && words.size() == 3) {
      classes[*name_].methods.insert(words[2]);
    }
  }

  std::optional<std::string> name_;
  bool inMethods_ = false;
};

}  // namespace

std::set<std::string> headerOf(const Path& file) {
  const std::vector<std::string> lines = ask(file, "--private-header");
  if (lines.empty()) throw std::runtime_error(file.string() + " has no Mach header");
  const std::vector<std::string> words = wordsOf(lines.back());
  return {words.begin(), words.end()};
}

std::vector<LoadCommand> loadCommandsOf(const Path& file) {
  std::vector<LoadCommand> commands;
  for (const std::string& line : ask(file, "--private-headers")) {
    if (line.starts_with("Load command ")) {
      commands.emplace_back();
    } else if (!commands.empty()) {
      addField(commands.back(), line);
    }
  }
  return commands;
}

std::set<std::string> sectionsOf(const Path& file) {
  std::set<std::string> names;
  for (const std::string& line : ask(file, "--private-headers")) {
    const std::vector<std::string> words = wordsOf(line);
    if (words.size() == 2 && words[0] == "sectname") names.insert(words[1]);
  }
  return names;
}

std::map<std::string, bool> librariesOf(const Path& file) {
  std::map<std::string, bool> libraries;
  for (const LoadCommand& command : loadCommandsOf(file)) {
    const std::string& kind = command.at("cmd");
    if (kind.starts_with("LC_LOAD_") && kind.ends_with("DYLIB")) {
      libraries.emplace(command.at("name"), kind == "LC_LOAD_WEAK_DYLIB");
    }
  }
  return libraries;
}

std::set<Import> importsOf(const Path& file) {
  std::set<Import> imports;
  for (const char* table : {"--bind", "--lazy-bind"}) {
    for (const std::string& line : ask(file, table)) {
      if (!line.starts_with("__DATA")) continue;
      std::vector<std::string> words = wordsOf(line);
      const bool mayBeMissing = words.back() == "(weak_import)";
      if (mayBeMissing) words.pop_back();
      imports.insert({words.at(words.size() - 2), words.back(), mayBeMissing});
    }
  }
  return imports;
}

std::vector<std::string> weakBindingsOf(const Path& file) {
  std::vector<std::string> lines = ask(file, "--weak-bind");
  std::erase_if(lines, [](const std::string& line) { return !line.starts_with("__"); });
  return lines;
}

std::map<std::string, ClassFacts> classesOf(const Path& file) {
  ClassReader reader;
  for (const std::string& line : ask(file, "--objc-meta-data")) reader.take(wordsOf(line));
  return reader.classes;
}

}  // namespace phone_tests
