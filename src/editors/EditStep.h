#pragma once

namespace zorik {

// What a change of the edited cave was, for the list of steps.
enum class EditStep {
  Stroke,
  Line,
  Rectangle,
  FilledRectangle,
  Fill,
  Clear,
  Cut,
  Paste,
  Move,
  MirrorAside,
  MirrorUpright,
  TurnRight,
  TurnLeft,
  InsertRow,
  InsertColumn,
  DeleteRow,
  DeleteColumn,
  Resize,
  ReplaceEvery,
  ReplaceRandom,
  Frame,  // around the whole cave
  Properties,
  Script,
  Restore,
  End,  // how many there are
};

}  // namespace zorik
