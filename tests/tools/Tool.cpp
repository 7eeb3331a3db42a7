#include "tools/Tool.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "data/Files.h"
#include "data/Result.h"
#include "support/Scene.h"
#include "zktool/Commands.h"

namespace zorik::test {

Told Zktool(const std::vector<std::string>& arguments, const std::string& input) {
  std::istringstream in(input);
  std::ostringstream out, err;
  Console console{in, out, err};
  const Exit exit = RunZktool(arguments, console);
  return {exit, out.str(), err.str()};
}

Folder::Folder() : path_(::testing::TempDir() + "zktool-XXXXXX") {
  if (mkdtemp(path_.data()) == nullptr) throw std::runtime_error("no folder for the test");
}

Folder::~Folder() {
  std::error_code error;
  std::filesystem::remove_all(path_, error);
}

std::string Folder::Write(std::string_view name, std::string_view bytes) const {
  const std::string path = In(name);
  std::filesystem::create_directories(std::filesystem::path(path).parent_path());
  std::ofstream file(path, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (!file.flush()) throw std::runtime_error("cannot write " + path);
  return path;
}

std::string BytesOf(const std::string& path) {
  const Result<std::string> bytes = ReadWhole(path);
  return bytes ? *bytes : "(no file)";
}

std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

std::string ShortCave() {
  return CaveTextOf({"WWWWWW", "W1;D;T", "WWWWWW"}, {.needed = 1, .before = 7});
}

std::string ShortRecord() {
  const Folder folder;
  const std::string record = folder.In("short.zkr");
  Zktool({"run", "--cave", folder.Write("cave", ShortCave()), "--keys", folder.Write("keys", kShortKeys),
          "--record", record});
  return BytesOf(record);
}

}  // namespace zorik::test
