// What is done to many cells at once: shapes, selections, rows, columns and the sides of the cave.
#include <algorithm>
#include <utility>

#include "editors/CaveModel.h"
#include "editors/ToolTable.h"

namespace zorik {
namespace {

EditStep StepOf(CaveTurn turn) {
  constexpr std::array kSteps{EditStep::MirrorAside, EditStep::MirrorUpright, EditStep::TurnRight,
                              EditStep::TurnLeft};
  return kSteps[static_cast<std::size_t>(turn)];
}

// A block may come from anywhere, also with what no cell of an open cave holds.
char Arrived(char letter) {
  if (letter == '\0') return kEmpty;
  const int dog = DogNumber(letter);
  return dog == 0 ? letter : LetterOfTool(kDogTool, dog);
}

}  // namespace

// Shapes

bool CaveModel::DrawShape(const CavePlaces& shape, char letter, EditStep step) {
  const bool single = !stroke_;
  if (single) BeginStroke(step);
  bool changed = false;
  if (DogNumber(letter) == 0) {
    for (const auto [x, y] : shape) changed = Draw(x, y, letter) || changed;
  } else {
    const auto last = std::find_if(shape.rbegin(), shape.rend(),
                                   [this](CavePlace place) { return Inside(place.x, place.y); });
    if (last != shape.rend()) changed = Draw(last->x, last->y, letter);
  }
  if (single) EndStroke();
  return changed;
}

// Selections

CaveBlock CaveModel::Copy(const CaveArea& area) const {
  const CaveArea seen = SharedArea(area, AreaOf(state_.cave));
  CaveBlock block{seen.width, seen.height, {}};
  for (int y = 0; y < seen.height; ++y) {
    for (int x = 0; x < seen.width; ++x) block.letters += At(seen.left + x, seen.top + y);
  }
  return block;
}

void CaveModel::Empty(const CaveArea& area) {
  const CaveArea seen = SharedArea(area, AreaOf(state_.cave));
  for (int y = 0; y < seen.height; ++y) {
    for (int x = 0; x < seen.width; ++x) Put(seen.left + x, seen.top + y, kEmpty);
  }
}

CaveBlock CaveModel::Cut(const CaveArea& area) {
  CaveBlock block = Copy(area);
  AsStep(EditStep::Cut, [&] { Empty(area); });
  return block;
}

bool CaveModel::Clear(const CaveArea& area) {
  return AsStep(EditStep::Clear, [&] { Empty(area); });
}

CaveArea CaveModel::Place(const CaveBlock& block, CavePlace at) {
  const CaveArea covered = SharedArea({at.x, at.y, block.width, block.height}, AreaOf(state_.cave));
  for (int y = covered.top; y < covered.top + covered.height; ++y) {
    for (int x = covered.left; x < covered.left + covered.width; ++x) {
      const char letter = Arrived(block.At(x - at.x, y - at.y));
      if (DogNumber(letter) != 0) TakeDogAway(x, y, letter);
      Put(x, y, letter);
    }
  }
  return covered;
}

CaveArea CaveModel::Paste(const CaveBlock& block, CavePlace at) {
  CaveArea covered;
  AsStep(EditStep::Paste, [&] { covered = Place(block, at); });
  return covered;
}

CaveArea CaveModel::Move(const CaveArea& area, CavePlace to) {
  const CaveBlock block = Copy(area);
  const CaveArea seen = SharedArea(area, AreaOf(state_.cave));
  CaveArea covered;
  AsStep(EditStep::Move, [&] {
    Empty(area);
    covered = Place(block, {to.x + seen.left - area.left, to.y + seen.top - area.top});
  });
  return covered;
}

CaveArea CaveModel::Turn(const CaveArea& area, CaveTurn turn) {
  const CaveArea seen = SharedArea(area, AreaOf(state_.cave));
  const CaveBlock block = Turned(Copy(seen), turn);
  CaveArea covered;
  AsStep(StepOf(turn), [&] {
    Empty(seen);
    covered = Place(block, {seen.left, seen.top});
  });
  return covered;
}

// Rows, columns, sides

void CaveModel::Reshape(CaveRecord cave) {
  const int before = NuOfOb(kAmoebaLetter);
  state_.cave = std::move(cave);
  state_.amoebas += NuOfOb(kAmoebaLetter) - before;
}

bool CaveModel::InsertRow(int y) {
  if (y < 0 || y > Height() || Height() >= kMostHeight) return false;
  return AsStep(EditStep::InsertRow, [&] { Reshape(WithRow(state_.cave, y)); });
}

bool CaveModel::InsertColumn(int x) {
  if (x < 0 || x > Width() || Width() >= kMostWidth) return false;
  return AsStep(EditStep::InsertColumn, [&] { Reshape(WithColumn(state_.cave, x)); });
}

bool CaveModel::DeleteRow(int y) {
  if (y < 0 || y >= Height() || Height() <= kLeastSide) return false;
  return AsStep(EditStep::DeleteRow, [&] { Reshape(WithoutRow(state_.cave, y)); });
}

bool CaveModel::DeleteColumn(int x) {
  if (x < 0 || x >= Width() || Width() <= kLeastSide) return false;
  return AsStep(EditStep::DeleteColumn, [&] { Reshape(WithoutColumn(state_.cave, x)); });
}

bool CaveModel::Resize(const CaveSides& sides) {
  return AsStep(EditStep::Resize, [&] { Reshape(Resized(state_.cave, sides)); });
}

}  // namespace zorik
