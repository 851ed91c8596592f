#include "bench/peers/SchemaFile.h"

#include <fstream>
#include <string>

#include "bench/peers/Command.h"
#include "bench/peers/Settings.h"

namespace bench {

namespace {

std::string keyElement(const std::string& key, const char* type, const char* standard) {
  return "<key name='" + key + "' type='" + type + "'><default>" + standard + "</default></key>\n";
}

}  // namespace

void writeSchema(std::size_t count, const std::filesystem::path& folder) {
  std::ofstream file(folder / (std::string(schemaName) + ".gschema.xml"));
  file << "<schemalist>\n<schema id='" << schemaName << "' path='" << schemaPath << "'>\n";
  forEachSetting(
      count,
      Puts{[&](const std::string& key, const std::string&) { file << keyElement(key, "s", "''"); },
           [&](const std::string& key, int) { file << keyElement(key, "i", "0"); },
           [&](const std::string& key, bool) { file << keyElement(key, "b", "false"); }});
  file << "</schema>\n</schemalist>\n";
  file.close();
  Command({"glib-compile-schemas", folder}).run();
}

}  // namespace bench
