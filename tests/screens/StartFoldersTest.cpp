#include <gtest/gtest.h>

#include "data/Cp1250.h"
#include "data/FileTrouble.h"
#include "data/Result.h"
#include "data/Scramble.h"
#include "platform/PathText.h"
#include "screens/Folder.h"
#include "screens/StartFolders.h"

namespace zorik {
namespace {

class StartFolders : public testing::Test {
 protected:
  // A collection file whose first line is this one, scrambled.
  void FirstLine(const std::string& file, const std::string& line) const {
    Chance chance;
    folder_.File("Caves/" + file, ScrambleText(line, chance) + "\r\n");
  }

  QStringList Names() const {
    QStringList names;
    for (const CollRow& row : ReadColls(folder_.Root() + "/Caves", "cs")) names.push_back(row.name);
    return names;
  }
  QStringList Files(const QString& language = "cs") const {
    QStringList files;
    for (const CollRow& row : ReadColls(folder_.Root() + "/Caves", language)) files.push_back(row.file);
    return files;
  }

  test::Folder folder_;
};

TEST_F(StartFolders, NothingBehindTheFirstLineIsRead) {
  FirstLine("a.zk", "EAlfa");
  const std::string path = folder_.Root() + "/Caves/a.zk";
  std::filesystem::resize_file(path, std::uintmax_t{300} << 20U);  // more than the game reads of any file
  EXPECT_EQ(Names(), QStringList("Alfa"));
}

TEST_F(StartFolders, TheLongestNameIsReadAsAWhole) {
  const std::string name(190, 'x');
  FirstLine("a.zk", static_cast<char>(65 + 190) + name + std::string(99, 'A'));
  EXPECT_EQ(Names(), QStringList(QString::fromStdString(name)));
}

TEST_F(StartFolders, ANameIsAsLongAsItsFirstLetterSays) {
  FirstLine("a.zk", "EAlfa");     // E is 65 + 4
  FirstLine("b.zk", "EBetaABC");  // open caves stand behind it
  FirstLine("c.zk", "DGama");     // one letter less
  FirstLine("d.zk", *FromUtf8("IJeskyně"));
  EXPECT_EQ(Names(), (QStringList{"Alfa", "Beta", "Gam", "d"})) << "the last one is too short for its letter";
}

TEST_F(StartFolders, CzechNamesAreReadable) {
  FirstLine("a.zk", *FromUtf8("HJeskyně"));
  EXPECT_EQ(Names(), QStringList{"Jeskyně"});
}

TEST_F(StartFolders, ALongNameIsRead) {
  const std::string name(190, 'x');
  FirstLine("a.zk", static_cast<char>(65 + 190) + name);
  EXPECT_EQ(Names(), QStringList{QString::fromStdString(name)});
}

TEST_F(StartFolders, GarbageGoesByTheNameOfItsFile) {
  FirstLine("bez delky.zk", "!Alfa");  // below 65
  FirstLine("bez jmena.zk", "A");
  FirstLine("kratka.zk", "ZAlfa");
  FirstLine("mezery.zk", "D   A");
  FirstLine("ridici.zk",
            "C\x01\x02"
            "A");
  folder_.File("Caves/nic.zk", "");
  folder_.File("Caves/text.zk", "Toto neni sada.\r\n");
  EXPECT_EQ(Names(), (QStringList{"bez delky", "bez jmena", "kratka", "mezery", "nic", "ridici", "text"}));
}

TEST_F(StartFolders, FilesAreSortedAsPeopleSort) {
  for (const char* file : {"sada 10.zk", "Sada 9.zk", "čelo.zk", "cesta.zk", "dům.zk", "SADA 1.ZK"}) {
    FirstLine(file, "BX");
  }
  EXPECT_EQ(Files(), (QStringList{"cesta.zk", "čelo.zk", "dům.zk", "SADA 1.ZK", "Sada 9.zk", "sada 10.zk"}));
}

TEST_F(StartFolders, TheLanguageOfTheSkinGoesFirstAndOtherLanguagesLast) {
  for (const char* file :
       {"1-a-cs.zk", "1-a-en.zk", "2-b-EN.ZK", "3-c.zk", "x-12.zk", "-cs.zk", "encs.zk", "jdi-na.zk"}) {
    FirstLine(file, "BX");
  }
  EXPECT_EQ(Files("cs"), (QStringList{"-cs.zk", "1-a-cs.zk", "3-c.zk", "encs.zk", "jdi-na.zk", "x-12.zk",
                                      "1-a-en.zk", "2-b-EN.ZK"}));
  EXPECT_EQ(Files("en"), (QStringList{"1-a-en.zk", "2-b-EN.ZK", "3-c.zk", "encs.zk", "jdi-na.zk", "x-12.zk",
                                      "-cs.zk", "1-a-cs.zk"}));
}

TEST_F(StartFolders, OnlyCollectionsAreListed) {
  FirstLine("a.zk", "BX");
  folder_.File("Caves/a.zkr", "record");
  folder_.File("Caves/junk.txt", "junk");
  folder_.File("Caves/slozka.zk/file", "a folder");
  EXPECT_EQ(Files(), QStringList{"a.zk"});
}

TEST_F(StartFolders, AFolderThatIsNotThereIsEmpty) {
  EXPECT_TRUE(ReadColls(folder_.Root() + "/nikde", "cs").empty());
  EXPECT_TRUE(ReadPlayers(folder_.Root() + "/nikde").isEmpty());
}

TEST_F(StartFolders, APlayerIsAddedOnce) {
  const std::string players = folder_.Root() + "/Players";
  EXPECT_EQ(AddPlayer(players, *FromUtf8("Žofie")), Added::Yes);
  EXPECT_EQ(ReadPlayers(players), QStringList{"Žofie"});
  EXPECT_EQ(AddPlayer(players, *FromUtf8("Žofie")), Added::ThereAlready);
  EXPECT_EQ(AddPlayer(players, *FromUtf8("ŽOFIE")), Added::ThereAlready);
}

TEST_F(StartFolders, APlayerMayComeBeforeTheFolderOfPlayers) {
  const std::string players = folder_.Root() + "/jinde/Players";
  EXPECT_EQ(AddPlayer(players, "Adam"), Added::Yes);
  EXPECT_EQ(ReadPlayers(players), QStringList{"Adam"});
}

TEST_F(StartFolders, APlayerCannotBeAddedWhereNothingCanBeWritten) {
  folder_.File("soubor", "no folder");
  EXPECT_EQ(AddPlayer(folder_.Root() + "/soubor", "Adam"), Added::NotWritten);
  EXPECT_EQ(AddPlayer("/proc/Players", "Adam"), Added::NotWritten);
}

TEST_F(StartFolders, NamesOfOldArchivesAreListedAmongTheOthersAndReadable) {
  for (const char* name : {"b.zk",
                           "\xC8"
                           "elo.zk",
                           "d.zk"})
    folder_.File("Caves/" + std::string(name), "");
  EXPECT_EQ(Names(), (QStringList{"b", "Čelo", "d"}));
  EXPECT_EQ(PathBytes(Files()[1]),
            "\xC8"
            "elo.zk");
  const std::string players = folder_.Root() + "/Players";
  for (const char* name : {"Ada",
                           "\xC8"
                           "en\xECk",
                           "Zoe", "日本"})
    std::filesystem::create_directory(players + "/" + name);
  const QStringList listed = ReadPlayers(players);
  ASSERT_EQ(listed.size(), 3);
  EXPECT_EQ(PathBytes(listed[1]),
            "\xC8"
            "en\xECk");
  EXPECT_EQ(AddPlayer(players, *FromUtf8("čeněk")), Added::ThereAlready);
}

TEST_F(StartFolders, ANameOfAFileShowsNoControlCharacters) {
  folder_.File("Caves/a\nb\x1B.zk", "");
  EXPECT_EQ(Names(), QStringList{"ab"});
}

TEST_F(StartFolders, ALinkThatLeadsNowhereKeepsItsName) {
  FirstLine("jinde.zk", "BX");
  std::filesystem::create_symlink("nikde", folder_.Root() + "/Caves/a.zk");
  folder_.File("a.zk", "bytes");
  const auto copy = CopyColl(folder_.Root() + "/a.zk", folder_.Root() + "/Caves");
  ASSERT_TRUE(copy);
  EXPECT_EQ(*copy, folder_.Root() + "/Caves/a~.zk");
}

TEST_F(StartFolders, ACopyOfWhatIsNotThereFails) {
  EXPECT_FALSE(CopyColl(folder_.Root() + "/neni.zk", folder_.Root() + "/Caves"));
  EXPECT_TRUE(Files().isEmpty());
}

}  // namespace
}  // namespace zorik
