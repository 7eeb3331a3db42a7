#pragma once

#include <QDialog>
#include <array>

#include "data/CaveO.h"
#include "editors/CaveSides.h"

class QLabel;
class QSpinBox;

namespace zorik {

class CaveModel;
class EditTiles;
class Skin;

// A picture of the cave as it would be with other sides.
class ResizePicture : public QWidget {
 public:
  ResizePicture(const CaveRecord& cave, EditTiles& tiles, QWidget* parent);

  void Show(const CaveSides& sides);

  QSize sizeHint() const override { return {320, 200}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const CaveRecord& cave_;
  EditTiles& tiles_;
  CaveSides sides_;
};

// Asks how many cells the cave is to gain or to lose at each side, and shows what it would look like.
class ResizeBox : public QDialog {
  Q_OBJECT

 public:
  ResizeBox(Skin& skin, const CaveModel& cave, EditTiles& tiles, QWidget* parent);

  CaveSides Sides() const;

 private:
  QWidget* MakeSides(Skin& skin);
  // Lets each side go as far as the others leave room.
  void Update();

  const CaveModel& cave_;
  ResizePicture* picture_;
  QLabel* size_;
  std::array<QSpinBox*, 4> sides_{};  // left, top, right, bottom
};

}  // namespace zorik
