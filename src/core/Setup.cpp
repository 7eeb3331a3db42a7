// Set-up: the cave text becomes the grids of a new run, PaintCave and OpenCave.
#include <algorithm>
#include <string>

#include "core/Machine.h"
#include "core/Patterns.h"
#include "core/Schemes.h"
#include "data/CaveO.h"
#include "data/Collection.h"
#include "data/Lines.h"
#include "data/Result.h"
#include "data/Scramble.h"

namespace zorik {
namespace {

constexpr std::size_t kClassic = 0, kCold = 1, kHot = 2, kNatural = 3, kMystery = 4;  // places in kSchemes

// By the cave's colouring.
constexpr std::array<std::size_t, 15> kColourings{kHot,  kMystery, kCold,    kClassic, kClassic,
                                                  kCold, kNatural, kNatural, kHot,     kClassic,
                                                  kCold, kHot,     kNatural, kMystery, kMystery};

void Frame(Hra& hra) {
  const auto steel = [&hra](int x, int y) { hra.SetObject({x, y}, kSteel, kFlat); };
  for (int x = -1; x <= hra.CaveWidth; ++x) {
    steel(x, -1);
    steel(x, hra.CaveHeight);
  }
  for (int y = -1; y <= hra.CaveHeight; ++y) {
    steel(-1, y);
    steel(hra.CaveWidth, y);
  }
}

void CopyRecord(Hra& hra, const CaveRecord& cave) {
  hra.CaveName = cave.Name;
  hra.CaveWidth = cave.Width;
  hra.CaveHeight = cave.Height;
  hra.GemValue = hra.GemValueBefore = cave.PointsBefore;
  hra.GemValueAfter = cave.PointsAfter;
  hra.MagicTime = cave.MagicWallTime;
  hra.AmoebaTime = cave.AmoebaTime;
  hra.TimeLimit = hra.ClockShown = cave.Time;
  hra.GemsNeeded = cave.GemsNeeded;
  hra.SlimePermeability = cave.SlimePermeability;
  if (cave.Colouring < kColourings.size()) {
    const SchemeRow& scheme = kSchemes[kColourings[cave.Colouring]];
    hra.Scheme = scheme.name;
    hra.SchemeHue = scheme.hue;
  }
}

void ShowLabels(Hra& hra) {
  hra.stage().Label(LabelId::Clock, hra.ClockShown);
  hra.stage().Label(LabelId::Needed, hra.GemsNeeded);
  hra.stage().Label(LabelId::Value, hra.GemValue);
  hra.stage().Label(LabelId::Gems, hra.GemsCollected);
}

// With several of the same number, or several fleas or cats, the last one counts.
void PlaceUnit(Hra& hra, const ObjectLetter& object, int x, int y) {
  if (object.code == kCat) {
    hra.CatX = x;
    hra.CatY = y;
    hra.CatPresent = true;
  }
  if (object.code == kFlea) hra.Dog[0] = {x, y, true};
  const int n = DogNumber(object.letter);
  if (n == 0) return;
  hra.Dog[static_cast<std::size_t>(n)] = {x, y, true};
  hra.DogCount = std::max(hra.DogCount, n);
  hra.DogPose = n == 1 ? 0 : 4 + n;  // only dog 1 is painted as the steered one
}

void PlaceLetter(Hra& hra, char letter, Cell c) {
  const ObjectLetter* object = FindLetter(letter);
  if (object == nullptr) return;
  hra.SetObject(c, object->code, object->state);
  hra.SetFieldMark(c, object->mark);
  PlaceUnit(hra, *object, c.x(), c.y());
}

// The pads of the teleport: slime over steel is the entrance, slime under steel the exit.
struct Pads {
  bool in = false;
  bool out = false;
};

void OpenPad(Hra& hra, Cell slime, Cell steel) {
  hra.TeleportActive = true;
  hra.SetField(slime, kSpace);
  PREKR(hra, slime);
  PREKR(hra, steel);
}

// Looks for both pads right after a cell has been placed, when those below and right of it are not there
// yet. So of a slime between two steels the upper one makes an exit.
void FindPads(Hra& hra, Cell c, Pads& pads) {
  const Cell above = c + kUp;
  if (!pads.in && IsEntranceSlime(hra, above)) {
    hra.TeleportIn = above;
    pads.in = true;
    OpenPad(hra, above, c);
  }
  if (!pads.out && IsExitSlime(hra, c)) {
    hra.TeleportOut = c;
    pads.out = true;
    OpenPad(hra, c, above);
  }
}

void PlaceCells(Hra& hra, const CaveRecord& cave) {
  Pads pads;
  ForEachCell(hra, [&](Cell c) {
    PlaceLetter(hra, cave.Cells[static_cast<std::size_t>(c.x())][static_cast<std::size_t>(c.y())], c);
    PREKR(hra, c);
    if (hra.Field(c) == kSteel) {
      PREKR(hra, c + kLeft);
      PREKR(hra, c + kLeft + kLeft);
    }
    FindPads(hra, c, pads);
  });
  if (pads.in && pads.out) return;
  // A lone pad is lost: its slime stays space.
  hra.TeleportActive = false;
  hra.TeleportIn = hra.TeleportOut = Cell();
}

// Dog 1, or the lowest unit that lives.
int FirstUnit(const Hra& hra) {
  if (hra.Dog[1].Alive) return 1;
  for (int n = 0; n <= hra.DogCount; ++n) {
    if (hra.Dog[static_cast<std::size_t>(n)].Alive) return n;
  }
  return 1;
}

void ChooseFirstUnit(Hra& hra) {
  hra.DogPose = 0;
  hra.MultiDog = hra.DogCount != 1 || hra.Dog[0].Alive;
  hra.ActiveDog = FirstUnit(hra);
  if (!hra.MultiDog) {
    hra.stage().ShowMessage(TextId::LeadDog, Colour::White);
    return;
  }
  for (int n = 0; n <= hra.DogCount; ++n) {
    if (hra.Dog[static_cast<std::size_t>(n)].Alive) hra.stage().DrawDogN(n, n == 1 ? 0 : 1);
  }
  ZmenitPsa(hra, 0);
  hra.stage().ShowMessage(hra.DogCount < 5 ? TextId::FewDogs : TextId::ManyDogs, Colour::White, hra.DogCount);
}

Result<Done> Playable(std::string_view text, const CaveRecord& cave) {
  if (text.empty()) return Failure{"the cave is empty: its text was not found"};
  if (cave.Width <= kMaxWidth && cave.Height <= kMaxHeight) return Done{};
  return Failure{"the cave has " + std::to_string(cave.Width) + " x " + std::to_string(cave.Height) +
                 " cells, the largest that can be played has " + std::to_string(kMaxWidth) + " x " +
                 std::to_string(kMaxHeight)};
}

}  // namespace

Result<CaveRecord> ReadCave(std::string_view caveText) {
  Result<CaveRecord> cave = ParseCaveText(caveText);
  if (!cave) return cave;
  if (const Result<Done> playable = Playable(caveText, *cave); !playable) return playable.Why();
  return cave;
}

void StartRun(Hra& hra, std::string caveText, const CaveRecord& cave, RunKind kind) {
  hra.stage().StopSounds();
  static_cast<RunState&>(hra) = RunState();
  hra.CaveText = std::move(caveText);
  hra.Kind = kind;
  if (!hra.ReplayPlaying() && !hra.Practising()) hra.Recording = true;
  if (hra.Recording && !hra.Practising())
    hra.RecordText = ScrambleText(hra.CaveText, hra.Decoration) + "\r\n";

  CopyRecord(hra, cave);
  hra.stage().CaveOpens();
  ShowLabels(hra);
  Frame(hra);
  PlaceCells(hra, cave);
  if (hra.CatPresent) hra.CatProgram = cave.Script;
  if (hra.Count(kAmoeba) > 0) hra.stage().PZvuk(SoundId::Amoeba);
  ChooseFirstUnit(hra);
  hra.stage().MoveView(true);
}

Result<Done> PaintCave(Hra& hra, std::string_view caveText, RunKind kind) {
  const Result<CaveRecord> cave = ReadCave(caveText);
  if (!cave) return Failure{cave.Message()};
  StartRun(hra, std::string(caveText), *cave, kind);
  return Done{};
}

Result<Done> OpenCave(Hra& hra, const PlayedCave& cave, RunKind kind) {
  if (Result<Done> playable = Playable(cave.Text, cave.Record); !playable) return playable;
  StartRun(hra, cave.Text, cave.Record, kind);
  return Done{};
}

}  // namespace zorik
