#pragma once

#include <string>
#include <string_view>

#include "data/FileTrouble.h"

namespace zorik {

// An author's proof that a cave can be won: the record of a run, kept beside the collection's file under the
// names of both, "COLLECTION - CAVE.zkr". It is no record of a player, and counts for nobody.

// The path of the proof of a cave. collection: the path of the collection's file, UTF-8; caveName: in
// Windows-1250; number: which of the caves of this name it is, from the second on it stands behind the name.
std::string ProofPath(const std::string& collection, std::string_view caveName, int number = 1);

// Puts a proof into its file. What the file held is kept beside it; the answer is the path of that copy,
// empty where there was none or the file holds these very bytes already. A failure changes nothing.
Result<std::string, FileFailure> StoreProof(const std::string& path, const std::string& record);

}  // namespace zorik
