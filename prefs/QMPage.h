#pragma once

#include <array>
#include <span>

#include "platform/Cephei/HBRootListController.h"
#include "platform/Foundation/NSArray.h"
#include "platform/Preferences/PSSpecifier.h"
#include "prefs/Rows.h"

namespace quillmere {

/// What the four pages have in common: the shared look, a row list that is built once, and the two
/// operations through which every value row reads and writes.
class QMPage : public platform::HBRootListController {
 public:
  bool init() override;

  /// The page's rows; the same list on every call.
  platform::NSArray specifiers() override;

  /// What the preferences file holds for the row, else the row's own default; none without either.
  virtual platform::Object readPreferenceValue(const platform::PSSpecifier& specifier);

  /// Puts the value into the preferences file and the preferences service and announces it. When
  /// the file cannot be read, it is left alone and the service alone keeps the value.
  virtual void setPreferenceValue(const platform::Object& value,
                                  const platform::PSSpecifier& specifier);

  std::span<const platform::Method> methods() const override;

 protected:
  /// Builds the rows anew.
  virtual platform::NSMutableArray buildRows() = 0;
};

inline constexpr std::array pageMethods{
    platform::method<&QMPage::readPreferenceValue>(readSelector),
    platform::method<&QMPage::setPreferenceValue>(writeSelector),
};

}  // namespace quillmere
