#include "support/Scene.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

#include "data/RecordFile.h"
#include "data/Result.h"
#include "data/Scramble.h"
#include "trace/Trace.h"

namespace zorik::test {
namespace {

std::string ColourName(Colour colour) {
  switch (colour) {
    case Colour::White:
      return "white";
    case Colour::Green:
      return "green";
    case Colour::Yellow:
      return "yellow";
    default:
      return "cyan";
  }
}

char DogLetter(const Hra& hra, Cell c) {
  const int n = DogIn(hra, c);
  return n == 0 ? 'H' : static_cast<char>('0' + n);
}

char LetterOf(const Hra& hra, Cell c) {
  const std::uint16_t code = hra.Field(c);
  const std::uint8_t state = hra.FieldState(c);
  if (code == kDog) return DogLetter(hra, c);
  if (code == kExplosion) return 'x';
  if (code == kVacated) return '-';
  if (code == kBoulder && state == kFlat) return '*';
  if (code == kBoulder && state == kFalling) return 'r';
  if (code == kGem && state == kFalling) return 'd';
  const auto hasState = [&](const ObjectLetter& row) {
    const bool told = code == kBrick || code == kBox;
    return row.code == code && (!told || row.state == state);
  };
  const auto row = std::find_if(kObjectLetters.begin(), kObjectLetters.end(), hasState);
  return row == kObjectLetters.end() ? '?' : row->letter;
}

}  // namespace

std::string CaveTextOf(const Picture& picture, const Numbers& numbers) {
  CaveRecord cave;
  cave.Time = static_cast<std::int16_t>(numbers.time);
  cave.GemsNeeded = static_cast<std::int16_t>(numbers.needed);
  cave.PointsBefore = static_cast<std::uint8_t>(numbers.before);
  cave.PointsAfter = static_cast<std::uint8_t>(numbers.after);
  cave.MagicWallTime = static_cast<std::uint8_t>(numbers.magicTime);
  cave.AmoebaTime = static_cast<std::uint8_t>(numbers.amoebaTime);
  cave.SlimePermeability = static_cast<std::uint8_t>(numbers.permeability);
  cave.Colouring = static_cast<std::uint8_t>(numbers.colouring);
  cave.Script = numbers.script;
  cave.Name = numbers.name;
  cave.Height = static_cast<std::uint8_t>(picture.size());
  cave.Width = static_cast<std::uint8_t>(picture.empty() ? 0 : picture.front().size());
  for (std::size_t y = 0; y < picture.size(); ++y) {
    if (picture[y].size() != cave.Width) throw std::invalid_argument("rows of different width");
    for (std::size_t x = 0; x < cave.Width; ++x) cave.Cells[x][y] = picture[y][x];
  }
  const Result<std::string> text = BuildCaveText(cave);
  if (!text) throw std::invalid_argument(text.Message());
  return *text;
}

Hra Play(const Picture& picture, const Numbers& numbers, Stage* stage) {
  Hra hra(1);
  if (stage != nullptr) hra.SetStage(*stage);
  hra.PlayerName = "hrac";
  hra.CollectionName = "sada";
  const Result<Done> painted = PaintCave(hra, CaveTextOf(picture, numbers), RunKind::Play);
  if (!painted) throw std::invalid_argument(painted.Message());
  return hra;
}

std::string LineOf(const RecordTick& tick) {
  std::string line;
  const auto add = [&line](int value) { line += static_cast<char>(value + 65); };
  for (const int outcome : tick.before) add(outcome);
  add(tick.direction);
  add(tick.action);
  add(tick.unit);
  for (const int outcome : tick.after) add(outcome);
  return line;
}

std::string RecordOfLines(const Picture& picture, const std::vector<std::string>& lines,
                          const Numbers& numbers) {
  Chance decoration;
  std::string bytes = BuildRecordHead("sada", 0, "hrac", decoration) +
                      ScrambleText(CaveTextOf(picture, numbers), decoration) + "\r\n";
  for (const std::string& line : lines) bytes += line + "\r\n";
  return bytes;
}

std::string RecordOf(const Picture& picture, const std::vector<RecordTick>& ticks, const Numbers& numbers) {
  std::vector<std::string> lines;
  for (const RecordTick& tick : ticks) lines.push_back(LineOf(tick));
  return RecordOfLines(picture, lines, numbers);
}

Hra PlayBack(const Picture& picture, const std::vector<RecordTick>& ticks, const Numbers& numbers,
             Stage* stage) {
  Hra hra(1);
  if (stage != nullptr) hra.SetStage(*stage);
  const Result<Done> started = Replay(hra, RecordOf(picture, ticks, numbers));
  if (!started) throw std::invalid_argument(started.Message());
  return hra;
}

KeySnapshot Keys(std::string_view letters) {
  if (letters.empty()) return {};
  const Result<KeyScript> script = ReadKeyScript(letters);
  if (!script || script->size() != 1) throw std::invalid_argument("no keys of one tick");
  return script->front();
}

TickEnd Pass(Hra& hra, int ticks, std::string_view keys) {
  const KeySnapshot held = Keys(keys);
  TickEnd end = TickEnd::Running;
  for (int i = 0; i < ticks; ++i) end = Tick(hra, held);
  return end;
}

Picture Drawn(const Hra& hra) {
  Picture picture(static_cast<std::size_t>(hra.CaveHeight));
  ForEachCell(hra, [&](Cell c) { picture[static_cast<std::size_t>(c.y())] += LetterOf(hra, c); });
  return picture;
}

void Put(Hra& hra, int x, int y, char letter) {
  const ObjectLetter* object = FindLetter(letter);
  if (object == nullptr) throw std::invalid_argument("no such letter");
  hra.SetField({x, y}, object->code);
  hra.SetFieldState({x, y}, object->state);
  hra.SetFieldMark({x, y}, object->mark);
}

void Diary::CellChanged(int x, int y) {
  Note("cell " + std::to_string(x) + "," + std::to_string(y));
}

void Diary::ShowMessage(TextId text, Colour colour, int dogs) {
  Note("message " + std::to_string(static_cast<int>(text)) + " " + ColourName(colour) +
       (text == TextId::FewDogs || text == TextId::ManyDogs ? " " + std::to_string(dogs) : ""));
}

void Diary::ShowRemark(std::string_view text, Colour colour) {
  Note("remark " + std::string(text) + " " + ColourName(colour));
}

void Diary::Label(LabelId label, int value) {
  static const std::array<std::string, 4> kNames{"clock ", "gems ", "needed ", "value "};
  Note(kNames[static_cast<std::size_t>(label)] + std::to_string(value));
}

void Diary::DrawDogN(int n, int state) {
  Note("dog " + std::to_string(n) + " " + std::to_string(state));
}

void Diary::Post(Request request) {
  static const std::array<std::string, 6> kNames{"pause", "question", "hide", "faster", "slower", "toggle"};
  Note(kNames[static_cast<std::size_t>(request)]);
}

void Diary::Won(const WinResult& win) {
  Note("won " + std::to_string(win.Score));
}

int Diary::Count(const std::string& entry) const {
  const bool open = !entry.empty() && entry.back() == '*';
  const std::string start = open ? entry.substr(0, entry.size() - 1) : entry;
  return static_cast<int>(std::count_if(entries.begin(), entries.end(), [&](const std::string& own) {
    return open ? own.compare(0, start.size(), start) == 0 : own == entry;
  }));
}

int Diary::Place(const std::string& entry) const {
  const auto found = std::find(entries.begin(), entries.end(), entry);
  return found == entries.end() ? -1 : static_cast<int>(found - entries.begin());
}

Hra Live(const Picture& picture, const Numbers& numbers, Stage* stage) {
  struct Special {
    char letter;
    std::uint16_t code;
    std::uint8_t state;
  };
  constexpr std::array<Special, 5> kSpecial{{{'r', kBoulder, kFalling},
                                             {'d', kGem, kFalling},
                                             {'*', kBoulder, kFlat},
                                             {'x', kExplosion, kFlat},
                                             {'-', kVacated, kFlat}}};
  Picture plain = picture;
  for (std::string& row : plain) {
    for (const Special& special : kSpecial) std::replace(row.begin(), row.end(), special.letter, '.');
  }
  Hra hra = Play(plain, numbers, stage);
  ForEachCell(hra, [&](Cell c) {
    const char letter = picture[static_cast<std::size_t>(c.y())][static_cast<std::size_t>(c.x())];
    for (const Special& special : kSpecial) {
      if (special.letter != letter) continue;
      hra.SetField(c, special.code);
      hra.SetFieldState(c, special.state);
    }
  });
  return hra;
}

void StepDog(Hra& hra, int direction, int chance, int action) {
  constexpr std::string_view kOutcomes = "ABCDE";
  hra.KeyDirection = direction;
  hra.KeyAction = action;
  hra.RecordLine = kOutcomes.substr(static_cast<std::size_t>(chance), 1);
  PohybH(hra);
}

std::vector<SoundId> SoundsOf(const Diary& diary) {
  std::vector<SoundId> sounds;
  for (const std::string& entry : diary.entries) {
    if (entry.starts_with("sound ")) sounds.push_back(static_cast<SoundId>(std::stoi(entry.substr(6))));
  }
  return sounds;
}

// The text of a record that a playback does not write holds the outcomes.
void Foretell(Hra& hra, std::initializer_list<int> outcomes) {
  hra.Kind = RunKind::Replay;
  hra.RanDry = false;
  hra.RecordText.clear();
  for (const int outcome : outcomes) hra.RecordText += static_cast<char>(outcome + 65);
  hra.RecordLine = hra.RecordText;
}

bool Drained(const Hra& hra) {
  return hra.RecordLine.empty() && !hra.RanDry;
}

}  // namespace zorik::test
