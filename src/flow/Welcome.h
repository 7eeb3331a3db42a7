#pragma once

namespace zorik {

// What stands on the screen when a file comes from outside.
struct OnScreen {
  bool Notice = false;   // something is being loaded
  bool Hidden = false;   // the game, behind its dull little table
  bool Box = false;      // a message, a question or another dialog
  bool Score = false;    // of a run that was won
  bool Editors = false;  // one of the two, or a test run from there
  bool Run = false;      // of any other kind
};

enum class Welcome {
  Opens,
  AsksToEndTheRun,
  Waits,        // without a word: not for long, or nobody is to see that there is a game
  WaitsAndSays  // until the player is done
};

// What becomes of the file by that.
constexpr Welcome WelcomeOf(const OnScreen& screen) {
  if (screen.Notice || screen.Hidden) return Welcome::Waits;
  if (screen.Box || screen.Score || screen.Editors) return Welcome::WaitsAndSays;
  return screen.Run ? Welcome::AsksToEndTheRun : Welcome::Opens;
}

}  // namespace zorik
