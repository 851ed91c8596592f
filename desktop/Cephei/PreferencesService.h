#pragma once

#include <functional>
#include <map>
#include <optional>
#include <set>
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

  /// The domain's value for the key; none when it has none.
  std::optional<plist::Value> value(const std::string& domain, const std::string& key);

  /// Whether a list or dictionary that was asked for since `forgetAnswers` is another one by now,
  /// by somebody else's hand or because its file could not be read then: to store it again,
  /// changed, would undo that.
  bool answersAreOutdated() const;
  void forgetAnswers() { answers_.clear(); }

  /// Whether kept changes are merged when a value is asked for. To be switched off by what only
  /// reads while another program may be changing the file.
  bool merges = true;

  /// Stores the value, or removes the key for none. The file is made when there is none yet, and
  /// is not written when it holds the value already. A failure is reported to the desktop only.
  void set(const std::string& domain, const std::string& key,
           const std::optional<plist::Value>& value);

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
  /// None when there is something in the place of the kept changes that is none.
  std::optional<PendingChanges> readPending(const std::string& path) const;
  static std::optional<plist::Value> valueIn(const Domain& state, std::string_view key);
  void store(const std::string& domain, const std::string& key,
             const std::optional<plist::Value>& value) const;
  void merge(const std::string& domain, Domain& state) const;
  /// Keeps what `change` does to the changes beside the file; `what` names it to the desktop.
  void keep(const std::string& domain, Domain& state, const std::string& what,
            const std::function<void(PendingChanges&)>& change) const;

  Phone& phone_;
  /// What was answered or stored last, by domain and key.
  std::map<std::string, std::map<std::string, std::optional<plist::Value>>> answers_;
  /// What of the files was complained of: once is enough.
  mutable std::set<std::string> told_;
};

}  // namespace desktop
