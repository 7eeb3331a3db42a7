#include "zktool/PostcardText.h"

#include <zlib.h>

#include <optional>

#include "data/Postcard.h"
#include "data/Result.h"

namespace zorik {
namespace {

Bytef* Raw(std::string& bytes) {
  return reinterpret_cast<Bytef*>(bytes.data());
}

const Bytef* Raw(std::string_view bytes) {
  return reinterpret_cast<const Bytef*>(bytes.data());
}

std::optional<std::string> Deflated(std::string_view content) {
  auto size = compressBound(static_cast<uLong>(content.size()));
  std::string bytes(size, '\0');
  const int outcome =
      compress2(Raw(bytes), &size, Raw(content), static_cast<uLong>(content.size()), Z_BEST_COMPRESSION);
  if (outcome != Z_OK) return std::nullopt;
  bytes.resize(size);
  return bytes;
}

std::optional<std::string> Inflated(std::string_view bytes) {
  std::string content(kMostPostcardContent, '\0');
  uLongf size = content.size();
  uLong taken = static_cast<uLong>(bytes.size());
  const int outcome = uncompress2(Raw(content), &size, Raw(bytes), &taken);
  if (outcome != Z_OK || taken != bytes.size()) return std::nullopt;
  content.resize(size);
  return content;
}

}  // namespace

Result<std::string> PostcardOf(const std::string& record) {
  const std::string content = PostcardContent(record);
  if (content.size() > kMostPostcardContent) return Failure{"the run is too long for a postcard"};
  const std::optional<std::string> packed = Deflated(content);
  if (!packed) return Failure{"the run cannot be deflated"};
  return PostcardWord(*packed);
}

Result<std::string> RecordOnPostcard(std::string_view word) {
  const Result<std::string> packed = PackedOfPostcardWord(word);
  if (!packed) return Failure{packed.Message()};
  const std::optional<std::string> content = Inflated(*packed);
  return RecordOfPostcardContent(content.value_or(std::string()));
}

}  // namespace zorik
