#include "soundmaker/Recipe.h"

#include <algorithm>
#include <array>
#include <utility>

#include "data/Result.h"
#include "soundmaker/Words.h"

namespace zorik::sound {

namespace {

constexpr double kLongest = 10;     // seconds
constexpr double kHighest = 10500;  // Hertz; a sample rate carries a bit more than twice as much
constexpr double kLowest = 1;       // Hertz
constexpr double kMostDecibels = 80;

// Reads a line word by word. After a word that is not what was asked for it is spoilt, and gives zeros.
class Line {
 public:
  explicit Line(std::vector<std::string_view> words) : words_(std::move(words)) {}

  bool Sound() const { return !spoilt_ && next_ == words_.size(); }

  double Number(double lowest, double highest) {
    const std::optional<double> number =
        next_ < words_.size() ? NumberOf(words_[next_], lowest, highest) : std::nullopt;
    ++next_;
    spoilt_ = spoilt_ || !number;
    return number.value_or(0);
  }

  double Seconds() { return Number(0, kLongest); }
  double Decibels() { return Number(-kMostDecibels, kMostDecibels); }
  double Share() { return Number(0, 100) / 100; }

  // The number behind a word that need not be there.
  std::optional<double> After(std::string_view word, double lowest, double highest) {
    if (next_ >= words_.size() || words_[next_] != word) return {};
    ++next_;
    return Number(lowest, highest);
  }

  Curve ReadCurve(double lowest, double highest) {
    Curve curve;
    if (next_ < words_.size() && words_[next_].find(':') == std::string_view::npos) {
      curve.points.push_back({0, Number(lowest, highest)});
      return curve;
    }
    while (next_ < words_.size() && words_[next_].find(':') != std::string_view::npos) {
      const std::vector<double> parts = Parts(2);
      if (spoilt_) return curve;
      const bool ordered = curve.points.empty() || parts[0] > curve.points.back().time;
      spoilt_ = !ordered || parts[0] < 0 || parts[1] < lowest || parts[1] > highest;
      curve.points.push_back({parts[0], parts[1]});
    }
    spoilt_ = spoilt_ || !curve.Given();
    return curve;
  }

  bool More() const { return !spoilt_ && next_ < words_.size(); }

  // The numbers of one word, with colons in between: at most so many, and one at least.
  std::vector<double> Parts(std::size_t most) {
    std::vector<double> parts;
    std::string_view word = words_[next_++];
    for (bool more = true; more;) {
      const std::size_t colon = word.find(':');
      const std::optional<double> part = NumberOf(word.substr(0, colon), -1e6, 1e6);
      more = colon != std::string_view::npos;
      if (more) word.remove_prefix(colon + 1);
      spoilt_ = spoilt_ || !part;
      parts.push_back(part.value_or(0));
    }
    spoilt_ = spoilt_ || parts.size() > most;
    return parts;
  }

 private:
  std::vector<std::string_view> words_;
  std::size_t next_ = 1;
  bool spoilt_ = false;
};

void AddFilter(Line& line, Layer& layer, Filter::Kind kind) {
  Filter filter{.kind = kind, .hertz = line.ReadCurve(kLowest, kHighest)};
  filter.q = line.After("q", 0.1, 100).value_or(filter.q);
  filter.gain = line.After("gain", -40, 40).value_or(0);
  layer.filters.push_back(std::move(filter));
}

void ReadScatter(Line& line, Layer& layer) {
  Scatter scatter;
  scatter.count = static_cast<int>(line.Number(1, 500));
  scatter.over = line.After("over", 0, kLongest);
  scatter.pitch = line.After("pitch", 0, 300).value_or(0) / 100;
  scatter.gain = line.After("gain", 0, kMostDecibels).value_or(0);
  scatter.pan = line.After("pan", 0, 1).value_or(0);
  layer.scatter = std::move(scatter);
}

void ReadPartials(Line& line, Layer& layer) {
  do {
    const std::vector<double> parts = line.More() ? line.Parts(3) : std::vector<double>{line.Number(1, 0)};
    if (parts.size() < 2 || parts[0] <= 0) return void(line.Number(1, 0));
    Partial partial{.ratio = parts[0], .level = parts[1], .fade = {}};
    if (parts.size() > 2) partial.fade = std::clamp(parts[2], 0.001, kLongest);
    layer.partials.push_back(partial);
  } while (line.More());
}

Swing ReadSwing(Line& line) {
  const double hertz = line.Number(0.1, 200);
  return {hertz, line.Share()};
}

// What follows `scatter` and means nothing without it.
Scatter& Scattered(Line& line, Layer& layer) {
  if (!layer.scatter) line.Number(1, 0);
  if (!layer.scatter) layer.scatter.emplace();
  return *layer.scatter;
}

void ReadNotes(Line& line, Layer& layer) {
  Scatter& scatter = Scattered(line, layer);
  do scatter.notes.push_back(line.Number(0.1, 10));
  while (line.More());
}

struct SoundWord {
  std::string_view name;
  void (*read)(Line&, Recipe&);
};

constexpr std::array kSoundWords{
    SoundWord{"seed",
              [](Line& line, Recipe& recipe) { recipe.seed = static_cast<int>(line.Number(0, 1e6)); }},
    SoundWord{"press", [](Line& line, Recipe& recipe) { recipe.press = line.Number(-40, 40); }},
    SoundWord{"room",
              [](Line& line, Recipe& recipe) {
                Room room;
                room.size = line.Number(0.002, 0.1);
                room.fade = line.Number(0.01, 2);
                room.gain = line.Decibels();
                recipe.room = room;
              }},
};

struct LayerWord {
  std::string_view name;
  void (*read)(Line&, Layer&);
};

constexpr std::array kLayerWords{
    LayerWord{"at", [](Line& line, Layer& layer) { layer.at = line.Seconds(); }},
    LayerWord{"for", [](Line& line, Layer& layer) { layer.length = line.Number(0.001, kLongest); }},
    LayerWord{"gain", [](Line& line, Layer& layer) { layer.gain = line.Decibels(); }},
    LayerWord{"attack", [](Line& line, Layer& layer) { layer.attack = line.Seconds(); }},
    LayerWord{"release", [](Line& line, Layer& layer) { layer.release = line.Seconds(); }},
    LayerWord{"fade", [](Line& line, Layer& layer) { layer.fade = line.Number(0.001, kLongest); }},
    LayerWord{"level", [](Line& line, Layer& layer) { layer.level = line.ReadCurve(0, 10); }},
    LayerWord{"pitch", [](Line& line, Layer& layer) { layer.pitch = line.ReadCurve(0.05, 20); }},
    LayerWord{"partials", ReadPartials},
    LayerWord{"vibrato", [](Line& line, Layer& layer) { layer.vibrato = ReadSwing(line); }},
    LayerWord{"tremolo", [](Line& line, Layer& layer) { layer.tremolo = ReadSwing(line); }},
    LayerWord{"pan", [](Line& line, Layer& layer) { layer.pan = line.Number(-1, 1); }},
    LayerWord{"low", [](Line& line, Layer& layer) { AddFilter(line, layer, Filter::Kind::kLow); }},
    LayerWord{"high", [](Line& line, Layer& layer) { AddFilter(line, layer, Filter::Kind::kHigh); }},
    LayerWord{"band", [](Line& line, Layer& layer) { AddFilter(line, layer, Filter::Kind::kBand); }},
    LayerWord{"peak", [](Line& line, Layer& layer) { AddFilter(line, layer, Filter::Kind::kPeak); }},
    LayerWord{"scatter", ReadScatter},
    LayerWord{"swell",
              [](Line& line, Layer& layer) { Scattered(line, layer).swell = line.ReadCurve(0, 10); }},
    LayerWord{"drift",
              [](Line& line, Layer& layer) { Scattered(line, layer).drift = line.ReadCurve(0.05, 20); }},
    LayerWord{"notes", ReadNotes},
};

template <class Table>
auto Find(const Table& table, std::string_view name) {
  return std::find_if(table.begin(), table.end(), [&](const auto& word) { return word.name == name; });
}

// Says whether the words mean something, here and in the order so far.
bool ReadLine(const std::vector<std::string_view>& words, Recipe& recipe) {
  Line line(words);
  const std::string_view name = words.front();
  if (name == "noise" || name == "tone") {
    Layer layer;
    if (name == "tone") layer.hertz = line.Number(kLowest, kHighest);
    recipe.layers.push_back(std::move(layer));
    return line.Sound();
  }
  if (recipe.layers.empty()) {
    const auto word = Find(kSoundWords, name);
    if (word == kSoundWords.end()) return false;
    word->read(line, recipe);
    return line.Sound();
  }
  const auto word = Find(kLayerWords, name);
  if (word == kLayerWords.end()) return false;
  word->read(line, recipe.layers.back());
  return line.Sound();
}

}  // namespace

double Curve::At(double time) const {
  if (time <= points.front().time) return points.front().value;
  const auto after =
      std::find_if(points.begin(), points.end(), [=](const Point& point) { return point.time > time; });
  if (after == points.end()) return points.back().value;
  const Point& before = *(after - 1);
  const double x = (time - before.time) / (after->time - before.time);
  return before.value + (after->value - before.value) * x * x * (3 - 2 * x);
}

Result<Recipe> ParseRecipe(std::string_view text) {
  Recipe recipe;
  const Result<Done> read = ReadLines(text, [&recipe](const auto& words) { return ReadLine(words, recipe); });
  if (!read) return Failure{read.Message()};
  if (recipe.layers.empty()) return Failure{"there is nothing to hear in it"};
  return recipe;
}

}  // namespace zorik::sound
