// sheetmaker SKINS FOLDER   pictures of the default skin in every scheme, as the game composes them:
//   <Scheme>-98.png, -49.png, -24.png   all frames at these sizes, over the ground of the scheme
//   <Scheme>-24-grey.png                the same without colours
//   <Scheme>-cave.png, -cave-24.png     a cave in which everything stands side by side

#include <QImage>
#include <QPainter>
#include <array>
#include <cstdio>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "core/Schemes.h"
#include "data/Result.h"
#include "skin/TileSets.h"
#include "view/ZornePole.h"

namespace zorik {
namespace {

constexpr std::array<int, 3> kSizes{98, 49, 24};
constexpr int kSheetColumns = 16;
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

// Random rows as the game would roll them, but the same in every run.
std::uint16_t GrainRow(std::size_t x, std::size_t y, int rows) {
  const std::size_t mixed = (x * 73 + y * 151 + x * y * 7) % 97;
  return static_cast<std::uint16_t>(mixed % static_cast<std::size_t>(rows));
}

CellPicture OfLetter(char letter, std::size_t x, std::size_t y, const TileSets& tiles) {
  CellPicture picture{kSetSteel, 0, 0};
  for (const Letter& known : kLetters) {
    if (known.letter == letter) picture = known.picture;
  }
  if (picture.Pic == kSetSpace) picture.Row = static_cast<std::uint16_t>((x + y) % 2);
  if (picture.Pic == kSetDirt) picture.Row = GrainRow(x, y, tiles.Frames()[kSetDirt]);
  return picture;
}

Cells CaveCells(const TileSets& tiles) {
  Cells cells;
  for (std::size_t y = 0; y < kCave.size(); ++y) {
    std::vector<CellPicture>& line = cells.emplace_back();
    for (std::size_t x = 0; x < kCave[y].size(); ++x) line.push_back(OfLetter(kCave[y][x], x, y, tiles));
  }
  return cells;
}

// All frames of all sets, a set on one line where it fits, parted by bare ground.
Cells SheetCells(const TileSets& tiles) {
  Cells cells(1);
  for (std::size_t set = 0; set < kTileSetCount; ++set) {
    const int columns = tiles.Columns()[set], frames = columns * tiles.Frames()[set];
    if (kSheetColumns - static_cast<int>(cells.back().size()) < frames) cells.emplace_back();
    for (int i = 0; i < frames; ++i) {
      if (cells.back().size() == kSheetColumns) cells.emplace_back();
      cells.back().push_back({static_cast<std::uint8_t>(set), static_cast<std::uint16_t>(i % columns),
                              static_cast<std::uint16_t>(i / columns)});
    }
    if (cells.back().size() < kSheetColumns) cells.back().push_back({});
  }
  for (std::vector<CellPicture>& line : cells) line.resize(kSheetColumns);
  return cells;
}

QImage Compose(const Cells& cells, TileSets& tiles, int size, bool softEdges) {
  const auto columns = static_cast<int>(cells.front().size()), rows = static_cast<int>(cells.size());
  const auto at = [&cells](int x, int y) {
    return cells[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)];
  };
  const auto ground = [&](int x, int y) {
    const bool inside = x >= 0 && x < columns && y >= 0 && y < rows;
    return inside ? tiles.GroundOf(at(x, y)) : Ground::Covered;
  };
  QImage sheet(columns * size, rows * size, QImage::Format_RGB32);
  QPainter painter(&sheet);
  for (int y = 0; y < rows; ++y) {
    for (int x = 0; x < columns; ++x) {
      const EdgeMask edges = softEdges && tiles.HasEdges() ? EdgesAround(x, y, ground) : EdgeMask{0};
      painter.drawImage(x * size, y * size, tiles.Frame(at(x, y), QSize(size, size), edges));
    }
  }
  return sheet;
}

Result<Done> Save(const QImage& image, const std::string& path) {
  if (image.save(QString::fromStdString(path))) return Done{};
  return Failure{path + " cannot be written"};
}

Result<Done> SaveScheme(const std::string& skins, std::string_view scheme, const std::string& folder) {
  PictureCache pictures;
  TileSets tiles;
  tiles.Load(pictures, {skins}, scheme);
  const std::string stem = folder + "/" + std::string(scheme);
  const Cells all = SheetCells(tiles), cave = CaveCells(tiles);
  std::map<std::string, QImage> sheets;
  for (const int size : kSizes) sheets["-" + std::to_string(size)] = Compose(all, tiles, size, false);
  const QImage& small = sheets["-" + std::to_string(kSizes.back())];
  sheets["-" + std::to_string(kSizes.back()) + "-grey"] = small.convertToFormat(QImage::Format_Grayscale8);
  sheets["-cave-24"] = Compose(cave, tiles, kSizes.back(), true);
  sheets["-cave"] = Compose(cave, tiles, kTileSize, true);
  for (const auto& [kind, image] : sheets) {
    Result<Done> saved = Save(image, stem + kind + ".png");
    if (!saved) return saved;
  }
  return Done{};
}

}  // namespace
}  // namespace zorik

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("usage: sheetmaker SKINS FOLDER\n", stderr);
    return 2;
  }
  for (const zorik::SchemeRow& scheme : zorik::kSchemes) {
    const zorik::Result<zorik::Done> saved = zorik::SaveScheme(argv[1], scheme.name, argv[2]);
    if (saved) continue;
    std::fprintf(stderr, "%s\n", saved.Message().c_str());
    return 1;
  }
  return 0;
}
