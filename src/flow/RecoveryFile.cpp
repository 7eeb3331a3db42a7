#include "flow/RecoveryFile.h"

#include <charconv>
#include <optional>
#include <system_error>
#include <utility>

#include "data/Result.h"

namespace zorik {
namespace {

constexpr std::string_view kFirstLine = "Zorik recovery 1\n";

// Is there only where there is one, so that most files can be read by older games, too.
constexpr std::string_view kLeftOut = "congratulation";

std::string NumberLine(std::string_view key, std::int64_t number) {
  return std::string(key) + ' ' + std::to_string(number) + '\n';
}

std::string TextLines(std::string_view key, const std::string& text) {
  return NumberLine(key, static_cast<std::int64_t>(text.size())) + text + '\n';
}

// Takes one thing after the other from the front of a file.
class Reader {
 public:
  explicit Reader(std::string_view bytes) : rest_(bytes) {}

  bool Take(std::string_view word) {
    if (!rest_.starts_with(word)) return false;
    rest_.remove_prefix(word.size());
    return true;
  }

  std::optional<std::int64_t> Number(std::string_view key) {
    if (!Take(key) || !Take(" ")) return std::nullopt;
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(rest_.data(), rest_.data() + rest_.size(), number);
    if (error != std::errc()) return std::nullopt;
    rest_.remove_prefix(static_cast<std::size_t>(end - rest_.data()));
    if (!Take("\n")) return std::nullopt;
    return number;
  }

  std::optional<std::string> Text(std::string_view key) {
    const std::optional<std::int64_t> length = Number(key);
    if (!length || *length < 0 || static_cast<std::uint64_t>(*length) > rest_.size()) return std::nullopt;
    std::string text(rest_.substr(0, static_cast<std::size_t>(*length)));
    rest_.remove_prefix(text.size());
    if (!Take("\n")) return std::nullopt;
    return text;
  }

  bool AtEnd() const { return rest_.empty(); }

 private:
  std::string_view rest_;
};

bool TakeText(Reader& reader, std::string_view key, std::string& text) {
  std::optional<std::string> taken = reader.Text(key);
  if (taken) text = *std::move(taken);
  return taken.has_value();
}

}  // namespace

std::string BuildRecovery(const RecoveryFile& file) {
  const KeptSada& sada = file.Sada;
  return std::string(kFirstLine) + NumberLine("time", file.Time) + NumberLine("selected", sada.Selected) +
         NumberLine("faulty", sada.Faulty ? 1 : 0) + TextLines("path", sada.FileName) +
         TextLines("name", sada.Name) + TextLines("author", sada.Author) +
         (sada.Congratulation.empty() ? "" : TextLines(kLeftOut, sada.Congratulation)) +
         TextLines("collection", sada.Bytes);
}

Result<RecoveryFile> ReadRecovery(std::string_view bytes) {
  RecoveryFile file;
  KeptSada& sada = file.Sada;
  Reader reader(bytes);
  if (!reader.Take(kFirstLine)) return Failure{"this keeps no collection"};
  const std::optional<std::int64_t> time = reader.Number("time");
  const std::optional<std::int64_t> selected = time ? reader.Number("selected") : std::nullopt;
  const std::optional<std::int64_t> faulty = selected ? reader.Number("faulty") : std::nullopt;
  const bool headed = faulty && TakeText(reader, "path", sada.FileName) &&
                      TakeText(reader, "name", sada.Name) && TakeText(reader, "author", sada.Author);
  if (headed) TakeText(reader, kLeftOut, sada.Congratulation);
  const bool whole = headed && TakeText(reader, "collection", sada.Bytes) && reader.AtEnd();
  if (!whole) return Failure{"the collection that is kept here is not whole"};
  file.Time = *time;
  sada.Faulty = *faulty != 0;
  sada.Selected = std::in_range<int>(*selected) ? static_cast<int>(*selected) : 1;
  return file;
}

}  // namespace zorik
