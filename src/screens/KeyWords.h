#pragma once

#include <QString>

#include "platform/KeyMap.h"
#include "screens/StartWords.h"

namespace zorik {

// The words of the window of keys.
inline constexpr StartWords kKeysWords{"caption.keys.title"};
inline constexpr StartWords kPadWords{"caption.keys.pad"};
inline constexpr StartWords kPressWords{"caption.keys.press"};
inline constexpr StartWords kHowWords{"caption.keys.how"};
inline constexpr StartWords kHowPadWords{"caption.keys.howpad"};
inline constexpr StartWords kNoPadWords{"caption.keys.nopad"};
inline constexpr StartWords kKeyFixedWords{"caption.keys.fixed"};
inline constexpr StartWords kKeyTakenWords{"caption.keys.taken"};
inline constexpr StartWords kKeyOtherWords{"caption.keys.other"};
inline constexpr StartWords kButtonTakenWords{"caption.keys.buttontaken"};
inline constexpr StartWords kKeysResetWords{"caption.keys.reset"};

// A key as its owner calls it: "Ctrl+R", "num 4".
QString WordsOf(const KeyChoice& key, const Skin& skin);

// All keys of a use, side by side.
QString WordsOf(const KeyMap::Keys& keys, const Skin& skin);

// A button of a pad by its number, from 1; a dash for none.
QString WordsOf(int button);

}  // namespace zorik
