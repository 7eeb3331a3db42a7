#include "skin/SkinLines.h"

#include "data/Cp1250.h"
#include "data/Lines.h"

namespace zorik {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

}  // namespace

SkinLines::SkinLines(std::string_view bytes)
    : utf8_(bytes.starts_with(kUtf8Mark)),
      lines_(std::string(utf8_ ? bytes.substr(kUtf8Mark.size()) : bytes), LineEnds::CrLfOrLf) {}

std::string SkinLines::Next() {
  const std::string_view line = lines_.Next();
  return utf8_ ? std::string(line) : ToUtf8(line);
}

}  // namespace zorik
