#pragma once

#include <string>
#include <string_view>

#include "data/Chance.h"

namespace zorik {

class RecordLines;

// A record of a won run: the bytes of a file .zkr. Lines end in CR LF; a text in them is Windows-1250.
//
// The first three lines are scrambled (Scramble.h), each by itself; these are their plain forms:
//
//   collection\r00450         name of the cave's collection, a carriage return, the score as five digits;
//                             a line without that ending is all name, and its score is 0
//   player                    empty for a test run from the cave editor
//   cave text                 as CaveO.h tells, with its marker if the cave came from a collection
//
// Then comes a line for each tick, which is not scrambled. In it a number is one byte, its value plus 65, and
// the numbers stand in the order in which the tick comes to them (Tick.cpp):
//
//   outcomes of chance that the world asked for: the cat, what moves by itself, at last the amoeba, which
//   asks in every tick, so no line of a run is empty
//   the keys, three numbers: the arrow (37 left, 38 up, 39 right, 40 down, 0 none); 1 if the action key is
//   held, else 0; the unit that is steered from then on, 0 the fleas, 1 to 9 the dogs
//   outcomes that the unit's step asked for; beside them stands what a rule has chosen by itself, its value
//   plus 1 (PseudoNahoda)
//
// A tick in which no keys are heeded, as the time is up or a dog is within the teleport, has none of those
// three. What nobody asks for at the end of a line is a remark that somebody wrote there, scrambled. An empty
// line begins the cave again. The line of the tick that wins is the last, and has no end.

// What stands before the moves of a recorded run.
struct RecordHead {
  std::string CollectionName;
  int Score = 0;         // 0 when the line names none
  std::string Player;    // empty for a test run
  std::string CaveText;  // plain, with its marker if it came from a collection
};

// The highest score that a record can tell of.
inline constexpr int kHighestScore = 99999;

// A score, or a sum of scores, as five digits, or more if it has more.
std::string FiveDigits(int score);

// Reads the three scrambled lines; missing lines give empty fields.
RecordHead ReadRecordHead(RecordLines& lines);

// Whether these are the bytes of a record: its third line tells a cave, which that of a collection does not.
bool HoldsRecord(std::string_view bytes);

// The first two lines of a record, with their line ends. The score is held to 0..99999.
std::string BuildRecordHead(std::string_view collectionName, int score, std::string_view player,
                            Chance& decoration);

// The bytes behind the three lines of the head; empty where there are none.
std::string MovesOf(const std::string& record);

// The name under which a player's run of a cave is kept in the player's folder, in Windows-1250.
std::string RecordFileName(std::string_view collectionName, std::string_view caveName);

// The same for a run that the cave editor tries out.
std::string TestRecordFileName(std::string_view caveName);

}  // namespace zorik
