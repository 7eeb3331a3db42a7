#pragma once

#include <QObject>
#include <QPoint>
#include <optional>

#include "editors/CaveModel.h"
#include "editors/DrawTool.h"
#include "editors/SelectHand.h"
#include "editors/ToolTable.h"

namespace zorik {

class CaveView;
class Palette;

// What the author's hand does in the picture of the cave, with the mouse or with keys: it draws with the tool
// that it has taken, one step for each stroke.
class DrawHand : public QObject {
  Q_OBJECT

 public:
  DrawHand(CaveModel& cave, Palette& palette, CaveView& view, QObject* parent);

  DrawTool Tool() const { return tool_; }
  void SetTool(DrawTool tool);
  SelectHand& Selection() { return select_; }
  // The rectangle that is being drawn, marked or held.
  QSize Size() const;
  // Another cave has been opened.
  void Forget();

  // Rows and columns at the selection, or at the mark.
  enum class Line { InsertRow, InsertColumn, DeleteRow, DeleteColumn };
  void ChangeLine(Line line);

 signals:
  void ToolChanged();
  // A cell has been drawn within a stroke.
  void CellDrawn();
  // A stroke with the pencil has ended.
  void StrokeDone();
  // The cave has changed as a whole.
  void Changed();
  // Another shape would be drawn.
  void ShapeChanged();
  void PickedDog(int dog);
  void Refused(const char* caption, int line);

 private:
  char LetterOf(ToolButton button) const;
  void Begin(QPoint cell, ToolButton button);
  void Draw(QPoint cell, ToolButton button);
  void Lead(QPoint cell, ToolButton button);
  void End(ToolButton button);
  void Break();
  void GiveUp();
  void Pick(QPoint cell, ToolButton button);
  CavePlaces Shape() const;
  void ShowShape(ToolButton button);
  void HideShape();
  void Fill(QPoint cell, ToolButton button);

  CaveModel& cave_;
  Palette& palette_;
  CaveView& view_;
  SelectHand select_;
  DrawTool tool_ = DrawTool::Pencil;
  std::optional<DrawTool> stroke_;  // the tool of the stroke that is led
  QPoint from_, to_;                // of a shape
};

}  // namespace zorik
