#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "skin/SkinPlaces.h"
#include "support/TempFolder.h"

namespace zorik::test {

// A folder of skins for a test, gone when the test is over.
class SkinFolder : public testing::Test {
 protected:
  SkinFolder() { places_.SkinsPath = temp_.Path(); }

  std::string At(const std::string& path) const { return places_.SkinsPath + "/" + path; }

  // A path without the folder of skins.
  std::string Within(const std::string& path) const {
    return path.empty() ? path : path.substr(places_.SkinsPath.size() + 1);
  }

  void Touch(const std::string& path, std::string_view bytes = "x") const {
    std::filesystem::create_directories(std::filesystem::path(At(path)).parent_path());
    std::ofstream(At(path), std::ios::binary) << bytes;
  }

  TempFolder temp_{"skins"};
  SkinPlaces places_;
};

}  // namespace zorik::test
