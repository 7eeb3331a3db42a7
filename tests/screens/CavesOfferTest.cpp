#include "data/Chance.h"
#include "data/Scramble.h"
#include "screens/CavesOffer.h"
#include "screens/DialogScript.h"
#include "screens/TestSkin.h"

namespace zorik {
namespace {

using test::Box;

// A skin, and a player's folder to which an installation belongs.
class CavesOfferTest : public testing::Test {
 protected:
  CavesOfferTest() {
    skin_.Data("caption:\nerror.store=Nejde to.\ncaves.lacking=Chybí sady.\ncaves.again=Přinést?\n");
    skin_.Apply();
    Chance chance;
    for (const char* name : {"Alfa", "Beta"}) {
      shipped_.File("Caves/" + std::string(name) + ".zk",
                    ScrambleText("E" + std::string(name) + "A", chance) + "\r\nXX\r\n");
    }
    paths_ = own_.Paths();
    paths_.ShippedCaves = shipped_.Root() + "/Caves";
    paths_.CavesPath = own_.Root();
  }

  void Offer() { OfferCaves(skin_.Skin(), paths_); }
  bool Has(const std::string& name) const { return std::filesystem::exists(own_.Root() + "/Caves/" + name); }

  const QString question_ = "Chybí sady.\nAlfa\nBeta\nPřinést?";
  test::TestSkin skin_;
  test::Folder shipped_;
  test::Folder own_;
  Paths paths_;
};

TEST_F(CavesOfferTest, YesBringsWhatIsLacking) {
  {
    test::DialogScript script{Box("Zorík", question_)};
    Offer();
  }
  EXPECT_TRUE(Has("Alfa.zk"));
  EXPECT_TRUE(Has("Beta.zk"));
  EXPECT_EQ(paths_.CavesPath, own_.Root() + "/Caves") << "the game finds them from now on";
  test::DialogScript nothing{};
  Offer();
}

TEST_F(CavesOfferTest, NoIsForGood) {
  {
    test::DialogScript script{Box("Zorík", question_, Qt::Key_Escape)};
    Offer();
  }
  EXPECT_FALSE(Has("Alfa.zk"));
  test::DialogScript nothing{};
  Offer();
}

TEST_F(CavesOfferTest, WhatCannotBeWrittenIsNamedAndOfferedAgain) {
  std::filesystem::remove(own_.Root() + "/Caves");
  own_.File("Caves", "no folder");
  for (int i = 0; i < 2; ++i) {
    test::DialogScript script{Box("Zorík", question_),
                              Box("Zorík", "Nejde to.\n" + QString::fromStdString(own_.Root()) + "/Caves")};
    Offer();
  }
}

TEST_F(CavesOfferTest, AFirstStartThatCouldNotBringThemSaysSoAndAsksNothing) {
  paths_.CavesFailure = "/home/Caves/Alfa.zk";
  {
    test::DialogScript script{Box("Zorík", "Nejde to.\n/home/Caves/Alfa.zk")};
    Offer();
  }
  paths_.CavesFailure.clear();
  test::DialogScript script{Box("Zorík", question_)};
  Offer();
  EXPECT_TRUE(Has("Alfa.zk"));
}

}  // namespace
}  // namespace zorik
