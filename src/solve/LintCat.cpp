// What is wrong with a cat's program: it is followed from its start and from the labels of all events that
// can ever come.
#include <algorithm>
#include <set>

#include "core/Machine.h"
#include "core/Patterns.h"
#include "data/Cp1250.h"
#include "solve/Lint.h"

namespace zorik {
namespace {

enum class Course { On, Stays, Nothing };  // goes on to the next command, does not, is no command

struct Command {
  Course course = Course::Nothing;
  bool moves = false;
  bool waits = false;
};

bool Between(char letter, char first, char last) {
  return letter >= first && letter <= last;
}

Command CommandOf(std::string_view token) {
  if (token.size() != 2) return {};
  const char letter = token[1];
  switch (token[0]) {
    case '-':
      if (Between(letter, 'A', 'L') || letter == 'P') return {Course::On, true, false};
      if (letter == 'M') return {Course::Stays, false, false};
      return letter == 'N' || letter == 'O' ? Command{Course::On, false, true} : Command{};
    case '/':
      if (Between(letter, 'D', 'H')) return {Course::Stays, true, false};
      return letter == 'Z' ? Command{Course::Stays, false, false} : Command{};
    case '*':
      return {Course::Stays, false, false};
    default:
      return token == "+A" ? Command{Course::On, true, true} : Command{};
  }
}

class Program {
 public:
  Program(const CaveRecord& cave, const Hra& run) : run_(run) {
    for (std::size_t at = 0; at < cave.Script.size(); at += 2) tokens_.push_back(cave.Script.substr(at, 2));
    seen_.resize(tokens_.size());
  }

  std::vector<Doubt> Doubts() {
    Labels();
    FollowAll();
    Unknown();
    const bool moves = std::any_of(reached_.begin(), reached_.end(),
                                   [this](std::size_t place) { return CommandOf(tokens_[place]).moves; });
    if (!moves) Add(DoubtKind::CatStuck, "the program never moves the cat");
    return std::move(doubts_);
  }

  bool WaitsForKey() const { return std::find(tokens_.begin(), tokens_.end(), "*I") != tokens_.end(); }

 private:
  void Add(DoubtKind kind, std::string sentence) {
    doubts_.push_back({kind, std::move(sentence), "cat", Spot{run_.CatX, run_.CatY}});
  }
  void AddOf(std::size_t place, DoubtKind kind, std::string sentence, int form = 0) {
    Add(kind, std::move(sentence));
    doubts_.back().values = {std::to_string(place + 1)};
    doubts_.back().form = form;
  }

  bool Has(std::uint16_t code) const {
    return Any([code, this](Cell c) { return run_.Field(c) == code; });
  }
  template <class Test>
  bool Any(Test test) const {
    bool any = false;
    ForEachCell(run_, [&](Cell c) { any |= test(c); });
    return any;
  }

  bool CanCome(char event) const {
    switch (event) {
      case 'B':
        return true;
      case 'C':
      case 'D':
        return Any([this](Cell c) { return IsMagicWall(run_, c); });
      case 'E':
      case 'F':
        return Has(kAmoeba);
      case 'I':
        return Has(kCatKey);
      default:
        return false;
    }
  }

  std::string Named(std::size_t place) const {
    return "\"" + WithoutControls(ToUtf8(tokens_[place])) + "\" (command " + std::to_string(place + 1) + ")";
  }

  // The first command of a program is passed over, whatever it is.
  void Labels() {
    if (!tokens_.empty() && tokens_[0] != "*A")
      AddOf(0, DoubtKind::CatToken,
            "the program begins with " + Named(0) + ", which is passed over, not with \"*A\"");
    for (std::size_t place = 1; place < tokens_.size(); ++place) {
      const std::string& token = tokens_[place];
      if (token.size() == 2 && token[0] == '*' && !CanCome(token[1]))
        AddOf(place, DoubtKind::CatLabel, "nothing ever raises the event of the label " + Named(place));
    }
  }

  void FollowAll() {
    Follow(1);
    for (std::size_t place = 1; place < tokens_.size(); ++place) {
      const std::string& token = tokens_[place];
      if (token.size() != 2 || token[0] != '*' || !CanCome(token[1])) continue;
      Follow(place + 1);
      // An event in the middle of a wait: its end counts on from there.
      if (waits_) Follow(place + 2);
    }
  }

  void Follow(std::size_t place) {
    for (; place < tokens_.size() && !seen_[place]; ++place) {
      seen_[place] = true;
      reached_.push_back(place);
      const Command command = CommandOf(tokens_[place]);
      waits_ |= command.waits;
      if (command.course != Course::On) return;
    }
  }

  void Unknown() {
    for (std::size_t place = 1; place < tokens_.size(); ++place) {
      const bool known = CommandOf(tokens_[place]).course != Course::Nothing;
      const bool stands = tokens_[place] == "/Z" || tokens_[place][0] == '*';
      if (!known)
        AddOf(place, DoubtKind::CatToken,
              Named(place) + " means nothing, the cat stands still there for good", 1);
      if (known && !seen_[place] && !stands && !InIdlePart(place))
        AddOf(place, DoubtKind::CatToken, "the program never comes to " + Named(place), 2);
    }
  }

  // What stands behind the label of an event that never comes has been told by the label.
  bool InIdlePart(std::size_t place) const {
    while (place > 1 && tokens_[place][0] != '*') --place;
    return tokens_[place][0] == '*' && !CanCome(tokens_[place].back());
  }

  const Hra& run_;
  std::vector<std::string> tokens_;
  std::vector<bool> seen_;
  std::vector<std::size_t> reached_;
  bool waits_ = false;
  std::vector<Doubt> doubts_;
};

Doubt OfCatKey(const Hra& run) {
  Doubt doubt{DoubtKind::CatKeyIdle, "no cat waits for the cat key", "cells", {}};
  ForEachCell(run, [&](Cell c) {
    if (run.Field(c) == kCatKey && !doubt.cell) doubt.cell = Spot{c.x(), c.y()};
  });
  return doubt;
}

}  // namespace

std::vector<Doubt> DoubtsAboutCat(const CaveRecord& cave, const Hra& run) {
  Program program(cave, run);
  std::vector<Doubt> doubts;
  if (!cave.Script.empty() && !run.CatPresent)
    doubts.push_back({DoubtKind::CatMissing, "there is a program, but no cat", "cat", {}});
  if (!cave.Script.empty() && run.CatPresent) doubts = program.Doubts();
  if (run.Count(kCatKey) > 0 && !(run.CatPresent && program.WaitsForKey())) doubts.push_back(OfCatKey(run));
  return doubts;
}

}  // namespace zorik
