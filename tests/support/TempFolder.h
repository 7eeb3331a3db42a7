#pragma once

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>

namespace zorik::test {

// An empty folder for one test, gone when the test is over. Its name tells whose it was, should one be left.
// One for sockets lies below kShort: the way to a socket may have 107 bytes and no more, however long the
// name of the folder is in which the tests are to leave their files.
class TempFolder {
 public:
  static constexpr const char* kShort = "/tmp";

  explicit TempFolder(const std::string& owner,
                      const std::filesystem::path& below = std::filesystem::temp_directory_path())
      : path_((below / ("zorik-" + owner + "-XXXXXX")).string()) {
    if (mkdtemp(path_.data()) == nullptr) throw std::runtime_error("no folder for the test");
  }
  ~TempFolder() {
    std::error_code error;
    std::filesystem::remove_all(path_, error);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  const std::string& Path() const { return path_; }

 private:
  std::string path_;
};

}  // namespace zorik::test
