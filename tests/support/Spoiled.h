#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "data/Files.h"
#include "data/Result.h"

namespace zorik::test {

// Puts a file in the place of a folder, so that nothing can be stored there.
inline void Spoil(const std::string& folder) {
  std::filesystem::remove_all(folder);
  ASSERT_TRUE(WriteWhole(folder, "no folder"));
}

// Makes the folder again, empty.
inline void Mend(const std::string& folder) {
  std::filesystem::remove(folder);
  std::filesystem::create_directories(folder);
}

}  // namespace zorik::test
