#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace zorik {

// What ends a line: only carriage return and line feed together, as in records, or a line feed alone as
// well, as in collections and skin files, which people may have edited.
enum class LineEnds { CrLf, CrLfOrLf };

// Reads a file's bytes line by line, and a record's tick by tick. An unterminated last line counts, a
// terminated one adds no empty line behind it. Bytes stay as they are. A copy shares the bytes and goes on
// by itself, so it costs next to nothing.
class RecordLines {
 public:
  explicit RecordLines(std::string bytes = {}, LineEnds ends = LineEnds::CrLf)
      : bytes_(std::make_shared<const std::string>(std::move(bytes))), ends_(ends) {}

  bool AtEnd() const { return place_ >= bytes_->size(); }

  // The next line without its end; empty at the end of the bytes. The view lives as long as this object or
  // any copy of it.
  std::string_view Next();

 private:
  std::shared_ptr<const std::string> bytes_;
  std::size_t place_ = 0;
  LineEnds ends_;
};

}  // namespace zorik
