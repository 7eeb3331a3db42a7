// Why a file could not be read or written.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cerrno>
#include <filesystem>

#include "data/FileTrouble.h"
#include "data/Files.h"
#include "support/AsNobody.h"
#include "support/TempFolder.h"

namespace zorik {
namespace {

class FileTroubleTest : public testing::Test {
 protected:
  std::string Path(const std::string& name) const { return temp_.Path() + "/" + name; }
  FileTrouble OfReading(const std::string& name) const {
    const auto read = ReadFile(Path(name));
    EXPECT_FALSE(read) << name;
    return read ? FileTrouble::Other : read.Why().Trouble;
  }
  FileTrouble OfWriting(const std::string& name) const {
    const auto written = WriteFile(Path(name), "x");
    EXPECT_FALSE(written) << name;
    return written ? FileTrouble::Other : written.Why().Trouble;
  }

  test::TempFolder temp_{"trouble"};
};

TEST_F(FileTroubleTest, IsToldOfWhatIsNotThere) {
  ASSERT_TRUE(WriteFile(Path("soubor"), "x"));
  EXPECT_EQ(OfReading("neni"), FileTrouble::NoFile);
  EXPECT_EQ(OfWriting("neni/a"), FileTrouble::NoFolder);
  EXPECT_EQ(OfWriting("soubor/a"), FileTrouble::NoFolder);
  EXPECT_EQ(OfReading("soubor/a"), FileTrouble::NoFolder);
}

TEST_F(FileTroubleTest, IsToldOfWhatIsNoFile) {
  std::filesystem::create_directory(Path("slozka"));
  ASSERT_EQ(mkfifo(Path("roura").c_str(), 0600), 0);
  EXPECT_EQ(OfReading("slozka"), FileTrouble::IsFolder);
  EXPECT_EQ(OfWriting("slozka"), FileTrouble::IsFolder);
  EXPECT_EQ(OfReading("roura"), FileTrouble::NoPlainFile);
  EXPECT_EQ(OfWriting("roura"), FileTrouble::NoPlainFile);
}

TEST_F(FileTroubleTest, IsToldOfWhatIsForbidden) {
  ASSERT_TRUE(WriteFile(Path("soubor"), "x"));
  std::filesystem::create_directory(Path("slozka"));
  std::filesystem::permissions(temp_.Path(), std::filesystem::perms{0755});
  std::filesystem::permissions(Path("soubor"), std::filesystem::perms::none);
  std::filesystem::permissions(Path("slozka"), std::filesystem::perms::none);
  const test::AsNobody nobody;
  EXPECT_EQ(OfReading("soubor"), FileTrouble::NotAllowed);
  EXPECT_EQ(OfWriting("slozka/a"), FileTrouble::NotAllowed);
}

TEST_F(FileTroubleTest, IsToldOfANameThatIsTooLong) {
  EXPECT_EQ(OfWriting(std::string(300, 'x')), FileTrouble::NameTooLong);
}

TEST_F(FileTroubleTest, IsToldOfWhatTheDiskSays) {
  EXPECT_EQ(TroubleOf(ENOSPC, FileUse::Write), FileTrouble::DiskFull);
  EXPECT_EQ(TroubleOf(EDQUOT, FileUse::Write), FileTrouble::DiskFull);
  EXPECT_EQ(TroubleOf(EROFS, FileUse::Write), FileTrouble::ReadOnly);
  EXPECT_EQ(TroubleOf(EIO, FileUse::Read), FileTrouble::DiskFault);
  EXPECT_EQ(TroubleOf(EINVAL, FileUse::Read), FileTrouble::Other);
}

}  // namespace
}  // namespace zorik
