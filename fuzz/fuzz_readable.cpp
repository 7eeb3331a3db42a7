#include "Input.h"
#include "data/Collection.h"
#include "data/Readable.h"
#include "data/Result.h"

namespace zorik {

// Readable files that a person might have written: the first piece is collection.txt, the others are the
// files 1, 2, ... What packs unpacks to files that pack to the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::vector<std::string> pieces = fuzz::PiecesOf(fuzz::TextOf(data, size));
  TextFiles files;
  files["collection.txt"] = pieces[0];
  for (std::size_t i = 1; i < pieces.size(); ++i) files[std::to_string(i)] = pieces[i];
  Chance chance(size);
  const Result<std::string> packed = PackCollection(files, chance);
  if (!packed) {
    fuzz::Require(!packed.Message().empty());
    return 0;
  }
  const Result<std::string> again = PackCollection(UnpackCollection(*packed), chance);
  fuzz::Require(again && PlainLines(*again) == PlainLines(*packed));
  return 0;
}

}  // namespace zorik
