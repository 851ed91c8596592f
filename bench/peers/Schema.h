#pragma once

#include <filesystem>
#include <gio/gio.h>
#include <memory>

namespace bench {

/// Compiles a schema of `count` settings (`forEachSetting`) in the folder, stores their values and
/// answers them, opened anew. They are kept where `backend` keeps them, which is given away; when
/// it is none, where the environment says. Throws `Unavailable` without `glib-compile-schemas`.
std::shared_ptr<GSettings> stored(std::size_t count, const std::filesystem::path& folder,
                                  GSettingsBackend* backend = nullptr);

/// Stores the integer (`changedKey`) and waits until the backend has. Throws `std::runtime_error`.
void change(GSettings* settings, int number);

}  // namespace bench
