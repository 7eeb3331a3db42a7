#pragma once

#include <string>
#include <string_view>

#include "data/Lines.h"

namespace zorik {

// The lines of a skin's text file as UTF-8. A file that begins with the mark of UTF-8 is that, and its bytes
// stay as they are; all others are Windows-1250. Lines end in CR LF or in LF alone.
class SkinLines {
 public:
  explicit SkinLines(std::string_view bytes);

  bool AtEnd() const { return lines_.AtEnd(); }

  // The next line without its end; empty at the end of the file.
  std::string Next();

 private:
  bool utf8_;
  RecordLines lines_;
};

}  // namespace zorik
