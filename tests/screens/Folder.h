#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "data/Collection.h"
#include "data/Files.h"
#include "data/Result.h"
#include "platform/Paths.h"
#include "support/OneStepCave.h"
#include "support/TempFolder.h"

namespace zorik::test {

// A folder of the game for one test, gone when the test is over.
class Folder {
 public:
  Folder() {
    for (const char* name : {"Caves", "Players", "Replays", "Skins"}) {
      std::filesystem::create_directories(root_ + "/" + name);
    }
  }

  const std::string& Root() const { return root_; }

  zorik::Paths Paths() const {
    zorik::Paths paths;
    paths.AppPath = root_;
    paths.SkinsPath = root_ + "/Skins";
    paths.CavesPath = root_ + "/Caves";
    paths.RecordsPath = root_ + "/Replays";
    paths.PlayersPath = root_ + "/Players";
    paths.HelpPath = root_ + "/Help";
    paths.ShippedReplays = root_ + "/Replays";
    paths.TestRecordsPath = root_ + "/Replays";
    return paths;
  }

  // Writes a collection of these caves into Caves.
  void Collection(const std::string& file, const std::string& name,
                  const std::vector<std::string>& caves) const {
    EditedCollection collection;
    collection.Name = name;
    collection.CaveList = caves;
    collection.CongratulationText = "Hotovo, $P";
    Chance chance;
    const auto bytes = BuildCollection(collection, chance);
    ASSERT_TRUE(bytes);
    File("Caves/" + file, *bytes);
  }

  void File(const std::string& path, const std::string& bytes) const {
    std::filesystem::create_directories(std::filesystem::path(root_ + "/" + path).parent_path());
    ASSERT_TRUE(WriteWhole(root_ + "/" + path, bytes));
  }

 private:
  TempFolder temp_{"home"};
  const std::string root_ = temp_.Path();
};

}  // namespace zorik::test
