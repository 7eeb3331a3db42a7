#pragma once

// The machine for a page: everything that the page's JavaScript asks of the game's C++. machine.mjs beside
// this file wraps it, and is what pages use.
//
// Texts go in as bytes with their number, in UTF-8, files as they are. What is more than a number comes back
// as the answer: bytes that stand until the next call. A function that may fail answers 0 where it fails,
// with the reason, in a sentence, as the answer.

#if defined(__GNUC__)
#define ZK_CALL [[gnu::used]]
#else
#define ZK_CALL
#endif

extern "C" {

struct ZkCollection;
struct ZkRun;

// The answer of the last call that has one.
ZK_CALL const char* zk_answer();
ZK_CALL int zk_answer_size();

// The pictures of a scheme, before a run in it starts: for each tile set, in the order of kTileSets, how many
// columns and how many rows of frames it has, and then for each frame of all sets, row by row, what it
// covers: 0 bare, 1 earth, 2 covered. Without any grounds there are no edges.
ZK_CALL int zk_sheets(const char* scheme, int schemeSize, const unsigned char* sizes, int sizesCount,
                      const unsigned char* grounds, int groundCount);

// What a quarter (0 to 3, in reading order) of a cell with these edges shows: a column of the sheet Edges, or
// -1 for nothing. The cell is bare (0) or earth (1).
ZK_CALL int zk_edge(int ground, int edges, int quarter);

// Sounds

// JSON of all sounds that the list (skins/Default/Sound/sounds.txt) tells of: sound (SoundId), name,
// recordings (how many), loop.
ZK_CALL int zk_sounds_tell(const char* list, int size);

// Makes a recording, counted from 1, of the sound with this name. The answer is a wave file.
ZK_CALL int zk_sound_make(const char* list, int listSize, const char* name, int nameSize, const char* recipe,
                          int recipeSize, int number);

// Collections

// Reads a collection's file (.zk).
ZK_CALL ZkCollection* zk_collection_open(const char* bytes, int size);
ZK_CALL void zk_collection_close(ZkCollection* collection);

// JSON: name, author, description, mail, congratulation, and the caves: number, name, description, width,
// height, gems, time, scheme, bonus, open (from the start), record (the name of a player's record of it,
// without ".zkr").
ZK_CALL void zk_collection_tell(ZkCollection* collection);

// How far a player has come, from his records alone: hand each of them over, under the name of the cave that
// it is kept for, then ask. JSON: caves, a number each (0 closed, 1 open, 2 solved, 3 solved by another
// player), scores, total, done, rest.
ZK_CALL void zk_progress_record(ZkCollection* collection, const char* name, int nameSize, const char* bytes,
                                int size);
ZK_CALL void zk_progress_tell(ZkCollection* collection, const char* player, int playerSize);

// Records

// JSON of a record's head: collection, score, player, cave, width, height, gems, time, scheme, name (of the
// file, without ".zkr"). Fails when it holds no cave that can be played.
ZK_CALL int zk_record_tell(const char* bytes, int size);

// Plays a record to its end. JSON: verdict ("won", "score-differs", "not-won", "ran-dry", "bad-cave"), score,
// stored, ticks, message.
ZK_CALL void zk_record_judge(const char* bytes, int size);

// Whether a record is of this cave of the collection; caves count from 1.
ZK_CALL int zk_record_is_of(ZkCollection* collection, int number, const char* bytes, int size);

// The lines of "zktool replay" for a record.
ZK_CALL int zk_record_trace(const char* bytes, int size);

// A postcard's word: first its packed bytes, then, out of what they are unpacked to (zlib's form), the bytes
// of its record. Both fail for what is none.
ZK_CALL int zk_postcard_packed(const char* word, int size);
ZK_CALL int zk_postcard_record(const char* content, int size);

// A player's name as it may be: what files cannot hold is dropped.
ZK_CALL void zk_player_name(const char* name, int size);

// Runs

// A place for runs, one after another. The seed is all the chance that it has.
ZK_CALL ZkRun* zk_run_new(unsigned seedLow, unsigned seedHigh);
ZK_CALL void zk_run_free(ZkRun* run);

// Starts a run of a cave: kind 0 play, 3 practice. Fails when the cave cannot be played; the last run goes on
// then.
ZK_CALL int zk_run_start(ZkRun* run, ZkCollection* collection, int number, int kind, const char* player,
                         int playerSize);

// The same for the cave that a record holds.
ZK_CALL int zk_run_start_record(ZkRun* run, const char* bytes, int size, int kind, const char* player,
                                int playerSize);

// Starts to play a record.
ZK_CALL int zk_run_replay(ZkRun* run, const char* bytes, int size);

// Starts the same once more.
ZK_CALL void zk_run_restart(ZkRun* run);

// A seed for chance in play: the next step of a dog begins with it. Give one before each tick.
ZK_CALL void zk_run_seed(ZkRun* run, unsigned seedLow, unsigned seedHigh);

// A key (core/Keys.h) that is down in the next tick.
ZK_CALL void zk_run_press(ZkRun* run, int key);

// One tick, a tenth of a second of game time: 0 the run goes on, 1 it is won, 2 the record is over, 3 it has
// begun anew.
ZK_CALL int zk_run_tick(ZkRun* run);

// What happened in the last tick, or at the start, in its order, as fours of numbers: what, and up to three
// values (Happening in PageRun.h).
ZK_CALL const int* zk_run_events(ZkRun* run);
ZK_CALL int zk_run_event_count(ZkRun* run);

// The text of a remark that was told among them by its number.
ZK_CALL void zk_run_remark(ZkRun* run, int number);

// The state as numbers, in the order of StateSlot in PageRun.h.
ZK_CALL const int* zk_run_state(ZkRun* run);

// JSON: cave, collection, player (who made the record that is replayed, or plays), scheme, hue.
ZK_CALL void zk_run_tell(ZkRun* run);

// A hash of all cells, 16 hexadecimal digits, as "zktool replay" tells it; and that tool's whole line.
ZK_CALL void zk_run_hash(ZkRun* run);
ZK_CALL void zk_run_line(ZkRun* run);

// The bytes of the record of the run that was won in play, and the name to keep it under, without ".zkr".
// Fails for any other run.
ZK_CALL int zk_run_record(ZkRun* run);
ZK_CALL int zk_run_record_name(ZkRun* run);

// How the score of a won run comes about. Fails when the run is not won.
ZK_CALL int zk_run_breakdown(ZkRun* run);

// Time

// Begins a timeline at this moment; whole: of a replay that stands at its start, up to its end, at once.
// Otherwise it follows the run. Fails when the run is in play: there nobody goes back in time.
ZK_CALL int zk_timeline_begin(ZkRun* run, int whole);

// JSON: length in ticks, events as pairs of a tick and RunEventKind (run/Timeline.h).
ZK_CALL int zk_timeline_tell(ZkRun* run);

// Goes to a tick, held to what is known. A run in practice goes on from there, and forgets what came later.
ZK_CALL int zk_timeline_seek(ZkRun* run, int tick);

// A replay becomes a run in practice at the moment it is at.
ZK_CALL void zk_run_take_over(ZkRun* run);

// The view

// Whether the view holds the whole cave, or follows the steered unit; whether nothing glitters; whether what
// moves is drawn on its way.
ZK_CALL void zk_view_whole(ZkRun* run, int on);
ZK_CALL void zk_view_still(ZkRun* run, int on);
ZK_CALL void zk_view_smooth(ZkRun* run, int on);

// The most cells that the view shows while it follows the unit: 19.5 x 11.5 at first, as on the desktop.
ZK_CALL void zk_view_reach(ZkRun* run, double columns, double rows);

// Looks at the run, for a picture that fits into a frame of this size in pixels; way, from 0 to 1, is how far
// what moves has come between the last tick but one and the last. The plan tells what is drawn where: numbers
// in the order of PlanSlot in PageRun.h.
ZK_CALL const int* zk_view_look(ZkRun* run, int frameWidth, int frameHeight, double way);
ZK_CALL int zk_view_plan_size(ZkRun* run);

// Whether anything is on its way after the last tick.
ZK_CALL int zk_view_moves(ZkRun* run);
}
