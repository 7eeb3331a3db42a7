#pragma once

// Hra, the game: the state of a run with its grids, counters, units and record, and what one may do with it
// from outside: start, tick, replay, restart, leave.

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/Grids.h"
#include "core/Keys.h"
#include "core/Objects.h"
#include "core/Stage.h"
#include "data/Chance.h"
#include "data/Lines.h"
#include "data/ResultFwd.h"

namespace zorik {

struct PlayedCave;

inline constexpr int kMaxWidth = 100;
inline constexpr int kMaxHeight = 60;
inline constexpr int kUnits = 10;           // the swarm, number 0, and nine dogs
inline constexpr int kAbsentUnit = 250;     // both coordinates of a unit that the cave does not have
inline constexpr int kAbsent = 240;         // both coordinates of a cat that the cave does not have
inline constexpr int kTicksPerSecond = 10;  // of game time, at any speed
inline constexpr int kAmoebaListSize = 2501;
inline constexpr const char* kNobody = "/";  // the player's name where nobody plays

// A steerable unit. Number 0 is the swarm of fleas, at the mean of their places.
struct Unit {
  int x = kAbsentUnit;
  int y = kAbsentUnit;
  bool Alive = false;
};

enum MagicStates : int { kMagicDormant, kMagicRunning, kMagicSpent };
enum AmoebaStates : int { kAmoebaSlow, kAmoebaFast, kAmoebaTooBig, kAmoebaEnclosed };

// What a won run is worth.
struct WinResult {
  int LiveDogs = 0;
  bool BonusCave = false;
  int TimeLeft = 0;   // the number on the clock
  int BaseScore = 0;  // without the bonus
  int Score = 0;      // what is stored, 0 to 99999
};

// What a run knows beside its grids.
struct RunFacts {
  // The cave
  std::string CaveName;
  int CaveWidth = 0, CaveHeight = 0;  // cells
  int GemsNeeded = 0;
  int GemValueBefore = 0, GemValueAfter = 0;  // points
  int TimeLimit = 0;                          // seconds
  int MagicTime = 0, AmoebaTime = 0;          // seconds
  int SlimePermeability = 0;                  // 0 never to 8 always

  // Counters
  int Ticks = 0;       // ticks begun, also after the time is up
  int Elapsed = 0;     // game time in ticks, stops at the limit
  int ClockShown = 0;  // seconds on the clock
  int GemsCollected = 0;
  int GemValue = 0;  // points of the next gem
  bool ExitOpen = false;
  int MagicState = kMagicDormant;
  int MagicStart = 1000 * kTicksPerSecond;  // ticks
  int AmoebaState = kAmoebaSlow;
  int AmoebaRoom = 0;      // cells that the amoeba could grow into, in this tick
  int PrevAmoebaRoom = 0;  // and in the last one

  // Units
  std::array<Unit, kUnits> Dog{};
  int DogCount = 0;       // highest number of a dog
  int ActiveDog = 1;      // the steered unit, 0 the swarm
  bool MultiDog = false;  // there is more than one unit to steer
  int DogPose = 0;        // 0 to 4 idle poses, 37 to 40 the direction of the last step
  int DogIdleTicks = 0;

  // Input of the tick
  int KeyDirection = 0;          // 37 left, 38 up, 39 right, 40 down
  int KeyAction = 0;             // not 0: act on the neighbouring cell without going there
  std::array<int, 4> KeyHeld{};  // ticks for which each arrow key has been down
  bool ActionLatch = false;

  // Teleport
  bool TeleportActive = false;
  Cell TeleportIn, TeleportOut;  // when active
  int TeleportStage = 0;         // 0 at rest, 2 to 4 in transport
  std::uint16_t TeleportField = 0;
  std::uint8_t TeleportState = 0, TeleportMark = 0;
  bool TeleportDogBusy = false, CatInTransit = false;

  // The cat
  bool CatPresent = false;
  int CatX = kAbsent, CatY = kAbsent;
  int CatPose = 1;  // 0 left, 1 down or none, 2 right, 3 up
  std::string CatProgram;
  int CatPC = 1;  // number of the token, from 0
  int CatWait = 0;
  int CatLastDir = -1;
  bool CatLastAdvanced = false;
  int CatLastX = kAbsent, CatLastY = kAbsent;

  // What has happened so far; no rule asks for it.
  int KeysTaken = 0;    // by dogs or the cat, its own key too
  int LocksOpened = 0;  // not those that were blown up
  int Explosions = 0;

  // Record
  std::string RecordText;       // of the run that is played
  std::string_view RecordLine;  // what is left of the line that is replayed
  bool RanDry = false;          // the replay has asked for more than this line held

  // Repainting a cell tells the sensors beside it, but only while a tick runs.
  bool SensorsListen = false;
  std::optional<WinResult> Win;
};

// All that lives as long as one run. Set-up replaces it as a whole, so nothing leaks from run to run.
struct RunState : Grids, RunFacts {};

enum class TickEnd { Running, Won, RecordOver, Restarted };

// Test: from the cave editor. Practice: as in play, but nothing of it is kept, and chance comes from the
// run's own stream alone, so that the same keys from the same moment on lead to the same again.
enum class RunKind { Play, Replay, Test, Practice };

// The game: one run and what outlives it. A copy is a snapshot that goes on by itself, on the same stage.
struct Hra : RunState {
  explicit Hra(std::uint64_t seed = 0) : Luck(seed), Decoration(~seed) {}

  RunKind Kind = RunKind::Play;  // of the run, or of the last one
  bool ReplayPlaying() const { return Kind == RunKind::Replay; }
  bool EditorRun() const { return Kind == RunKind::Test; }
  bool Practising() const { return Kind == RunKind::Practice; }

  bool Recording = false;
  int Score = 0;  // sum of gem values; goes nowhere, and back to 0 when a replay starts
  std::string Scheme = "Classic";
  int SchemeHue = 300;
  std::string CollectionName;
  std::string PlayerName;    // or kNobody
  std::string RecordPlayer;  // who made the record that is replayed

  std::string CaveText;     // of the run, for a restart
  RecordLines WholeRecord;  // of the replay, for a restart
  RecordLines Record;       // what is left of it

  Chance Luck;        // the game's chance
  Chance Decoration;  // never touches the game

  Stage& stage() const { return Watched() ? *stage_ : Silence(); }
  bool Watched() const { return stage_ != nullptr; }  // by anybody but the silent stage
  void SetStage(Stage& stage) { stage_ = &stage; }    // not owned
  void LeaveStage() { stage_ = nullptr; }             // goes on unwatched

 private:
  static Stage& Silence();
  Stage* stage_ = nullptr;
};

// Starts a run. When the text is empty, does not parse or tells of a cave above 100 x 60 cells, the reason
// comes back and nothing has changed.
Result<Done> PaintCave(Hra& hra, std::string_view caveText, RunKind kind);

// Starts a run of a cave that a collection holds, which has been read already; fails as PaintCave
// does.
Result<Done> OpenCave(Hra& hra, const PlayedCave& cave, RunKind kind = RunKind::Play);

// Starts the playback of a record, given as the bytes of its file; fails as PaintCave does.
Result<Done> Replay(Hra& hra, std::string bytes);

// One tick: a tenth of a second of game time. A run that is won or whose record is over does not go on.
TickEnd Tick(Hra& hra, const KeySnapshot& keys);

// Starts the same cave or the same record afresh.
void RestartCave(Hra& hra);

// Leaves the run: silence, and the record that was played is let go.
void EndGame(Hra& hra);

// The bytes of the record of a won run, to be stored under RecordFileName; empty in a replay and in
// practice.
std::string SaveRecord(Hra& hra, int score);

// The breakdown of a score, in Windows-1250.
std::string ScoreBreakdown(const RunState& run, const WinResult& win);

}  // namespace zorik
