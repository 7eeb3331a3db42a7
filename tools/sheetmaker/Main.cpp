// sheetmaker SKINS FOLDER   pictures of the default skin in every scheme, as the game composes them:
//   <Scheme>-98.png, -49.png, -24.png   all frames at these sizes, over the ground of the scheme
//   <Scheme>-24-grey.png                the same without colours
//   <Scheme>-cave.png                   a cave in which everything stands side by side

#include <QFile>
#include <QImage>
#include <QPainter>
#include <array>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "core/Objects.h"

namespace {

constexpr std::array<std::string_view, 5> kSchemes{"Classic", "Cold", "Hot", "Natural", "Mystery"};
constexpr std::array<int, 3> kSizes{98, 49, 24};
constexpr int kSheetColumns = 16;
constexpr int kTileSize = 80;  // of a frame in the pictures
constexpr std::size_t kSpace = 0, kDirt = 1, kSteel = 8;

// One frame: which set, and where on its grid of frames.
struct CellPicture {
  std::size_t set = kSpace;
  int column = 0;
  int row = 0;
};

// A picture as cells: each holds one frame.
using Cells = std::vector<std::vector<CellPicture>>;

// The letters of the cave below, each with its set, column and row. A letter that is not here is a wall of
// steel.
struct Letter {
  char letter;
  CellPicture picture;
};
constexpr Letter kLetters[] = {
    {' ', {0, 0, 0}},  {'.', {1, 0, 0}},  {'o', {2, 0, 0}},  {'*', {3, 0, 0}},  {'+', {3, 0, 3}},
    {'@', {4, 1, 0}},  {'<', {4, 0, 0}},  {'z', {4, 7, 0}},  {'2', {4, 8, 0}},  {'#', {5, 0, 0}},
    {'f', {6, 0, 0}},  {'b', {7, 0, 0}},  {'=', {8, 0, 0}},  {'E', {9, 0, 2}},  {'a', {10, 0, 0}},
    {'x', {11, 0, 0}}, {'M', {12, 0, 1}}, {'(', {13, 0, 0}}, {'v', {13, 1, 0}}, {')', {13, 2, 0}},
    {'s', {14, 0, 0}}, {'y', {15, 0, 0}}, {'1', {16, 0, 0}}, {'3', {16, 0, 1}}, {'4', {16, 0, 2}},
    {'5', {16, 0, 3}}, {'r', {17, 0, 3}}, {'g', {17, 1, 3}}, {'u', {17, 2, 3}}, {'R', {18, 0, 0}},
    {'G', {18, 1, 0}}, {'U', {18, 2, 0}}, {'t', {19, 0, 0}}, {'T', {19, 0, 6}}, {'d', {20, 0, 0}},
    {'c', {21, 1, 0}}, {'C', {21, 0, 0}}, {'O', {22, 0, 0}}, {'Q', {22, 0, 1}}, {'w', {23, 0, 1}},
    {'l', {24, 0, 2}}, {'S', {25, 0, 2}}, {'I', {25, 0, 0}}, {'k', {26, 0, 3}}, {'h', {27, 0, 0}},
    {'-', {27, 0, 1}}, {'|', {27, 0, 2}}, {'e', {27, 0, 3}},
};

constexpr std::array<std::string_view, 14> kCave{
    "========================", "=....o...*..#.  aaaa..*=", "=.@...o.....#  faaa....=",
    "=.....*..oo.# f   a..o.=", "=##########.#   b  ..*.=", "=  b   o *..####hM##...=",
    "=    f  *..o..   .  r..=", "=ssssss.....oo.o**.R..u=", "=ww  y ..xx.<..*..*=U===",
    "=wwwl  .o..O..#-#|..  k=", "=ww  d . (v).Q.2.z.t c =", "=..S.G.o   . .1345*T  C=",
    "=o.I.g*....o...*+..o..E=", "======================e="};

// All sets of one scheme, each laid over the ground.
class Tiles {
 public:
  // False if a picture is missing.
  bool Load(const std::string& skins, std::string_view scheme) {
    const QString game = QString::fromStdString(skins + "/Default/Game/");
    const QString own = game + QString::fromStdString(std::string(scheme) + "/");
    for (std::size_t i = 0; i < sets_.size(); ++i) {
      const QString name = QString::fromStdString(std::string(zorik::kTileSets[i]) + ".bmp");
      const QImage picture(QFile::exists(own + name) ? own + name : game + name);
      if (picture.isNull()) {
        std::fprintf(stderr, "%s is missing\n", name.toLocal8Bit().constData());
        return false;
      }
      const QImage ground = i == kSpace ? picture : sets_[kSpace];
      sets_[i] = OverGround(picture, ground.copy(0, 0, kTileSize, kTileSize));
    }
    return true;
  }

  int Columns(std::size_t set) const { return sets_[set].width() / kTileSize; }
  int Rows(std::size_t set) const { return sets_[set].height() / kTileSize; }

  QImage Frame(const CellPicture& cell, int size) const {
    return sets_[cell.set]
        .copy(cell.column * kTileSize, cell.row * kTileSize, kTileSize, kTileSize)
        .scaled(size, size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  }

 private:
  static QImage OverGround(const QImage& picture, const QImage& ground) {
    QImage composed(picture.size(), QImage::Format_RGB32);
    QPainter painter(&composed);
    painter.fillRect(composed.rect(), QBrush(ground));
    painter.drawImage(0, 0, picture);
    return composed;
  }

  std::array<QImage, zorik::kTileSets.size()> sets_;
};

// Random rows as the game would roll them, but the same in every run.
int GrainRow(std::size_t x, std::size_t y, int rows) {
  const std::size_t mixed = (x * 73 + y * 151 + x * y * 7) % 97;
  return static_cast<int>(mixed % static_cast<std::size_t>(rows));
}

CellPicture OfLetter(char letter, std::size_t x, std::size_t y, const Tiles& tiles) {
  CellPicture picture{kSteel, 0, 0};
  for (const Letter& known : kLetters) {
    if (known.letter == letter) picture = known.picture;
  }
  if (picture.set == kSpace) picture.row = static_cast<int>((x + y) % 2);
  if (picture.set == kDirt) picture.row = GrainRow(x, y, tiles.Rows(kDirt));
  return picture;
}

Cells CaveCells(const Tiles& tiles) {
  Cells cells;
  for (std::size_t y = 0; y < kCave.size(); ++y) {
    std::vector<CellPicture>& line = cells.emplace_back();
    for (std::size_t x = 0; x < kCave[y].size(); ++x) line.push_back(OfLetter(kCave[y][x], x, y, tiles));
  }
  return cells;
}

// All frames of all sets, a set on one line where it fits, parted by bare ground.
Cells SheetCells(const Tiles& tiles) {
  Cells cells(1);
  for (std::size_t set = 0; set < zorik::kTileSets.size(); ++set) {
    const int columns = tiles.Columns(set), frames = columns * tiles.Rows(set);
    if (kSheetColumns - static_cast<int>(cells.back().size()) < frames) cells.emplace_back();
    for (int i = 0; i < frames; ++i) {
      if (cells.back().size() == kSheetColumns) cells.emplace_back();
      cells.back().push_back({set, i % columns, i / columns});
    }
    if (cells.back().size() < kSheetColumns) cells.back().push_back({});
  }
  for (std::vector<CellPicture>& line : cells) line.resize(kSheetColumns);
  return cells;
}

QImage Compose(const Cells& cells, const Tiles& tiles, int size) {
  QImage sheet(static_cast<int>(cells.front().size()) * size, static_cast<int>(cells.size()) * size,
               QImage::Format_RGB32);
  QPainter painter(&sheet);
  for (std::size_t y = 0; y < cells.size(); ++y) {
    for (std::size_t x = 0; x < cells[y].size(); ++x) {
      painter.drawImage(static_cast<int>(x) * size, static_cast<int>(y) * size,
                        tiles.Frame(cells[y][x], size));
    }
  }
  return sheet;
}

bool Save(const QImage& image, const std::string& path) {
  if (image.save(QString::fromStdString(path))) return true;
  std::fprintf(stderr, "%s cannot be written\n", path.c_str());
  return false;
}

bool SaveScheme(const std::string& skins, std::string_view scheme, const std::string& folder) {
  Tiles tiles;
  if (!tiles.Load(skins, scheme)) return false;
  const std::string stem = folder + "/" + std::string(scheme);
  const Cells all = SheetCells(tiles);
  bool saved = true;
  for (const int size : kSizes) {
    saved = Save(Compose(all, tiles, size), stem + "-" + std::to_string(size) + ".png") && saved;
  }
  const QImage grey = Compose(all, tiles, kSizes.back()).convertToFormat(QImage::Format_Grayscale8);
  saved = Save(grey, stem + "-" + std::to_string(kSizes.back()) + "-grey.png") && saved;
  return Save(Compose(CaveCells(tiles), tiles, kTileSize), stem + "-cave.png") && saved;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("usage: sheetmaker SKINS FOLDER\n", stderr);
    return 2;
  }
  bool saved = true;
  for (const std::string_view scheme : kSchemes) saved = SaveScheme(argv[1], scheme, argv[2]) && saved;
  return saved ? 0 : 1;
}
