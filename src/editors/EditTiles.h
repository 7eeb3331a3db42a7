#pragma once

#include <QImage>
#include <QRect>
#include <array>
#include <map>
#include <string>
#include <string_view>

#include "editors/CaveModel.h"
#include "editors/ToolTable.h"
#include "skin/Pictures.h"
#include "skin/SkinPlaces.h"
#include "skin/TileSets.h"

namespace zorik {

// The tiles of the cave editor: those of the skin, with what authors have to tell apart drawn on top: the
// direction of monsters and the numbers of dogs. Sizes are in pixels of the screen.
class EditTiles {
 public:
  // Takes the tiles of a skin in one scheme.
  void Load(const SkinPlaces& places, std::string_view scheme);

  // The tile of a palette number, as wide and as high as size; a number without a tile gives empty space. The
  // dog, 1 to 9, counts for the dog's tile only. It lives until tiles are loaded anew.
  const QImage& Tile(int palette, int dog, int size);

 private:
  static constexpr std::size_t kPictures = static_cast<std::size_t>(kPaletteEnd + kDogs);

  // The place of a tile among all pictures.
  static std::size_t PlaceOf(int palette, int dog);
  QImage MakeTile(int palette, int dog, int size);

  PictureCache cache_;
  TileSets sets_;
  std::map<int, std::array<QImage, kPictures>> tiles_;  // by size
};

// Draws cells of a cave, each so many pixels wide and high. The picture gets the size of these cells; one
// that has it is drawn over. Cells outside of the cave must not be asked for.
void DrawCells(const CaveModel& cave, EditTiles& tiles, const QRect& cells, int size, QImage& picture);

}  // namespace zorik
