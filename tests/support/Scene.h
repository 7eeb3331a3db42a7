#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "core/Machine.h"
#include "core/Rules.h"
#include "core/Scans.h"
#include "data/CaveO.h"

namespace zorik::test {

using Picture = std::vector<std::string>;  // a cave in letters, a string for each row

// The numbers of a test cave besides its letters; the defaults keep quiet.
struct Numbers {
  int time = 100;  // seconds
  int needed = 99;
  int before = 10;
  int after = 20;
  int magicTime = 10;   // seconds
  int amoebaTime = 90;  // seconds
  int permeability = 0;
  int colouring = 4;
  std::string script{};
  std::string name = "Test";
};

// The cave as a text; the letter of the finish and all others as in cave texts.
std::string CaveTextOf(const Picture& picture, const Numbers& numbers = {});

// A run in play of the cave, set up, on the given stage or a silent one.
Hra Play(const Picture& picture, const Numbers& numbers = {}, Stage* stage = nullptr);

// What one tick of a record holds: outcomes drawn before the input, the input, outcomes drawn after it.
struct RecordTick {
  std::vector<int> before{};
  int direction = 0;  // 37 left, 38 up, 39 right, 40 down
  int action = 0;
  int unit = 1;
  std::vector<int> after{};
};
std::string LineOf(const RecordTick& tick);

// The bytes of a record of the cave.
std::string RecordOf(const Picture& picture, const std::vector<RecordTick>& ticks,
                     const Numbers& numbers = {});
// The same with lines as they stand; each gets a line end.
std::string RecordOfLines(const Picture& picture, const std::vector<std::string>& lines,
                          const Numbers& numbers = {});

// A run in playback: chance comes out as the test says.
Hra PlayBack(const Picture& picture, const std::vector<RecordTick>& ticks, const Numbers& numbers = {},
             Stage* stage = nullptr);

// Keys held in one tick, in the letters of key scripts: L U R D arrows, ! action, s a latch, > Tab, digits.
KeySnapshot Keys(std::string_view letters);

// Lets ticks pass with the same keys held in each; answers how the last one ended.
TickEnd Pass(Hra& hra, int ticks = 1, std::string_view keys = "");

// The live cave in letters: those of cave texts (firefly F, butterfly U, fly L whatever their heading, dogs
// by their number, box K, bomb I, struck bomb *, brick X, magic wall M), and r d for boulders and gems that
// fall, x for explosions, - for a vacated cell.
Picture Drawn(const Hra& hra);

// Puts an object with its first state and mark, by its letter, into a cell of a live cave.
void Put(Hra& hra, int x, int y, char letter);

// Writes down what the machine tells the stage, one entry a call: "sound 5", "stop 13", "stopall",
// "message 96 white", "message 90 white 3", "remark ... cyan", "clock 99", "gems 1", "needed 9", "value 10",
// "dog 2 1", "cell 3,4", "view", "jump", "flash", "pause", "question", "hide", "faster", "slower",
// "toggle", "won 123", "time 9", "opens".
class Diary : public Stage {
 public:
  void CaveOpens() override { Note("opens"); }
  void CellChanged(int x, int y) override;
  void PZvuk(SoundId sound) override { Note("sound " + std::to_string(static_cast<int>(sound))); }
  void PZvukStop(SoundId sound) override { Note("stop " + std::to_string(static_cast<int>(sound))); }
  void StopSounds() override { Note("stopall"); }
  void PZvukTime(int seconds) override { Note("time " + std::to_string(seconds)); }
  void ShowMessage(TextId text, Colour colour, int dogs) override;
  void ShowRemark(std::string_view text, Colour colour) override;
  void Label(LabelId label, int value) override;
  void DrawDogN(int n, int state) override;
  void MoveView(bool jump) override { Note(jump ? "jump" : "view"); }
  void Flash() override { Note("flash"); }
  void Post(Request request) override;
  void Won(const WinResult& win) override;

  // How often an entry stands in the diary; all that begin so with a star at the end.
  int Count(const std::string& entry) const;
  bool Has(const std::string& entry) const { return Count(entry) > 0; }
  // Where an entry stands first, -1 if it does not.
  int Place(const std::string& entry) const;
  void Clear() { entries.clear(); }

  std::vector<std::string> entries;

 private:
  void Note(std::string entry) { entries.push_back(std::move(entry)); }
};

// A run in play of a cave in the letters of Drawn: r and d fall, * is a struck bomb, x begins to burn, - is
// vacated.
Hra Live(const Picture& picture, const Numbers& numbers = {}, Stage* stage = nullptr);

// Lets the steered dog of a playback take a step right away; chance is the outcome of its draw.
void StepDog(Hra& hra, int direction, int chance, int action = 0);

// The numbers of the sounds in a diary, in their order.
std::vector<SoundId> SoundsOf(const Diary& diary);

// Lets chance answer what the test says, one outcome for each draw, when a rule is called by itself.
void Foretell(Hra& hra, std::initializer_list<int> outcomes);

// All that was foretold has been drawn, and nothing beyond it.
bool Drained(const Hra& hra);

}  // namespace zorik::test
