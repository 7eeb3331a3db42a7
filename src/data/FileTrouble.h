#pragma once

#include <string>
#include <string_view>

#include "data/Result.h"

namespace zorik {

// Why a file could not be read or written, as far as it can be said in a few words.
enum class FileTrouble {
  Other,
  NoFile,
  NoFolder,
  IsFolder,     // a folder has the file's name
  NoPlainFile,  // a pipe or a device
  NotAllowed,
  ReadOnly,
  DiskFull,
  NameTooLong,
  DiskFault,
  NoCollection,  // the file was read but is something else
};

struct FileFailure : Failure {
  FileTrouble Trouble = FileTrouble::Other;
};

// What an error number of the system comes to, when a file was read or written.
enum class FileUse { Read, Write };
FileTrouble TroubleOf(int error, FileUse use);

// ReadWhole and WriteWhole with the reason why they fail.
Result<std::string, FileFailure> ReadFile(const std::string& path);
Result<Done, FileFailure> WriteFile(const std::string& path, std::string_view bytes);

}  // namespace zorik
