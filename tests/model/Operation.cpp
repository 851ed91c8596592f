#include "tests/model/Operation.h"

namespace model {

World::World(const std::filesystem::path& itsFolder, Kept kept)
    : folder(itsFolder), screen(std::move(kept)) {
  // No operation depends on what the header shows, and to draw the large picture for each first
  // page would take most of the time.
  const std::filesystem::path bundle = folder / "Library/PreferenceBundles/Quillmere.bundle";
  std::filesystem::copy_file(bundle / "Icon@2x.png", bundle / "Header.png",
                             std::filesystem::copy_options::overwrite_existing);
}

const std::vector<Rule>& rules() {
  static const std::vector<Rule> all = [] {
    std::vector<Rule> joined;
    for (const auto& part : {pageRules(), listRules(), rootRules(), outsideRules()}) {
      joined.insert(joined.end(), part.begin(), part.end());
    }
    return joined;
  }();
  return all;
}

Operation randomOperation(const Screen& screen, std::mt19937& random) {
  std::vector<unsigned> weights;
  for (const Rule& rule : rules()) weights.push_back(rule.applies(screen) ? rule.weight : 0);
  std::discrete_distribution<std::size_t> rule(weights.begin(), weights.end());
  std::uniform_int_distribution<unsigned> number(0, 9999);
  const std::size_t chosen = rule(random);
  const unsigned first = number(random);
  return {chosen, first, number(random)};
}

}  // namespace model
