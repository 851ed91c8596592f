#include "tests/model/Operation.h"

namespace model {

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
