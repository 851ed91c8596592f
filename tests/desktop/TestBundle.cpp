#include "tests/desktop/TestBundle.h"

#include "desktop/Foundation/Values.h"
#include "platform/Bundle.h"

namespace desktop_tests {

namespace {

class RefusingPage : public TestPage {
 public:
  bool init() override { return false; }
};

template <class Page>
std::shared_ptr<platform::UIViewController> makePage() {
  return std::make_shared<Page>();
}

std::string keyOf(const platform::PSSpecifier& row) {
  return desktop::textOf(row.propertyForKey("key"));
}

}  // namespace

std::span<const platform::Method> TestPage::methods() const {
  static constexpr platform::Method table[] = {
      platform::method<&TestPage::readValue>("readPreferenceValue:"),
      platform::method<&TestPage::storeValue>("setPreferenceValue:specifier:"),
      platform::method<&TestPage::act>("act:"),
  };
  return table;
}

platform::Object TestPage::readValue(const platform::PSSpecifier& row) {
  const auto found = values.find(keyOf(row));
  return found == values.end() ? platform::Object() : desktop::box(found->second);
}

void TestPage::storeValue(const platform::Object& value, const platform::PSSpecifier& row) {
  written.emplace_back(keyOf(row), desktop::unbox(value));
}

void TestPage::act(const platform::PSSpecifier& row) {
  acted.push_back(desktop::textOf(desktop::bodyAs<desktop::SpecifierBody>(row)->name));
}

void TestPage::load(const char* resource) { rows = loadSpecifiersFromPlistName(resource, *this); }

platform::PSSpecifier makeRow(TestPage& page, platform::PSCellType cell,
                              const std::vector<std::pair<std::string, plist::Value>>& properties) {
  auto row = platform::PSSpecifier::preferenceSpecifierNamed(
      "Row", page, "setPreferenceValue:specifier:", "readPreferenceValue:", platform::Class(), cell,
      platform::Class());
  for (const auto& [key, value] : properties) {
    desktop::bodyAs<desktop::SpecifierBody>(row)->setProperty(desktop::box(value), key);
  }
  return row;
}

}  // namespace desktop_tests

std::span<const platform::ControllerClass> platform::bundleClasses() {
  static constexpr ControllerClass classes[] = {
      {"TestPage", &desktop_tests::makePage<desktop_tests::TestPage>},
      {"RefusingPage", &desktop_tests::makePage<desktop_tests::RefusingPage>},
  };
  return classes;
}
