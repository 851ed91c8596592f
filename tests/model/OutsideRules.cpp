#include <array>

#include "tests/model/Operation.h"

/// What somebody else does to the phone.
namespace model {

namespace {

using support::Driver;

constexpr const char* garbage = "no property list";

/// Values that the key's owner takes, next to some that it does not.
Item switchItem(unsigned number) {
  const std::array<Item, 8> items = {
      true, false, 0LL, 2LL, 0.0, std::string("YES"), std::string("NO"), Names{"Rain"}};
  return items[number % items.size()];
}

Item sliderItem(unsigned number) {
  const std::array<Item, 6> items = {
      static_cast<long long>(number % 400) - 200, 12.5, -300.0, true, std::string("far"), Names{}};
  return items[number % items.size()];
}

Item segmentItem(unsigned number) {
  const std::array<Item, 7> items = {1LL, 2LL, 3LL, true, 2.0, std::string("2"), Names{}};
  return items[number % items.size()];
}

Item colorItem(unsigned number) {
  const std::array<Item, 5> items = {std::string("80aabbcc"), std::string("AABBCC"),
                                     std::string("none"), 5LL, Names{"f69240"}};
  return items[number % items.size()];
}

Item listItem(unsigned number) {
  const std::array<Item, 9> items = {Names{"Rain"},
                                     Names{"Gone", "Rain", "Snow"},
                                     Names{},
                                     Names{"Rain", "Rain", "Wind", "Rain"},
                                     Names{"Snow", "Rain", "Snow"},
                                     Names{"Clock", "Caf\u00e9"},
                                     std::string("Rain"),
                                     7LL,
                                     true};
  return items[number % items.size()];
}

/// A key of those that the bundle knows, or another one.
std::pair<std::string, Item> entry(unsigned first, unsigned second) {
  constexpr std::array items = {&switchItem, &sliderItem, &segmentItem, &colorItem};
  const auto rows = settings();
  const std::size_t which = first % (rows.size() + 12);
  if (which < rows.size()) {
    return {rows[which].key, items[static_cast<std::size_t>(rows[which].control)](second)};
  }
  if (which == rows.size()) return {"enabledSwitch", switchItem(second)};
  if (which == rows.size() + 1) return {"showedWelcomeVC", switchItem(second)};
  if (which == rows.size() + 2) return {"foreign", colorItem(second)};
  return {"enabledLotties", listItem(second)};
}

Deed put(Screen& screen, const std::string& what, const Items& items, plist::Form form) {
  screen.store.replace(items, form);
  return {what, [items, form](Driver& phone) {
            plist::Dictionary dictionary;
            for (const auto& [key, item] : items) dictionary.set(key, valueOf(item));
            phone.putFile(dictionary, form);
          }};
}

plist::Form formOf(unsigned number) {
  return number % 2 == 0 ? plist::Form::Xml : plist::Form::Binary;
}

Deed replaceFile(Screen& screen, unsigned first, unsigned second) {
  Items items;
  std::mt19937 random(first);
  for (unsigned count = second % 8; count > 0; --count) {
    const auto which = static_cast<unsigned>(random() % 10000);
    items.insert(entry(which, static_cast<unsigned>(random() % 10000)));
  }
  return put(screen, std::to_string(items.size()), items, formOf(first));
}

Deed changeFile(Screen& screen, unsigned first, unsigned second) {
  Items items = screen.store.items;
  const auto [key, item] = entry(first, second);
  items[key] = item;
  return put(screen, key, items, formOf(second / 16));
}

Deed removeFile(Screen& screen, unsigned, unsigned) {
  screen.store.remove();
  return {"", &Driver::removeFile};
}

Deed spoilFile(Screen& screen, unsigned, unsigned) {
  screen.store.spoil();
  return {"", [](Driver& phone) { phone.putFile(garbage); }};
}

Deed replaceAnimations(Screen&, unsigned first, unsigned) {
  constexpr std::array files = {"Clock.lottie", "Rain.lottie",    "Snow.lottie", "Wind.lottie/",
                                "a.b.lottie",   "Rain.LOTTIE",    "notes.txt",   "Caf\u00e9.lottie",
                                "Hail.lottie",  "Hail.lottie.bak"};
  Names chosen;
  for (std::size_t i = 0; i < files.size(); ++i) {
    if ((first >> i) % 2 == 0) chosen.emplace_back(files[i]);
  }
  return {std::to_string(chosen.size()), [chosen](Driver& phone) { phone.putAnimations(chosen); }};
}

Deed renewSystem(Screen& screen, unsigned first, unsigned) {
  const char* const version = first % 2 == 0 ? "14.3" : "12.5";
  screen.hasWelcome = first % 2 == 0;
  return {version, [version](Driver& phone) {
            phone.setDevice({std::nullopt, version, std::nullopt});
          }};
}

bool always(const Screen&) { return true; }
bool isReadable(const Screen& screen) { return screen.store.state == Store::State::Readable; }

}  // namespace

std::vector<Rule> outsideRules() {
  return {
      {"replace the file, keys:", 2, &always, &replaceFile},
      {"change in the file", 6, &isReadable, &changeFile},
      {"remove the file", 1, &always, &removeFile},
      {"spoil the file", 1, &always, &spoilFile},
      {"replace the animations, files:", 1, &always, &replaceAnimations},
      {"renew the system to", 1, &always, &renewSystem},
  };
}

}  // namespace model
