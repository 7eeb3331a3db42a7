#include "data/Postcard.h"

#include <charconv>
#include <optional>

#include "data/Chance.h"
#include "data/Lines.h"
#include "data/RecordFile.h"
#include "data/Result.h"
#include "data/Scramble.h"

namespace zorik {
namespace {

// Letters that QR codes hold more of than of others, without those that a shell, an address or a mail program
// would not leave alone.
constexpr std::string_view kLetters = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ+-./:";
constexpr unsigned kBase = 41;
static_assert(kLetters.size() == kBase);

constexpr int kHeadLines = 3;

const Failure kDamaged{"it is no word of a postcard, or a damaged one"};

unsigned ByteAt(std::string_view bytes, std::size_t place) {
  return static_cast<unsigned char>(bytes[place]);
}

// Two bytes are three letters, a single last one is two; the lowest first.
std::string Spelled(std::string_view bytes) {
  std::string letters;
  for (std::size_t i = 0; i < bytes.size(); i += 2) {
    const bool pair = i + 1 < bytes.size();
    unsigned value = pair ? ByteAt(bytes, i) * 256 + ByteAt(bytes, i + 1) : ByteAt(bytes, i);
    for (int letter = 0; letter < (pair ? 3 : 2); ++letter, value /= kBase)
      letters += kLetters[value % kBase];
  }
  return letters;
}

std::optional<std::string> Read(std::string_view letters) {
  std::string bytes;
  for (std::size_t i = 0; i < letters.size(); i += 3) {
    const std::string_view group = letters.substr(i, 3);
    unsigned value = 0;
    for (std::size_t place = group.size(); place-- > 0;) {
      const std::size_t digit = kLetters.find(group[place]);
      if (digit == std::string_view::npos) return std::nullopt;
      value = value * kBase + static_cast<unsigned>(digit);
    }
    const bool pair = group.size() == 3;
    if (group.size() == 1 || value > (pair ? 0xFFFFU : 0xFFU)) return std::nullopt;
    if (pair) bytes += static_cast<char>(value / 256);
    bytes += static_cast<char>(value % 256);
  }
  return bytes;
}

// A text behind its length: "5:Zorik".
std::string Measured(const std::string& text) {
  return std::to_string(text.size()) + ":" + text;
}

std::optional<std::string> TakeMeasured(std::string_view& content) {
  std::size_t length = 0;
  const char* const last = content.data() + content.size();
  const auto [end, error] = std::from_chars(content.data(), last, length);
  if (error != std::errc() || end == last || *end != ':') return std::nullopt;
  content.remove_prefix(static_cast<std::size_t>(end - content.data()) + 1);
  if (length > content.size()) return std::nullopt;
  std::string text(content.substr(0, length));
  content.remove_prefix(length);
  return text;
}

std::string WithoutBlanks(std::string_view word) {
  std::string letters;
  for (const char c : word) {
    if (std::string_view(" \t\r\n").find(c) == std::string_view::npos) letters += c;
  }
  return letters;
}

}  // namespace

std::string PostcardContent(const std::string& record) {
  RecordLines lines(record);
  std::string content;
  for (int line = 0; line < kHeadLines; ++line) content += Measured(UnscrambleText(lines.Next()));
  return content + MovesOf(record);
}

Result<std::string> RecordOfPostcardContent(std::string_view content) {
  std::string record;
  Chance decoration;
  for (int line = 0; line < kHeadLines; ++line) {
    const std::optional<std::string> text = TakeMeasured(content);
    if (!text) return kDamaged;
    record += ScrambleText(*text, decoration) + "\r\n";
  }
  return record.append(content);
}

std::string PostcardWord(std::string_view packed) {
  return std::string(kPostcardStart) + Spelled(packed);
}

Result<std::string> PackedOfPostcardWord(std::string_view word) {
  const std::string letters = WithoutBlanks(word);
  if (!letters.starts_with(kPostcardStart)) return kDamaged;
  std::optional<std::string> bytes = Read(std::string_view(letters).substr(kPostcardStart.size()));
  if (!bytes) return kDamaged;
  return *std::move(bytes);
}

}  // namespace zorik
