#include "data/RecordFile.h"

#include <algorithm>

#include "data/CaveO.h"
#include "data/Lines.h"
#include "data/Result.h"
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

RecordHead ReadRecordHead(RecordLines& lines) {
  RecordHead head;
  head.CollectionName = UnscrambleText(lines.Next());
  const std::size_t length = head.CollectionName.size();
  if (length > kScoreDigits && head.CollectionName.at(length - kScoreDigits - 1) == '\r') {
    head.Score = ScoreOf(std::string_view(head.CollectionName).substr(length - kScoreDigits));
    head.CollectionName.resize(length - kScoreDigits - 1);
  }
  head.Player = UnscrambleText(lines.Next());
  head.CaveText = UnscrambleText(lines.Next());
  return head;
}

bool HoldsRecord(std::string_view bytes) {
  RecordLines lines{std::string(bytes)};
  const std::string caveText = ReadRecordHead(lines).CaveText;
  return !caveText.empty() && ParseCaveText(caveText);
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

std::string MovesOf(const std::string& record) {
  std::size_t at = 0;
  for (int line = 0; line < 3; ++line) {
    at = record.find(kLineEnd, at);
    if (at == std::string::npos) return {};
    at += kLineEnd.size();
  }
  return record.substr(at);
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
