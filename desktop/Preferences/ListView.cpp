#include "desktop/Preferences/ListView.h"

#include "desktop/Foundation/ArrayBody.h"
#include "desktop/Foundation/Values.h"
#include "desktop/Preferences/SpecifierBody.h"

namespace desktop {

namespace {

Section sectionOf(const SpecifierBody& group) {
  Section section{textOf(group.name), std::nullopt, {}};
  if (const platform::Object footer = group.property("footerText")) {
    section.footer = textOf(footer);
  }
  return section;
}

}  // namespace

std::vector<Section> drawList(const platform::NSArray& specifiers) {
  std::vector<Section> sections;
  const auto* list = bodyAs<ArrayBody>(specifiers);
  if (!list) return sections;
  for (const platform::Object& object : list->elements.objects()) {
    const auto* row = bodyAs<SpecifierBody>(object);
    if (!row) continue;
    if (row->cell == platform::PSCellType::PSGroupCell) {
      sections.push_back(sectionOf(*row));
      continue;
    }
    if (sections.empty()) sections.emplace_back();
    sections.back().cells.push_back(makeCell(object.as<platform::PSSpecifier>()));
  }
  return sections;
}

}  // namespace desktop
