#include "bench/peers/Schema.h"

#include <stdexcept>

#include "bench/peers/SchemaFile.h"
#include "bench/peers/Settings.h"

namespace bench {

namespace {

void check(bool done, const char* what) {
  if (!done) throw std::runtime_error(std::string("GSettings could not ") + what);
}

void storeAll(std::size_t count, GSettings* settings) {
  g_settings_delay(settings);  // All in one go; it stays so for as long as it lives.
  forEachSetting(count, Puts{[&](const std::string& key, const std::string& value) {
                               g_settings_set_string(settings, key.c_str(), value.c_str());
                             },
                             [&](const std::string& key, int value) {
                               g_settings_set_int(settings, key.c_str(), value);
                             },
                             [&](const std::string& key, bool value) {
                               g_settings_set_boolean(settings, key.c_str(), value);
                             }});
  g_settings_apply(settings);
  g_settings_sync();
}

}  // namespace

std::shared_ptr<GSettings> stored(std::size_t count, const std::filesystem::path& folder,
                                  GSettingsBackend* backend) {
  writeSchema(count, folder);
  GSettingsSchemaSource* source =
      g_settings_schema_source_new_from_directory(folder.c_str(), nullptr, true, nullptr);
  check(source, "open the schema");
  GSettingsSchema* schema = g_settings_schema_source_lookup(source, schemaName, false);
  const auto open = [&] {
    return std::shared_ptr<GSettings>(g_settings_new_full(schema, backend, nullptr),
                                      g_object_unref);
  };
  storeAll(count, open().get());
  std::shared_ptr<GSettings> settings = open();
  g_settings_schema_unref(schema);
  g_settings_schema_source_unref(source);
  return settings;
}

void change(GSettings* settings, int number) {
  check(g_settings_set_int(settings, changedKey, number), "change");
  g_settings_sync();
}

}  // namespace bench
