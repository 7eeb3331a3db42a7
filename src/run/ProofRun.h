#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/Hra.h"
#include "run/Outlook.h"
#include "run/Proof.h"

namespace zorik {

// Why a proof does not win any more.
enum class ProofBreak {
  NoCave,      // the cave cannot be played
  DogDies,     // one that lived on
  NoEffect,    // what is done does not lead where it led
  Missing,     // a gem, a key or a lock is not there where one was
  FinishShut,  // too few gems
  TimeUp,
};

// A place and a moment at which a run goes another way than the proof.
struct ProofFlaw {
  ProofBreak why = ProofBreak::NoCave;
  int tick = 0;  // the first is 1
  Cell cell;
  int unit = 1;
  char letter = 0;  // of what stands in the cell, as in cave texts; 0 where none stands for it

  bool operator==(const ProofFlaw&) const = default;
};

// What became of a proof in a cave that was changed.
struct ProofVerdict {
  bool wins = false;
  int ticks = 0;                  // that it took, or went on for
  std::optional<ProofFlaw> flaw;  // where it breaks
  // What was missing on the way before, which may be the reason.
  std::optional<ProofFlaw> missing;
  int otherChance = 0;        // ticks in which chance was asked for something else than in the proof
  std::vector<Footstep> way;  // of the dogs; from tick 0, where they begin
  std::vector<bool> touched;  // by the cells' places
  std::string record;         // of the win in this cave
};

// Does a proof still win when its cave has become another one? It plays the proof's keys there. A record has
// no seed, only the outcomes of chance by their ticks; so a tick that asks for as many of them as that of the
// proof, before the keys and behind them, gets the very same. Any other gets what a seed gives that belongs
// to the proof and the tick: nothing that could not happen in play, and the same whenever it is asked again.
class ProofRun {
 public:
  // caveText: with or without a marker.
  ProofRun(std::shared_ptr<const Proof> proof, const std::string& caveText);

  // Goes on for about so many ticks. True when there is a verdict.
  bool Go(int ticks);

  // Once there is one.
  const ProofVerdict& Verdict() const { return verdict_; }

 private:
  void GoOneTickOn();
  void Feed(const ProofTick& tick);
  void PlayKeys(const ProofTick& tick);
  void Look();
  void Compare(const ProofTick& tick, const ProofTick* before);
  std::optional<ProofFlaw> OtherDog(const ProofTick& tick) const;
  std::optional<ProofFlaw> NotWon(const ProofTick& tick) const;
  bool Misses(const ProofTick& tick, const ProofTick* before) const;
  Cell Target(const ProofTick& tick) const;
  ProofFlaw FlawAt(ProofBreak why, Cell cell, int unit) const;
  void NoteDogs();
  void NoteTouched();
  void End();

  std::shared_ptr<const Proof> proof_;
  std::unique_ptr<Hra> run_, before_;
  RecordLines fed_;    // the proof's lines, each with a mark at its end
  std::string head_;   // of the record of this run
  std::string lines_;  // likewise
  std::size_t next_ = 0;
  bool over_ = false;
  ProofVerdict verdict_;
};

}  // namespace zorik
