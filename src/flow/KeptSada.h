#pragma once

#include <cstdint>
#include <string>

namespace zorik {

// All that is needed to go on with a collection that was being edited.
struct KeptSada {
  std::string Bytes;             // the collection as its file would be; the same texts give the same bytes
  std::string Name, Author;      // whole, though the file may have no room for all of them; Windows-1250
  std::string FileName;          // path of its file, UTF-8; empty when it was not saved yet
  bool Faulty = false;           // that file holds what is not in here
  int Selected = 1;              // the chosen cave
  std::string Congratulation{};  // one that the file leaves out, as it would read like a cave

  bool operator==(const KeptSada&) const = default;
};

}  // namespace zorik
