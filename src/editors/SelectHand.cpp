#include "editors/SelectHand.h"

#include <QClipboard>
#include <QGuiApplication>
#include <utility>

#include "data/Result.h"
#include "editors/CellPlaces.h"
#include "editors/EditKom.h"

namespace zorik {

SelectHand::SelectHand(CaveModel& cave, EditKom& picture, QObject* parent)
    : QObject(parent), cave_(cave), picture_(picture) {
  connect(&picture, &EditKom::MarkMoved, this, &SelectHand::HangAtMark);
  connect(&picture, &EditKom::Shoved, this, &SelectHand::Shove);
  connect(&picture, &EditKom::SelectedByKeys, this, &SelectHand::Span);
}

bool SelectHand::HasSelection() const {
  return picture_.Marks().selection.has_value();
}

bool SelectHand::Holds() const {
  return !picture_.Marks().block.IsEmpty();
}

QRect SelectHand::Selection() const {
  return picture_.Marks().selection.value_or(QRect());
}

QSize SelectHand::Size() const {
  const CaveBlock& block = picture_.Marks().block;
  return Holds() ? QSize(block.width, block.height) : Selection().size();
}

void SelectHand::Select(const QRect& cells) {
  const QRect inside = cells & CellsOf(cave_);
  picture_.Marks().selection = inside.isEmpty() ? std::nullopt : std::optional(inside);
  picture_.update();
  emit Selected();
}

void SelectHand::Span(QPoint from, QPoint to) {
  LetGo();
  const QRect cells = CellsOf(cave_);
  Select(ToRect(AreaOf(ToPlace(Nearest(from, cells)), ToPlace(Nearest(to, cells)))));
}

void SelectHand::SelectAll() {
  LetGo();
  Select(CellsOf(cave_));
}

void SelectHand::Forget() {
  LetGo();
  Select({});
}

// The clipboard

void SelectHand::Copy() const {
  if (!HasSelection()) return;
  const CaveBlock block = cave_.Copy(ToArea(Selection()));
  QGuiApplication::clipboard()->setText(QString::fromStdString(WriteBlock(block)));
}

void SelectHand::Cut() {
  if (!HasSelection()) return;
  Copy();
  cave_.Cut(ToArea(Selection()));
  emit Changed();
}

void SelectHand::Clear() {
  if (Holds()) return GiveUp();
  if (!HasSelection()) return;
  cave_.Clear(ToArea(Selection()));
  emit Changed();
}

void SelectHand::Paste() {
  auto block = ReadBlock(QGuiApplication::clipboard()->text().toStdString());
  if (!block) {
    const BlockFailure failure = block.Why();
    emit Refused(failure.line == 0 ? "caption.main.noblock" : "caption.main.noblock.line", failure.line);
    return;
  }
  picture_.EndStroke();
  const QPoint at = picture_.Cursor();
  Hold(*std::move(block), at, std::nullopt);
  picture_.LeadMark(at);
  picture_.setFocus();
}

// A part in the hand

QPoint SelectHand::PlaceFor(QSize part, QPoint wanted) const {
  return {qBound(0, wanted.x(), qMax(0, cave_.Width() - part.width())),
          qBound(0, wanted.y(), qMax(0, cave_.Height() - part.height()))};
}

void SelectHand::Hold(CaveBlock block, QPoint at, std::optional<QRect> left) {
  EditMarks& marks = picture_.Marks();
  marks.block = std::move(block);
  marks.blockPlace = PlaceFor({marks.block.width, marks.block.height}, at);
  marks.left = left;
  picture_.update();
  emit Selected();
}

void SelectHand::LetGo() {
  grip_.reset();
  anchor_.reset();
  picture_.Marks().left.reset();
  if (!Holds()) return;
  picture_.Marks().block = {};
  picture_.update();
  emit Selected();
}

void SelectHand::HangAtMark() {
  EditMarks& marks = picture_.Marks();
  if (!Holds() || grip_ || !marks.mark) return;
  marks.blockPlace = PlaceFor(Size(), *marks.mark);
  picture_.update();
}

void SelectHand::PutDown() {
  if (!Holds()) return;
  const CaveBlock block = picture_.Marks().block;
  const QPoint place = picture_.Marks().blockPlace;
  LetGo();
  Select(ToRect(cave_.Paste(block, ToPlace(place))));
  emit Changed();
}

void SelectHand::GiveUp() {
  const bool begun = Holds() || anchor_ || grip_;
  LetGo();
  if (!begun) Select({});
}

void SelectHand::Turn(CaveTurn turn) {
  if (Holds()) {
    Hold(Turned(picture_.Marks().block, turn), picture_.Marks().blockPlace, std::nullopt);
    HangAtMark();
    return;
  }
  if (!HasSelection()) return;
  const QRect now = Selection();
  const bool quarter = turn == CaveTurn::Right || turn == CaveTurn::Left;
  if (quarter && !CellsOf(cave_).contains(QRect(now.topLeft(), now.size().transposed()))) {
    emit Refused("caption.main.noturn", 0);
    return;
  }
  Select(ToRect(cave_.Turn(ToArea(now), turn)));
  emit Changed();
}

void SelectHand::MoveTo(QPoint place) {
  const QRect now = Selection();
  if (place == now.topLeft()) return;
  Select(ToRect(cave_.Move(ToArea(now), ToPlace(place))));
  emit Changed();
}

void SelectHand::Shove(QPoint step) {
  if (!HasSelection() || Holds()) return;
  MoveTo(PlaceFor(Selection().size(), Selection().topLeft() + step));
}

// The mouse

void SelectHand::Press(QPoint cell) {
  LetGo();
  if (Selection().contains(cell)) {
    grip_ = cell - Selection().topLeft();
  } else {
    anchor_ = cell;
    Select(QRect(cell, cell));
  }
}

void SelectHand::Lead(QPoint cell) {
  if (anchor_) {
    const QPoint anchor = *anchor_;
    Span(anchor, cell);
    anchor_ = anchor;
    return;
  }
  if (!grip_) return;
  const QPoint place = PlaceFor(Selection().size(), cell - *grip_);
  if (!Holds() && place == Selection().topLeft()) return;
  Hold(cave_.Copy(ToArea(Selection())), place, Selection());
}

void SelectHand::Release() {
  anchor_.reset();
  const bool moved = grip_ && Holds();
  const QPoint place = picture_.Marks().blockPlace;
  if (grip_) LetGo();
  if (moved) MoveTo(place);
}

}  // namespace zorik
