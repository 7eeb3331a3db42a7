#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "data/Files.h"
#include "data/Result.h"
#include "editors/CatData.h"

namespace zorik {
namespace {

using Lines = std::vector<std::string>;

// A file of definitions behind a caption and a question.
CatData Read(const std::string& definitions) {
  return ReadCatData("Okno\r\nUlozit?\r\n" + definitions);
}

// Reading the file

TEST(CatData, BeginsWithTheCaptionAndTheQuestion) {
  const CatData data = Read("");
  EXPECT_EQ(data.Caption, "Okno");
  EXPECT_EQ(data.CloseQuestion, "Ulozit?");
  EXPECT_TRUE(data.CatCommands.empty());
}

TEST(CatData, TakesTokensAndCaptions) {
  EXPECT_EQ(Read("-A Doleva\r\nXy=Jinam\r\n").CatCommands,
            (std::vector<CatCommand>{{"-A", "Doleva"}, {"Xy", "Jinam"}}));
}

TEST(CatData, PutsThePrefixOfTheGroupInPlaceOfEveryHash) {
  const CatData data =
      Read("* Udalost: \n- Krok: \n+ Sber \n/ Porad \n*A #start#\n-A #vlevo\n+A #\n/Z ## konec\n");
  EXPECT_EQ(data.CatCommands, (std::vector<CatCommand>{{"*A", "Udalost: startUdalost: "},
                                                       {"-A", "Krok: vlevo"},
                                                       {"+A", "Sber "},
                                                       {"/Z", "Porad Porad  konec"}}));
}

TEST(CatData, KnowsAPrefixOnlyBehindItsLine) {
  EXPECT_EQ(Read("-A #vlevo\n- Krok \n-B #vpravo\n- Skok \n-C #nahoru\n").CatCommands,
            (std::vector<CatCommand>{{"-A", "vlevo"}, {"-B", "Krok vpravo"}, {"-C", "Skok nahoru"}}));
}

TEST(CatData, LeavesTheHashToTokensWithoutAGroup) {
  EXPECT_EQ(Read("* Udalost\nXA #vlevo\n").CatCommands, (std::vector<CatCommand>{{"XA", "#vlevo"}}));
}

TEST(CatData, IgnoresPrefixesOfOtherGroups) {
  const CatData data = Read("x Krok\n* Udalost\nXA vlevo\n");
  EXPECT_EQ(data.CatCommands, (std::vector<CatCommand>{{"XA", "vlevo"}}));
}

TEST(CatData, PassesOverLinesOfThreeCharactersAndLess) {
  EXPECT_EQ(Read("\n-\n-A\n-A \n*\n-B x\n").CatCommands, (std::vector<CatCommand>{{"-B", "x"}}));
}

TEST(CatData, CountsCharactersAndNotBytes) {
  const CatData data = ReadCatData("\xEF\xBB\xBFKočka\n?\n-Č \n-Č=š\n");
  EXPECT_EQ(data.Caption, "Kočka");
  EXPECT_EQ(data.CatCommands, (std::vector<CatCommand>{{"-\xC8", "š"}}));
}

TEST(CatData, ReadsFilesInWindows1250) {
  EXPECT_EQ(Read("-A Dol\xF9\r\n").CatCommands, (std::vector<CatCommand>{{"-A", "Dolů"}}));
}

TEST(CatData, KeepsAHundredAndOneCommands) {
  std::string file;
  for (int i = 0; i < 150; ++i) file += "-A c" + std::to_string(i) + "\n";
  const CatData data = Read(file);
  ASSERT_EQ(data.CatCommands.size(), 101U);
  EXPECT_EQ(data.CatCommands.back().Caption, "c100");
}

TEST(CatData, TakesAnEmptyFile) {
  const CatData data = ReadCatData("");
  EXPECT_EQ(data.Caption, "");
  EXPECT_TRUE(data.CatCommands.empty());
}

// The files of the skins

class ShippedCatData : public testing::TestWithParam<const char*> {
 protected:
  static CatData Data() {
    const auto bytes = ReadWhole(std::string(ZORIK_SKIN_SOURCES) + "/" + GetParam() + "/Menu/catdata.txt");
    EXPECT_TRUE(bytes);
    return bytes ? ReadCatData("\xEF\xBB\xBF" + *bytes) : CatData();
  }
};

TEST_P(ShippedCatData, NamesEveryTokenOfTheLanguageOnce) {
  std::multiset<std::string> wanted;
  for (char letter = 'A'; letter <= 'P'; ++letter) wanted.insert(std::string("-") + letter);
  for (const char* token :
       {"*A", "*B", "*C", "*D", "*E", "*F", "*I", "/D", "/E", "/F", "/G", "/H", "/Z", "+A"}) {
    wanted.insert(token);
  }
  std::multiset<std::string> found;
  std::set<std::string> captions;
  for (const CatCommand& command : Data().CatCommands) {
    found.insert(command.Token);
    captions.insert(command.Caption);
    EXPECT_EQ(command.Caption.find('#'), std::string::npos) << command.Token;
    EXPECT_FALSE(command.Caption.empty()) << command.Token;
  }
  EXPECT_EQ(found, wanted);
  EXPECT_EQ(captions.size(), wanted.size()) << "two commands look alike";
}

TEST_P(ShippedCatData, HasACaptionAndAQuestion) {
  EXPECT_FALSE(Data().Caption.empty());
  EXPECT_TRUE(Data().CloseQuestion.ends_with('?'));
}

INSTANTIATE_TEST_SUITE_P(Skins, ShippedCatData, testing::Values("Default", "English"));

TEST(CatData, HasTheGivenWordsForSteps) {
  const auto bytes = ReadWhole(std::string(ZORIK_SKIN_SOURCES) + "/Default/Menu/catdata.txt");
  ASSERT_TRUE(bytes);
  const CatData data = ReadCatData("\xEF\xBB\xBF" + *bytes);
  const std::vector<CatCommand> steps = {
      {"-A", "Jdio1Doleva"},  {"-B", "Jdio1Doprava"},  {"-C", "Jdio1Nahoru"},  {"-D", "Jdio1Dolu"},
      {"-E", "JdiMaxDoleva"}, {"-F", "JdiMaxDoprava"}, {"-G", "JdiMaxNahoru"}, {"-H", "JdiMaxDolu"}};
  ASSERT_GE(data.CatCommands.size(), 15U);
  EXPECT_EQ(std::vector<CatCommand>(data.CatCommands.begin() + 7, data.CatCommands.begin() + 15), steps);
}

// Making a program whole

TEST(TestScript, PutsHeadAndEndToWhatLacksThem) {
  const std::vector<std::pair<std::string, std::string>> rows = {
      {"", "*A/Z"},           {"*A/Z", "*A/Z"},   {"-A", "*A-A/Z"},
      {"*A-A", "*A-A/Z"},     {"-A/Z", "*A-A/Z"}, {"*B-A/Z", "*B-A/Z"},  // any label is a head
      {"*A-A/D", "*A-A/D"},                                              // any token with a slash is an end
      {"*A-A*B", "*A-A*B/Z"},                                            // a plain label is none
      {"*A", "*A/Z"},                                                    // head and no end
      {"/Z", "*A/Z"},                                                    // end and no head
      {"*", "*A*/Z"},                                                    // too short for either
      {"/", "*A//Z"},         {"*A-", "*A-/Z"},   {"*/", "*//Z"},  // its last two characters begin with a
                                                                   // star
  };
  for (const auto& [program, whole] : rows) EXPECT_EQ(TestScript(program), whole) << '"' << program << '"';
}

// Program and list

const std::vector<CatCommand> kCommands = {{"*A", "start"}, {"*B", "open"}, {"-A", "left"},
                                           {"-B", "right"}, {"/D", "flit"}, {"/Z", "end"}};

class CatScriptTest : public testing::Test {
 protected:
  CatScript script_{kCommands};
};

TEST_F(CatScriptTest, ShowsAnEmptyProgramAsItsHeadAndItsEnd) {
  script_.Load("");
  EXPECT_EQ(script_.Lines(), (Lines{"start", "end"}));
  EXPECT_EQ(script_.Program(), "*A/Z");
  EXPECT_EQ(script_.Selected(), 1);
}

TEST_F(CatScriptTest, ShowsALineForEachToken) {
  script_.Load("*A-A-B-A*B-B/Z");
  EXPECT_EQ(script_.Lines(), (Lines{"start", "left", "right", "left", "open", "right", "end"}));
  EXPECT_EQ(script_.Selected(), 1);
}

TEST_F(CatScriptTest, ExtendsAProgramThatEndsInALabelEachTime) {
  script_.Load("*A-A*B");
  EXPECT_EQ(script_.Program(), "*A-A*B/Z");
  script_.Load(script_.Program());
  EXPECT_EQ(script_.Program(), "*A-A*B/Z");
}

TEST_F(CatScriptTest, AllowsDeletingBetweenTheEndsOnly) {
  script_.Load("*A-A-B/Z");
  const std::vector<std::pair<bool, bool>> allowed = {
      {false, false}, {true, true}, {true, true}, {false, true}};
  for (int line = 0; line < 4; ++line) {
    script_.Select(line);
    EXPECT_EQ(script_.CanDelete(), allowed[static_cast<std::size_t>(line)].first) << line;
    EXPECT_EQ(script_.CanInsert(), allowed[static_cast<std::size_t>(line)].second) << line;
  }
}

TEST_F(CatScriptTest, DeletesALineAndSelectsTheOneBefore) {
  script_.Load("*A-A-B/D/Z");
  script_.Select(2);
  script_.Delete();
  EXPECT_EQ(script_.Program(), "*A-A/D/Z");
  EXPECT_EQ(script_.Lines(), (Lines{"start", "left", "flit", "end"}));
  EXPECT_EQ(script_.Selected(), 1);
}

TEST_F(CatScriptTest, KeepsHeadAndEnd) {
  script_.Load("*A-A/Z");
  for (const int line : {0, 2}) {
    script_.Select(line);
    script_.Delete();
    EXPECT_EQ(script_.Program(), "*A-A/Z");
    EXPECT_EQ(script_.Selected(), line);
  }
}

TEST_F(CatScriptTest, InsertsBeforeTheSelectedLineWhichStaysSelected) {
  script_.Load("*A-A/Z");
  script_.Insert(3);
  EXPECT_EQ(script_.Program(), "*A-B-A/Z");
  EXPECT_EQ(script_.Lines(), (Lines{"start", "right", "left", "end"}));
  EXPECT_EQ(script_.Selected(), 2);
  EXPECT_EQ(script_.Lines()[2], "left");
}

TEST_F(CatScriptTest, InsertsBeforeTheEnd) {
  script_.Load("");
  script_.Insert(2);
  script_.Insert(4);
  EXPECT_EQ(script_.Program(), "*A-A/D/Z");
  EXPECT_EQ(script_.Selected(), 3);
}

TEST_F(CatScriptTest, InsertsNothingBeforeTheHeadAndNothingThatIsNoCommand) {
  script_.Load("*A-A/Z");
  script_.Insert(kCommands.size());
  script_.Select(0);
  script_.Insert(2);
  EXPECT_EQ(script_.Program(), "*A-A/Z");
}

TEST_F(CatScriptTest, ExchangesCaptionsAndLeavesTheProgram) {
  script_.Load("*A-A-B/D/Z");
  script_.Select(2);
  script_.Swap();
  EXPECT_EQ(script_.Lines(), (Lines{"start", "left", "flit", "right", "end"}));
  EXPECT_EQ(script_.Program(), "*A-A-B/D/Z");
  EXPECT_EQ(script_.Selected(), 1);
}

TEST_F(CatScriptTest, ExchangesNothingOnTheFirstLineAndOnTheLast) {
  script_.Load("*A-A/Z");
  for (const int line : {0, 2}) {
    script_.Select(line);
    script_.Swap();
    EXPECT_EQ(script_.Lines(), (Lines{"start", "left", "end"}));
    EXPECT_EQ(script_.Selected(), line);
  }
}

TEST_F(CatScriptTest, IgnoresLinesThatAreNotThere) {
  script_.Load("");
  for (const int line : {-1, 2, 100}) {
    script_.Select(line);
    EXPECT_EQ(script_.Selected(), 1);
  }
}

TEST_F(CatScriptTest, FallsOutOfStepForATokenThatTheFileLacks) {
  script_.Load("*A-X-A-B/Z");
  EXPECT_EQ(script_.Lines(), (Lines{"start", "left", "right", "end"}));
  script_.Select(1);
  script_.Delete();
  EXPECT_EQ(script_.Lines(), (Lines{"start", "right", "end"}));
  EXPECT_EQ(script_.Program(), "*A-A-B/Z") << "the token in second place went, which is another one";
}

TEST_F(CatScriptTest, ShowsTwoLinesForATokenThatTheFileHasTwice) {
  CatScript script({{"*A", "start"}, {"-A", "one"}, {"/Z", "end"}, {"-A", "two"}});
  script.Load("*A-A/Z");
  EXPECT_EQ(script.Lines(), (Lines{"start", "one", "two", "end"}));
  script.Select(3);
  script.Insert(1);
  EXPECT_EQ(script.Program(), "*A-A/Z-A");
  script.Insert(1);
  EXPECT_EQ(script.Program(), "*A-A/Z-A-A");
}

TEST_F(CatScriptTest, SurvivesAFileWithoutAnyCommand) {
  CatScript script({});
  script.Load("*A-A/Z");
  EXPECT_TRUE(script.Lines().empty());
  EXPECT_FALSE(script.CanDelete());
  EXPECT_FALSE(script.CanInsert());
  script.Delete();
  script.Insert(0);
  script.Swap();
  EXPECT_EQ(script.Program(), "*A-A/Z");
}

}  // namespace
}  // namespace zorik
