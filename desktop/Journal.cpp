#include "desktop/Journal.h"

#include <charconv>

#include "desktop/Body.h"
#include "desktop/Overloaded.h"

namespace desktop {

namespace {

std::string shortest(double number) {
  char text[32];
  return {text, std::to_chars(text, text + sizeof text, number).ptr};
}

}  // namespace

std::string Argument::text() const {
  return std::visit(Overloaded{
                        [](const platform::Object* object) { return debugDescription(*object); },
                        [](bool yes) { return std::string(yes ? "YES" : "NO"); },
                        [](double number) { return shortest(number); },
                        [](std::string_view name) { return std::string(name); },
                    },
                    value_);
}

void Journal::record(std::string_view receiver, std::string_view selector,
                     std::initializer_list<Argument> arguments) {
  std::string line = std::string(receiver) + ' ';
  auto argument = arguments.begin();
  for (const char letter : selector) {
    line += letter;
    if (letter == ':' && argument != arguments.end()) line += argument++->text() + ' ';
  }
  if (line.ends_with(' ')) line.pop_back();
  lines_.push_back(std::move(line));
}

}  // namespace desktop
