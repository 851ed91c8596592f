#include <fstream>
#include <gtest/gtest.h>

#include "desktop/Foundation/ArrayBody.h"
#include "desktop/Overloaded.h"
#include "tests/support/DesktopState.h"
#include "tests/support/Driver.h"
#include "tests/support/Record.h"

namespace support {

using desktop::bodyAs;
using desktop::debugDescription;

namespace {

constexpr const char* ownDomain = "com.orvalen.quillmere";

std::string pathOf(const std::string& domain) {
  return "/User/Library/Preferences/" + (domain.empty() ? ownDomain : domain) + ".plist";
}

RowFacts factsOf(const platform::Object& object) {
  const auto& row = *bodyAs<desktop::SpecifierBody>(object);
  RowFacts facts{
      debugDescription(row.name), static_cast<long long>(row.cell), row.set, row.get, {}, {}, {}};
  for (const auto& [key, value] : row.properties) {
    facts.properties.emplace_back(key, debugDescription(value));
  }
  if (row.values) facts.values = debugDescription(row.values);
  if (row.titles) facts.titles = debugDescription(row.titles);
  return facts;
}

std::string shownBy(const desktop::AnyCell& any) {
  return std::visit(
      desktop::Overloaded{
          [](const desktop::SwitchCell& cell) { return std::string(cell.isOn() ? "on" : "off"); },
          [](const desktop::SliderCell& cell) { return desktop::Argument(cell.value()).text(); },
          [](const desktop::SegmentCell& cell) {
            return cell.selected() ? cell.titles()[*cell.selected()] : std::string("none");
          },
          [](const desktop::ColorCell& cell) { return cell.color().web(); },
          [](const desktop::Cell& cell) { return cell.label(); },
      },
      any);
}

}  // namespace

Driver::Driver() : Driver(std::make_unique<TemporaryFolder>()) {}
Driver::Driver(std::unique_ptr<TemporaryFolder> folder) : Driver(folder->path) {
  folder_ = std::move(folder);
}
Driver::Driver(const std::filesystem::path& folder) : state_(std::make_unique<State>(folder)) {
  forget();
}
Driver::~Driver() { record(journal()); }

void Driver::tap(const std::string& label) {
  state_
      ->cell<desktop::ActionCell>(
          label, [&](const desktop::ActionCell& cell) { return cell.label() == label; })
      .tap();
}

void Driver::back() { state_->navigation().pop(); }

void Driver::toggle(const std::string& key, bool on) {
  state_->keyed<desktop::SwitchCell>(key).toggle(on);
}

void Driver::slide(const std::string& key, double value) {
  state_->keyed<desktop::SliderCell>(key).slide(value);
}

void Driver::select(const std::string& key, std::size_t index) {
  state_->keyed<desktop::SegmentCell>(key).select(index);
}

void Driver::pick(const std::string& key, const std::string& color) {
  state_->keyed<desktop::ColorCell>(key).pick(desktop::HexColor::parseWeb(color).value());
}

std::string Driver::shown(const std::string& key) const {
  for (const desktop::Section& section : state_->top().sections) {
    for (const desktop::AnyCell& any : section.cells) {
      if (std::visit([&](const auto& cell) { return cell.key() == key; }, any)) {
        return shownBy(any);
      }
    }
  }
  throw std::runtime_error("no row shows " + key);
}

std::vector<std::string> Driver::titles() const {
  std::vector<std::string> titles;
  for (const auto& page : state_->navigation().pages()) {
    titles.push_back(desktop::titleOf(*page.controller));
  }
  return titles;
}

std::vector<RowFacts> Driver::rows() {
  std::vector<RowFacts> rows;
  for (const platform::Object& row :
       bodyAs<desktop::ArrayBody>(state_->page().specifiers())->elements.objects()) {
    rows.push_back(factsOf(row));
  }
  return rows;
}

bool Driver::listIsCached() { return state_->page().specifiers() == state_->page().specifiers(); }

std::optional<plist::Value> Driver::read(const LooseRow& row) {
  const platform::Object value =
      desktop::perform(state_->page(), "readPreferenceValue:", state_->loose(row));
  return value ? std::optional(desktop::unbox(value)) : std::nullopt;
}

void Driver::write(const LooseRow& row, const plist::Value& value) {
  desktop::perform(state_->page(), "setPreferenceValue:specifier:", desktop::box(value),
                   state_->loose(row));
}

void Driver::putFile(const std::string& bytes, const std::string& domain) {
  state_->phone.folder.replace(pathOf(domain), bytes);
}

void Driver::putFile(const plist::Dictionary& dictionary, plist::Form form,
                     const std::string& domain) {
  putFile(plist::write(plist::Value(dictionary), form).value(), domain);
}

void Driver::removeFile() { state_->phone.folder.remove(pathOf({})); }

std::optional<std::string> Driver::fileBytes(const std::string& domain) const {
  return state_->phone.folder.read(pathOf(domain));
}

plist::Dictionary Driver::file(const std::string& domain) const {
  return *plist::read(fileBytes(domain).value()).root.dictionary();
}

std::optional<plist::Value> Driver::serviceValue(const std::string& key) const {
  return state_->phone.preferences.value(ownDomain, key);
}

void Driver::putListResource(int rows, const std::string& title) {
  plist::Array items;
  for (int row = 0; row < rows; ++row) {
    plist::Dictionary item;
    item.set("cell", plist::Value::string("PSLinkCell"));
    item.set("label", plist::Value::string("Row " + std::to_string(row)));
    items.append(plist::Value(item));
  }
  plist::Dictionary resource;
  if (!title.empty()) resource.set("title", plist::Value::string(title));
  resource.set("items", plist::Value(items));
  state_->phone.folder.replace(state_->phone.bundle + "/Root.plist",
                               plist::writeBinary(plist::Value(resource)));
}

void Driver::reopen() { state_->open(); }

void Driver::withoutClass(const std::string& name) { state_->phone.missingClasses.insert(name); }

bool Driver::initSucceeds(const std::string& className, bool superclassRefuses) {
  const auto controller = desktop::makeController(className);
  desktop::stateOf(*controller).refusesInit = superclassRefuses;
  return controller->init();
}

bool Driver::answers(const std::string& selector) const {
  return desktop::answers(*state_->top().controller, selector);
}

std::string Driver::call(const std::string& selector) {
  return debugDescription(desktop::perform(*state_->top().controller, selector, {}));
}

void Driver::takeTitleAway() {
  bodyAs<desktop::NavigationItemBody>(state_->controller().navigationItem)->title = {};
}

void Driver::load(double width) {
  desktop::viewOf(state_->controller().table)->frame.size.width = width;
  state_->top().controller->viewDidLoad();
}

void Driver::giveEditButton() {
  desktop::perform(
      *state_->top().controller, "setEditButton:",
      desktop::make<platform::UIBarButtonItem, desktop::BarButtonItemBody>(platform::UIView()));
}

void Driver::setDevice(const Device& device) {
  state_->phone.identity = {device.type, device.version, device.build};
}

void Driver::putAnimations(const std::vector<std::string>& names) {
  removeAnimationFolder();
  std::filesystem::create_directories(state_->animationFolder());
  for (const std::string& name : names) {
    const std::filesystem::path path = state_->animationFolder() / name;
    std::filesystem::create_directories(path.parent_path());
    if (path.has_filename()) std::ofstream(path) << "zip";
  }
}

std::vector<std::string> Driver::animationFiles() const {
  return state_->phone.folder.list("/Library/Lotties/Quillmere");
}

void Driver::removeAnimationFolder() { std::filesystem::remove_all(state_->animationFolder()); }

void Driver::obstructAnimationFolder() {
  removeAnimationFolder();
  std::ofstream(state_->animationFolder()) << "no folder";
}

void Driver::removeBundleFile(const std::string& name) {
  state_->phone.folder.remove(state_->phone.bundle + "/" + name);
}

void Driver::putPhoneFile(const std::string& path, const std::string& bytes) {
  state_->phone.folder.makeFolders(path.substr(0, path.rfind('/')));
  state_->phone.folder.replace(path, bytes);
}

std::vector<std::string> Driver::journal() const { return state_->phone.journal.lines(); }

void Driver::forget() {
  record(journal());
  state_->phone.journal.clear();
  state_->posted.clear();
  state_->reports.clear();
}

std::vector<std::string> Driver::notifications() const { return state_->posted; }

std::vector<std::string> Driver::reports() const { return state_->reports; }

}  // namespace support
