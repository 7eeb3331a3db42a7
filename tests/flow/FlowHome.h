#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "core/Hra.h"
#include "data/Collection.h"
#include "data/Files.h"
#include "data/RecordFile.h"
#include "flow/Flow.h"
#include "support/OneStepCave.h"
#include "support/Spoiled.h"
#include "support/TempFolder.h"

namespace zorik::test {

// A game folder with the collection "Sada" and the player "Ada", and the flow on it.
class FlowHome : public testing::Test {
 protected:
  FlowHome() { std::filesystem::create_directories(PlayerFolder()); }
  std::string PlayerFolder() const { return root + "/Players/Ada"; }
  std::string CollectionPath() const { return root + "/sada.zk"; }

  void Write(const std::vector<std::string>& caves) const {
    EditedCollection collection;
    collection.Name = "Sada";
    collection.CaveList = caves;
    Chance chance;
    const auto bytes = BuildCollection(collection, chance);
    ASSERT_TRUE(bytes);
    ASSERT_TRUE(WriteWhole(CollectionPath(), *bytes));
  }

  void Open(const std::vector<std::string>& caves) {
    Write(caves);
    ASSERT_TRUE(flow.OpenCollection(CollectionPath(), "Ada"));
  }

  // The step that wins the run that has been started.
  void Step() {
    StepToWin(hra);
    ASSERT_TRUE(flow.Win());
  }

  void Play(int cave) {
    flow.Choose(cave);
    ASSERT_TRUE(flow.Start());
    Step();
  }

  // Reads the score to its end; the record is stored whatever it replaces.
  void ReadScore() {
    for (int i = 0; i < 3 && flow.Busy(); ++i) {
      if (flow.Due() != Storing::None) Disregard(flow.Store(flow.Won()));  // some tests want it to fail
      flow.ScoreClosed();
    }
    ASSERT_FALSE(flow.Busy());
  }

  void Win(int cave) {
    Play(cave);
    ReadScore();
  }

  static RecordHead Head(const std::string& path) {
    const auto bytes = ReadWhole(path);
    RecordLines lines(bytes ? *bytes : std::string());
    return ReadRecordHead(lines);
  }
  static bool Exists(const std::string& path) { return std::filesystem::exists(path); }

  void Spoil() const { test::Spoil(PlayerFolder()); }
  void Mend() const { test::Mend(PlayerFolder()); }

  TempFolder temp{"flow"};
  const std::string root = temp.Path();
  Hra hra{1};
  Flow flow{hra, {root + "/Players", root + "/Replays"}, 1};
};

}  // namespace zorik::test
