#include "skin/Texts.h"

#include "data/Files.h"
#include "data/Result.h"
#include "skin/SkinData.h"
#include "skin/SkinLines.h"

namespace zorik {
namespace {

constexpr int kHeadLines = 2;

std::string WithBreaks(std::string_view line) {
  std::string text;
  for (const char character : line) {
    if (character == '#') {
      text += "\r\n";
    } else {
      text += character;
    }
  }
  return text;
}

}  // namespace

Result<Done> Texts::LoadTexts(std::string_view bytes) {
  SkinLines lines(bytes);
  for (int i = 0; i < kHeadLines; ++i) lines.Next();
  std::size_t count = 0;
  for (std::string& text : texts_) {
    if (!lines.AtEnd()) ++count;
    text = WithBreaks(lines.Next());
  }
  if (count == kTextCount) return Done{};
  return Failure{"the language file has " + std::to_string(count) + " texts of " +
                 std::to_string(kTextCount)};
}

const std::string& Texts::At(TextId text) const {
  static const std::string kNone;
  const auto index = static_cast<std::size_t>(text);
  return index < texts_.size() ? texts_[index] : kNone;
}

Result<Done> LoadLanguage(const SkinPlaces& places, Texts& texts,
                          const std::function<bool(const std::string& name)>& retry) {
  const Result<std::string> bytes = ReadWhole(SkinDataPath(places, "menu\\cestina", retry));
  Result<Done> loaded = texts.LoadTexts(bytes ? std::string_view(*bytes) : std::string_view());
  if (!bytes) return Failure{bytes.Message()};
  return loaded;
}

std::string WithText(std::string text, std::string_view mark, std::string_view replacement) {
  const std::size_t at = text.find(mark);
  if (at != std::string::npos) text.replace(at, mark.size(), replacement);
  return text;
}

std::string WithNumber(std::string text, std::string_view mark, int number) {
  return WithText(std::move(text), mark, (number < 0 ? "" : " ") + std::to_string(number));
}

std::string BlankJoin(std::string_view left, std::string_view right) {
  const std::size_t end = left.find_last_not_of(' ');
  const std::size_t start = right.find_first_not_of(' ');
  std::string joined(left.substr(0, end == std::string_view::npos ? 0 : end + 1));
  joined += ' ';
  if (start != std::string_view::npos) joined += right.substr(start);
  return joined;
}

}  // namespace zorik
