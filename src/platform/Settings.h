#pragma once

#include <QString>

#include "data/ResultFwd.h"
#include "platform/KeyMap.h"
#include "platform/PadMap.h"

namespace zorik {

inline constexpr int kFullVolume = 10;

// What the player has chosen. It is kept for the user, not for the game's folder.
struct Settings {
  int Speed = 8;   // of play, 1 the fastest to 10
  int SpeedR = 1;  // of a replay
  bool Sound = true;
  bool Joystick = false;
  bool NoSurprise = false;  // show what is hidden
  QString Skin = "Default";
  int Volume = kFullVolume;       // of all sounds, 0 is silence
  bool Loops = true;              // the sounds that go on and on: amoeba, magic wall
  bool Ghost = false;             // the best record runs beside a normal run
  bool SmoothMotion = false;      // what moves is also drawn on its way
  bool LessFlashing = false;      // no flash of the finish, no glitter
  bool PauseOnFocusLoss = false;  // a run waits while the player is in another window
  KeyMap Keys = {};               // of the keyboard
  PadMap Pad = {};                // the buttons of a pad

  bool operator==(const Settings&) const = default;
};

// Whether this user has never started the game: nothing is stored, not even by FindSett.
bool IsFirstStart();

// Reads the store; values out of range are limited. At the first start it writes the defaults.
Settings FindSett();

// Writes all values but the skin, which is written where it is chosen. Fails when they cannot be written; the
// old ones stand then.
Result<Done> StoreSett(const Settings& settings);

// Writes the name of the skin's folder; likewise.
Result<Done> StoreSkin(const QString& skin);

// Writes the folder that the program lies in.
void StorePath(const QString& folder);

// The place in the list, 0 the first, of the player who was selected last; 0 when there was none.
int ReadPosledniHrac();
void StorePosledniHrac(int place);

// Writes whether the game window filled the screen when the program ended.
void StoreMaximized(bool maximized);

}  // namespace zorik
