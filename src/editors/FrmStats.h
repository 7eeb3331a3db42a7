#pragma once

#include <QDialog>

namespace zorik {

class CaveModel;
class EditTiles;
class Skin;

// How many of each object the cave holds, in the order of the palette; dogs one by one, and last the letters
// that have no tile. Below them how its gems stand.
class FrmStats : public QDialog {
 public:
  FrmStats(Skin& skin, const CaveModel& cave, EditTiles& tiles, QWidget* parent);

  void done(int result) override;
};

}  // namespace zorik
