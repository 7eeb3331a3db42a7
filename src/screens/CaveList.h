#pragma once

#include <QColor>
#include <QString>
#include <QWidget>
#include <array>
#include <vector>

#include "data/Progress.h"

namespace zorik {

class Skin;

// The list of the caves of a collection, a row for each: number, name and points in the colour of the cave's
// state, and a border around the selected one. Caves count from 1; measures are logical pixels.
class CaveList : public QWidget {
  Q_OBJECT

 public:
  struct Row {
    QString name;
    int score = 0;
    CaveState state = CaveState::Closed;
    bool stored = true;  // a win that could not be stored has a mark
  };

  explicit CaveList(QWidget* parent);

  // Takes its place, size and colours from the skin.
  void SkinIt(const Skin& skin);

  void SetRows(std::vector<Row> rows);
  const std::vector<Row>& Rows() const { return rows_; }

  // Selects a row and scrolls so far that all of it is seen.
  void Select(int number);
  int Selected() const { return selected_; }

  // Where the first row begins in the view.
  int Top() const { return top_; }

  // How far the list can be scrolled; 0 when it fits into the view.
  int Range() const;

  // Scrolls on by so many rows.
  void Scroll(int rows);

  // How many whole rows the view holds.
  int Page() const;

  QColor TextColour(int number) const;

 signals:
  void CaveClicked(int number);
  void CaveDoubleClicked(int number);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  static constexpr std::size_t kStates = 4;

  QRect View() const;
  int RowTop(int number) const;
  int RowAt(QPoint place) const;
  void DrawRow(QPainter& painter, int number) const;
  void DrawMark(QPainter& painter, const QRect& line) const;

  std::vector<Row> rows_;
  int selected_ = 0;
  int top_ = 0;
  int wheel_ = 0;  // turned, but not yet enough for a row

  std::array<QColor, kStates> colours_{};
  std::array<QColor, kStates> selectedColours_{};
  QColor ground_, selectedGround_, border_;
  int borderSize_ = 0;
};

}  // namespace zorik
