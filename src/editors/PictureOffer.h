#pragma once

#include <array>
#include <string>

class QImage;
class QString;
class QWidget;

namespace zorik {

struct CaveRecord;
class Skin;

// The sizes of a cell among which an author chooses, in pixels.
inline constexpr std::array<int, 4> kPictureCells{16, 26, 40, 80};

// Lets the author store the cave as a picture (PNG), as the game shows it at its begin, a cell so many pixels
// wide and high.
void OfferCavePicture(Skin& skin, QWidget* parent, const CaveRecord& cave, int cell);

// Lets the author store a picture, in a box with this title; the file that is proposed has this name, in
// Windows-1250. What cannot be stored is told.
void OfferPicture(Skin& skin, QWidget* parent, const QString& title, const std::string& name,
                  const QImage& picture);

}  // namespace zorik
