#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "skin/SkinPlaces.h"

namespace zorik::test {

// A folder of skins for a test, gone when the test is over.
class SkinFolder : public testing::Test {
 protected:
  SkinFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "zorik-skins-XXXXXX").string();
    places_.SkinsPath = mkdtemp(pattern.data());
  }
  ~SkinFolder() override { std::filesystem::remove_all(places_.SkinsPath); }

  std::string At(const std::string& path) const { return places_.SkinsPath + "/" + path; }

  // A path without the folder of skins.
  std::string Within(const std::string& path) const {
    return path.empty() ? path : path.substr(places_.SkinsPath.size() + 1);
  }

  void Touch(const std::string& path, std::string_view bytes = "x") const {
    std::filesystem::create_directories(std::filesystem::path(At(path)).parent_path());
    std::ofstream(At(path), std::ios::binary) << bytes;
  }

  SkinPlaces places_;
};

}  // namespace zorik::test
