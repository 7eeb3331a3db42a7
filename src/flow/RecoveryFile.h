#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "data/ResultFwd.h"
#include "flow/KeptSada.h"

namespace zorik {

// The files in which collections are kept while they are edited: a line that tells what it is, a line for
// each thing there is to say beside the collection, and behind a last such line the collection itself, as its
// own file would be. A text has its length in its line and follows in one of its own.

struct RecoveryFile {
  std::int64_t Time = 0;
  KeptSada Sada;
};

std::string BuildRecovery(const RecoveryFile& file);

// Fails when the bytes are no such file, or not all of one.
Result<RecoveryFile> ReadRecovery(std::string_view bytes);

}  // namespace zorik
