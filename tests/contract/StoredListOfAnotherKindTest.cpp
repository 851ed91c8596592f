#include <gmock/gmock.h>

#include "tests/contract/OpenedList.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

struct Kind {
  std::string name;
  plist::Value stored;
  std::vector<std::string> shown;
};

void PrintTo(const Kind& kind, std::ostream* out) { *out << kind.name; }

plist::Value mixed(std::initializer_list<plist::Value> values) {
  plist::Array array;
  for (const plist::Value& value : values) array.append(value);
  return plist::Value(array);
}

plist::Value text(const char* utf8) { return plist::Value::string(utf8); }

plist::Value dictionary() {
  plist::Dictionary dictionary;
  dictionary.set("Rain", plist::Value(true));
  return plist::Value(dictionary);
}

const Kind kinds[] = {
    {"String", text("Rain"), {}},
    {"EmptyString", text(""), {}},
    {"Number", plist::Value::integer(5), {}},
    {"No", plist::Value(false), {}},
    {"Real", plist::Value::real(0.5), {}},
    {"Date", plist::Value::date(1), {}},
    {"Data", plist::Value::data("Rain"), {}},
    {"Dictionary", dictionary(), {}},
    {"Numbers", mixed({plist::Value::integer(1), plist::Value::integer(2)}), {}},
    {"Mixed",
     mixed({text("Rain"), plist::Value::integer(5), text("Snow"), plist::Value(true),
            mixed({text("Clock")}), dictionary(), text("Rain")}),
     {"Rain", "Snow", "Rain"}},
};

class StoredListOfAnotherKind : public OpenedList, public testing::WithParamInterface<Kind> {
 protected:
  void open() { OpenedList::open({"Clock.lottie", "Rain.lottie"}, GetParam().stored); }
};

TEST_P(StoredListOfAnotherKind, ShowsTheNamesInItAndNotTheDefaults) {
  open();
  EXPECT_EQ(enabled(), GetParam().shown);
  EXPECT_THAT(phone.reports(), IsEmpty());
}

TEST_P(StoredListOfAnotherKind, DisablesWhatItDoesNotName) {
  open();
  if (GetParam().shown.empty()) {
    EXPECT_THAT(disabled(), UnorderedElementsAre("Clock", "Rain"));
  } else {
    EXPECT_THAT(disabled(), ElementsAre("Clock"));
  }
}

TEST_P(StoredListOfAnotherKind, IsNotTouchedByOpeningAndLeaving) {
  for (const plist::Form form : {plist::Form::Xml, plist::Form::Binary}) {
    phone.putFile(fileWith(GetParam().stored), form);
    const auto bytes = phone.fileBytes();
    phone.putAnimations({"Clock.lottie", "Rain.lottie"});
    visit();
    phone.list();
    phone.back();
    EXPECT_EQ(phone.fileBytes(), bytes);
  }
}

TEST_P(StoredListOfAnotherKind, GivesWayToTheFirstChange) {
  open();
  phone.insert(disabledRow("Clock"));
  Names names = GetParam().shown;
  names.insert(names.begin(), "Clock");
  EXPECT_EQ(phone.file(), fileWith(list(names)));
  EXPECT_EQ(phone.serviceValue(key), list(names));
}

INSTANTIATE_TEST_SUITE_P(Stored, StoredListOfAnotherKind, testing::ValuesIn(kinds),
                         [](const auto& kind) { return kind.param.name; });

}  // namespace
