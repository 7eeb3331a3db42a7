#pragma once

#include <string>
#include <vector>

#include "data/ResultFwd.h"

namespace zorik {

// What the desktop is to know of the game's files; paths are UTF-8.
struct FileTypes {
  std::string DataHome;                  // folder for the desktop's data of this user
  std::vector<std::string> DataFolders;  // those of the whole system
  std::string ProgramFolder;             // where the game and its helper for opened files lie
  std::string CollectionWords;           // what people call a collection
  std::string RecordWords;               // and a record
};

// Where the desktop keeps such things, for this user and this program.
FileTypes FileTypesHere(const std::string& collectionWords, const std::string& recordWords);

// The MIME types of collections (.zk), records (.zkr) and data packages (.zkd).
std::string MimePackage(const std::string& collectionWords, const std::string& recordWords);

// The desktop entry that has such files opened by the helper in this folder.
std::string OpenerEntry(const std::string& programFolder);

enum class Written { Nothing, Something };

// Writes both for this user, in place of what stands there, unless the system alone has them from an
// installation or there is no helper. What stands there already is not written again. Fails when one of them
// cannot be written.
Result<Written> WriteFileTypes(const FileTypes& types);

// The same for this user and this program; then the desktop is told to look anew, and the program's folder is
// stored. Errors are not looked at: without the right to write all stays as it was.
void RegExt(const std::string& collectionWords, const std::string& recordWords);

}  // namespace zorik
