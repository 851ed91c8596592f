#include <memory>
#include <sqlite3.h>
#include <stdexcept>

#include "bench/peers/Settings.h"
#include "bench/peers/Syncs.h"
#include "bench/support/Contestant.h"

/// SQLite with its default settings: a table of keys and values, opened for each change. It reads
/// and writes the few pages that hold the key, whatever the number of settings. The journal, its
/// folder and the database are synced, but not the journal's removal, which makes the change count.
namespace {

using namespace bench;

struct Close {
  void operator()(sqlite3* database) const { sqlite3_close(database); }
  void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Database = std::unique_ptr<sqlite3, Close>;
using Statement = std::unique_ptr<sqlite3_stmt, Close>;

void check(const Database& database, int status, int wanted = SQLITE_OK) {
  if (status != wanted) throw std::runtime_error(sqlite3_errmsg(database.get()));
}

Database open(const std::string& path) {
  sqlite3* opened = nullptr;
  const int status = sqlite3_open(path.c_str(), &opened);
  Database database(opened);
  check(database, status);
  return database;
}

void bind(sqlite3_stmt* statement, const std::string& value) {
  sqlite3_bind_text(statement, 2, value.c_str(), -1, SQLITE_TRANSIENT);
}
void bind(sqlite3_stmt* statement, int value) { sqlite3_bind_int(statement, 2, value); }

void put(const Database& database, const std::string& key, const auto& value) {
  sqlite3_stmt* prepared = nullptr;
  check(database, sqlite3_prepare_v2(database.get(), "replace into settings values (?, ?)", -1,
                                     &prepared, nullptr));
  const Statement statement(prepared);
  sqlite3_bind_text(prepared, 1, key.c_str(), -1, SQLITE_TRANSIENT);
  bind(prepared, value);
  check(database, sqlite3_step(prepared), SQLITE_DONE);
}

void execute(const Database& database, const char* command) {
  check(database, sqlite3_exec(database.get(), command, nullptr, nullptr, nullptr));
}

Trial change(std::size_t size, const std::filesystem::path& folder) {
  const std::string path = folder / "settings.sqlite";
  const Database database = open(path);
  execute(database, "create table settings (key text primary key, value)");
  execute(database, "begin");
  forEachSetting(size,
                 [&](const std::string& key, const auto& value) { put(database, key, value); });
  execute(database, "commit");
  return [path, next = 2]() mutable { put(open(path), changedKey, ++next); };
}

constexpr Case cases[] = {{"change", change}, {"change-unsynced", unsynced<change>}};

}  // namespace

int main(int argc, char** argv) { return compete(argc, argv, cases); }
