// What belongs to no run: collections, records, pictures.
#include "machine/Machine.h"

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/Machine.h"
#include "data/Cp1250.h"
#include "data/PlayerName.h"
#include "data/Postcard.h"
#include "data/Progress.h"
#include "data/RecordFile.h"
#include "data/Result.h"
#include "machine/Answer.h"
#include "machine/Collection.h"
#include "machine/PageRun.h"
#include "machine/Telling.h"
#include "trace/Trace.h"
#include "view/Edges.h"
#include "zktool/Json.h"
#include "zktool/Verdict.h"

using namespace zorik;

namespace zorik {

std::string& Answer() {
  static std::string answer;
  return answer;
}

int AnswerWith(Result<std::string> outcome) {
  Answer() = outcome ? *std::move(outcome) : outcome.Message();
  return outcome ? 1 : 0;
}

}  // namespace zorik

namespace {

RecordHead HeadOf(const char* bytes, int size) {
  RecordLines lines{std::string(Bytes(bytes, size))};
  return ReadRecordHead(lines);
}

}  // namespace

const char* zk_answer() {
  return Answer().data();
}

int zk_answer_size() {
  return static_cast<int>(Answer().size());
}

int zk_sheets(const char* scheme, int schemeSize, const unsigned char* sizes, int sizesCount,
              const unsigned char* grounds, int groundCount) {
  if (static_cast<std::size_t>(sizesCount) != 2 * kTileSetCount) {
    Answer() = "there are not as many tile sets as the game has";
    return 0;
  }
  FrameTable::Numbers columns{}, rows{};
  for (std::size_t set = 0; set < kTileSetCount; ++set) {
    columns[set] = std::max<int>(1, sizes[2 * set]);
    rows[set] = std::max<int>(1, sizes[2 * set + 1]);
  }
  std::vector<Ground> covered;
  for (int i = 0; i < groundCount; ++i)
    covered.push_back(
        static_cast<Ground>(std::min<unsigned>(grounds[i], static_cast<unsigned>(Ground::Covered))));
  FrameTable frames(columns, rows, std::move(covered));
  if (frames.HasEdges() && frames.Count() != static_cast<std::size_t>(groundCount)) {
    Answer() = "there are not as many grounds as frames";
    return 0;
  }
  SetFrames(Bytes(scheme, schemeSize), std::move(frames));
  return 1;
}

int zk_edge(int ground, int edges, int quarter) {
  const Edge edge =
      EdgeIn(ground == 0 ? Ground::Bare : Ground::Earth, static_cast<EdgeMask>(edges), quarter & 3);
  return edge == Edge::None ? -1 : static_cast<int>(edge);
}

// Collections

ZkCollection* zk_collection_open(const char* bytes, int size) {
  Result<PlayedCollection> collection = ReadForPlay(Bytes(bytes, size));
  if (collection && !collection->Caves.empty()) return new ZkCollection{std::move(*collection), {}};
  Answer() = collection ? "there is no cave in it" : collection.Message();
  return nullptr;
}

void zk_collection_close(ZkCollection* collection) {
  delete collection;
}

void zk_collection_tell(ZkCollection* collection) {
  Answer() = TellCollection(collection->collection);
}

void zk_progress_record(ZkCollection* collection, const char* name, int nameSize, const char* bytes,
                        int size) {
  collection->records.insert_or_assign(FromUtf8Lossy(Bytes(name, nameSize)), std::string(Bytes(bytes, size)));
}

void zk_progress_tell(ZkCollection* collection, const char* player, int playerSize) {
  const auto records = std::exchange(collection->records, {});
  const RecordSource source = [&records](const std::string& name) -> std::optional<std::string> {
    const auto found = records.find(name);
    return found == records.end() ? std::nullopt : std::optional(found->second);
  };
  const Progress progress =
      ReadProgress(collection->collection, FromUtf8Lossy(Bytes(player, playerSize)), source);
  std::vector<int> states, scores;
  for (std::size_t number = 1; number <= collection->collection.Caves.size(); ++number) {
    states.push_back(static_cast<int>(progress.CaveStates[number]));
    scores.push_back(progress.Scores[number]);
  }
  Answer() = JsonObject()
                 .Raw("caves", JsonNumbers(states))
                 .Raw("scores", JsonNumbers(scores))
                 .Number("total", progress.Total)
                 .Number("done", progress.Done)
                 .Number("rest", progress.Rest)
                 .Done();
}

// Records

int zk_record_tell(const char* bytes, int size) {
  const RecordHead head = HeadOf(bytes, size);
  const Result<CaveRecord> cave = ReadCave(head.CaveText);
  if (!cave) {
    Answer() = cave.Message();
    return 0;
  }
  Answer() = JsonObject()
                 .Text("collection", ToUtf8(head.CollectionName))
                 .Number("score", head.Score)
                 .Text("player", ToUtf8(head.Player))
                 .Text("cave", ToUtf8(cave->Name))
                 .Text("description", ToUtf8(cave->Description))
                 .Number("width", cave->Width)
                 .Number("height", cave->Height)
                 .Number("gems", cave->GemsNeeded)
                 .Number("time", cave->Time)
                 .Text("scheme", SchemeOf(*cave))
                 .Text("name", ToUtf8(RecordFileName(head.CollectionName, cave->Name)))
                 .Done();
  return 1;
}

void zk_record_judge(const char* bytes, int size) {
  const auto scratch = std::make_unique<Hra>();
  const Judgement judgement = Judge(*scratch, std::string(Bytes(bytes, size)));
  Answer() = JsonObject()
                 .Raw("verdict", JsonText(WordOf(judgement.verdict)))
                 .Number("score", judgement.score)
                 .Number("stored", judgement.stored)
                 .Number("ticks", judgement.ticks)
                 .Raw("message", JsonText(judgement.message))
                 .Done();
}

int zk_record_is_of(ZkCollection* collection, int number, const char* bytes, int size) {
  const auto& caves = collection->collection.Caves;
  if (number < 1 || static_cast<std::size_t>(number) > caves.size()) return 0;
  const std::string& text = caves[static_cast<std::size_t>(number) - 1].Text;
  return WithoutMarker(HeadOf(bytes, size).CaveText) == WithoutMarker(text) ? 1 : 0;
}

int zk_record_trace(const char* bytes, int size) {
  const auto scratch = std::make_unique<Hra>();
  const Result<Done> started = Replay(*scratch, std::string(Bytes(bytes, size)));
  if (!started) {
    Answer() = started.Message();
    return 0;
  }
  std::string trace;
  TraceRun(*scratch, {}, {}, [&trace](std::string_view lines) { trace += lines; });
  Answer() = std::move(trace);
  return 1;
}

int zk_postcard_packed(const char* word, int size) {
  return AnswerWith(PackedOfPostcardWord(Bytes(word, size)));
}

int zk_postcard_record(const char* content, int size) {
  return AnswerWith(RecordOfPostcardContent(Bytes(content, size)));
}

void zk_player_name(const char* name, int size) {
  Answer() = ToUtf8(PlayerName(Bytes(name, size)));
}
