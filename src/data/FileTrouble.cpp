#include "data/FileTrouble.h"

#include <array>
#include <cerrno>

namespace zorik {

namespace {

struct ErrorRow {
  int error;
  FileTrouble trouble;
};
constexpr std::array<ErrorRow, 9> kErrors{{
    {ENOTDIR, FileTrouble::NoFolder},
    {EISDIR, FileTrouble::IsFolder},
    {EACCES, FileTrouble::NotAllowed},
    {EPERM, FileTrouble::NotAllowed},
    {EROFS, FileTrouble::ReadOnly},
    {ENOSPC, FileTrouble::DiskFull},
    {EDQUOT, FileTrouble::DiskFull},
    {ENAMETOOLONG, FileTrouble::NameTooLong},
    {EIO, FileTrouble::DiskFault},
}};

}  // namespace

// A file that is to be written need not be there, so its folder is what lacks.
FileTrouble TroubleOf(int error, FileUse use) {
  if (error == ENOENT) return use == FileUse::Read ? FileTrouble::NoFile : FileTrouble::NoFolder;
  for (const ErrorRow& row : kErrors) {
    if (row.error == error) return row.trouble;
  }
  return FileTrouble::Other;
}

}  // namespace zorik
