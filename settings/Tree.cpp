#include "settings/Tree.h"

namespace settings {

using nlohmann::json;

json screenMessage(const Tree& tree) { return {{"kind", "screen"}, {"nodes", tree}}; }

json updateMessage(const Tree& before, const Tree& after) {
  json nodes = json::object();
  json removed = json::array();
  for (const auto& [id, node] : after) {
    const auto known = before.find(id);
    if (known == before.end() || known->second != node) nodes[id] = node;
  }
  for (const auto& [id, node] : before) {
    if (!after.contains(id)) removed.push_back(id);
  }
  return {{"kind", "update"}, {"nodes", std::move(nodes)}, {"removed", std::move(removed)}};
}

json refusedMessage(const std::string& reason) { return {{"kind", "refused"}, {"reason", reason}}; }

}  // namespace settings
