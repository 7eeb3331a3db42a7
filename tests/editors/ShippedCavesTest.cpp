#include <filesystem>

#include "data/Collection.h"
#include "data/Files.h"
#include "data/Result.h"
#include "editors/Letters.h"

namespace zorik {
namespace {

TEST(ShippedCaves, AreEditedWithoutAnyCorrectionAndHandedBackAsTheyAre) {
  int caves = 0;
  for (const auto& entry : std::filesystem::directory_iterator(ZORIK_CAVES)) {
    if (entry.path().extension() != ".zk") continue;
    const auto bytes = ReadWhole(entry.path().string());
    ASSERT_TRUE(bytes);
    const auto collection = ReadForEditor(*bytes);
    ASSERT_TRUE(collection) << entry.path();
    for (const std::string& text : collection->CaveList) {
      CaveModel model;
      const auto report = model.OpenCave(text);
      ASSERT_TRUE(report);
      EXPECT_TRUE(report->empty()) << entry.path() << ": " << model.Cave().Name;
      EXPECT_EQ(model.MissingDog(), std::nullopt) << entry.path() << ": " << model.Cave().Name;
      EXPECT_EQ(*model.Text(), text);
      ++caves;
    }
  }
  EXPECT_GT(caves, 0);
}

}  // namespace
}  // namespace zorik
