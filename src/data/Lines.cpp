#include "data/Lines.h"

namespace zorik {

namespace {

constexpr std::string_view kLineEnd = "\r\n";

}  // namespace

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

}  // namespace zorik
