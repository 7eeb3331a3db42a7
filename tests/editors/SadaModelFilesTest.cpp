// The texts of a collection, and its files.
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "data/Result.h"
#include "editors/SadaFolder.h"

namespace zorik {
namespace {

using samples::CaveText;
using samples::CollectionFile;
using samples::Letter;
using samples::Measured;
using samples::Scrambled;
using test::SadaTest;
using Faults = std::vector<FaultyLine>;

// Texts

TEST_F(SadaTest, CountsAsChangedAfterAnyTextHasChanged) {
  for (const SadaText text : {SadaText::Name, SadaText::Author, SadaText::Mail, SadaText::Description}) {
    sada_.New();
    sada_.SetText(text, "Jinak");
    EXPECT_EQ(sada_.Text(text), "Jinak");
    EXPECT_TRUE(sada_.Chg());
  }
  sada_.New();
  sada_.SetCongratulation("Jinak");
  EXPECT_TRUE(sada_.Chg());
}

TEST_F(SadaTest, CountsAsChangedAfterAnythingThatIsDoneToItsCaves) {
  const std::pair<const char*, std::function<void()>> acts[] = {
      {"added", [this] { sada_.AddCave(CaveText("Nova")); }},
      {"small", [this] { sada_.AddCave(NewCaveSize::Small); }},
      {"pasted", [this] { sada_.Paste(); }},
      {"cut", [this] { sada_.Cut(); }},
      {"deleted", [this] { sada_.Delete(); }},
      {"up", [this] { sada_.Up(); }},
      {"down", [this] { sada_.Down(); }},
      {"edited", [this] { sada_.SetSelected(CaveText("Jina")); }},
      {"opened", [this] { sada_.ToggleOpen(2); }},
      {"congratulated", [this] { sada_.SetCongratulation("Hura"); }},
  };
  for (const auto& [name, act] : acts) {
    OpenCaves({"A", "B", "C"});
    sada_.Select(2);
    sada_.Copy();
    EXPECT_FALSE(sada_.Chg()) << name;
    const std::string before = Bytes();
    act();
    EXPECT_TRUE(sada_.Chg()) << name;
    EXPECT_NE(Bytes(), before) << name;
    sada_.Undo();
    EXPECT_FALSE(sada_.Chg()) << name;
    EXPECT_EQ(Bytes(), before) << name;
  }
}

TEST_F(SadaTest, WritesTextsWhereTheyBelong) {
  sada_.SetText(SadaText::Name, "Jeskyn\xEC");
  sada_.SetText(SadaText::Author, "Eva");
  sada_.SetText(SadaText::Mail, "eva@priklad.cz");
  sada_.SetText(SadaText::Description, "Dva\r\nradky");
  sada_.SetCongratulation("Hur\xE1\r\n$P");
  const std::vector<std::string> lines = Saved();
  ASSERT_EQ(lines.size(), 5U);
  EXPECT_EQ(lines[0], Letter(7) + std::string("Jeskyn\xEC") + "A");
  EXPECT_EQ(lines[1], Letter(3) + std::string("EvaDva\r\nradky"));
  EXPECT_EQ(lines[2], "eva@priklad.cz0");
  EXPECT_EQ(lines[4], "Hur\xE1\r\n$P");
}

TEST_F(SadaTest, WritesEmptyTexts) {
  for (const SadaText text : {SadaText::Name, SadaText::Author, SadaText::Mail, SadaText::Description}) {
    sada_.SetText(text, "");
  }
  sada_.SetCongratulation("");
  const std::vector<std::string> lines = Saved();
  ASSERT_EQ(lines.size(), 5U);
  EXPECT_EQ(lines[0], "AA");
  EXPECT_EQ(lines[1], "A");
  EXPECT_EQ(lines[2], "0");
  EXPECT_EQ(lines[4], "");
}

TEST_F(SadaTest, NamesTheTextThatIsTooLongForTheFile) {
  EXPECT_FALSE(sada_.CannotHold());
  for (const SadaText text : {SadaText::Name, SadaText::Author}) {
    sada_.New();
    sada_.SetText(text, std::string(190, 'x'));
    EXPECT_FALSE(sada_.CannotHold());
    EXPECT_EQ(Saved().size(), 5U);
    sada_.SetText(text, std::string(191, 'x'));
    const auto tooLong = sada_.CannotHold();
    ASSERT_TRUE(tooLong);
    EXPECT_EQ(tooLong->text, text);
    EXPECT_EQ(tooLong->length, 191U);
    EXPECT_EQ(tooLong->most, 190U);
    EXPECT_FALSE(sada_.Save(Path("b.zk")));
    EXPECT_TRUE(sada_.Chg());
    EXPECT_FALSE(std::filesystem::exists(Path("b.zk")));
  }
}

// Opening

TEST_F(SadaTest, OpensACollection) {
  const auto report =
      Opened(CollectionFile({CaveText("A") + "---01", CaveText("B") + "---02", "Hura"}, "AB"));
  EXPECT_FALSE(report.Closed);
  EXPECT_TRUE(report.Faults.empty());
  EXPECT_EQ(sada_.Text(SadaText::Name), "Sada");
  EXPECT_EQ(sada_.Text(SadaText::Author), "Autor");
  EXPECT_EQ(sada_.Text(SadaText::Description), "Popis");
  EXPECT_EQ(sada_.Text(SadaText::Mail), "a@b.cz");
  EXPECT_EQ(sada_.CongratulationText(), "Hura");
  EXPECT_EQ(Rows(), (Names{"*A", "*B"}));
  EXPECT_EQ(sada_.Cave(2), CaveText("B"));
  EXPECT_EQ(sada_.ListSelected(), 1);
  EXPECT_EQ(sada_.FileName(), Path("o.zk"));
  EXPECT_FALSE(sada_.Chg());
}

TEST_F(SadaTest, OpensTheFirstCaveWhateverTheFileSays) {
  Opened(CollectionFile({CaveText("A") + "---01", CaveText("B") + "---02", ""}, "B"));
  EXPECT_EQ(Rows(), (Names{"*A", "*B"}));
}

TEST_F(SadaTest, ForgetsTheMarksOfTheLastCollection) {
  OpenCaves({"*A", "*B", "*C"});
  OpenCaves({"*D", "E", "F"});
  EXPECT_EQ(Rows(), (Names{"*D", "E", "F"}));
}

TEST_F(SadaTest, TakesACaveAtTheEndForTheCongratulationToo) {
  Opened(CollectionFile({CaveText("A") + "---01", CaveText("B") + "---02"}));
  EXPECT_EQ(Rows(), (Names{"*A", "B"}));
  EXPECT_EQ(sada_.CongratulationText(), CaveText("B") + "---02");
}

TEST_F(SadaTest, GainsNoCaveBySavingACollectionWithoutACongratulation) {
  Opened(CollectionFile({CaveText("A") + "---01", CaveText("B") + "---02"}));
  const auto saved = sada_.Save(Path("o.zk"));
  ASSERT_TRUE(saved);
  EXPECT_TRUE(saved->CongratulationLeftOut);
  EXPECT_EQ(sada_.CongratulationText(), "");
  for (int round = 0; round < 3; ++round) {
    ASSERT_TRUE(sada_.Open(Path("o.zk"))->Faults.empty());
    EXPECT_EQ(sada_.ListCount(), 2);
    EXPECT_FALSE(sada_.Save(Path("o.zk"))->CongratulationLeftOut);
  }
}

TEST_F(SadaTest, SavesNinetyNineCavesWithoutACongratulationSoThatTheyOpenAgain) {
  std::vector<std::string> body;
  for (int number = 1; number <= 99; ++number) body.push_back(CaveText("A") + "---" + MarkerDigits(number));
  Opened(CollectionFile(body));
  ASSERT_TRUE(sada_.Save(Path("o.zk")));
  EXPECT_TRUE(ReadForPlay(*ReadWhole(Path("o.zk"))));
  ASSERT_TRUE(sada_.Open(Path("o.zk")));
  EXPECT_EQ(sada_.ListCount(), 99);
}

// Files with faults

TEST_F(SadaTest, KeepsTheFileWithFaultsBesideTheFirstThatIsSaved) {
  const std::string damaged = CollectionFile({CaveText("A") + "---01", CaveText("B") + "---X2", "Hura"});
  Opened(damaged);
  EXPECT_TRUE(sada_.Chg());
  const auto first = sada_.Save(Path("o.zk"));
  ASSERT_TRUE(first);
  EXPECT_EQ(first->KeptAs, Path("o.zk~1"));
  EXPECT_EQ(*ReadWhole(Path("o.zk~1")), damaged);
  EXPECT_EQ(ReadForEditor(*ReadWhole(Path("o.zk")))->CaveList.size(), 1U);
  sada_.SetText(SadaText::Author, "Eva");
  EXPECT_EQ(sada_.Save(Path("o.zk"))->KeptAs, "");
  EXPECT_FALSE(std::filesystem::exists(Path("o.zk~2")));
  Opened(damaged);
  EXPECT_EQ(sada_.Save(Path("o.zk"))->KeptAs, Path("o.zk~2"));
}

TEST_F(SadaTest, KeepsNothingBesideWhenTheFileWithFaultsHasGone) {
  Opened(CollectionFile({CaveText("A") + "---01", "E!---02", "Hura"}));
  ASSERT_TRUE(std::filesystem::remove(Path("o.zk")));
  for (int times = 0; times < 2; ++times) {
    const auto saved = sada_.Save(Path("o.zk"));
    ASSERT_TRUE(saved) << saved.Message();
    EXPECT_EQ(saved->KeptAs, "");
  }
  EXPECT_FALSE(std::filesystem::exists(Path("o.zk~1"))) << "what was saved first has no faults";
}

TEST_F(SadaTest, KeepsNoCopyOfAFileWithFaultsThatStays) {
  const std::string damaged = CollectionFile({CaveText("A") + "---01", "E!---02", "Hura"});
  Opened(damaged);
  EXPECT_EQ(sada_.Save(Path("jinam.zk"))->KeptAs, "");
  EXPECT_EQ(*ReadWhole(Path("o.zk")), damaged);
  EXPECT_EQ(sada_.Save(Path("jinam.zk"))->KeptAs, "");
  Opened(damaged);
  sada_.New();
  EXPECT_EQ(sada_.Save(Path("nova.zk"))->KeptAs, "");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder_), {}), 3);
}

TEST_F(SadaTest, KnowsItsFileWithFaultsByAnotherPath) {
  const std::string damaged = CollectionFile({CaveText("A") + "---01", "E!---02", "Hura"});
  Opened(damaged);
  const auto saved = sada_.Save(folder_ + "/./o.zk");
  ASSERT_TRUE(saved);
  EXPECT_EQ(*ReadWhole(saved->KeptAs), damaged);
}

TEST_F(SadaTest, SavesNothingOverAFileWithFaultsThatCannotBeKept) {
  const std::string damaged = CollectionFile({CaveText("A") + "---01", "E!---02", "Hura"});
  Opened(damaged);
  std::filesystem::remove(Path("o.zk"));
  std::filesystem::create_directory(Path("o.zk"));
  EXPECT_FALSE(sada_.Save(Path("o.zk")));
  EXPECT_TRUE(sada_.Chg());
  EXPECT_TRUE(sada_.Save(Path("jinam.zk")));
}

TEST_F(SadaTest, OpensTheFirstNinetyNineOfMoreCaves) {
  std::vector<std::string> body(101, CaveText("A") + "---01");
  body.emplace_back("Hura");
  const auto report = Opened(CollectionFile(body));
  EXPECT_EQ(sada_.ListCount(), 99);
  EXPECT_EQ(sada_.CongratulationText(), "Hura");
  EXPECT_EQ(report.Faults, (Faults{{CollectionFault::TooMany, 103}, {CollectionFault::TooMany, 104}}));
}

TEST_F(SadaTest, LosesNoCaveWithoutAWordWhereverItsFileWasCut) {
  const std::vector<std::string> caves = {CaveText("A"), CaveText("B"), CaveText("C")};
  const std::string whole =
      CollectionFile({caves[0] + "---01", caves[1] + "---02", caves[2] + "---03", "Hura"}, "AC");
  const std::size_t head = CollectionFile({}, "AC").size();
  constexpr std::size_t kStep = 17;
  for (std::size_t length = whole.size(); length >= head; length -= kStep) {
    const std::string cut = whole.substr(0, length);
    const bool told = !Opened(cut).Faults.empty();
    EXPECT_EQ(told, length < whole.size()) << length;
    EXPECT_EQ(sada_.Chg(), told) << length;
    const auto saved = sada_.Save(Path("o.zk"));
    ASSERT_TRUE(saved);
    EXPECT_EQ(saved->KeptAs.empty(), !told) << length;
    if (told) {
      EXPECT_EQ(*ReadWhole(saved->KeptAs), cut) << length;
      std::filesystem::remove(saved->KeptAs);
    }
  }
}

// Flips, drops, inserts and cuts a few bytes.
std::string DamagedAtRandom(std::string bytes, Chance& chance) {
  const auto below = [&chance](std::size_t limit) { return chance.Below(static_cast<std::uint32_t>(limit)); };
  for (std::uint32_t left = below(3) + 1; left > 0 && !bytes.empty(); --left) {
    const std::size_t place = below(bytes.size());
    const char any = static_cast<char>(below(2) == 0 ? 'A' + below(26) : below(256));
    switch (below(4)) {
      case 0:
        bytes[place] = any;
        break;
      case 1:
        bytes.erase(place, below(4) + 1);
        break;
      case 2:
        bytes.insert(place, below(4) + 1, any);
        break;
      default:
        if (below(4) == 0) bytes.resize(place);
    }
  }
  return bytes;
}

TEST_F(SadaTest, SavesEveryLineOfAFileOfWhichItToldNothing) {
  Chance chance(21);
  std::vector<std::string> body;
  for (int number = 1; number <= 4; ++number) body.push_back(CaveText("A") + "---" + MarkerDigits(number));
  body.emplace_back("Hura");
  const std::string whole = CollectionFile(body, "AC");
  int told = 0;
  int untold = 0;
  for (int round = 0; round < 400; ++round) {
    const std::string damaged = DamagedAtRandom(whole, chance);
    const auto report = sada_.Open(Write("o.zk", damaged));
    if (!report || report->Closed) continue;
    const auto saved = sada_.Save(Path("o.zk"));
    if (!saved) continue;  // a name that is too long
    ++(report->Faults.empty() ? untold : told);
    if (!report->Faults.empty()) {
      ASSERT_EQ(*ReadWhole(saved->KeptAs), damaged);
      std::filesystem::remove(saved->KeptAs);
      continue;
    }
    const std::vector<std::string> before = PlainLines(damaged);
    const std::vector<std::string> after = PlainLines(*ReadWhole(Path("o.zk")));
    ASSERT_EQ(before.size(), after.size()) << round;
    EXPECT_EQ(before.back(), after.back()) << round;
    for (std::size_t i = kHeadLines; i + 1 < before.size(); ++i) {
      EXPECT_EQ(WithoutMarker(before[i]), WithoutMarker(after[i])) << round;
    }
  }
  EXPECT_GT(told, 100);
  EXPECT_GT(untold, 20);
}

TEST_F(SadaTest, CountsOnlyCavesWhoseMarkerHasDigits) {
  const auto report = Opened(CollectionFile({CaveText("A") + "---01", CaveText("B") + "---x2", "?", "Hura"}));
  EXPECT_EQ(Rows(), Names{"*A"});
  EXPECT_EQ(report.Faults, (Faults{{CollectionFault::Marker, 5}, {CollectionFault::NoCave, 6}}));
}

TEST_F(SadaTest, LeavesOutCavesThatCannotBeReadAndSaysWhich) {
  const auto report = Opened(CollectionFile(
      {CaveText("A") + "---01", "E!---02", CaveText("C") + "---03", "---04", CaveText("E") + "---05", "Hura"},
      "ABE"));
  EXPECT_EQ(report.Faults,
            (Faults{{CollectionFault::UnreadableCave, 5}, {CollectionFault::UnreadableCave, 7}}));
  EXPECT_EQ(Rows(), (Names{"*A", "C", "*E"}));
  EXPECT_TRUE(sada_.Chg()) << "what a save would make final";
}

TEST_F(SadaTest, OpensWithANewCaveWhenNoneCanBeRead) {
  EXPECT_EQ(Opened(CollectionFile({"E!---01", "Hura"})).Faults,
            (Faults{{CollectionFault::UnreadableCave, 4}, {CollectionFault::NoCaves, 5}}));
  EXPECT_EQ(Rows(), Names{"*Mala"});
  EXPECT_EQ(Opened(CollectionFile({"Hura"})).Faults, (Faults{{CollectionFault::NoCaves, 4}}));
  EXPECT_EQ(Rows(), Names{"*Mala"});
  EXPECT_TRUE(sada_.Chg()) << "the new cave is not in the file";
  EXPECT_EQ(sada_.Text(SadaText::Name), "Sada");
  EXPECT_EQ(sada_.CongratulationText(), "Hura");
}

TEST_F(SadaTest, KeepsLettersThatNoObjectHas) {
  const std::string odd = CaveText("A", "W?\xE1*z\x01");
  Opened(CollectionFile({odd + "---01", "Hura"}));
  EXPECT_EQ(Saved()[3], odd + "---01");
}

TEST_F(SadaTest, TakesTheBytesOfACollectionAsAChangedOneWithoutAFile) {
  OpenCaves({"*A", "B"});
  const Result<std::string> bytes = sada_.Bytes();
  ASSERT_TRUE(bytes);
  OpenCaves({"*C"});
  const auto report = sada_.Import(*bytes);
  ASSERT_TRUE(report);
  EXPECT_TRUE(report->Faults.empty());
  EXPECT_EQ(Rows(), (Names{"*A", "B"}));
  EXPECT_EQ(sada_.FileName(), "");
  EXPECT_TRUE(sada_.Chg());
  EXPECT_FALSE(sada_.Import("what"));
  EXPECT_EQ(Rows(), (Names{"*A", "B"}));
}

TEST_F(SadaTest, RefusesAClosedCollectionAndChangesNothing) {
  for (const char flag : {'Q', 'R', 'z', '\xFF'}) {
    OpenCaves({"*A"});
    sada_.SetText(SadaText::Author, "Eva");
    const std::string mail = std::string("a@b.cz") + flag;
    EXPECT_TRUE(Opened(Scrambled({Measured("Sada") + "A", "A", mail, CaveText("X") + "---01", ""})).Closed);
    EXPECT_EQ(Rows(), Names{"*A"});
    EXPECT_EQ(sada_.Text(SadaText::Author), "Eva");
    EXPECT_TRUE(sada_.Chg());
    OpenCaves({"*A"});
    const auto report =
        sada_.Import(Scrambled({Measured("Sada") + "A", "A", mail, CaveText("X") + "---01", ""}));
    ASSERT_TRUE(report);
    EXPECT_TRUE(report->Closed);
    EXPECT_EQ(Rows(), Names{"*A"});
    EXPECT_FALSE(sada_.Chg());
    EXPECT_EQ(sada_.FileName(), Path("o.zk"));
  }
}

TEST_F(SadaTest, OpensACollectionWithAnyFlagBelowQ) {
  for (const char flag : {'0', '1', 'A', 'P', ' '}) {
    const std::string mail = std::string("a@b.cz") + flag;
    EXPECT_FALSE(Opened(Scrambled({Measured("Sada") + "A", "A", mail, CaveText("X") + "---01", ""})).Closed);
    EXPECT_EQ(sada_.Text(SadaText::Mail), "a@b.cz");
    EXPECT_EQ(Saved()[2], "a@b.cz0");
  }
}

TEST_F(SadaTest, KeepsEverythingWhenAFileCannotBeOpened) {
  OpenCaves({"*A", "B"});
  const std::string file = sada_.FileName();
  for (const std::string& path : {Path("neni.zk"), folder_, Write("x.zk", ""), Write("y.zk", "ABC\r\n")}) {
    EXPECT_FALSE(sada_.Open(path));
    EXPECT_EQ(Rows(), (Names{"*A", "B"}));
    EXPECT_EQ(sada_.FileName(), file);
  }
}

}  // namespace
}  // namespace zorik
