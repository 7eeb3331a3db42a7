#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "data/Collection.h"
#include "data/Result.h"
#include "data/Samples.h"

namespace zorik {
namespace {

using samples::CaveText;
using samples::CollectionFile;
using samples::Scrambled;
using Lines = std::vector<std::string>;

EditedCollection WithCaves(std::size_t count) {
  EditedCollection collection;
  collection.Name = "Sada";
  collection.Author = "Autor";
  collection.Description = "prvn\xED\r\ndruh\xFD";
  collection.Mail = "a@b.cz";
  for (std::size_t i = 0; i < count; ++i) collection.CaveList.push_back(CaveText(std::to_string(i + 1)));
  collection.CongratulationText = "Sl\xE1va, $P bod\xF9!";
  return collection;
}

Lines LinesOf(const EditedCollection& collection) {
  Chance chance(2);
  const auto bytes = BuildCollection(collection, chance);
  EXPECT_TRUE(bytes) << bytes.Message();
  return bytes ? PlainLines(*bytes) : Lines();
}

TEST(BuildCollection, WritesNameAuthorMailCavesAndCongratulation) {
  EditedCollection collection = WithCaves(3);
  collection.OpenFlags.set(1);
  collection.OpenFlags.set(3);
  const Lines wanted = {"ESadaAC",
                        "FAutorprvn\xED\r\ndruh\xFD",
                        "a@b.cz0",
                        CaveText("1") + "---01",
                        CaveText("2") + "---02",
                        CaveText("3") + "---03",
                        "Sl\xE1va, $P bod\xF9!"};
  EXPECT_EQ(LinesOf(collection), wanted);
}

TEST(BuildCollection, WritesOneCaveAsFiveLines) {
  EXPECT_EQ(LinesOf(WithCaves(1)).size(), 5U);
}

TEST(BuildCollection, EndsEachLineWithCarriageReturnAndLineFeedAndWritesLettersElse) {
  Chance chance(2);
  const auto bytes = BuildCollection(WithCaves(2), chance);
  ASSERT_TRUE(bytes);
  EXPECT_TRUE(bytes->ends_with("\r\n"));
  EXPECT_EQ(bytes->find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ\r\n"), std::string::npos);
  std::size_t count = 0;
  for (std::size_t place = bytes->find("\r\n"); place != std::string::npos;
       place = bytes->find("\r\n", place + 2)) {
    ++count;
  }
  EXPECT_EQ(count, 6U);
}

TEST(BuildCollection, MarksTheFirstCaveAsOpenWhateverTheFlagsSay) {
  EditedCollection collection = WithCaves(2);
  EXPECT_EQ(LinesOf(collection)[0], "ESadaA");
  collection.OpenFlags.set(2);
  EXPECT_EQ(LinesOf(collection)[0], "ESadaAB");
}

TEST(BuildCollection, LeavesFlagsBehindTheLastCaveOut) {
  EditedCollection collection = WithCaves(2);
  collection.OpenFlags.set(3);
  EXPECT_EQ(LinesOf(collection)[0], "ESadaA");
}

TEST(BuildCollection, MarksOpenCavesBehindTheLetterZWithTheFollowingCharacters) {
  EditedCollection collection = WithCaves(99);
  collection.OpenFlags.set(26);
  collection.OpenFlags.set(27);
  collection.OpenFlags.set(99);
  EXPECT_EQ(LinesOf(collection)[0], "ESadaAZ[\xA3");  // 64 + 99 is 163
}

TEST(BuildCollection, GivesCaveTenTheMarkerWithOneAndZero) {
  const Lines lines = LinesOf(WithCaves(10));
  EXPECT_TRUE(lines[3 + 8].ends_with("---09"));
  EXPECT_TRUE(lines[3 + 9].ends_with("---10"));
}

TEST(BuildCollection, RefusesCave100) {
  Chance chance(2);
  EXPECT_TRUE(BuildCollection(WithCaves(99), chance));
  const auto bytes = BuildCollection(WithCaves(100), chance);
  ASSERT_FALSE(bytes);
  EXPECT_EQ(bytes.Message(), "the collection has 100 caves, it may have 99");
}

TEST(BuildCollection, RefusesACollectionWithoutCaves) {
  Chance chance(2);
  const auto bytes = BuildCollection(WithCaves(0), chance);
  ASSERT_FALSE(bytes);
  EXPECT_EQ(bytes.Message(), "the collection has no cave");
}

TEST(BuildCollection, RefusesANameOrAuthorAbove190Characters) {
  Chance chance(2);
  EditedCollection collection = WithCaves(1);
  collection.Name = std::string(190, 'n');
  collection.Author = std::string(190, 'a');
  EXPECT_TRUE(BuildCollection(collection, chance));
  collection.Name += 'n';
  const auto longName = BuildCollection(collection, chance);
  ASSERT_FALSE(longName);
  EXPECT_EQ(longName.Message(), "the name of the collection has 191 characters, it may have 190");
  collection.Name = "";
  collection.Author += 'a';
  const auto longAuthor = BuildCollection(collection, chance);
  ASSERT_FALSE(longAuthor);
  EXPECT_EQ(longAuthor.Message(), "the author of the collection has 191 characters, it may have 190");
}

TEST(BuildCollection, WritesNoCongratulationThatWouldBeReadAsACave) {
  for (const std::size_t count : {2U, 99U}) {
    EditedCollection collection = WithCaves(count);
    for (const std::string& like : {collection.CaveList.back() + "---02", std::string("abc---X4")}) {
      collection.CongratulationText = like;
      Chance chance;
      const std::string bytes = *BuildCollection(collection, chance);
      EXPECT_EQ(PlainLines(bytes).size(), kHeadLines + collection.CaveList.size() + 1);
      EXPECT_EQ(PlainLines(bytes).back(), "");
      EXPECT_EQ(ReadForEditor(bytes)->CaveList, collection.CaveList);
    }
  }
}

TEST(BuildCollection, TakesANameOfNoCharacters) {
  EditedCollection collection = WithCaves(1);
  collection.Name.clear();
  EXPECT_EQ(LinesOf(collection)[0], "AA");  // length 0, cave 1 open
  Chance chance(2);
  const auto again = ReadForEditor(*BuildCollection(collection, chance));
  ASSERT_TRUE(again) << again.Message();
  EXPECT_EQ(again->Name, "");
  EXPECT_TRUE(again->OpenFlags[1]);
}

TEST(BuildCollection, OfANewCollectionHasOneOpenLetterAndFiveLines) {
  EditedCollection collection;
  collection.Mail = "@";
  collection.Name = "Nov\xE1 sada";
  collection.Description = "Bez popisu";
  collection.CaveList.push_back(*NewCaveText(NewCaveSize::Small));
  const Lines lines = LinesOf(collection);
  ASSERT_EQ(lines.size(), 5U);
  EXPECT_EQ(lines[0], "JNov\xE1 sadaA");
  EXPECT_EQ(lines[1], "ABez popisu");
  EXPECT_EQ(lines[2], "@0");
  EXPECT_EQ(lines[4], "");
}

TEST(Collection, ReadAgainByTheEditorIsTheSame) {
  EditedCollection collection = WithCaves(12);
  collection.OpenFlags.set(1);
  collection.OpenFlags.set(7);
  Chance chance(2);
  const auto again = ReadForEditor(*BuildCollection(collection, chance));
  ASSERT_TRUE(again) << again.Message();
  EXPECT_EQ(again->Name, collection.Name);
  EXPECT_EQ(again->Author, collection.Author);
  EXPECT_EQ(again->Description, collection.Description);
  EXPECT_EQ(again->Mail, collection.Mail);
  EXPECT_FALSE(again->Closed);
  EXPECT_EQ(again->CaveList, collection.CaveList);
  EXPECT_EQ(again->OpenFlags, collection.OpenFlags);
  EXPECT_EQ(again->CongratulationText, collection.CongratulationText);
}

TEST(Collection, KeepsTheLineBreaksOfItsDescription) {
  Chance chance(2);
  const auto played = ReadForPlay(*BuildCollection(WithCaves(1), chance));
  ASSERT_TRUE(played) << played.Message();
  EXPECT_EQ(played->Description, "prvn\xED\r\ndruh\xFD");
}

TEST(ReadForPlay, KeepsTheMarkersAndParsesTheCaves) {
  const auto collection = ReadForPlay(CollectionFile({CaveText("Prvn\xED") + "---01", "Sl\xE1va"}));
  ASSERT_TRUE(collection) << collection.Message();
  EXPECT_EQ(collection->Name, "Sada");
  EXPECT_EQ(collection->Author, "Autor");
  ASSERT_EQ(collection->Caves.size(), 1U);
  EXPECT_EQ(collection->Caves[0].Text, CaveText("Prvn\xED") + "---01");
  EXPECT_EQ(collection->Caves[0].Record.Name, "Prvn\xED");
  EXPECT_EQ(collection->Caves[0].Record.Script, "");
  EXPECT_EQ(collection->Congratulation, "Sl\xE1va");
}

TEST(ReadForEditor, TakesTheMarkersOff) {
  const auto collection = ReadForEditor(CollectionFile({CaveText("1") + "---01", "Sl\xE1va"}));
  ASSERT_TRUE(collection) << collection.Message();
  EXPECT_EQ(collection->CaveList, Lines{CaveText("1")});
}

TEST(ReadForPlay, OpensTheCavesThatLineOneNames) {
  const auto collection = ReadForPlay(CollectionFile({CaveText("1") + "---01"}, "AC\xA3"));
  ASSERT_TRUE(collection) << collection.Message();
  EXPECT_EQ(collection->OpenCaves.count(), 3U);
  EXPECT_TRUE(collection->OpenCaves[1]);
  EXPECT_TRUE(collection->OpenCaves[3]);
  EXPECT_TRUE(collection->OpenCaves[99]);
}

TEST(ReadForPlay, PassesOpenCavesBeyondTheListOver) {
  const auto collection = ReadForPlay(CollectionFile({CaveText("1") + "---01"}, "@! \xA4\xFF"));
  ASSERT_TRUE(collection) << collection.Message();
  EXPECT_TRUE(collection->OpenCaves.none());
}

TEST(Collection, WithoutACongratulationIsReadDifferentlyByTheTwoReaders) {
  const std::string bytes = CollectionFile({CaveText("1") + "---01", CaveText("2") + "---02"});
  const auto played = ReadForPlay(bytes);
  const auto edited = ReadForEditor(bytes);
  ASSERT_TRUE(played);
  ASSERT_TRUE(edited);
  EXPECT_EQ(played->Caves.size(), 2U);
  EXPECT_EQ(played->Congratulation, "");
  EXPECT_EQ(edited->CaveList.size(), 2U);
  EXPECT_EQ(edited->CongratulationText, CaveText("2") + "---02");
}

TEST(Collection, WithAMarkerWithoutDigitsHasACaveForPlayOnly) {
  const std::string bytes = CollectionFile({CaveText("1") + "---0x", CaveText("2") + "---02", "Konec"});
  const auto played = ReadForPlay(bytes);
  const auto edited = ReadForEditor(bytes);
  ASSERT_TRUE(played);
  ASSERT_TRUE(edited);
  EXPECT_EQ(played->Caves.size(), 2U);
  EXPECT_EQ(edited->CaveList, Lines{CaveText("2")});
}

TEST(Collection, WithAMarkerWithoutDigitsInItsLastLineHasThatAsTheEditorsCongratulation) {
  const std::string bytes = CollectionFile({CaveText("1") + "---01", CaveText("2") + "---x2"});
  EXPECT_EQ(ReadForEditor(bytes)->CongratulationText, CaveText("2") + "---x2");
  EXPECT_EQ(ReadForEditor(bytes)->CaveList.size(), 1U);
  EXPECT_EQ(ReadForPlay(bytes)->Congratulation, "");
  EXPECT_EQ(ReadForPlay(bytes)->Caves.size(), 2U);
}

TEST(Collection, NumbersItsCavesByTheOrderOfTheLines) {
  const std::string bytes = CollectionFile({CaveText("b") + "---07", CaveText("a") + "---07", "Konec"});
  const auto played = ReadForPlay(bytes);
  ASSERT_TRUE(played) << played.Message();
  EXPECT_EQ(played->Caves[0].Record.Name, "b");
  EXPECT_EQ(played->Caves[1].Record.Name, "a");
}

TEST(Collection, PassesAnUnknownLineBetweenTheCavesOver) {
  const std::string bytes =
      CollectionFile({CaveText("1") + "---01", "odd", CaveText("2") + "---02", "Konec"});
  const auto played = ReadForPlay(bytes);
  const auto edited = ReadForEditor(bytes);
  ASSERT_TRUE(played);
  ASSERT_TRUE(edited);
  EXPECT_EQ(played->Caves.size(), 2U);
  EXPECT_EQ(played->Congratulation, "Konec");
  EXPECT_EQ(edited->CaveList.size(), 2U);
  EXPECT_EQ(edited->CongratulationText, "Konec");
}

TEST(Collection, TakesTheLastOfSeveralLinesBehindTheCavesAsCongratulation) {
  const std::string bytes = CollectionFile({CaveText("1") + "---01", "skoro", "Konec"});
  EXPECT_EQ(ReadForPlay(bytes)->Congratulation, "Konec");
  EXPECT_EQ(ReadForEditor(bytes)->CongratulationText, "Konec");
}

TEST(Collection, HasAnEmptyCongratulationInAnEmptyLastLine) {
  const std::string bytes = CollectionFile({CaveText("1") + "---01", "odd", ""});
  EXPECT_EQ(ReadForPlay(bytes)->Congratulation, "");
  EXPECT_EQ(ReadForEditor(bytes)->CongratulationText, "");
}

TEST(Collection, TakesALineOfFewerThanFiveCharactersForNoCave) {
  const std::string bytes = CollectionFile({"---1", CaveText("1") + "---01", "---"});
  const auto played = ReadForPlay(bytes);
  ASSERT_TRUE(played) << played.Message();
  EXPECT_EQ(played->Caves.size(), 1U);
  EXPECT_EQ(played->Congratulation, "---");
}

TEST(Collection, MayHaveLinesThatEndInALineFeedAlone) {
  std::string bytes = CollectionFile({CaveText("1") + "---01", "Konec"});
  std::erase(bytes, '\r');
  const auto played = ReadForPlay(bytes);
  ASSERT_TRUE(played) << played.Message();
  EXPECT_EQ(played->Caves.size(), 1U);
  EXPECT_EQ(played->Congratulation, "Konec");
  EXPECT_EQ(FindCaveText(bytes, 1), CaveText("1") + "---01");
}

TEST(Collection, WithoutCavesIsReadByBoth) {
  const std::string bytes = CollectionFile({});
  EXPECT_TRUE(ReadForPlay(bytes)->Caves.empty());
  EXPECT_EQ(ReadForPlay(bytes)->Congratulation, "");
  EXPECT_TRUE(ReadForEditor(bytes)->CaveList.empty());
  EXPECT_EQ(ReadForEditor(bytes)->CongratulationText, "");
}

TEST(Collection, TooShortForItsLengthLetterHasAShorterNameAndAnEmptyRest) {
  const std::string bytes = Scrambled({"Zkr\xE1tk\xE1", "Z", "a@b.cz0"});
  const auto played = ReadForPlay(bytes);
  ASSERT_TRUE(played) << played.Message();
  EXPECT_EQ(played->Name, "kr\xE1tk\xE1");
  EXPECT_TRUE(played->OpenCaves.none());
  EXPECT_EQ(played->Author, "");
  EXPECT_EQ(played->Description, "");
}

TEST(Collection, WithFewerThanThreeLinesIsRefused) {
  const auto none = ReadForPlay("");
  ASSERT_FALSE(none);
  EXPECT_EQ(none.Message(), "the collection ends after line 0, its name, author and e-mail take three");
  const auto two = ReadForEditor(Scrambled({"AA", "A"}));
  ASSERT_FALSE(two);
  EXPECT_EQ(two.Message(), "the collection ends after line 2, its name, author and e-mail take three");
}

TEST(Collection, WithAnEmptyLineInPlaceOfALengthIsRefused) {
  const auto first = ReadForPlay(Scrambled({"", "A", "0"}));
  ASSERT_FALSE(first);
  EXPECT_EQ(first.Message(), "line 1 of the collection is empty");
  const auto second = ReadForEditor(Scrambled({"AA", "", "0"}));
  ASSERT_FALSE(second);
  EXPECT_EQ(second.Message(), "line 2 of the collection is empty");
}

TEST(Collection, WithALengthBelowAIsRefused) {
  const auto first = ReadForPlay(Scrambled({"@Sada", "A", "0"}));
  ASSERT_FALSE(first);
  EXPECT_EQ(first.Message(),
            "line 1 of the collection starts with no length (code 64, at least 65 expected)");
  const auto second = ReadForEditor(Scrambled({"AA", " ", "0"}));
  ASSERT_FALSE(second);
  EXPECT_EQ(second.Message(),
            "line 2 of the collection starts with no length (code 32, at least 65 expected)");
}

TEST(Collection, MayHaveAnEmptyThirdLine) {
  const std::string bytes = Scrambled({"AA", "A", "", CaveText("1") + "---01"});
  EXPECT_EQ(ReadForEditor(bytes)->Mail, "");
  EXPECT_FALSE(ReadForEditor(bytes)->Closed);
  EXPECT_EQ(ReadForPlay(bytes)->Caves.size(), 1U);
}

TEST(ReadForEditor, TakesAFlagFromQOnAsClosed) {
  for (const char flag : {'0', 'P', '@'}) {
    EXPECT_FALSE(ReadForEditor(Scrambled({"AA", "A", std::string("a@b.cz") + flag}))->Closed) << flag;
  }
  for (const char flag : {'Q', 'Z', '\xFF'}) {
    const auto closed =
        ReadForEditor(Scrambled({"AA", "A", std::string("a@b.cz") + flag, CaveText("1") + "---01"}));
    ASSERT_TRUE(closed) << closed.Message();
    EXPECT_TRUE(closed->Closed) << flag;
    EXPECT_TRUE(closed->CaveList.empty());
  }
}

TEST(ReadForPlay, DoesNotLookAtTheFlag) {
  const auto played = ReadForPlay(Scrambled({"AA", "A", "a@b.czQ", CaveText("1") + "---01"}));
  ASSERT_TRUE(played) << played.Message();
  EXPECT_EQ(played->AuthorMail, "a@b.cz");
  EXPECT_EQ(played->Caves.size(), 1U);
}

TEST(ReadForPlay, UsesAnAddressOfSixCharactersWithAnAtSignOnly) {
  const auto mail = [](const std::string& line) {
    return ReadForPlay(Scrambled({"AA", "A", line}))->AuthorMail;
  };
  EXPECT_EQ(mail("a@b.cz0"), "a@b.cz");
  EXPECT_EQ(mail("a@b.c0"), "");
  EXPECT_EQ(mail("ab.czech0"), "");
  EXPECT_EQ(mail("@0"), "");
}

TEST(ReadForPlay, NamesTheCaveThatDoesNotParse) {
  const auto played = ReadForPlay(CollectionFile({CaveText("1") + "---01", "E---02", "Konec"}));
  ASSERT_FALSE(played);
  EXPECT_EQ(
      played.Message(),
      "cave 2 in line 5 of the collection: the length of the name at byte 2 of the cave text is no number "
      "(code 45, at least 65 expected)");
}

TEST(ReadForEditor, KeepsACaveThatDoesNotParse) {
  const auto edited = ReadForEditor(CollectionFile({"E---01", "Konec"}));
  ASSERT_TRUE(edited) << edited.Message();
  EXPECT_EQ(edited->CaveList, Lines{"E"});
}

TEST(Collection, Holds99Caves) {
  Lines caves(99, CaveText("x") + "---01");
  EXPECT_EQ(ReadForPlay(CollectionFile(caves))->Caves.size(), 99U);
  EXPECT_EQ(ReadForEditor(CollectionFile(caves))->CaveList.size(), 99U);
  caves.push_back(CaveText("x") + "---01");
  const auto played = ReadForPlay(CollectionFile(caves));
  ASSERT_FALSE(played);
  EXPECT_EQ(played.Message(), "line 103 of the collection is cave 100, there may be 99");
  EXPECT_EQ(ReadForEditor(CollectionFile(caves))->CaveList.size(), 99U) << "the editor leaves the last out";
}

TEST(Collection, OfAnyBytesIsReadOrRefusedWithAMessage) {
  Chance chance(15);
  for (int round = 0; round < 3000; ++round) {
    Lines lines;
    const std::uint32_t count = chance.Below(9);
    for (std::uint32_t i = 0; i < count; ++i) lines.push_back(samples::OddBytes(chance, 40));
    std::string bytes = Scrambled(lines);
    if (chance.Below(4) == 0) bytes = samples::OddBytes(chance, 200);
    const auto played = ReadForPlay(bytes);
    const auto edited = ReadForEditor(bytes);
    EXPECT_TRUE(played || !played.Message().empty());
    EXPECT_TRUE(edited || !edited.Message().empty());
  }
}

TEST(Collection, OfRandomTextsReadAgainIsTheSame) {
  Chance chance(16);
  for (int round = 0; round < 300; ++round) {
    EditedCollection collection;
    collection.Name = samples::RandomBytes(chance, 190);
    collection.Author = samples::RandomBytes(chance, 190);
    collection.Description = samples::RandomBytes(chance, 280);
    collection.Mail = samples::RandomBytes(chance, 30);
    collection.CongratulationText = samples::RandomBytes(chance, 3);
    collection.OpenFlags.set(1);
    const std::uint32_t count = 1 + chance.Below(20);
    for (std::uint32_t i = 1; i <= count; ++i) {
      collection.CaveList.push_back(samples::RandomBytes(chance, 40));
      collection.OpenFlags[i] = i == 1 || chance.Below(2) == 0;
    }
    const auto again = ReadForEditor(*BuildCollection(collection, chance));
    ASSERT_TRUE(again) << again.Message();
    EXPECT_EQ(again->Name, collection.Name);
    EXPECT_EQ(again->Author, collection.Author);
    EXPECT_EQ(again->Description, collection.Description);
    EXPECT_EQ(again->Mail, collection.Mail);
    EXPECT_EQ(again->CaveList, collection.CaveList);
    EXPECT_EQ(again->OpenFlags, collection.OpenFlags);
    EXPECT_EQ(again->CongratulationText, collection.CongratulationText);
  }
}

}  // namespace
}  // namespace zorik
