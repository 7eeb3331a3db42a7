#pragma once

#include <QDialog>

namespace zorik {

class CaveModel;
class EditTiles;
class Skin;

// How many of each object the cave holds, in the order of the palette; dogs one by one, and last the letters
// that have no tile.
class FrmStats : public QDialog {
 public:
  FrmStats(Skin& skin, const CaveModel& cave, EditTiles& tiles, QWidget* parent);

  void done(int result) override;
};

// The name of an object in the skin's language: that of its tile. A letter without one goes by itself.
QString NameOfLetter(const Skin& skin, char letter);

// The name of a tile; the dog's has its number.
QString NameOfTool(const Skin& skin, int palette, int dog);

}  // namespace zorik
