#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace zorik {

// The names of the files in a folder, for who looks many of them up. The folder is listed when it is needed
// and when it has changed since.
class FolderNames {
 public:
  // The letter case of the folder's path, a UTF-8 one, may differ from that on the disk.
  explicit FolderNames(std::string folder);

  // The path of the file with this name (UTF-8, without separators), there or not, as ResolvePath finds it.
  std::string PathOf(std::string_view name);

 private:
  // What tells whether a folder has changed; all 0 when it is not there.
  struct Stamp {
    std::int64_t seconds = 0, nanoseconds = 0;
    std::uint64_t node = 0;

    bool operator==(const Stamp&) const = default;
  };

  static Stamp StampOf(const std::string& folder);
  void List();

  std::string folder_;
  Stamp listed_;
  std::map<std::string, std::string, std::less<>> names_;  // by what SoughtName makes of them
};

}  // namespace zorik
