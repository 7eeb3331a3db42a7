#pragma once

#include "core/Hra.h"

namespace zorik {

// What is told by more than a code: by its state, by what stands beside it, or by how the run stands. Rules,
// painter and solver ask here.

// A brick that turns gems and boulders into each other.
inline bool IsMagicWall(const Grids& grids, Cell c) {
  return grids.Field(c) == kBrick && grids.FieldState(c) == kFlat;
}

// Pushed like a box, goes off when it is struck or when something blows up beside it.
inline bool IsBomb(const Grids& grids, Cell c) {
  return grids.Field(c) == kBox && grids.FieldState(c) == kFlat;
}

// A bomb that is lit: the next object scan blows it up. No letter of a cave stands for it.
inline bool IsStruckBomb(const Grids& grids, Cell c) {
  return grids.Field(c) == kBoulder && grids.FieldState(c) == kFlat;
}

// The middle of three cells that make two of what falls on it.
inline bool IsSplitterMouth(const Grids& grids, Cell c) {
  return grids.Field(c) == kWallH && grids.Field(c + kLeft) == kSteel && grids.Field(c + kRight) == kSteel;
}

// A finish that looks like steel, and one that lets a dog out.
inline bool IsClosedFinish(const RunState& run, Cell c) {
  return run.Field(c) == kFinish && !run.ExitOpen;
}
inline bool IsOpenFinish(const RunState& run, Cell c) {
  return run.Field(c) == kFinish && run.ExitOpen;
}

// Slime that set-up makes a pad of the teleport: over steel the entrance, under steel the exit.
inline bool IsEntranceSlime(const Grids& grids, Cell c) {
  return grids.Field(c) == kSlime && grids.Field(c + kDown) == kSteel;
}
inline bool IsExitSlime(const Grids& grids, Cell c) {
  return grids.Field(c) == kSlime && grids.Field(c + kUp) == kSteel;
}

// The pads that set-up has made of them, also while it does not know yet whether there are both.
inline bool IsEntrance(const RunState& run, Cell c) {
  return c == run.TeleportIn;
}
inline bool IsExit(const RunState& run, Cell c) {
  return c == run.TeleportOut;
}

// A dog cannot enter, whatever the run: by the object that stands there, or by a state that is neither
// rest nor flat. A cell that a monster has left in this tick is open to it.
inline bool BlocksDog(const Grids& grids, Cell c) {
  const std::uint8_t state = grids.FieldState(c);
  return state == kFalling || state == kRounded || (Grids::Traits(grids.Field(c)) & trait::kBlocks) != 0;
}

// What the game hides in a cell, as a frame of set NoSurprise.
inline Secret SecretIn(const RunState& run, Cell c) {
  if (IsMagicWall(run, c) && run.MagicState == kMagicDormant) return kSecretMagicWall;
  if (run.Field(c) == kWallH) return kSecretWallH;
  if (run.Field(c) == kWallV) return kSecretWallV;
  return IsClosedFinish(run, c) ? kSecretFinish : kNoSecret;
}

}  // namespace zorik
