#pragma once

/// What the whole bundle shares: names, paths, the keys of the preferences and their defaults.
/// In the bundle each stands here and nowhere else; rows and footers are made from it.
namespace quillmere {

inline constexpr const char* productName = "Quillmere";
inline constexpr const char* bundlePath = "/Library/PreferenceBundles/Quillmere.bundle";

/// The preferences domain, and the Darwin notification that announces a change of it.
inline constexpr const char* domain = "com.orvalen.quillmere";
inline constexpr const char* prefsChanged = "com.orvalen.quillmere.prefs-changed";

/// The accent colour, components from 0 to 255, and as rows carry it in text: hexadecimal, no sign.
struct Rgb {
  int red;
  int green;
  int blue;
};
inline constexpr Rgb accent{246, 146, 64};
inline constexpr const char* accentHex = "f69240";
static_assert(accent.red == 0xf6 && accent.green == 0x92 && accent.blue == 0x40);

/// A preference: the key in the domain and the value that an absent key stands for.
template <class Value>
struct Setting {
  const char* key;
  Value defaultValue;
};

/// Values of `colorMode`.
enum ColorMode : int { originalColors = 1, customColor = 2 };

/// The domain's file, as the preferences service keeps it.
inline constexpr const char* preferencesFile =
    "/var/mobile/Library/Preferences/com.orvalen.quillmere.plist";

/// Present once the welcome screen was seen; its value does not matter.
inline constexpr const char* showedWelcomeKey = "showedWelcomeVC";

/// The names of the enabled animations, in the user's order.
inline constexpr const char* enabledLottiesKey = "enabledLotties";

namespace settings {

inline constexpr Setting<bool> enabledSwitch{"enabledSwitch", true};

inline constexpr Setting<int> colorMode{"colorMode", originalColors};
inline constexpr Setting<const char*> tintColor{"tintColor", accentHex};

inline constexpr Setting<bool> clockEnabled{"clockEnabled", true};
inline constexpr Setting<bool> clockLoopAnimation{"clockLoopAnimation", true};
inline constexpr Setting<int> clockDigitSize{"clockDigitSize", 75};
inline constexpr Setting<int> clockVerticalAlignment{"clockVerticalAlignment", 0};
inline constexpr Setting<int> clockDigitsSpacing{"clockDigitsSpacing", -20};
inline constexpr Setting<int> colonHeight{"colonHeight", 50};

inline constexpr Setting<bool> flashEnabled{"flashEnabled", true};
inline constexpr Setting<bool> cameraEnabled{"cameraEnabled", true};
inline constexpr Setting<bool> quickActionsLoopAnimation{"quickActionsLoopAnimation", true};
inline constexpr Setting<int> quickActionsSize{"quickActionsSize", 75};

}  // namespace settings
}  // namespace quillmere
