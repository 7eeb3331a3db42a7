#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "core/Hra.h"
#include "data/RecordSlot.h"
#include "data/Result.h"
#include "data/Selection.h"
#include "flow/Rivals.h"
#include "flow/SadaModel.h"

namespace zorik {

// Where the flow finds and keeps what players make; paths are UTF-8.
struct FlowFolders {
  std::string Players;      // with a folder for each player
  std::string TestRecords;  // records of test runs
};

// Where a run leads back to.
enum class WayBack { Start, Selection, Editor };

// The score of a won run as the player sees it.
struct ShownScore {
  std::string Line;    // the breakdown, Windows-1250
  int Total = 0;       // without a bonus
  bool Bonus = false;  // whether there is one
};

// What the closing of the score has to do with the record first.
enum class Storing {
  None,    // nothing: of a replay, or stored already
  Stored,  // it is stored as it comes: of a test
  Asked,   // it is stored unless the player would rather keep what it replaces
};

// The game from the choice of a cave to the record of its win, as steps without a window: windows show what
// stands here and ask for the next step. It knows who plays, his way through the open collection, the run and
// its win, and the collection that is being edited. Names and texts are bytes in Windows-1250.
//
// A won run's score is shown before the player is led on. In play it is shown twice, first for a few seconds
// and then, when the record is stored, until the player has read it; in a replay and in a test once.
class Flow {
 public:
  // The machine is the one that runs are played on; it lives longer. The seed decorates only.
  Flow(Hra& hra, FlowFolders folders, std::uint64_t seed);

  // Choosing

  // Opens a collection for the player whose folder has this name, and stores what could not be stored before.
  // When it fails, no other collection is open than before.
  Result<Done> OpenCollection(const std::string& path, const std::string& playerFolder);

  // The open collection with its states and the chosen cave. All that speaks of the chosen cave needs one.
  bool IsOpen() const { return selection_.has_value(); }
  const Selection& Caves() const { return *selection_; }
  void Choose(int number) { selection_->Select(number); }
  RecordSlot ChosenSlot() const { return selection_->Slot(selection_->Selected()); }

  // False while a win of the cave is only kept in memory.
  bool IsStored(int number) const;

  // Runs. When one cannot be started the last one stays as it was.

  // Plays the chosen cave, unless it is closed.
  bool MayStart() const { return selection_->State(selection_->Selected()) != CaveState::Closed; }
  Result<Done> Start();

  // Lets the chosen cave be practised, unless it is closed. Nothing of that counts or is kept.
  Result<Done> StartPractice();

  // Plays the player's record of the chosen cave, or for nobody a record from outside.
  Result<Done> ReplayChosen();
  Result<Done> ReplayFile(const std::string& path);

  // Who has made the record that is played, if that was somebody else than the one it is played for.
  std::optional<std::string> MadeByAnother() const;

  RunKind Kind() const { return hra_.Kind; }

  // Leaves the run; what was not won is gone. Answers where the player is to go.
  WayBack Leave();

  // The win

  // To be called when the machine has won its run. It is not needed for what follows. False when there is no
  // win, or one of practice, or the player has not been led on from the last one yet.
  bool Win();

  // Whether he has not yet.
  bool Busy() const { return showing_ != Showing::None; }

  const ShownScore& Score() const { return score_; }
  bool ShownOnceMore() const { return showing_ == Showing::First; }
  WayBack After() const { return after_; }
  Storing Due() const;
  const WonRun& Won() const { return won_; }

  // The score was closed, and what was due has been done. A win in play counts from the last closing on.
  void ScoreClosed();

  // Records

  // The record of another cave that a win would take the place of.
  std::optional<StandingRecord> OtherCave(const WonRun& run) const;

  // Whether a win is at least as good as what is known of its cave.
  bool JeLepsi(const WonRun& run) const { return zorik::JeLepsi(run, wins_); }

  // Stores a win, and with it what could not be stored before. One that cannot be stored is kept.
  Result<Done> Store(const WonRun& run);

  // Tries to store one that is kept.
  Result<Done> StoreKept(const WonRun& run);

  // Writes one that is kept into a file of the player's choice.
  Result<Done> StoreElsewhere(const WonRun& run, const std::string& path);

  // The wins that could not be stored.
  UnstoredWins& Unstored() { return wins_; }
  const UnstoredWins& Unstored() const { return wins_; }

  // The ghost, and two records of a cave

  // The other players who have won the chosen cave.
  std::vector<Rival> Rivals() const { return FindRivals(folders_.Players, ChosenSlot()); }

  // Their records of it; nothing when one is gone meanwhile.
  std::optional<std::string> RecordOf(const Rival& rival) const;

  // The player's own record of it, be it stored or not; empty when he has none.
  std::string OwnRecord() const;

  // From now on the player with this folder is to go beside the player; an empty name: his own best run.
  void ChooseGhost(const std::string& rivalFolder) { rival_ = rivalFolder; }
  const std::string& ChosenGhost() const { return rival_; }

  // The record that goes beside a run of the chosen cave. Where the one who was chosen has none, it is the
  // player's own; empty when he has none either.
  std::string GhostRecord() const;

  // Editing

  // Who tries out what he edits; an empty name for nobody.
  void BeginEditing(const std::string& playerFolder);
  SadaModel& Sada() { return sada_; }

  // Plays a cave out of the cave editor.
  Result<Done> TestRun(const std::string& caveText);

  // Lets a run that a record tells, or a cave, be tried out of the cave editor: in practice, which leads back
  // there. The record's run is a replay until it is taken over.
  Result<Done> TryRun(const std::string& record);
  Result<Done> TryCave(const std::string& caveText);

  // Whether the run comes from the cave editor.
  bool FromEditor() const { return tried_ || hra_.EditorRun(); }

 private:
  enum class Showing { None, First, Last };

  std::string FolderOf(const std::string& playerFolder) const;
  Result<Done> Replay(const std::string& path, const std::string& player);
  Result<Done> Begin(const std::string& collection, const std::string& player,
                     const std::function<Result<Done>()>& step);
  Result<Done> StartAs(RunKind kind);
  RecordSlot TestSlot() const;

  Hra& hra_;
  FlowFolders folders_;
  std::string editor_;  // the player in the editors
  std::optional<Selection> selection_;
  bool tried_ = false;  // the run out of the cave editor, in practice
  RecordSlot slot_;     // of the last run that could get a record, since its start
  UnstoredWins wins_;
  std::string rival_;
  SadaModel sada_;

  // The last win
  Showing showing_ = Showing::None;
  RunKind kind_ = RunKind::Play;
  WayBack after_ = WayBack::Start;
  WonRun won_;
  ShownScore score_;
};

}  // namespace zorik
