#include "editors/DrawHand.h"

#include "editors/CaveView.h"
#include "editors/CellPlaces.h"
#include "editors/Palette.h"

namespace zorik {
namespace {

EditStep StepOf(DrawTool tool) {
  if (tool == DrawTool::Line) return EditStep::Line;
  return tool == DrawTool::Frame ? EditStep::Rectangle : EditStep::FilledRectangle;
}

bool IsShape(DrawTool tool) {
  return tool == DrawTool::Line || tool == DrawTool::Frame || tool == DrawTool::Box;
}

}  // namespace

DrawHand::DrawHand(CaveModel& cave, Palette& palette, CaveView& view, QObject* parent)
    : QObject(parent), cave_(cave), palette_(palette), view_(view), select_(cave, view.Picture(), nullptr) {
  EditKom& picture = view.Picture();
  connect(&picture, &EditKom::StrokeBegins, this, &DrawHand::Begin);
  connect(&picture, &EditKom::Drawn, this, &DrawHand::Draw);
  connect(&picture, &EditKom::Led, this, &DrawHand::Lead);
  connect(&picture, &EditKom::StrokeEnds, this, &DrawHand::End);
  connect(&picture, &EditKom::StrokeBroken, this, &DrawHand::Break);
  connect(&picture, &EditKom::GivenUp, this, &DrawHand::GiveUp);
  connect(&picture, &EditKom::Picked, this, &DrawHand::Pick);
  connect(&picture, &EditKom::Confirmed, &select_, &SelectHand::PutDown);
  connect(&select_, &SelectHand::Changed, this, &DrawHand::Changed);
  connect(&select_, &SelectHand::Selected, this, &DrawHand::ShapeChanged);
  connect(&select_, &SelectHand::Refused, this, &DrawHand::Refused);
}

void DrawHand::SetTool(DrawTool tool) {
  if (tool == tool_) return;
  view_.Picture().EndStroke();
  tool_ = tool;
  view_.Picture().SetLatching(IsShape(tool) || tool == DrawTool::Select);
  emit ToolChanged();
}

char DrawHand::LetterOf(ToolButton button) const {
  return LetterOfTool(palette_.Tool(button), palette_.CurrentDog());
}

QSize DrawHand::Size() const {
  if (!stroke_ || !IsShape(*stroke_)) return select_.Size();
  return ToRect(AreaOf(ToPlace(from_), ToPlace(to_))).size();
}

void DrawHand::Forget() {
  HideShape();
  stroke_.reset();
  select_.Forget();
}

// A stroke

void DrawHand::Begin(QPoint cell, ToolButton button) {
  stroke_.reset();
  if (select_.Holds()) return select_.PutDown();
  if (palette_.Tool(button) < 0) return;
  if (tool_ == DrawTool::Fill) return Fill(cell, button);
  stroke_ = tool_;
  from_ = to_ = Nearest(cell, CellsOf(cave_));
  if (tool_ == DrawTool::Select) return select_.Press(from_);
  if (tool_ == DrawTool::Pencil) return cave_.BeginStroke();
  ShowShape(button);
}

void DrawHand::Draw(QPoint cell, ToolButton button) {
  if (stroke_ != DrawTool::Pencil || !cave_.Draw(cell.x(), cell.y(), LetterOf(button))) return;
  if (palette_.Tool(button) == kDogTool) {
    view_.Picture().update();
  } else {
    view_.Picture().PaintCell(cell);
  }
  emit CellDrawn();
}

void DrawHand::Lead(QPoint cell, ToolButton button) {
  if (!stroke_ || stroke_ == DrawTool::Pencil) return;
  to_ = Nearest(cell, CellsOf(cave_));
  if (stroke_ == DrawTool::Select) return select_.Lead(to_);
  ShowShape(button);
}

void DrawHand::End(ToolButton button) {
  if (!stroke_) return;
  const DrawTool tool = *stroke_;
  const CavePlaces shape = Shape();
  HideShape();
  stroke_.reset();
  if (tool == DrawTool::Select) return select_.Release();
  if (tool == DrawTool::Pencil) {
    cave_.EndStroke();
    emit StrokeDone();
    return;
  }
  cave_.DrawShape(shape, LetterOf(button), StepOf(tool));
  emit Changed();
}

// What the pencil has drawn stays.
void DrawHand::Break() {
  if (!stroke_) return;
  const DrawTool tool = *stroke_;
  HideShape();
  stroke_.reset();
  if (tool == DrawTool::Select) select_.GiveUp();
  if (tool != DrawTool::Pencil) return;
  cave_.EndStroke();
  emit StrokeDone();
}

void DrawHand::GiveUp() {
  const auto tool = stroke_;
  HideShape();
  stroke_.reset();
  if (!tool || tool == DrawTool::Select) return select_.GiveUp();
  if (tool != DrawTool::Pencil) return;
  cave_.DropStroke();
  emit Changed();
}

void DrawHand::Fill(QPoint cell, ToolButton button) {
  if (!cave_.Inside(cell.x(), cell.y())) return;
  cave_.DrawShape(RegionOf(cave_.Cave(), ToPlace(cell)), LetterOf(button), EditStep::Fill);
  emit Changed();
}

void DrawHand::Pick(QPoint cell, ToolButton button) {
  if (!cave_.Inside(cell.x(), cell.y())) return;
  const char letter = cave_.At(cell.x(), cell.y());
  const int palette = ToolOfLetter(letter);
  if (palette < 0) return;
  if (palette == kDogTool) emit PickedDog(ValueOf(letter));
  palette_.SelectTool(button, palette);
}

// Shapes

CavePlaces DrawHand::Shape() const {
  const CaveArea cave = AreaOf(cave_.Cave());
  if (stroke_ == DrawTool::Line) return LineOf(ToPlace(from_), ToPlace(to_), cave);
  if (stroke_ == DrawTool::Frame) return FrameOf(ToPlace(from_), ToPlace(to_), cave);
  if (stroke_ == DrawTool::Box) return BoxOf(ToPlace(from_), ToPlace(to_), cave);
  return {};
}

// A dog stands only once: at the end.
void DrawHand::ShowShape(ToolButton button) {
  EditMarks& marks = view_.Picture().Marks();
  marks.shape = Shape();
  marks.letter = LetterOf(button);
  if (palette_.Tool(button) == kDogTool && !marks.shape.empty()) marks.shape = {marks.shape.back()};
  view_.Picture().update();
  emit ShapeChanged();
}

void DrawHand::HideShape() {
  EditMarks& marks = view_.Picture().Marks();
  if (marks.shape.empty()) return;
  marks.shape.clear();
  view_.Picture().update();
  emit ShapeChanged();
}

// Rows and columns

void DrawHand::ChangeLine(Line line) {
  const EditKom& picture = view_.Picture();
  const QPoint at = picture.Marks().selection ? picture.Marks().selection->topLeft() : picture.Cursor();
  const QPoint place = view_.Place();
  const auto change = [this, at](Line which) {
    if (which == Line::InsertRow) return cave_.InsertRow(at.y());
    if (which == Line::InsertColumn) return cave_.InsertColumn(at.x());
    return which == Line::DeleteRow ? cave_.DeleteRow(at.y()) : cave_.DeleteColumn(at.x());
  };
  view_.Picture().EndStroke();
  if (!change(line)) {
    emit Refused("caption.main.noline", 0);
    return;
  }
  emit Changed();
  view_.SetPlace(place);
}

}  // namespace zorik
