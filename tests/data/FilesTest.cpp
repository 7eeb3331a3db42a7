#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <string>
#include <vector>

#include "data/Cp1250.h"
#include "data/Files.h"
#include "data/RecordFile.h"
#include "data/Result.h"
#include "support/TempFolder.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

// An empty folder of its own for each test.
class Folder : public testing::Test {
 protected:
  std::string In(const std::string& name) const { return path_ + "/" + name; }

  std::vector<std::string> Entries() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(path_)) names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
  }

  test::TempFolder temp_{"files"};
  const std::string path_ = temp_.Path();
};

class WholeFile : public Folder {};
class FileSystemNames : public Folder {};
class ResolvedPath : public Folder {};
using Names = std::vector<std::string>;

TEST_F(WholeFile, IsReadAsItWasWritten) {
  std::string bytes;
  for (int i = 0; i < 200000; ++i) bytes += static_cast<char>(i % 251);
  const auto written = WriteWhole(In("a.zk"), bytes);
  ASSERT_TRUE(written) << written.Message();
  const auto again = ReadWhole(In("a.zk"));
  ASSERT_TRUE(again) << again.Message();
  EXPECT_EQ(*again, bytes);
}

TEST_F(WholeFile, MayBeReadInPartOnly) {
  ASSERT_TRUE(WriteWhole(In("a"), "0123456789"));
  EXPECT_EQ(*ReadStart(In("a"), 4), "0123");
  EXPECT_EQ(*ReadStart(In("a"), 10), "0123456789");
  EXPECT_EQ(*ReadStart(In("a"), 99), "0123456789");
  EXPECT_EQ(*ReadStart(In("a"), 0), "");
  EXPECT_FALSE(ReadStart(In("none"), 4));
  EXPECT_FALSE(ReadStart(path_, 4)) << "a folder";
  ASSERT_EQ(mkfifo(In("pipe").c_str(), 0600), 0);
  EXPECT_FALSE(ReadStart(In("pipe"), 4));
  std::string rest(7, '-');
  EXPECT_TRUE(ReadRest(In("a"), 3, rest));
  EXPECT_EQ(rest, "3456789");
}

TEST_F(WholeFile, OfAnotherSizeHasNoSuchRest) {
  ASSERT_TRUE(WriteWhole(In("a"), "0123456789"));
  std::string rest(6, '-');
  EXPECT_FALSE(ReadRest(In("a"), 3, rest)) << "one more is left";
  rest.resize(8);
  EXPECT_FALSE(ReadRest(In("a"), 3, rest)) << "one less is left";
  EXPECT_FALSE(ReadRest(In("none"), 3, rest));
  EXPECT_FALSE(ReadRest(path_, 0, rest)) << "a folder";
}

TEST_F(WholeFile, MayBeEmpty) {
  ASSERT_TRUE(WriteWhole(In("a.zk"), ""));
  EXPECT_EQ(*ReadWhole(In("a.zk")), "");
}

TEST_F(WholeFile, TakesThePlaceOfALongerOne) {
  ASSERT_TRUE(WriteWhole(In("a.zk"), "a long content"));
  ASSERT_TRUE(WriteWhole(In("a.zk"), "short"));
  EXPECT_EQ(*ReadWhole(In("a.zk")), "short");
}

TEST_F(WholeFile, LeavesNoOtherFileBehind) {
  ASSERT_TRUE(WriteWhole(In("a.zk"), "one"));
  ASSERT_TRUE(WriteWhole(In("a.zk"), "two"));
  EXPECT_EQ(Entries(), Names{"a.zk"});
}

TEST_F(WholeFile, ThatMayNotBeWrittenIsReplacedAndStaysReadableToOthers) {
  ASSERT_TRUE(WriteWhole(In("a.zk"), "old"));
  ASSERT_EQ(chmod(In("a.zk").c_str(), 0444), 0);
  ASSERT_TRUE(WriteWhole(In("a.zk"), "new"));
  EXPECT_EQ(*ReadWhole(In("a.zk")), "new");
  EXPECT_EQ(fs::status(In("a.zk")).permissions(), fs::perms(0644));
}

TEST_F(WholeFile, ThatOnlyItsOwnerMayReadStaysSo) {
  ASSERT_TRUE(WriteWhole(In("a.zk"), "old"));
  ASSERT_EQ(chmod(In("a.zk").c_str(), 0600), 0);
  ASSERT_TRUE(WriteWhole(In("a.zk"), "new"));
  EXPECT_EQ(fs::status(In("a.zk")).permissions(), fs::perms(0600));
}

TEST_F(WholeFile, BehindALinkIsReplacedAndTheLinkStays) {
  fs::create_directory(In("elsewhere"));
  ASSERT_TRUE(WriteWhole(In("elsewhere/a.zk"), "old"));
  fs::create_symlink(In("elsewhere/a.zk"), In("link.zk"));
  ASSERT_TRUE(WriteWhole(In("link.zk"), "new"));
  EXPECT_TRUE(fs::is_symlink(In("link.zk")));
  EXPECT_EQ(*ReadWhole(In("elsewhere/a.zk")), "new");
}

TEST_F(WholeFile, IsWrittenByARelativePath) {
  const fs::path before = fs::current_path();
  fs::current_path(path_);
  const auto written = WriteWhole("a.zk", "here");
  fs::current_path(before);
  ASSERT_TRUE(written) << written.Message();
  EXPECT_EQ(*ReadWhole(In("a.zk")), "here");
}

TEST_F(WholeFile, ThatIsNotThereFailsWithItsPath) {
  const auto bytes = ReadWhole(In("none.zk"));
  ASSERT_FALSE(bytes);
  EXPECT_EQ(bytes.Message(), "cannot read " + In("none.zk") + ": No such file or directory");
}

TEST_F(WholeFile, ThatIsAFolderFailsWithItsPath) {
  const auto bytes = ReadWhole(path_);
  ASSERT_FALSE(bytes);
  EXPECT_EQ(bytes.Message(), "cannot read " + path_ + ": Is a directory");
}

TEST_F(WholeFile, ThatIsLargerThanAnyOfTheGameFails) {
  ASSERT_TRUE(WriteWhole(In("a.zk"), ""));
  fs::resize_file(In("a.zk"), (std::uintmax_t{256} << 20U) + 1);
  const auto bytes = ReadWhole(In("a.zk"));
  ASSERT_FALSE(bytes);
  EXPECT_EQ(bytes.Message(), "cannot read " + In("a.zk") + ": the file is too large");
}

// A pipe that nobody writes into would be waited for without end.
TEST_F(WholeFile, IsNeverReadFromAPipeADeviceOrASocket) {
  alarm(10);
  ASSERT_EQ(mkfifo(In("a.zk").c_str(), 0666), 0);
  fs::create_symlink(In("a.zk"), In("link.zk"));
  for (const std::string& path : {In("a.zk"), In("link.zk"), std::string("/dev/zero")}) {
    const auto bytes = ReadWhole(path);
    ASSERT_FALSE(bytes) << path;
    EXPECT_EQ(bytes.Message(), "cannot read " + path + ": it is no regular file");
    EXPECT_FALSE(IsReadableFile(path)) << path;
  }
  ASSERT_EQ(mknod(In("socket").c_str(), S_IFSOCK | 0666, 0), 0);
  EXPECT_FALSE(ReadWhole(In("socket")));
  EXPECT_FALSE(IsReadableFile(path_));
  EXPECT_FALSE(IsReadableFile(In("none")));
  ASSERT_TRUE(WriteWhole(In("b.zk"), ""));
  EXPECT_TRUE(IsReadableFile(In("b.zk")));
  alarm(0);
}

TEST_F(WholeFile, OfACommandLineMayBeAPipe) {
  int ends[2] = {};
  ASSERT_EQ(pipe(ends), 0);
  ASSERT_EQ(write(ends[1], "run", 3), 3);
  close(ends[1]);
  const auto bytes = ReadStream("/dev/fd/" + std::to_string(ends[0]));
  close(ends[0]);
  ASSERT_TRUE(bytes) << bytes.Message();
  EXPECT_EQ(*bytes, "run");
}

TEST_F(WholeFile, DoesNotTakeThePlaceOfAPipe) {
  ASSERT_EQ(mkfifo(In("a.zk").c_str(), 0666), 0);
  const auto written = WriteWhole(In("a.zk"), "bytes");
  ASSERT_FALSE(written);
  EXPECT_EQ(written.Message(), "cannot write " + In("a.zk") + ": it is no regular file");
  EXPECT_TRUE(fs::is_fifo(In("a.zk")));
  EXPECT_EQ(Entries(), Names{"a.zk"});
}

TEST_F(WholeFile, IsWrittenInPlaceOfALinkThatLeadsNowhere) {
  fs::create_symlink(In("none/a.zk"), In("link.zk"));
  EXPECT_FALSE(ReadWhole(In("link.zk")));
  ASSERT_TRUE(WriteWhole(In("link.zk"), "kept"));
  EXPECT_EQ(*ReadWhole(In("link.zk")), "kept");
}

// The system would take the beginning for the whole name.
TEST_F(WholeFile, HasNoNameWithAZeroByte) {
  ASSERT_TRUE(WriteWhole(In("a.zk"), "old"));
  const std::string name = In("a.zk") + std::string(1, '\0') + ".zkr";
  EXPECT_FALSE(WriteWhole(name, "new"));
  EXPECT_FALSE(ReadWhole(name));
  EXPECT_EQ(*ReadWhole(In("a.zk")), "old");
}

TEST_F(WholeFile, InAFolderThatIsNotThereIsNotWritten) {
  const auto written = WriteWhole(In("none/a.zk"), "bytes");
  ASSERT_FALSE(written);
  EXPECT_EQ(written.Message(), "cannot write " + In("none/a.zk") + ": No such file or directory");
}

TEST_F(WholeFile, DoesNotTakeThePlaceOfAFolder) {
  fs::create_directory(In("a.zk"));
  const auto written = WriteWhole(In("a.zk"), "bytes");
  ASSERT_FALSE(written);
  EXPECT_EQ(written.Message(), "cannot write " + In("a.zk") + ": Is a directory");
  EXPECT_EQ(Entries(), Names{"a.zk"});
}

// A limit on the size of files stands for a disk that is full after a few bytes.
TEST_F(WholeFile, StaysAsItWasWhenTheDiskIsFull) {
  ASSERT_TRUE(WriteWhole(In("a.zk"), "the old content"));
  rlimit before = {};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
  const auto handler = signal(SIGXFSZ, SIG_IGN);
  rlimit small = before;
  small.rlim_cur = 4;
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
  const auto written = WriteWhole(In("a.zk"), "the new content");
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
  signal(SIGXFSZ, handler);
  ASSERT_FALSE(written);
  EXPECT_EQ(written.Message(), "cannot write " + In("a.zk") + ": File too large");
  EXPECT_EQ(*ReadWhole(In("a.zk")), "the old content");
  EXPECT_EQ(Entries(), Names{"a.zk"});
}

TEST_F(WholeFile, PassesOverWhatAnEarlierCrashLeft) {
  const std::string leftover = ".zorik-" + std::to_string(getpid()) + "-0.tmp";
  ASSERT_TRUE(WriteWhole(In(leftover), "half"));
  ASSERT_TRUE(WriteWhole(In("a.zk"), "whole"));
  EXPECT_EQ(*ReadWhole(In("a.zk")), "whole");
  EXPECT_EQ(*ReadWhole(In(leftover)), "half");
}

TEST_F(WholeFile, IsNotWrittenWhenAHundredCrashesLeftSomething) {
  for (int i = 0; i < 100; ++i) {
    const std::string leftover = ".zorik-" + std::to_string(getpid()) + "-" + std::to_string(i) + ".tmp";
    fs::create_directory(In(leftover));
  }
  const auto written = WriteWhole(In("a.zk"), "whole");
  ASSERT_FALSE(written);
  EXPECT_EQ(written.Message(), "cannot write " + In("a.zk") + ": File exists");
}

// Half a file can only have a name that tells who was writing it.
TEST_F(WholeFile, IsWrittenUnderANameThatTellsTheProcess) {
  const pid_t child = fork();
  if (child == 0) {
    const rlimit small{4, 4};
    setrlimit(RLIMIT_FSIZE, &small);
    Disregard(WriteWhole(In("a.zk"), "more than the limit"));  // it dies of that
    _exit(0);
  }
  int status = 0;
  waitpid(child, &status, 0);
  ASSERT_TRUE(WIFSIGNALED(status)) << "the system stops who goes beyond the limit";
  ASSERT_EQ(Entries().size(), 1U);
  EXPECT_EQ(WriterOf(Entries()[0]), child);
}

TEST(WriterOf, IsNothingForNamesThatTheGameDoesNotGive) {
  EXPECT_EQ(WriterOf(".zorik-12-0.tmp"), 12);
  EXPECT_EQ(WriterOf(".zorik-12-99.tmp"), 12);
  for (const char* name :
       {"", "a.zk", ".zorik-", ".zorik-12.tmp", ".zorik-12-.tmp", ".zorik--12-0.tmp", ".zorik-12-0.tmp~",
        ".zorik-12-0", ".zorik-012-0.tmp", ".zorik-12-00.tmp", ".zorik-12-100.tmp", ".zorik-0-0.tmp",
        ".zorik-12-0-0.tmp", ".zorik-1x-0.tmp", ".Zorik-12-0.tmp", ".zorik-99999999999-0.tmp",
        "x.zorik-12-0.tmp", ".zorik-+1-0.tmp"}) {
    EXPECT_EQ(WriterOf(name), std::nullopt) << name;
  }
}

TEST_F(FileSystemNames, AreUtf8) {
  EXPECT_EQ(FileSystemName("Zor\xEDk.zkr"), "Zorík.zkr");
}

TEST_F(FileSystemNames, LoseZeroBytesAndSlashes) {
  EXPECT_EQ(FileSystemName(std::string("a\0b/c\\d", 7)), "abcd");
}

TEST_F(FileSystemNames, LoseControlCharacters) {
  std::string name = "x";
  for (const char control : {'\n', '\r', '\t', '\x01', '\x1B', '\x7F', '\x81', '\x98'}) name += control;
  EXPECT_EQ(FileSystemName(name + "y.zkr"), "xy.zkr");
}

TEST_F(FileSystemNames, WithControlCharactersOfOlderGamesAreFoundAndReplaced) {
  ASSERT_TRUE(WriteWhole(In("Sa\nda - C\xC2\x81.zkr"), "old run"));
  const std::string path = ResolvePath(In(FileSystemName("Sa\nda - C\x81.zkr")));
  EXPECT_EQ(*ReadWhole(path), "old run");
  ASSERT_TRUE(WriteWhole(path, "new run"));
  EXPECT_EQ(Entries().size(), 1U);
}

TEST_F(FileSystemNames, NeverLeadToTheFolderItselfOrTheOneAboveIt) {
  EXPECT_EQ(FileSystemName("."), "_");
  EXPECT_EQ(FileSystemName(".."), "__");
  EXPECT_EQ(FileSystemName("/../"), "__");
  EXPECT_EQ(FileSystemName("..."), "...");
}

TEST_F(FileSystemNames, StayWholeUpTo255Bytes) {
  const std::string longest = std::string(251, 'a') + ".zkr";
  EXPECT_EQ(FileSystemName(longest), longest);
  const std::string accented = std::string(1, 'a') + std::string(125, '\xE1') + ".zkr";  // two bytes each
  EXPECT_EQ(FileSystemName(accented).size(), 255U);
  EXPECT_EQ(FileSystemName(accented), ToUtf8(accented));
}

TEST_F(FileSystemNames, TooLongForTheFileSystemAreShortenedAndCanBeWritten) {
  for (const std::string& name :
       {std::string(380, 'a'), std::string(380, '\xE1'), "x" + std::string(380, '\xE1'),
        "x" + std::string(380, '\x80'), "xx" + std::string(380, '\x80')}) {
    const std::string shortened = FileSystemName(name + ".zkr");
    EXPECT_LE(shortened.size(), 255U);
    EXPECT_TRUE(FromUtf8(shortened));
    EXPECT_TRUE(shortened.ends_with(".zkr"));
    EXPECT_TRUE(ToUtf8(name).starts_with(shortened.substr(0, 200)));
    const auto written = WriteWhole(In(shortened), "run");
    EXPECT_TRUE(written) << written.Message();
  }
}

TEST_F(FileSystemNames, TooLongKeepNoExtensionThatIsNone) {
  const std::string shortened = FileSystemName("a." + std::string(300, 'b'));
  EXPECT_EQ(shortened.size(), 255U);
  EXPECT_EQ(shortened[255 - 17], '~');
}

TEST_F(FileSystemNames, TooLongKeepAnExtensionOfFifteenLetters) {
  const std::string longest = "." + std::string(15, 'e');
  EXPECT_TRUE(FileSystemName(std::string(300, 'x') + longest).ends_with(longest));
  EXPECT_FALSE(FileSystemName(std::string(300, 'x') + longest + "e").ends_with("ee"));
}

TEST_F(FileSystemNames, TooLongDifferWhereTheWholeNamesDiffer) {
  const std::string start(300, 'a');
  EXPECT_NE(FileSystemName(start + "1.zkr"), FileSystemName(start + "2.zkr"));
}

TEST_F(FileSystemNames, TooLongAreFoundWithoutRegardToCase) {
  const std::string name = RecordFileName(std::string(190, '\xC1'), std::string(190, 'B'));
  ASSERT_TRUE(WriteWhole(In(FileSystemName(name)), "run"));
  const std::string other = FileSystemName(LowerCase(name));
  EXPECT_NE(other, FileSystemName(name));
  EXPECT_EQ(*ReadWhole(ResolvePath(In(other))), "run");
}

TEST_F(ResolvedPath, IsThePathItselfWhenItIsThere) {
  ASSERT_TRUE(WriteWhole(In("a.zk"), ""));
  EXPECT_EQ(ResolvePath(In("a.zk")), In("a.zk"));
}

TEST_F(ResolvedPath, IsFoundWithoutRegardToCaseComponentByComponent) {
  fs::create_directories(In("Hráči/MORVEK"));
  ASSERT_TRUE(WriteWhole(In("Hráči/MORVEK/Šedá Jeskyně.zkr"), ""));
  EXPECT_EQ(ResolvePath(In("hRÁČI/morvek/ŠEDÁ jeskyně.ZKR")), In("Hráči/MORVEK/Šedá Jeskyně.zkr"));
}

TEST_F(ResolvedPath, TakesBothSeparators) {
  fs::create_directories(In("Skins/Default"));
  EXPECT_EQ(ResolvePath(path_ + "\\SKINS\\default"), In("Skins/Default"));
}

TEST_F(ResolvedPath, MayHoldABackslashThatIsPartOfAName) {
  ASSERT_TRUE(WriteWhole(In("a\\b.zk"), ""));
  EXPECT_EQ(ResolvePath(In("a\\b.zk")), In("a\\b.zk"));
}

TEST_F(ResolvedPath, PrefersTheExactName) {
  ASSERT_TRUE(WriteWhole(In("A.zk"), ""));
  ASSERT_TRUE(WriteWhole(In("a.zk"), ""));
  EXPECT_EQ(ResolvePath(In("a.zk")), In("a.zk"));
  EXPECT_EQ(ResolvePath(In("A.zk")), In("A.zk"));
}

TEST_F(ResolvedPath, PrefersTheExactFolder) {
  fs::create_directories(In("Sada"));
  fs::create_directories(In("sada"));
  ASSERT_TRUE(WriteWhole(In("sada/A.zk"), ""));
  EXPECT_EQ(ResolvePath(In("sada/a.zk")), In("sada/A.zk"));
}

TEST_F(ResolvedPath, TakesTheFirstOfSeveralInByteOrder) {
  ASSERT_TRUE(WriteWhole(In("SADA.zk"), ""));
  ASSERT_TRUE(WriteWhole(In("Sada.zk"), ""));
  EXPECT_EQ(ResolvePath(In("sada.zk")), In("SADA.zk"));
}

TEST_F(ResolvedPath, FindsNamesThatAreWrittenInWindows1250) {
  ASSERT_TRUE(WriteWhole(In("k\xF9\xF2.zk"), ""));
  EXPECT_EQ(ResolvePath(In("Kůň.zk")), In("k\xF9\xF2.zk"));
}

TEST_F(ResolvedPath, StaysAsGivenFromTheFirstMissingComponent) {
  fs::create_directory(In("Players"));
  EXPECT_EQ(ResolvePath(In("PLAYERS/New/Run.zkr")), In("Players/New/Run.zkr"));
  EXPECT_EQ(ResolvePath(In("PLAYERS\\New")), In("Players/New"));
}

TEST_F(ResolvedPath, MayBeRelativeOrEmpty) {
  const fs::path before = fs::current_path();
  fs::current_path(path_);
  ASSERT_TRUE(WriteWhole("Sada.zk", ""));
  const std::string resolved = ResolvePath("SADA.ZK");
  fs::current_path(before);
  EXPECT_EQ(resolved, "Sada.zk");
  EXPECT_EQ(ResolvePath(""), "");
}

TEST_F(ResolvedPath, MayHoldPointsAndEndInASeparator) {
  fs::create_directory(In("Skins"));
  EXPECT_EQ(ResolvePath(In("./x/../SKINS/")), In("./x/../SKINS/"));
  EXPECT_EQ(ResolvePath(In("./SKINS/")), In("./Skins/"));
}

}  // namespace
}  // namespace zorik
