#include "tests/promises/crash/Page.h"

#include <algorithm>
#include <stdexcept>
#include <unistd.h>

#include "tests/support/program/WebSocket.h"

namespace crash_tests {

namespace {

using nlohmann::json;
using program_tests::WebSocket;

/// "http://127.0.0.1:PORT/?token=…" as the program prints it, without anything before it.
std::string readAddress(int output) {
  std::string text;
  for (char byte; read(output, &byte, 1) == 1;) {
    text += byte;
    const std::size_t start = text.find("http://");
    if (byte == '\n' && start != std::string::npos)
      return text.substr(start, text.size() - start - 1);
  }
  throw std::runtime_error("the program tells no address");
}

WebSocket openPage(const std::string& address) {
  const std::size_t path = address.find("/?");
  const std::string origin = address.substr(0, path);
  const std::string host = origin.substr(std::string("http://").size());
  const auto port = static_cast<std::uint16_t>(std::stoi(host.substr(host.find(':') + 1)));
  return WebSocket(program_tests::letIn(port, address.substr(path)));
}

/// The nodes as the page has them after the message.
void take(json& nodes, const json& message) {
  for (const auto& id : message.value("removed", json::array())) nodes.erase(id.get<std::string>());
  nodes.update(message.value("nodes", json::object()));
}

bool showsFailure(const json& nodes) {
  return std::ranges::any_of(nodes, [](const json& node) { return node["kind"] == "banner"; });
}

bool shows(const json& nodes, const Change& change) {
  const json node = nodes.value(change.node, json::object());
  json changed = node;
  changed.update(change.shown);
  return changed == node && !node.empty() && !showsFailure(nodes);
}

}  // namespace

bool touchPage(const Change& change, int output) {
  try {
    const WebSocket page = openPage(readAddress(output));
    json nodes = json::object();
    json answer = page.message();
    for (const json& touch : change.touches) {
      take(nodes, answer);
      page.touch(touch);
      answer = page.message();
    }
    if (answer.is_null() || answer["kind"] != "update") return false;
    take(nodes, answer);
    return shows(nodes, change);
  } catch (const std::exception&) {
    return false;  // The program ended, or talked nonsense: that acknowledges nothing.
  }
}

}  // namespace crash_tests
