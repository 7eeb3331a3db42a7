#include "editors/CatData.h"

#include <algorithm>
#include <array>
#include <utility>

#include "data/Cp1250.h"
#include "skin/SkinLines.h"

namespace zorik {

namespace {

constexpr std::string_view kGroups = "*-+/";
constexpr std::string_view kHead = "*A";
constexpr std::string_view kEnd = "/Z";
constexpr std::size_t kTokenLength = 2;
constexpr std::size_t kCaptionPlace = 3;  // characters in front of a caption

using Prefixes = std::array<std::string, kGroups.size()>;

// The text behind so many characters of a UTF-8 text.
std::string_view Behind(std::string_view utf8, std::size_t characters) {
  std::size_t place = 0;
  for (; characters > 0 && place < utf8.size(); --characters) {
    do {
      ++place;
    } while (place < utf8.size() && (static_cast<unsigned char>(utf8[place]) & 0xC0U) == 0x80U);
  }
  return utf8.substr(place);
}

std::string_view Start(std::string_view utf8, std::size_t characters) {
  return utf8.substr(0, utf8.size() - Behind(utf8, characters).size());
}

std::string WithPrefix(std::string_view caption, const std::string& prefix) {
  std::string text;
  for (const char character : caption) {
    if (character == '#') {
      text += prefix;
    } else {
      text += character;
    }
  }
  return text;
}

CatCommand CommandOf(std::string_view line, const Prefixes& prefixes) {
  CatCommand command{FromUtf8Lossy(Start(line, kTokenLength)), std::string(Behind(line, kCaptionPlace))};
  const std::size_t group = kGroups.find(line.front());
  if (group != std::string_view::npos) command.Caption = WithPrefix(command.Caption, prefixes[group]);
  return command;
}

}  // namespace

CatData ReadCatData(std::string_view bytes) {
  SkinLines lines(bytes);
  CatData data;
  data.Caption = lines.Next();
  data.CloseQuestion = lines.Next();
  Prefixes prefixes;
  while (!lines.AtEnd()) {
    const std::string line = lines.Next();
    if (Behind(line, 1).starts_with(' ')) {
      const std::size_t group = kGroups.find(line.front());
      if (group != std::string_view::npos) prefixes[group] = Behind(line, kTokenLength);
    } else if (!Behind(line, kCaptionPlace).empty() && data.CatCommands.size() < CatData::kMostCommands) {
      data.CatCommands.push_back(CommandOf(line, prefixes));
    }
  }
  return data;
}

std::string TestScript(std::string program) {
  const bool whole = program.size() >= kTokenLength;
  const bool head = whole && program.front() == kHead.front();
  const bool end = whole && program[program.size() - kTokenLength] == kEnd.front();
  if (!head) program.insert(0, kHead);
  if (!end) program += kEnd;
  return program;
}

CatScript::CatScript(std::vector<CatCommand> commands) : commands_(std::move(commands)) {}

void CatScript::Load(std::string program) {
  program_ = TestScript(std::move(program));
  lines_.clear();
  for (std::size_t place = 0; place + kTokenLength <= program_.size(); place += kTokenLength) {
    for (const CatCommand& command : commands_) {
      if (program_.compare(place, kTokenLength, command.Token) == 0) lines_.push_back(command.Caption);
    }
  }
  selected_ = std::clamp(LineCount() - 1, 0, 1);
}

void CatScript::Select(int line) {
  if (line >= 0 && line < LineCount()) selected_ = line;
}

void CatScript::Delete() {
  if (!CanDelete()) return;
  lines_.erase(lines_.begin() + selected_);
  const std::size_t place = static_cast<std::size_t>(selected_) * kTokenLength;
  if (place < program_.size()) program_.erase(place, kTokenLength);
  --selected_;
}

void CatScript::Insert(std::size_t command) {
  if (!CanInsert() || command >= commands_.size()) return;
  lines_.insert(lines_.begin() + selected_, commands_[command].Caption);
  const std::size_t place = static_cast<std::size_t>(selected_) * kTokenLength;
  program_.insert(std::min(place, program_.size()), commands_[command].Token);
  ++selected_;
}

void CatScript::Swap() {
  if (!CanDelete()) return;  // the first line and the last, here as there
  const auto line = lines_.begin() + selected_;
  std::iter_swap(line, line + 1);
  --selected_;
}

void CatScript::MoveUp() {
  if (!CanMoveUp()) return;
  Exchange(--selected_);
}

void CatScript::MoveDown() {
  if (!CanMoveDown()) return;
  Exchange(selected_++);
}

void CatScript::Exchange(int line) {
  const auto caption = lines_.begin() + line;
  std::iter_swap(caption, caption + 1);
  const std::size_t place = static_cast<std::size_t>(line) * kTokenLength;
  if (place + 2 * kTokenLength > program_.size()) return;
  const auto token = program_.begin() + static_cast<std::ptrdiff_t>(place);
  std::swap_ranges(token, token + kTokenLength, token + kTokenLength);
}

void CatScript::Restore(std::string program, std::vector<std::string> lines, int selected) {
  program_ = std::move(program);
  lines_ = std::move(lines);
  selected_ = selected;
}

}  // namespace zorik
