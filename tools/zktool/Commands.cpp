#include "zktool/Commands.h"

#include <algorithm>
#include <array>
#include <iomanip>
#include <limits>
#include <ostream>

#include "data/Result.h"
#include "zktool/PageHelp.h"
#include "zktool/ShowHelp.h"
#include "zktool/TextHelp.h"

namespace zorik {
namespace {

struct Command {
  std::string_view name;
  std::string_view usage;    // what stands behind the name
  std::string_view summary;  // in a line
  std::string_view details;  // paragraphs, each line ended
  std::span<const Option> options;
  Operands operands;
  Exit (*run)(const CommandLine& line, Console& console);
  void (*more)(std::ostream& out) = nullptr;  // prints what else its help tells
};

constexpr std::size_t kAnyNumber = std::numeric_limits<std::size_t>::max();

constexpr std::array<Option, 7> kRunOptions{{{"--cave", true, true},
                                             {"--keys", true, true},
                                             {"--seed", true},
                                             {"--ticks", true},
                                             {"--record", true},
                                             {"--record-always"},
                                             {"--grid"}}};
constexpr std::array<Option, 2> kReplayOptions{{{"--grid"}, {"--ticks", true}}};
constexpr std::array<Option, 3> kVerifyOptions{{{"--json"}, {"--collection", true}, {"--jobs", true}}};
constexpr std::array<Option, 1> kUnpackOptions{{{"--force"}}};
constexpr std::array<Option, 2> kPackOptions{{{"--strict"}, {"--words", true}}};
constexpr std::array<Option, 1> kCarryOptions{{{"--player", true}}};
constexpr std::array<Option, 2> kPageOptions{{{"-o", true, true}, {"--template", true}}};
constexpr std::array<Option, 1> kScrambleOptions{{{"--seed", true}}};
constexpr std::array<Option, 8> kSolveOptions{{{"--seconds", true},
                                               {"--work-time"},
                                               {"--shorten", true},
                                               {"--seed", true},
                                               {"--jobs", true},
                                               {"--record", true},
                                               {"--player", true},
                                               {"--avoid", true}}};

constexpr std::array<Option, 4> kTableOptions{
    {{"--seconds", true}, {"--seeds", true}, {"--retries", true}, {"--jobs", true}}};
constexpr std::array<Option, 3> kLintOptions{{{"--json"}, {"--proofs", true}, {"--jobs", true}}};
constexpr std::array<Option, 6> kRateOptions{{{"--json"},
                                              {"--proofs", true},
                                              {"--seconds", true},
                                              {"--retries", true},
                                              {"--seed", true},
                                              {"--jobs", true}}};

constexpr std::string_view kRunDetails =
    R"(The cave file holds a plain cave text (zktool fetch, zktool new), all its bytes. Line t of the key file
tells what is held in tick t: L U R D the arrows, ! the action key, s and a the action latch, > Tab, a
digit that digit of the keypad; . stands for nothing. Behind its end nothing is held.

  --seed N         start of the game's chance, 0 if not given; the same seed gives the same run
  --ticks T        end after T ticks; otherwise the run ends with the key file's last line
  --record OUT     write the record of the run into this file, if the run is won
  --record-always  write it also when the run is not won, with score 0
  --grid           print the cells of the cave after each tick

The player in the record is "hrac", the collection "sada". A run ends in the tick in which it is won. When
it is not won and --record-always is not given, a line on the standard error says that nothing was written;
the command ends well all the same.
)";

constexpr std::string_view kReplayDetails =
    R"(  --grid      print the cells of the cave after each tick
  --ticks T   end after T ticks

The replay ends where the record is over, won or restarted by an empty line, as the last line of the trace
says: end reason=win, eof, restart or ticks.
)";

constexpr std::string_view kVerifyDetails =
    R"(Of a folder all *.zkr files in it and below it are verified, sorted by their paths. For each record a line
is printed, in this order and not in that in which they were done: the verdict, the score of the win (or 0),
the score in the record, the ticks that were played, the names of collection, cave and player that the record
holds, each in quotes as in JSON, and the file. The last line counts the verdicts.

  --json             print the same as one JSON object
  --collection FILE  say for each record whether it counts in this collection: counts=yes number=3
  --jobs J           so many records at a time, as many as there are cores if not given

In place of files - stands for paths on the standard input, one in a line, of which none is kept: each is told as
soon as it is known, in no order, with --json as an object in a line, and the last line, {"summary": ...}, counts
them.

Of these verdicts the first that is true is given:
  unreadable      the file or folder cannot be read
  bad-cave        the record holds no cave that can be played
  ran-dry         a tick asked for chance that its line does not hold, so the record is damaged
  not-won         the record ends, or an empty line restarts it, before the run is won
  score-differs   the run is won with another score than the record says
  won             the run is won with the score that the record says

A record counts or not by what the game looks at, which does not play it:
  yes             in a player's folder it counts as a win of the cave of this number, whoever made it
  misnamed        the collection has the cave, but the game looks for its record under another file name
  changed         the collection has a cave of the same name, but it is another one
  no              the collection has no such cave

The command says yes only if at least one record was found, all are won and, with --collection, all count.
)";

constexpr std::string_view kDiffDetails =
    R"(A and B are records or traces that zktool has printed; their content decides which. The lines tell the
first tick in which they part, the first counter of that tick's line that differs and, when the cells of
both are known (records, and traces with --grid), the first cell from the top left that differs, each with
both values:
  tick=37 counter=gems a=3 b=4
  tick=37 cell=12,5 a=000c/2/00 b=0001/0/00
A cell is object/state/mark in hex. Tick 0 is the start: counter=name and counter=size. When one run ends
earlier the counter is "end". Runs that are the same print: equal ticks=150.
)";

constexpr std::string_view kPackDetails =
    R"(Reads collection.txt in the folder and the cave files that it names. The same texts give the same bytes
each time.

Warnings, with file and line, tell what can be packed but is certainly wrong: a letter that means no object, a
number that the game cannot use (slime above 8, colouring above 14, time below 5, the times of magic wall and
amoeba outside 1 to 150 in a cave that has them), a cave that nobody can win, an open cave that there is none
of, and all else that zktool lint calls a fault.

  --strict       take these for failures: nothing is written
  --words TABLE  tell the collection in the words of this table, a file such as

                   name: A School of Digging
                   description: How to dig.
                   congratulation: Well dug, $P points!
                   cave: 01-hrabani.txt
                   cave-name: First Dig
                   cave-description: Dig to the gem.

                 with an entry for each of these texts that the collection and its caves have; an author may be
                 named, too. What is drawn stays the same, so carry takes the records of one to the other.
)";

constexpr std::string_view kCarryDetails =
    R"(Writes the record anew as one of cave N of the collection, which must be the same cave but for its name and
description, as it is when a collection is told in another language (pack --words). The moves, the player and
the score stay. Nothing is written if the cave is another one or the record does not win.

  --player NAME  put this player's name into the record
)";

constexpr std::string_view kProgressDetails =
    R"(The player has the name of the folder. For each cave a line: number, state, score, name, with tabs between
them. States: 0 closed, 1 open, 2 solved, 3 solved by somebody else. The last line is
total=<points> done=<caves> rest=<caves>. Control characters in a name are printed as blanks.
)";

constexpr std::string_view kSolveDetails =
    R"(CAVE-OR-COLLECTION is a collection, a folder of readable texts with its collection.txt, one readable cave, or
a plain cave text (zktool fetch). Of a collection every cave is tried. The search plays the game itself: chance
is never chosen, it follows from the seed and from what is done, so what is found is a run that a player could
have made.

  --seconds S      for each cave, 60 if not given; it ends then, found or not
  --work-time      count only the seconds in which the search is at work, not those in which other programs
                   have the processor
  --shorten S      how much of that goes into a shorter way once one is known, 5 if not given
  --seed N         start of the game's chance, and of the search's, 0 if not given
  --jobs J         so many caves at a time, or so many searches for a single cave
  --record OUT     write the record of the win into this file as soon as there is one, and again once it is
                   shorter; of a collection into a folder, as NN.zkr
  --player NAME    who made the record, hrac if not given
  --avoid X,Y,WxH  find a way on which no dog enters these cells or acts on them: can the idea that is there be
                   walked past? From the top left, which is 0,0

For each cave a line, in a collection behind its number:
  won length=<ticks of the run> score=<points> seconds=<until a way was found> ticks=<tried until then> NAME
  not found in S s, gems=<most that were collected>/<needed> ticks=<tried> NAME
  impossible: REASON; NAME
  bad-cave: REASON
Not found does not mean that there is no way; impossible does: no dog, no finish, none that a dog can come to
(steel stands for ever, bricks and the like where nothing can blow up, a lock without a key that can be had),
more gems needed than can ever be, or a way that is longer than the time. The exit code is that of the worst
line.
)";

constexpr std::string_view kRateDetails =
    R"(CAVE-OR-COLLECTION is what zktool lint takes. The best proof of each cave is looked at tick by tick: the record
that is given, or one that a search finds.

  --proofs PATH  a folder with the records, NN.zkr for cave NN, or for a single cave its record
  --seconds S    for each cave, in all, 30 if not given
  --retries N    other seeds under which the plan is followed, 20 if not given
  --seed N       of the searches, 0 if not given
  --jobs J       so many caves at a time
  --json         print the same as one JSON object

length       of the proof; a second of the game has ten ticks. The limit is the cave's time divided by that
idle         ticks in which the player does nothing: no arrow is held, or what it does changes nothing and
             pushes at nothing. The longest row of them, and where it begins
decisions    goals of the proof: something taken, pushed or opened (of one kind within a second: one), a change
             of the unit, going on after more than a second's rest
danger       times at which letting go of the keys would kill a dog within a second; the fewest ticks until then
odds         the plan is followed under other seeds: not its keys but its goals, in their order. A push is
             tried until it gives way, a step waits until what was there is there again and until it does not
             kill; where the way is lost a search finds the next one, which does not know the run's chance
used         what the proof takes, moves, opens, blows up, sets off, rides, or meets (a monster within 2 cells)
mirror       the part of the cells that equal their mirror, left and right or top and bottom
paws         1 to 5: 5 decisions, 3 narrow escapes, 20 seconds, 3 kinds of things used beside the first are a
             point each (of at most 3, 2, 2 and 2), odds below 90 % one more; each 1.25 points are a paw beside
             the first
skippable    things close together that a win leaves alone, X,Y,WxH: one of the wins that were found, or one
             that was looked for which may not enter there. What the cave is about should not be among them
untouched    the cave's rows; blank is what at least one win enters, changes or lets something fall through.
             Steel is left as it is

The command says no where a cave could not be rated.
)";

constexpr std::string_view kTableDetails =
    R"(Each folder in CAVES-FOLDER that has a collection.txt gets a chapter in OUT.md: its caves with what zktool rate
tells of their proofs (records/NN.zkr), the objects and the caves in which they stand, and what zktool solve
finds. The file notes.txt beside collection.txt holds what only people know of a cave:

  cave: 01-name-of-its-file.txt
  idea: The idea, in a sentence.
  trial: What was changed when somebody else had played it.

  --seconds S  for each cave and seed of the solver, 60 if not given; those in which other programs have the
               processor do not count
  --seeds N    of the solver, 0 to 10, 3 if not given
  --retries N  other seeds under which a proof's plan is followed, 20 if not given
  --jobs J     so many caves at a time
)";

constexpr std::string_view kLintDetails =
    R"(CAVE-OR-COLLECTION is a collection, a folder of readable texts with its collection.txt, one readable cave, or
a plain cave text (zktool fetch). A line for each doubt says where it is, whether it is a fault or a hint, by
which word, in which cell (column,row from the top left 0,0), and what is doubted; the last line counts them.
A fault is certain, a hint only suspicious, so the command says no only where there is a fault.

  --json         print the same as one JSON object
  --proofs PATH  look at the proofs, too: a folder with the records, NN.zkr for cave NN, or for a single cave its
                 record. Only then there are hints about limit, idleness and odds (zktool rate)
  --jobs J       so many proofs at a time

)";

constexpr std::array<Option, 5> kRenderOptions{
    {{"-o", true, true}, {"--tick", true}, {"--cave", true}, {"--scheme", true}, {"--cell", true}}};
constexpr std::array<Option, 4> kMovieOptions{
    {{"-o", true, true}, {"--follow"}, {"--scheme", true}, {"--cell", true}}};
constexpr std::array<Option, 2> kPostcardOptions{{{"-o", true}, {"--read"}}};

constexpr std::array<Command, 20> kCommands{{
    {"run",
     "--cave FILE --keys FILE [--seed N] [--ticks T] [--record OUT.zkr] [--record-always] [--grid]",
     "Plays a cave with the keys of a script and prints the trace.",
     kRunDetails,
     kRunOptions,
     {0, 0},
     RunCommand},
    {"replay",
     "FILE.zkr [--grid] [--ticks T]",
     "Prints the trace of a record.",
     kReplayDetails,
     kReplayOptions,
     {1, 1},
     ReplayCommand},
    {"verify",
     "[--json] [--collection FILE.zk] [--jobs J] FILE-OR-FOLDER...",
     "Replays records and says whether they win with their score.",
     kVerifyDetails,
     kVerifyOptions,
     {1, kAnyNumber},
     VerifyCommand},
    {"diff", "A B", "Finds where two records or saved traces part.", kDiffDetails, {}, {2, 2}, DiffCommand},
    {"unpack",
     "[--force] COLLECTION.zk DIR",
     "Writes a collection as readable text files.",
     kUnpackDetails,
     kUnpackOptions,
     {2, 2},
     UnpackCommand},
    {"pack",
     "[--strict] [--words TABLE] DIR COLLECTION.zk",
     "Makes a collection from readable text files.",
     kPackDetails,
     kPackOptions,
     {2, 2},
     PackCommand},
    {"fetch",
     "COLLECTION.zk N",
     "Prints the text of a collection's cave.",
     kFetchDetails,
     {},
     {2, 2},
     FetchCommand},
    {"new", "small|large", "Prints the text of a new cave.", kNewDetails, {}, {1, 1}, NewCommand},
    {"carry",
     "[--player NAME] RECORD.zkr COLLECTION.zk N OUT.zkr",
     "Makes a record one of the same cave in another collection.",
     kCarryDetails,
     kCarryOptions,
     {4, 4},
     CarryCommand},
    {"page",
     "RECORD.zkr|COLLECTION.zk -o OUT.html [--template FILE]",
     "Makes a page of one file that shows a record or caves in a browser.",
     kPageDetails,
     kPageOptions,
     {1, 1},
     PageCommand},
    {"progress",
     "COLLECTION.zk PLAYER-FOLDER",
     "Prints how far a player has come in a collection.",
     kProgressDetails,
     {},
     {2, 2},
     ProgressCommand},
    {"scramble",
     "[--seed N]",
     "Scrambles the standard input line by line.",
     kScrambleDetails,
     kScrambleOptions,
     {0, 0},
     ScrambleCommand},
    {"unscramble",
     "",
     "Unscrambles the standard input line by line.",
     kUnscrambleDetails,
     {},
     {0, 0},
     UnscrambleCommand},
    {"solve",
     "CAVE-OR-COLLECTION [--seconds S] [--work-time] [--shorten S] [--seed N] [--jobs J] [--record OUT] "
     "[--player NAME] [--avoid X,Y,WxH]",
     "Looks for ways to win caves.",
     kSolveDetails,
     kSolveOptions,
     {1, 1},
     SolveCommand},
    {"lint",
     "CAVE-OR-COLLECTION [--json] [--proofs PATH] [--jobs J]",
     "Finds what is wrong or suspicious in caves.",
     kLintDetails,
     kLintOptions,
     {1, 1},
     LintCommand,
     PrintDoubtWords},
    {"rate",
     "CAVE-OR-COLLECTION [--proofs PATH] [--seconds S] [--retries N] [--seed N] [--jobs J] [--json]",
     "Tells what caves are worth by the runs that win them.",
     kRateDetails,
     kRateOptions,
     {1, 1},
     RateCommand},
    {"table",
     "CAVES-FOLDER OUT.md [--seconds S] [--seeds N] [--retries N] [--jobs J]",
     "Writes a page about all caves of some collections.",
     kTableDetails,
     kTableOptions,
     {2, 2},
     TableCommand},
    {"render",
     "CAVE|RECORD.zkr [--tick N] [--cave N] [--scheme S] [--cell PX] -o OUT.png",
     "Draws a cave, or a moment of a record.",
     kRenderDetails,
     kRenderOptions,
     {1, 1},
     RenderCommand},
    {"movie",
     "RECORD.zkr [--follow] [--scheme S] [--cell PX] -o OUT.gif|OUT.webp|OUT.mp4",
     "Makes a movie of a record.",
     kMovieDetails,
     kMovieOptions,
     {1, 1},
     MovieCommand},
    {"postcard",
     "RECORD.zkr [-o OUT.png] [--read]",
     "Writes a whole record into a picture that phones read, and reads it back.",
     kPostcardDetails,
     kPostcardOptions,
     {1, 1},
     PostcardCommand},
}};

std::string UsageOf(const Command& command) {
  return "zktool " + std::string(command.name) + (command.usage.empty() ? "" : " ") +
         std::string(command.usage);
}

Exit PrintHelp(std::ostream& out) {
  out << "zktool plays and checks caves, records and collections of Zor\xC3\xADk without a window.\n\n"
         "usage: zktool COMMAND ...\n       zktool COMMAND --help\n       zktool --version\n\n";
  for (const Command& command : kCommands) {
    out << "  " << std::left << std::setw(12) << command.name << std::right << command.summary << "\n";
  }
  out << "\n";
  PrintExitCodes(out);
  return Exit::Fine;
}

Exit PrintHelp(const Command& command, std::ostream& out) {
  out << "usage: " << UsageOf(command) << "\n\n" << command.summary << "\n\n" << command.details;
  if (command.more != nullptr) command.more(out);
  out << "\nThe exit codes are listed by zktool --help.\n";
  return Exit::Fine;
}

Exit PrintVersion(std::ostream& out) {
  out << "zktool " << ZORIK_VERSION << "\n";
  return Exit::Fine;
}

bool AsksForHelp(const std::string& argument) {
  return argument == "--help" || argument == "-h";
}

Exit RunNamed(const Command& command, std::span<const std::string> arguments, Console& console) {
  if (std::any_of(arguments.begin(), arguments.end(), AsksForHelp)) return PrintHelp(command, console.out);
  const Result<CommandLine> line = ReadCommandLine(arguments, command.options, command.operands);
  if (!line) return Fail(console, Exit::Usage, line.Message() + "; usage: " + UsageOf(command));
  return command.run(*line, console);
}

Exit Dispatch(std::span<const std::string> arguments, Console& console) {
  if (arguments.empty()) return Fail(console, Exit::Usage, "no command; zktool --help lists them");
  const std::string& name = arguments.front();
  if (AsksForHelp(name)) return PrintHelp(console.out);
  if (name == "--version") return PrintVersion(console.out);
  const auto command = std::find_if(kCommands.begin(), kCommands.end(),
                                    [&](const Command& known) { return known.name == name; });
  if (command == kCommands.end()) {
    return Fail(console, Exit::Usage, "\"" + name + "\" is no command; zktool --help lists them");
  }
  return RunNamed(*command, arguments.subspan(1), console);
}

}  // namespace

std::vector<std::string> CommandNames() {
  std::vector<std::string> names;
  for (const Command& command : kCommands) names.emplace_back(command.name);
  return names;
}

Exit RunZktool(std::span<const std::string> arguments, Console& console) {
  const Exit exit = Dispatch(arguments, console);
  if (console.out.flush()) return exit;
  return Fail(console, Exit::CannotWrite, "cannot write the standard output");
}

}  // namespace zorik
