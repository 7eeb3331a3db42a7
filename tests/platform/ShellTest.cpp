#include <gtest/gtest.h>
#include <unistd.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <cstdio>

#include "data/Files.h"
#include "data/Result.h"
#include "platform/PathText.h"
#include "platform/Shell.h"
#include "support/DesktopStandIn.h"

namespace zorik {
namespace {

using test::DesktopStandIn;

class ShellTest : public testing::Test {
 protected:
  OpenFailed Counting() {
    return [this] { ++failures_; };
  }

  QString NewFile(const QString& name) const {
    QFile file(folder_.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    return file.fileName();
  }

  bool Failed() const {
    return QTest::qWaitFor([this] { return failures_ > 0; }, 5000);
  }

  QTemporaryDir folder_;
  int failures_ = 0;
};

TEST_F(ShellTest, OpensAFileWhateverItsName) {
  for (const char* name : {"dopis.eml", "se mezerou.html", "kůň & \"pes\" $HOME %20.txt", "-x"}) {
    const DesktopStandIn desktop(0);
    const QString path = NewFile(name);
    OpenFile(path, Counting());
    EXPECT_EQ(desktop.Opened(), path);
  }
  QTest::qWait(50);
  EXPECT_EQ(failures_, 0);
}

TEST_F(ShellTest, OpensAFileWhoseNameIsNoUtf8) {
  const DesktopStandIn desktop(0);
  const std::string path = folder_.path().toStdString() + "/dopis \xE1.eml";
  ASSERT_TRUE(WriteWhole(path, "x"));
  OpenFile(PathText(path), Counting());
  EXPECT_EQ(desktop.Opened(), "file://" + folder_.path() + "/dopis%20%E1.eml");
  EXPECT_EQ(failures_, 0);
  std::remove(path.c_str());  // the toolkit's folder cannot
}

TEST_F(ShellTest, TellsThatAFileIsNotThere) {
  const DesktopStandIn desktop(0);
  OpenFile(folder_.filePath("neni.html"), Counting());
  EXPECT_EQ(failures_, 1);
  EXPECT_FALSE(desktop.Called());
}

TEST_F(ShellTest, TellsThatTheDesktopHasNoProgramForIt) {
  const DesktopStandIn desktop(3);
  OpenFile(NewFile("dopis.eml"), Counting());
  EXPECT_TRUE(Failed());
  OpenLink(QUrl("https://example.org/"), Counting());
  EXPECT_TRUE(QTest::qWaitFor([this] { return failures_ == 2; }, 5000));
}

// Whoever ends the game in its terminal does not end what it has opened.
TEST_F(ShellTest, OpensInASessionOfItsOwn) {
  const DesktopStandIn desktop(0);
  OpenFile(NewFile("dopis.eml"), Counting());
  ASSERT_FALSE(desktop.Opened().isEmpty());
  EXPECT_GT(desktop.Session(), 1);
  EXPECT_NE(desktop.Session(), getsid(0));
}

// The opener is a script of a language that nobody has installed.
TEST_F(ShellTest, TellsThatTheDesktopsOpenerDoesNotStart) {
  QFile opener(folder_.filePath("xdg-open"));
  ASSERT_TRUE(opener.open(QIODevice::WriteOnly));
  opener.write("#!/neni/jazyk\n");
  opener.setPermissions(QFile::ReadOwner | QFile::ExeOwner | QFile::WriteOwner);
  opener.close();
  const QByteArray path = qgetenv("PATH");
  qputenv("PATH", QFile::encodeName(folder_.path()));
  OpenFile(NewFile("dopis.eml"), Counting());
  const bool failed = Failed();
  qputenv("PATH", path);
  EXPECT_TRUE(failed);
  EXPECT_EQ(failures_, 1);
}

TEST_F(ShellTest, OpensAPageWithItsPercentSigns) {
  const DesktopStandIn desktop(0);
  OpenLink(QUrl("https://example.org/a%20b?c=d#e"), Counting());
  EXPECT_EQ(desktop.Opened(), "https://example.org/a%20b?c=d#e");
}

TEST_F(ShellTest, TellsOfALinkThatIsNone) {
  const DesktopStandIn desktop(0);
  OpenLink(QUrl(), Counting());
  OpenLink(QUrl("bez schematu"), Counting());
  EXPECT_EQ(failures_, 2);
  EXPECT_FALSE(desktop.Called());
}

TEST_F(ShellTest, WritesALetterInPercentEncodedUtf8) {
  EXPECT_EQ(MailLink("jan@x.cz", "Sada 'Jeskyně' & kůň").toEncoded(),
            "mailto:jan@x.cz?subject=Sada%20%27Jeskyn%C4%9B%27%20%26%20k%C5%AF%C5%88");
}

TEST_F(ShellTest, HandsALetterOverAsItIsEncoded) {
  const DesktopStandIn desktop(0);
  OpenLink(MailLink("a b@x.cz", "Č?"), Counting());
  EXPECT_EQ(desktop.Opened(), "mailto:a%20b@x.cz?subject=%C4%8C%3F");
}

}  // namespace
}  // namespace zorik
