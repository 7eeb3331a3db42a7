#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "data/FileTrouble.h"
#include "data/Readable.h"
#include "data/Result.h"

namespace zorik {

// A folder with the readable files of a collection. Paths are UTF-8.

// A failure of one of the files.
struct TextFailure : Failure {
  std::string file;  // its name in the folder
};

// The names of the cave files that collection.txt names, in UTF-8, one for each cave and empty for one that
// stands there as a line. A mistake in it is told by the packing.
std::vector<std::string> NamedCaveFiles(std::string_view collectionFile);

// The readable files of a folder: collection.txt and the caves that it names. A name that leads out of the
// folder is passed over.
Result<TextFiles, TextFailure> ReadTexts(const std::string& folder);

// Writes them into a folder, which is made if it is not there. All are written aside before the first takes
// its place, so that a full disk spoils nothing. A folder that was made in vain is taken away again.
Result<Done, FileFailure> WriteTexts(const TextFiles& files, const std::string& folder);

// Whether something lies in a folder. It may be an author's own, and the files of the caves would stand
// beside it or take its place.
bool HoldsSomething(const std::string& folder);

// Where a failure of readable files lies, and the rest of what it says; line 0 where it is no single line. No
// file where it names none.
struct TextPlace {
  std::string file;
  int line = 0;
  std::string reason;
};
TextPlace PlaceOfFailure(std::string_view message);

}  // namespace zorik
