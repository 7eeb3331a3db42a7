#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "zktool/Console.h"

namespace zorik::test {

// What zktool told, and how it ended.
struct Told {
  Exit exit;
  std::string out;
  std::string err;
};

// Runs zktool with these arguments and this standard input.
Told Zktool(const std::vector<std::string>& arguments, const std::string& input = {});

// A folder of its own for a test, removed with all that is in it.
class Folder {
 public:
  Folder();
  ~Folder();
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;

  const std::string& path() const { return path_; }
  std::string In(std::string_view name) const { return path_ + "/" + std::string(name); }

  // Writes a file, makes the folders above it, and answers its path.
  std::string Write(std::string_view name, std::string_view bytes) const;

 private:
  std::string path_;
};

// The bytes of a file; "(no file)" if there is none.
std::string BytesOf(const std::string& path);

// The lines of a text without their ends.
std::vector<std::string> LinesOf(const std::string& text);

// A cave that is won in the fourth step to the right, over one gem of 7 points. The clock shows 99 by then
// and one dog lives, so the win is worth 106.
std::string ShortCave();
inline constexpr std::string_view kShortKeys = "R\nR\nR\nR\n";
inline constexpr int kShortScore = 106;

// The record of that win, as zktool run writes it.
std::string ShortRecord();

}  // namespace zorik::test
