#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "plist/Value.h"

namespace desktop {

class Phone;
struct PendingChanges;

/// The stand-in for the platform's preferences service. It keeps each domain in that domain's
/// file and nothing anywhere else, so it sees at once what others write there.
///
/// A file that is there but cannot be read is never touched: changes are kept beside it, in
/// "FILE.pending", count when values are asked for, and are merged into the file as soon as it is
/// readable again or gone. A FILE.pending that cannot be read is never touched either.
class PreferencesService {
 public:
  explicit PreferencesService(Phone& phone) : phone_(phone) {}

  /// Clears up after an earlier run that was cut short, and settles all domains.
  void start() const;

  /// The domain's value for the key; none when it has none.
  std::optional<plist::Value> value(const std::string& domain, std::string_view key) const;

  /// Stores the value, or removes the key for none. The file is made when there is none yet, and
  /// is not written when it holds the value already. A failure is reported to the desktop only.
  void set(const std::string& domain, const std::string& key,
           const std::optional<plist::Value>& value) const;

  /// Removes every key. The file stays, without keys; none is made when there is none yet. A
  /// failure is reported to the desktop only.
  void clear(const std::string& domain) const;

  /// Merges what is kept beside the domain's file, if it can be merged by now.
  void settle(const std::string& domain) const;

  /// The same for every domain.
  void settleAll() const;

 private:
  struct Domain;

  Domain load(const std::string& domain) const;
  void merge(const std::string& domain, Domain& state) const;
  /// Keeps what `change` does to the changes beside the file; `what` names it to the desktop.
  void keep(const std::string& domain, Domain& state, const std::string& what,
            const std::function<void(PendingChanges&)>& change) const;

  Phone& phone_;
};

}  // namespace desktop
