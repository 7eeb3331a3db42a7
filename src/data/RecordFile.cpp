#include "data/RecordFile.h"

#include <algorithm>

#include "data/CaveO.h"
#include "data/Scramble.h"

namespace zorik {

namespace {

constexpr std::size_t kScoreDigits = 5;
constexpr std::string_view kLineEnd = "\r\n";

bool IsDigit(char character) {
  return character >= '0' && character <= '9';
}

int ScoreOf(std::string_view digits) {
  if (!std::all_of(digits.begin(), digits.end(), IsDigit)) return 0;
  int score = 0;
  for (const char digit : digits) score = score * 10 + (digit - '0');
  return score;
}

}  // namespace

std::string FiveDigits(int score) {
  const std::string digits = std::to_string(std::max(score, 0));
  return digits.size() < kScoreDigits ? std::string(kScoreDigits - digits.size(), '0') + digits : digits;
}

std::string_view RecordLines::Next() {
  if (AtEnd()) return {};
  const std::string_view rest = std::string_view(*bytes_).substr(place_);
  const std::string_view wanted = ends_ == LineEnds::CrLf ? kLineEnd : kLineEnd.substr(1);
  const std::size_t end = rest.find(wanted);
  if (end == std::string_view::npos) {
    place_ = bytes_->size();
    return rest;
  }
  place_ += end + wanted.size();
  const bool carriageReturn = ends_ == LineEnds::CrLfOrLf && end > 0 && rest[end - 1] == '\r';
  return rest.substr(0, carriageReturn ? end - 1 : end);
}

RecordHead ReadRecordHead(RecordLines& lines) {
  RecordHead head;
  head.CollectionName = UnscrambleText(lines.Next());
  const std::size_t length = head.CollectionName.size();
  if (length > kScoreDigits && head.CollectionName[length - kScoreDigits - 1] == '\r') {
    head.Score = ScoreOf(std::string_view(head.CollectionName).substr(length - kScoreDigits));
    head.CollectionName.resize(length - kScoreDigits - 1);
  }
  head.Player = UnscrambleText(lines.Next());
  head.CaveText = UnscrambleText(lines.Next());
  return head;
}

std::string BuildRecordHead(std::string_view collectionName, int score, std::string_view player,
                            Chance& decoration) {
  std::string first(collectionName);
  first += '\r';
  first += FiveDigits(std::min(score, kHighestScore));
  std::string head = ScrambleText(first, decoration);
  head += kLineEnd;
  head += ScrambleText(player, decoration);
  head += kLineEnd;
  return head;
}

std::string RecordFileName(std::string_view collectionName, std::string_view caveName) {
  std::string name(collectionName);
  name += " - ";
  name += caveName;
  return CleanFileName(name) + ".zkr";
}

std::string TestRecordFileName(std::string_view caveName) {
  return "Editor - " + CleanFileName(caveName) + ".zkr";
}

}  // namespace zorik
