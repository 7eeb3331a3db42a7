#include "solve/Lint.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <map>
#include <memory>
#include <set>

#include "core/Machine.h"
#include "core/Objects.h"
#include "data/Cp1250.h"
#include "data/ReadableText.h"
#include "data/RecordFile.h"
#include "solve/Impossible.h"
#include "solve/Reach.h"

namespace zorik {
namespace {

constexpr int kEditorWidth = 80, kEditorHeight = 50;
constexpr double kMostMirror = 0.8;
constexpr std::size_t kLongestName = 255;  // bytes of a file's name on all common disks
constexpr std::uint64_t kStarts = 8;       // seeds under which nobody presses a key

// What a cave's number may be. Some matter only where one of these letters stands.
struct Limits {
  std::string_view key;
  int lowest;
  int highest;
  std::string_view letters;
  int (*of)(const CaveRecord& cave);
};
constexpr std::array<Limits, 5> kLimits{{
    {"time", 5, kHighestPair, "", [](const CaveRecord& cave) { return int{cave.Time}; }},
    {"magic-wall-time", 1, 150, "M", [](const CaveRecord& cave) { return int{cave.MagicWallTime}; }},
    {"amoeba-time", 1, 150, "A", [](const CaveRecord& cave) { return int{cave.AmoebaTime}; }},
    {"colouring", 0, 14, "", [](const CaveRecord& cave) { return int{cave.Colouring}; }},
    {"slime", 0, 8, "", [](const CaveRecord& cave) { return int{cave.SlimePermeability}; }},
}};

std::string Sized(int width, int height) {
  return std::to_string(width) + " x " + std::to_string(height);
}

// A letter as it can be typed into a readable file.
std::string Spelled(char letter) {
  std::string content;
  WriteLines(content, "", {std::string(1, letter)});
  return content.substr(4, content.size() - 5);  // without ":\n| " and the line end
}

char LetterAt(const CaveRecord& cave, int x, int y) {
  return cave.Cells[static_cast<std::size_t>(x)][static_cast<std::size_t>(y)];
}

class Cave {
 public:
  explicit Cave(const CaveRecord& cave) : cave_(cave) {
    ForEach([this](int x, int y) { ++counts_[Letter(x, y)]; });
  }

  std::vector<Doubt> Doubts() {
    const bool playable = Size();
    Numbers();
    if (!playable) TooLarge();
    Letters();
    Dogs();
    if (!Has("T")) Add(DoubtKind::NoFinish, "there is no finish");
    if (playable) LookAtRun();
    return std::move(doubts_);
  }

 private:
  template <class Action>
  void ForEach(Action action) const {
    for (int y = 0; y < cave_.Height; ++y) {
      for (int x = 0; x < cave_.Width; ++x) action(x, y);
    }
  }
  char Letter(int x, int y) const { return LetterAt(cave_, x, y); }

  using Values = std::vector<std::string>;

  void Add(DoubtKind kind, std::string sentence, std::string_view key = "cells", Values values = {}) {
    doubts_.push_back({kind, std::move(sentence), key, {}, std::move(values)});
  }
  void AddAt(DoubtKind kind, int x, int y, std::string sentence, Values values = {}, int form = 0) {
    doubts_.push_back({kind, std::move(sentence), "cells", Spot{x, y}, std::move(values), form});
  }

  int CountOf(std::string_view letters) const {
    int count = 0;
    for (const auto& [letter, times] : counts_)
      count += letters.find(letter) != std::string_view::npos ? times : 0;
    return count;
  }
  bool Has(std::string_view letters) const { return CountOf(letters) > 0; }

  bool Size() const {
    return cave_.Width > 0 && cave_.Height > 0 && cave_.Width <= kMaxWidth && cave_.Height <= kMaxHeight;
  }

  void TooLarge() {
    const std::string size = Sized(cave_.Width, cave_.Height), most = Sized(kMaxWidth, kMaxHeight);
    Add(DoubtKind::TooLarge, "a cave of " + size + " cells cannot be played, the largest has " + most,
        "cells", {size, most});
  }

  void Numbers() {
    for (const Limits& limits : kLimits) {
      const int number = limits.of(cave_);
      const bool matters = limits.letters.empty() || Has(limits.letters);
      if (!matters || (number >= limits.lowest && number <= limits.highest)) continue;
      Add(DoubtKind::NumberOutOfRange,
          std::string(limits.key) + " is " + std::to_string(number) + ", it should be from " +
              std::to_string(limits.lowest) + " to " + std::to_string(limits.highest),
          limits.key,
          {std::string(limits.key), std::to_string(number), std::to_string(limits.lowest),
           std::to_string(limits.highest)});
    }
  }

  // Each letter once, where it stands first.
  void Letters() {
    std::set<char> told;
    ForEach([&](int x, int y) {
      const char letter = Letter(x, y);
      if (FindLetter(letter) != nullptr || !told.insert(letter).second) return;
      const int times = CountOf({&letter, 1});
      AddAt(DoubtKind::UnknownLetter, x, y,
            "the letter \"" + Spelled(letter) + "\" means no object" +
                (times > 1 ? ", it stands there " + std::to_string(times) + " times" : ""),
            {Spelled(letter), std::to_string(times)});
    });
  }

  void Dogs() {
    int highest = 0;
    std::array<int, 10> count{};
    for (const auto& [letter, times] : counts_) {
      const int dog = DogNumber(letter);
      highest = std::max(highest, dog);
      count[static_cast<std::size_t>(dog)] += times;
    }
    if (highest == 0) return Add(DoubtKind::NoDog, "there is no dog");
    for (int dog = 1; dog <= highest; ++dog) {
      const int times = count[static_cast<std::size_t>(dog)];
      const std::string number = std::to_string(dog), name = "dog " + number;
      const std::string most = std::to_string(highest), often = std::to_string(times);
      if (times == 0)
        Add(DoubtKind::DogMissing, name + " is missing, the highest is dog " + most, "cells", {number, most});
      if (times > 1)
        Add(DoubtKind::DogTwice, name + " stands there " + often + " times", "cells", {number, often});
    }
  }

  // What can only be told of the cave as the game sets it up.
  void LookAtRun() {
    const auto run = std::make_unique<Hra>();
    StartRun(*run, {}, cave_, RunKind::Play);
    Pads(*run);
    Sensors(*run);
    if (LiveDogs(*run) > 0) {
      const Reach reach(*run);
      Shut(*run, reach);
      Gems(*run, reach);
      Time(*run, reach);
      Start();
    }
    for (Doubt& doubt : DoubtsAboutCat(cave_, *run)) doubts_.push_back(std::move(doubt));
    Looks();
  }

  bool OnEdge(int x, int y) const {
    return x == 0 || y == 0 || x == cave_.Width - 1 || y == cave_.Height - 1;
  }

  // Set-up makes space of the slime of a pad, also where the other pad is missing.
  void Pads(const Hra& run) {
    ForEach([&](int x, int y) {
      if (Letter(x, y) != 'S') return;
      const Cell c(x, y);
      const bool used = run.TeleportActive && (c == run.TeleportIn || c == run.TeleportOut);
      if (run.Field(c) == kSlime) {
        if (run.Field(c + kDown) == kSteel)
          AddAt(DoubtKind::SlimeShut, x, y,
                "slime on steel that is no pad of a teleport lets nothing through");
        return;
      }
      if (used) return;
      const bool exit = run.Field(c + kUp) == kSteel;
      AddAt(DoubtKind::TeleportHalf, x, y,
            exit
                ? "slime under steel is the exit of a teleport, but there is no entrance; the game empties it"
                : "slime on steel is the entrance of a teleport, but there is no exit; the game empties it",
            {}, exit ? 1 : 0);
      if (OnEdge(x, y))
        AddAt(DoubtKind::HoleInRing, x, y, "the lone pad leaves a hole in the ring around the cave");
    });
  }

  // Steel and what stands for ever never stir.
  void Sensors(const Hra& run) {
    const Reach reach(run);
    ForEach([&](int x, int y) {
      const Cell c(x, y);
      if (run.Field(c) != kSensor) return;
      for (const Step step : {kLeft, kUp, kRight, kDown}) {
        const std::uint16_t code = run.Field(c + step);
        const bool still = !reach.Opens(c + step) && (code == kSteel || code == kBrick || code == kBiomass);
        if (!still && code != kSensor) return;
      }
      AddAt(DoubtKind::SensorShut, x, y, "nothing can ever stir beside the sensor");
    });
  }

  void Shut(const Hra& run, const Reach& reach) {
    ForEach([&](int x, int y) {
      const Cell c(x, y);
      const std::uint16_t code = run.Field(c);
      if (code == kFinish && !reach.Dogs(c))
        AddAt(DoubtKind::FinishShut, x, y, "no dog can ever come to the finish");
      if ((IsKey(code) || code == kCatKey) && !reach.FeedsAnybody(c))
        AddAt(DoubtKind::KeyShut, x, y, "nobody can ever take the key");
    });
  }

  void Gems(const Hra& run, const Reach& reach) {
    int shut = 0, there = 0;
    ForEach([&](int x, int y) {
      if (run.Field({x, y}) != kGem) return;
      ++there;
      if (reach.FeedsDogs({x, y})) return;
      ++shut;
      AddAt(DoubtKind::GemShut, x, y, "no dog can ever come to the gem");
    });
    const std::optional<int> most = MostGems(run, reach);
    if (!most || *most >= run.GemsNeeded) return;
    std::string sentence =
        "the finish opens at " + std::to_string(run.GemsNeeded) + " gems, but the cave has ";
    sentence += std::to_string(there - shut);
    sentence += shut > 0 ? " that a dog can come to" : "";
    sentence += *most <= there - shut ? " and nothing that makes more"
                                      : ", and no more than " + std::to_string(*most) + " can come to be";
    Add(DoubtKind::TooFewGems, std::move(sentence), "gems",
        {std::to_string(run.GemsNeeded), std::to_string(*most)});
  }

  void Time(const Hra& run, const Reach& reach) {
    const std::optional<int> fewest = FewestTicks(run, reach);
    if (!fewest || *fewest <= run.TimeLimit * kTicksPerSecond) return;
    Add(DoubtKind::TimeTooShort,
        "the time is up after " + std::to_string(run.TimeLimit * kTicksPerSecond) +
            " ticks, and no way to the finish is shorter than " + std::to_string(*fewest),
        "time", {std::to_string(run.TimeLimit * kTicksPerSecond), std::to_string(*fewest)});
  }

  // Nobody presses a key in the first second.
  void Start() {
    for (std::uint64_t seed = 0; seed < kStarts; ++seed) {
      const auto run = std::make_unique<Hra>(seed);
      StartRun(*run, {}, cave_, RunKind::Play);
      const int dogs = LiveDogs(*run);
      for (int tick = 1; tick <= kTicksPerSecond; ++tick) {
        Tick(*run, {});
        if (LiveDogs(*run) == dogs) continue;
        return Add(DoubtKind::UnfairStart,
                   "a dog dies in tick " + std::to_string(tick) + " if no key is pressed", "cells",
                   {std::to_string(tick)});
      }
    }
  }

  void Looks() {
    if (cave_.Width > kEditorWidth || cave_.Height > kEditorHeight) {
      const std::string cut =
          Sized(std::min<int>(cave_.Width, kEditorWidth), std::min<int>(cave_.Height, kEditorHeight));
      Add(DoubtKind::AboveEditor, "the cave editor would cut the cave to " + cut + " cells", "cells", {cut});
    }
    const double mirror = MirrorShare(cave_);
    if (mirror <= kMostMirror) return;
    std::array<char, 8> share{};
    std::snprintf(share.data(), share.size(), "%.2f", mirror);
    Add(DoubtKind::Mirror, std::string(share.data()) + " of the cells equal their mirror", "cells",
        {std::to_string(std::lround(mirror * 100))});
  }

  const CaveRecord& cave_;
  std::map<char, int> counts_;
  std::vector<Doubt> doubts_;
};

}  // namespace

std::vector<Doubt> DoubtsAboutCave(const CaveRecord& cave) {
  return Cave(cave).Doubts();
}

std::vector<NameDoubt> DoubtsAboutNames(std::string_view collection, std::span<const std::string> caves) {
  std::vector<NameDoubt> doubts;
  std::map<std::string, std::size_t> seen;
  for (std::size_t i = 0; i < caves.size(); ++i) {
    const std::string name = ToUtf8(RecordFileName(collection, caves[i]));
    if (name.size() > kLongestName) {
      doubts.push_back({i,
                        {DoubtKind::NameTooLong,
                         "the name of the record's file would have " + std::to_string(name.size()) +
                             " bytes, a disk takes " + std::to_string(kLongestName),
                         "name",
                         {},
                         {std::to_string(name.size()), std::to_string(kLongestName)}}});
    }
    const auto [first, fresh] = seen.try_emplace(FoldFileName(name), i);
    if (fresh) continue;
    doubts.push_back({i,
                      {DoubtKind::NameTwice,
                       "its record has the file name of cave " + std::to_string(first->second + 1) +
                           ", so one win replaces the other",
                       "name",
                       {},
                       {std::to_string(first->second + 1)}}});
  }
  return doubts;
}

// What lies on the axis is its own mirror, and says nothing.
double MirrorShare(const CaveRecord& cave) {
  int aside = 0, acrossAxis = 0, upright = 0, aboveAxis = 0;
  for (int y = 0; y < cave.Height; ++y) {
    for (int x = 0; x < cave.Width; ++x) {
      const char letter = LetterAt(cave, x, y);
      const int mirroredX = cave.Width - 1 - x, mirroredY = cave.Height - 1 - y;
      acrossAxis += x != mirroredX ? 1 : 0;
      aboveAxis += y != mirroredY ? 1 : 0;
      aside += x != mirroredX && letter == LetterAt(cave, mirroredX, y) ? 1 : 0;
      upright += y != mirroredY && letter == LetterAt(cave, x, mirroredY) ? 1 : 0;
    }
  }
  const auto share = [](int same, int all) { return all > 0 ? static_cast<double>(same) / all : 0; };
  return std::max(share(aside, acrossAxis), share(upright, aboveAxis));
}

}  // namespace zorik
