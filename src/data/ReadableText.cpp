#include "data/ReadableText.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <optional>
#include <utility>

#include "data/Cp1250.h"
#include "data/Result.h"

namespace zorik {

namespace {

constexpr std::string_view kLineBreak = "\r\n";
constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kHexDigits = "0123456789ABCDEF";

// Whether a character would be invisible, or would not survive an editor.
bool NeedsCode(char character) {
  const auto byte = static_cast<unsigned char>(character);
  constexpr std::string_view kUnseen = "\x7F\x81\x83\x88\x90\x98\xA0\xAD";
  return byte < ' ' || kUnseen.find(character) != std::string_view::npos;
}

std::string CodeEscape(char character) {
  const auto byte = static_cast<unsigned char>(character);
  return {'\\', 'x', kHexDigits[byte / 16U], kHexDigits[byte % 16U]};
}

// A blank at an end of a text would be lost to the eye.
std::string Escaped(std::string_view text, bool blankMayLead) {
  std::string escaped;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool outerBlank = text[i] == ' ' && (i + 1 == text.size() || (i == 0 && !blankMayLead));
    if (outerBlank || NeedsCode(text[i])) {
      escaped += CodeEscape(text[i]);
    } else if (text[i] == '\\') {
      escaped += "\\\\";
    } else {
      escaped += ToUtf8(text.substr(i, 1));
    }
  }
  return escaped;
}

std::optional<unsigned> HexDigit(char digit) {
  const std::size_t place =
      kHexDigits.find(digit >= 'a' && digit <= 'f' ? static_cast<char>(digit - 32) : digit);
  if (place == std::string_view::npos) return std::nullopt;
  return static_cast<unsigned>(place);
}

// Takes what an escape stands for from behind its backslash.
std::optional<char> TakeEscape(std::string_view& rest) {
  if (rest.starts_with('\\')) {
    rest.remove_prefix(1);
    return '\\';
  }
  if (rest.size() < 3 || rest[0] != 'x') return std::nullopt;
  const std::optional<unsigned> high = HexDigit(rest[1]);
  const std::optional<unsigned> low = HexDigit(rest[2]);
  if (!high || !low) return std::nullopt;
  rest.remove_prefix(3);
  return static_cast<char>(*high * 16U + *low);
}

Result<std::string> Unescaped(std::string_view escaped) {
  const std::optional<std::string> bytes = FromUtf8(escaped);
  if (!bytes) return Failure{"a character that Windows-1250 lacks, or no UTF-8"};
  std::string text;
  std::string_view rest = *bytes;
  while (!rest.empty()) {
    const char character = rest[0];
    rest.remove_prefix(1);
    if (character != '\\') {
      text += character;
      continue;
    }
    const std::optional<char> meant = TakeEscape(rest);
    if (!meant) return Failure{"a backslash that begins neither \\\\ nor \\x and two hexadecimal digits"};
    text += *meant;
  }
  return text;
}

// Takes a line from the front; its end may be that of any system.
std::string_view TakeLine(std::string_view& rest) {
  const std::size_t end = rest.find('\n');
  std::string_view line = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

// Adds a line of text to an entry; one blank in front of it belongs to the form.
Result<Done> AddLine(ReadableEntry& entry, std::string_view escaped, int number) {
  if (escaped.starts_with(' ')) escaped.remove_prefix(1);
  Result<std::string> text = Unescaped(escaped);
  if (!text) return Failure{text.Message()};
  entry.lines.push_back({std::move(*text), number});
  return Done{};
}

Result<Done> ReadLineBelow(std::vector<ReadableEntry>& entries, std::string_view text, int number) {
  if (entries.empty()) return Failure{"a line of text that stands below no entry"};
  ReadableEntry& entry = entries.back();
  const bool textBehindKey = !entry.lines.empty() && entry.lines[0].number == entry.number;
  if (textBehindKey) return Failure{"a line of text below an entry that has its text behind the key"};
  return AddLine(entry, text, number);
}

Result<Done> ReadKeyLine(std::vector<ReadableEntry>& entries, std::string_view line, int number) {
  const std::size_t colon = line.find(':');
  if (colon == std::string_view::npos)
    return Failure{"neither an entry (key: text) nor a line of text (| text)"};
  entries.push_back({std::string(line.substr(0, colon)), number, {}});
  const std::string_view text = line.substr(colon + 1);
  const bool nothingBehind = text.find_first_not_of(' ') == std::string_view::npos;
  return nothingBehind ? Result<Done>(Done{}) : AddLine(entries.back(), text, number);
}

}  // namespace

std::string ReadableEntry::Text() const {
  std::string text;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (i > 0) text += kLineBreak;
    text += lines[i].text;
  }
  return text;
}

Failure FailureAt(std::string_view fileName, int number, std::string_view message) {
  std::string whole(fileName);
  whole += ", line " + std::to_string(number) + ": ";
  whole += message;
  return Failure{whole};
}

Result<std::vector<ReadableEntry>> ReadEntries(std::string_view fileName, std::string_view content) {
  std::vector<ReadableEntry> entries;
  if (content.starts_with(kUtf8Mark)) content.remove_prefix(kUtf8Mark.size());
  for (int number = 1; !content.empty(); ++number) {
    const std::string_view line = TakeLine(content);
    if (line.empty() || line[0] == '#') continue;
    const Result<Done> done =
        line[0] == '|' ? ReadLineBelow(entries, line.substr(1), number) : ReadKeyLine(entries, line, number);
    if (!done) return FailureAt(fileName, number, done.Message());
  }
  return entries;
}

Result<Done> CheckKeys(std::string_view fileName, const std::vector<ReadableEntry>& entries,
                       std::span<const std::string_view> single, std::span<const std::string_view> repeated) {
  const auto isIn = [](std::span<const std::string_view> keys, std::string_view key) {
    return std::find(keys.begin(), keys.end(), key) != keys.end();
  };
  for (const ReadableEntry& entry : entries) {
    if (isIn(repeated, entry.key)) continue;
    if (!isIn(single, entry.key))
      return FailureAt(fileName, entry.number, "unknown entry \"" + entry.key + "\"");
    if (FindEntry(entries, entry.key) != &entry) {
      return FailureAt(fileName, entry.number, "a second entry \"" + entry.key + "\"");
    }
  }
  return Done{};
}

const ReadableEntry* FindEntry(const std::vector<ReadableEntry>& entries, std::string_view key) {
  const auto place = std::find_if(entries.begin(), entries.end(),
                                  [&](const ReadableEntry& entry) { return entry.key == key; });
  return place == entries.end() ? nullptr : &*place;
}

std::vector<std::string> WordsOf(std::string_view text) {
  std::vector<std::string> words;
  bool inWord = false;
  for (const char character : text) {
    if (character != ' ' && !inWord) words.emplace_back();
    inWord = character != ' ';
    if (inWord) words.back() += character;
  }
  return words;
}

std::optional<int> NumberOf(std::string_view text, int lowest, int highest) {
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  const bool whole = error == std::errc() && end == text.data() + text.size();
  if (!whole || number < lowest || number > highest) return std::nullopt;
  return number;
}

void WriteText(std::string& content, std::string_view key, std::string_view text) {
  std::vector<std::string> lines;
  for (std::size_t end = text.find(kLineBreak); end != std::string_view::npos; end = text.find(kLineBreak)) {
    lines.emplace_back(text.substr(0, end));
    text.remove_prefix(end + kLineBreak.size());
  }
  lines.emplace_back(text);
  if (lines.size() > 1) return WriteLines(content, key, lines);
  content += key;
  content += text.empty() ? ":" : ": " + Escaped(text, false);
  content += '\n';
}

void WriteLines(std::string& content, std::string_view key, const std::vector<std::string>& lines) {
  content += key;
  content += ":\n";
  for (const std::string& line : lines) content += line.empty() ? "|\n" : "| " + Escaped(line, true) + "\n";
}

}  // namespace zorik
