#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "core/Cell.h"
#include "core/SoundId.h"
#include "core/TextId.h"

namespace zorik {

struct WinResult;

// Colours of messages, red in the low byte.
enum class Colour : std::uint32_t { White = 16777215, Green = 65280, Yellow = 12582911, Cyan = 0xFFFF00 };

// The figures around the play picture.
enum class LabelId { Clock, Gems, Needed, Value };  // lblCas, lblSebr, lblTreba, lblBz1

// What a key or an idle dog asks the window for; it acts when the tick is over.
enum class Request { Pause, IdleQuestion, HideAway, Faster, Slower, ViewToggle };

// All that the machine wants from the outside world. Every call has an empty default, so this class itself
// is the silent stage on which tests and tools run whole games. Calls come in the middle of a tick, with
// the state as it is at that moment; none may change the state, block or throw.
class Stage {
 public:
  virtual ~Stage() = default;

  // A cave has been read, its size and scheme are known, its cells are not placed yet.
  virtual void CaveOpens() {}
  // The picture of the cell may have changed; x and y run from -2, since the frame counts too.
  virtual void CellChanged(int /*x*/, int /*y*/) {}
  // What was in a cell has gone into the one beside it, and stands there.
  virtual void Moved(Cell /*from*/, Cell /*to*/) {}
  // Plays a sound, starts it anew if it sounds.
  virtual void PZvuk(SoundId) {}
  virtual void PZvukStop(SoundId) {}
  virtual void StopSounds() {}
  // The clock shows one of its last ten seconds.
  virtual void PZvukTime(int /*seconds*/) {}
  // A text of the language table; FewDogs and ManyDogs tell of a number of dogs.
  virtual void ShowMessage(TextId, Colour, int /*dogs*/ = 0) {}
  // A remark that somebody wrote into a record, as bytes.
  virtual void ShowRemark(std::string_view /*text*/, Colour) {}
  virtual void Label(LabelId, int /*value*/) {}
  // Unit n in the strip of units: 0 steered, 1 waiting, 2 dead.
  virtual void DrawDogN(int /*n*/, int /*state*/) {}
  // The view is due: with jump at once on its target, else one step towards it.
  virtual void MoveView(bool /*jump*/) {}
  // The finish opens.
  virtual void Flash() {}
  virtual void Post(Request) {}
  // The run is won; the state is that of the winning moment, later steps of the tick follow.
  virtual void Won(const WinResult&) {}
  // A new seed for the game's chance, asked for at every step of a dog in play; nothing
  // keeps the stream going.
  virtual std::optional<std::uint64_t> Reseed() { return std::nullopt; }
};

}  // namespace zorik
