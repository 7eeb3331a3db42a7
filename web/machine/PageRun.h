#pragma once

#include <array>
#include <bitset>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/Hra.h"
#include "data/ResultFwd.h"
#include "run/Timeline.h"
#include "view/SeenCave.h"

namespace zorik {

// What happens in a tick, for who shows it: its number, and its values.
enum class Happening : int {
  Sound,      // the sound
  SoundStop,  // the sound
  Silence,
  Message,  // the text, its colour, a number of dogs
  Remark,   // its number among the remarks, its colour
  Label,    // LabelId, the value
  Unit,     // its number, its look: 0 steered, 1 waiting, 2 dead
  Flash,
  Wish,  // Request
  Won,
  Opens,  // a cave has been opened: all is new
};

// The places of the numbers that tell of a run. Truths are 0 or 1.
enum StateSlot : std::size_t {
  kStateKind,  // RunKind
  kStateTicks,
  kStateElapsed,
  kStateClock,
  kStateTimeLimit,
  kStateGems,
  kStateGemsNeeded,
  kStateGemValue,
  kStateExitOpen,
  kStateMagic,
  kStateAmoeba,
  kStateWidth,
  kStateHeight,
  kStateUnit,  // the steered one
  kStateDogs,
  kStateManyUnits,
  kStateLiveDogs,
  kStateUnitLost,
  kStateNothingHelps,
  kStateWon,
  kStateScore,  // of the win, as the next three
  kStateBaseScore,
  kStateTimeLeft,
  kStateBonus,
  kStateHue,       // of the scheme
  kStateRanDry,    // the record has been asked for more than it holds
  kStateKnown,     // ticks of the timeline, -1 without one
  kStatePosition,  // tick of the timeline
  kStateMagicSounds,
  kStateAmoebaSounds,
  kStateUnits,  // x, y, alive for each of ten
  kStateEnd = kStateUnits + std::size_t{kUnits} * 3,
};

// The places of the numbers that tell what is drawn where: in pixels of the drawn picture, unless said
// otherwise.
enum PlanSlot : std::size_t {
  kPlanLeft,  // of the view in the cave, as the next three: logical pixels, 80 a cell
  kPlanTop,
  kPlanWidth,
  kPlanHeight,
  kPlanCellWidth,
  kPlanCellHeight,
  kPlanDrawnWidth,
  kPlanDrawnHeight,
  kPlanColumnCount,
  kPlanRowCount,
  kPlanMoverCount,
  kPlanFresh,    // all of it is to be drawn
  kPlanColumns,  // where they begin among these numbers, as the next four: cell, start, length, cut for each
  kPlanRows,     // likewise
  kPlanCells,    // row by row: tile set, column and row of its frame and mask of edges, a byte each from the
                 // lowest
  kPlanChanged,  // row by row: whether the cell looks different from the last time
  kPlanMovers,  // eight for each: its corner's x and y, its picture, and if something is under it, 1 and that
                // one's corner and picture; 0
  kPlanEnd,
};

// The frames of a scheme, as the page has told of them.
void SetFrames(std::string_view scheme, FrameTable frames);
const FrameTable& FramesOf(const std::string& scheme);

// A run for a page: what the game window is on the desktop, without a window.
class PageRun final : public Stage {
 public:
  explicit PageRun(std::uint64_t seed);

  Hra& Machine() { return hra_; }

  // A run is about to be started: what happened before is forgotten.
  void Forget();
  // It has been.
  void Started();

  void Restart();
  TickEnd Pass();

  void Press(int key);
  void Sow(std::uint64_t seed) { seed_ = seed; }

  const std::vector<std::array<int, 4>>& Happened() const { return happened_; }
  std::string RemarkAt(std::size_t number) const;
  const std::array<int, kStateEnd>& State();

  Result<Done> BeginTimeline(bool whole);
  const Timeline* Known() const { return timeline_ ? &*timeline_ : nullptr; }
  void Seek(int tick);
  void TakeOverNow();

  SeenCave& View() { return view_; }
  void SetSmooth(bool on) { smooth_ = on; }
  const std::vector<int>& Plan(PixelSize frame, double way);
  const std::vector<int>& LastPlan() const { return plan_; }

  // Stage
  void CaveOpens() override;
  void CellChanged(int x, int y) override { view_.CellChanged(hra_, x, y); }
  void Moved(Cell from, Cell to) override { view_.Moved(hra_, from, to); }
  void PZvuk(SoundId sound) override { Tell(Happening::Sound, static_cast<int>(sound)); }
  void PZvukStop(SoundId sound) override { Tell(Happening::SoundStop, static_cast<int>(sound)); }
  void StopSounds() override { Tell(Happening::Silence); }
  void ShowMessage(TextId text, Colour colour, int dogs) override;
  void ShowRemark(std::string_view text, Colour colour) override;
  void Label(LabelId label, int value) override { Tell(Happening::Label, static_cast<int>(label), value); }
  void DrawDogN(int n, int state) override { Tell(Happening::Unit, n, state); }
  void MoveView(bool jump) override { view_.MoveView(hra_, jump); }
  void Flash() override { Tell(Happening::Flash); }
  void Post(Request request) override { Tell(Happening::Wish, static_cast<int>(request)); }
  void Won(const WinResult&) override { Tell(Happening::Won); }
  std::optional<std::uint64_t> Reseed() override;

 private:
  void Tell(Happening what, int a = 0, int b = 0, int c = 0) {
    happened_.push_back({static_cast<int>(what), a, b, c});
  }
  void Follow(TickEnd end, const KeySnapshot& keys);
  bool InStep(int position) const { return hra_.Ticks - begin_ == position; }
  void PlanSpans(const std::vector<DrawnSpan>& spans, PlanSlot slot);
  void PlanCells(const DrawnView& drawn);
  void PlanMovers(const DrawnView& drawn);

  Hra hra_;
  KeySnapshot keys_;
  std::optional<std::uint64_t> seed_;
  std::vector<std::array<int, 4>> happened_;
  std::vector<std::string> remarks_;  // of the same tick
  std::array<int, kStateEnd> state_{};

  std::optional<Timeline> timeline_;
  bool whole_ = false;  // it was known to its end from the beginning
  int position_ = 0;
  int begin_ = 0;  // ticks of the run where it begins

  const FrameTable* frames_;
  SeenCave view_;
  bool smooth_ = false;
  std::vector<int> plan_;
};

}  // namespace zorik
