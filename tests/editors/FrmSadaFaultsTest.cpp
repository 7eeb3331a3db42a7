// What the collection editor says of a file that is not as it should be, and what becomes of that file.
#include <gtest/gtest.h>

#include <filesystem>

#include "data/Result.h"
#include "editors/FaultWords.h"
#include "editors/FrmSada.h"
#include "editors/SadaScreen.h"

namespace zorik {
namespace {

using test::Names;

class FrmSadaFaultsTest : public test::SadaWindowTest {};

TEST_F(FrmSadaFaultsTest, KeepsADamagedFileBesideTheFirstThatItSaves) {
  OpenCaves({"A", "B", "C"});
  Names lines = Lines("a.zk");
  lines[4].replace(lines[4].size() - 5, 5, "---X2");
  Chance chance;
  const std::string damaged = ScrambleLines(lines, chance);
  folder.File("Caves/a.zk", damaged);
  dialogs.Press("ok");
  Open(Path("a.zk"));
  EXPECT_EQ(dialogs.said,
            QStringList("V souboru sady není něco v pořádku (čísla jsou jeho řádky): Vynechána komnata s "
                        "poškozeným číslem: 5 Při prvním uložení zůstane původní soubor vedle nového."));
  EXPECT_TRUE(window->isWindowModified());
  dialogs.Press("ok");
  Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_TRUE(dialogs.Last().startsWith("Původní poškozený soubor zůstal vedle pod jménem"));
  EXPECT_EQ(Bytes("a.zk~1"), damaged);
  EXPECT_EQ(Lines("a.zk").size(), 6U);
  Action("mnuSave").trigger();
  EXPECT_FALSE(std::filesystem::exists(Path("a.zk~2")));
}

TEST_F(FrmSadaFaultsTest, AsksBeforeItIsClosedWithADamagedFileThatWasNotTouched) {
  folder.File("Caves/a.zk", "");
  OpenCaves({"A"});
  const std::string whole = Bytes("a.zk");
  folder.File("Caves/a.zk", whole.substr(0, whole.size() - 4));
  dialogs.Press("ok").Press("no");
  Open(Path("a.zk"));
  window->close();
  EXPECT_TRUE(dialogs.Last().endsWith("Uložit změny?"));
  EXPECT_EQ(Bytes("a.zk"), whole.substr(0, whole.size() - 4));
}

TEST_F(FrmSadaFaultsTest, LeavesACaveInPlaceOfTheCongratulationOutAndTells) {
  OpenCaves({"A", "B"});
  Names lines = Lines("a.zk");
  lines.pop_back();
  Chance chance;
  folder.File("Caves/a.zk", ScrambleLines(lines, chance));
  dialogs.Press("ok");
  Open(Path("a.zk"));
  EXPECT_TRUE(dialogs.Last().contains("Místo gratulace je na konci komnata: 5"));
  EXPECT_EQ(Sada().CongratulationText(), lines.back());
  dialogs.Press("ok");
  Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_TRUE(dialogs.Last().endsWith("Gratulace by se četla jako komnata, v souboru proto není."));
  lines.emplace_back();
  EXPECT_EQ(Lines("a.zk"), lines);
  Open(Path("a.zk"));
  EXPECT_EQ(Rows(), (Names{"*A", "B"}));
}

TEST_F(FrmSadaFaultsTest, NamesAFewOfManyFaultyLines) {
  std::vector<FaultyLine> faults;
  for (std::size_t line = 4; line < 3000; ++line) faults.push_back({CollectionFault::NoCave, line});
  faults.push_back({CollectionFault::NoCaves, 3000});
  const QString words = FaultsInWords(skin, faults);
  EXPECT_TRUE(words.contains("není komnata: 4, 5, 6")) << words.toStdString();
  EXPECT_TRUE(words.contains("22, 23, …\nŽádná komnata"));
  EXPECT_LT(words.size(), 500);
}

TEST_F(FrmSadaFaultsTest, SaysWhichCavesItCouldNotRead) {
  Chance chance;
  folder.File("Caves/d.zk", ScrambleLines({"ESadaAC", "AX", "a@b.cz0", "E!---01",
                                           test::OneStepCave("B") + "---02", "E!---03", "Hura"},
                                          chance));
  dialogs.Press("ok");
  Open(Path("d.zk"));
  ASSERT_EQ(dialogs.said.size(), 1);
  EXPECT_TRUE(dialogs.said.value(0).contains(" nelze přečíst: 4, 6 ")) << dialogs.said.value(0).toStdString();
  EXPECT_EQ(Rows(), Names{"*B"});
  EXPECT_EQ(Box("Text3").text(), "Sada");
}

TEST_F(FrmSadaFaultsTest, NamesTwentyFaultyLinesAndSaysWhenThereAreMore) {
  std::vector<FaultyLine> faults;
  for (std::size_t line = 4; line < 24; ++line) faults.push_back({CollectionFault::NoCave, line});
  EXPECT_TRUE(FaultsInWords(skin, faults).contains("22, 23\n"));
  faults.push_back({CollectionFault::NoCave, 24});
  EXPECT_TRUE(FaultsInWords(skin, faults).contains("22, 23, …\n"));
}

}  // namespace
}  // namespace zorik
