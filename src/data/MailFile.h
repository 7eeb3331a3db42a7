#pragma once

#include <string>
#include <string_view>

#include "data/Collection.h"
#include "data/Progress.h"
#include "data/ResultFwd.h"

namespace zorik {

// The mail by which a player sends his records: a file that mail programs open as a draft. Its bytes are what
// it always has been, odd or not, so that whoever collects records can go on reading them.

// A text (Windows-1250) as an encoded word of a mail's head. "=" and "?" go through as they are, and codes
// below 16 have a single digit.
std::string URLEncode(std::string_view text);

// The mail with a player's records of the collection, one part for each that is there.
std::string BuildMail(const PlayedCollection& collection, const RecordSource& records);

// Writes it as "temp.eml" into the player's folder (a UTF-8 path). The answer is the path of the file.
Result<std::string> WriteMail(const PlayedCollection& collection, const std::string& playerFolder);

}  // namespace zorik
