#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <csignal>
#include <cstdlib>
#include <future>
#include <memory>
#include <utility>
#include <vector>

#include "data/Result.h"
#include "platform/Inbox.h"
#include "platform/PathText.h"
#include "support/TempFolder.h"

namespace zorik {
namespace {

constexpr int kPatience = 5000;

class InboxTest : public testing::Test {
 protected:
  void Open() {
    inbox_ = std::make_unique<Inbox>(Place());
    inbox_->Deliver([this](const QString& path) { arrived_.push_back(path); });
  }

  QString Place() const { return QString::fromStdString(sockets_.Path()) + "/socket"; }

  // From another thread, as the game must be free to answer.
  bool HandOverMeanwhile(const QString& path) const {
    auto done = std::async(std::launch::async, [&] { return static_cast<bool>(HandOver(path, Place())); });
    while (done.wait_for(std::chrono::milliseconds(0)) != std::future_status::ready) QTest::qWait(5);
    return done.get();
  }

  bool Arrived(qsizetype count) const {
    return QTest::qWaitFor([&] { return arrived_.size() >= count; }, kPatience);
  }

  QTemporaryDir folder_;
  const test::TempFolder sockets_{"inbox", test::TempFolder::kShort};
  std::unique_ptr<Inbox> inbox_;
  QStringList arrived_;
};

TEST_F(InboxTest, TakesAPathWhateverItsName) {
  Open();
  ASSERT_TRUE(inbox_->Listening());
  const QStringList paths = {"/a/b.zk", "/kůň s mezerou/Žába.zkr", "/two\nlines.zk", "/x",
                             PathText("/Hr\xE1\xE8/Sk\xE1la.zk")};
  for (const QString& path : paths) EXPECT_TRUE(HandOverMeanwhile(path));
  EXPECT_TRUE(Arrived(paths.size()));
  EXPECT_EQ(arrived_, paths);
}

TEST_F(InboxTest, NobodyTakesAPathWithoutAGame) {
  EXPECT_FALSE(HandOver("/a.zk", Place()));
}

TEST_F(InboxTest, TakesAPathFromWhoWaitsForAGameThatIsJustStarting) {
  auto done =
      std::async(std::launch::async, [&] { return static_cast<bool>(HandOverPatiently("/a.zk", Place())); });
  EXPECT_EQ(done.wait_for(std::chrono::milliseconds(300)), std::future_status::timeout);
  Open();
  EXPECT_TRUE(Arrived(1));
  EXPECT_TRUE(done.get());
}

TEST_F(InboxTest, OnlyTheFirstOfTwoGamesListens) {
  Open();
  EXPECT_FALSE(inbox_->Taken());
  QStringList others;
  Inbox second(Place());
  second.Deliver([&](const QString& path) { others.push_back(path); });
  EXPECT_TRUE(second.Taken());
  EXPECT_FALSE(second.Listening());
  EXPECT_TRUE(HandOverMeanwhile("/a.zk"));
  EXPECT_TRUE(Arrived(1));
  EXPECT_TRUE(others.isEmpty());
}

TEST_F(InboxTest, LeavesItsPlaceToTheNextGame) {
  Open();
  inbox_.reset();
  Open();
  EXPECT_FALSE(inbox_->Taken());
  EXPECT_TRUE(HandOverMeanwhile("/a.zk"));
}

TEST_F(InboxTest, TakesTheWishToSeeTheGameForAnEmptyPath) {
  Open();
  EXPECT_TRUE(HandOverMeanwhile(""));
  EXPECT_TRUE(Arrived(1));
  EXPECT_EQ(arrived_, QStringList{""});
}

TEST_F(InboxTest, KeepsWhatComesBeforeAnybodyIsThereToBeTold) {
  inbox_ = std::make_unique<Inbox>(Place());
  EXPECT_TRUE(HandOverMeanwhile("/a.zk"));
  QTest::qWait(50);
  inbox_->Deliver([this](const QString& path) { arrived_.push_back(path); });
  EXPECT_TRUE(Arrived(1));
  EXPECT_EQ(arrived_, QStringList{"/a.zk"});
}

TEST_F(InboxTest, AGameWithoutARuntimeFolderGoesOnByItself) {
  const Inbox inbox(folder_.filePath("neni/socket"));
  EXPECT_FALSE(inbox.Taken());
  EXPECT_FALSE(inbox.Listening());
}

TEST_F(InboxTest, HasAPlaceForEachHomeHoweverTheWayToItIsWritten) {
  const std::string home = folder_.path().toStdString();
  ASSERT_TRUE(QDir(folder_.path()).mkpath("a/b"));
  ASSERT_TRUE(QFile::link(folder_.filePath("a"), folder_.filePath("odkaz")));
  EXPECT_EQ(InboxPlace(home + "/a"), InboxPlace(home + "/a/b/.."));
  EXPECT_EQ(InboxPlace(home + "/a"), InboxPlace(home + "/odkaz"));
  EXPECT_NE(InboxPlace(home + "/a"), InboxPlace(home + "/b"));
}

// Another process with the inbox of this place: it says over a pipe whether it listens, and lives until it
// is told to end.
class OtherGame {
 public:
  explicit OtherGame(const QString& place) {
    int answer[2];
    EXPECT_EQ(pipe(answer), 0);
    answer_ = answer[0];
    process_ = fork();
    if (process_ == 0) {
      const Inbox inbox(place);
      const char listens = inbox.Listening() && !inbox.Taken() ? '+' : '-';
      if (write(answer[1], &listens, 1) == 1) pause();
      _exit(0);
    }
    close(answer[1]);
  }
  ~OtherGame() {
    Kill();
    close(answer_);
  }
  OtherGame(const OtherGame&) = delete;
  OtherGame& operator=(const OtherGame&) = delete;

  bool Listens() const {
    char answer = 0;
    return read(answer_, &answer, 1) == 1 && answer == '+';
  }

  void Kill() {
    if (process_ <= 0) return;
    kill(process_, SIGKILL);
    waitpid(std::exchange(process_, 0), nullptr, 0);
  }

 private:
  pid_t process_ = 0;
  int answer_ = -1;
};

TEST_F(InboxTest, TakesThePlaceOfAGameThatWasKilled) {
  {
    OtherGame other(Place());
    ASSERT_TRUE(other.Listens());
    EXPECT_TRUE(Inbox(Place()).Taken());
    other.Kill();
  }
  ASSERT_TRUE(QFileInfo::exists(Place())) << "it could not take its socket away";
  Open();
  EXPECT_FALSE(inbox_->Taken());
  EXPECT_TRUE(inbox_->Listening());
  EXPECT_TRUE(HandOverMeanwhile("/a.zk"));
}

TEST_F(InboxTest, OneOfManyGamesThatStartAtTheSameMomentListens) {
  for (int round = 0; round < 10; ++round) {
    std::vector<std::unique_ptr<OtherGame>> games;
    for (int i = 0; i < 6; ++i) games.push_back(std::make_unique<OtherGame>(Place()));
    int listening = 0;
    for (const auto& game : games) listening += game->Listens() ? 1 : 0;
    EXPECT_EQ(listening, 1) << "round " << round << "; the killed ones of the last round are in the way";
  }
}

TEST_F(InboxTest, TakesThePlaceOfAGameThatCrashed) {
  {
    QLocalServer crashed;
    ASSERT_TRUE(crashed.listen(Place()));
    // A server that is closed takes its socket away; one that crashed leaves it.
    ASSERT_TRUE(QFile::rename(Place(), Place() + ".kept"));
  }
  ASSERT_TRUE(QFile::rename(Place() + ".kept", Place()));
  Open();
  EXPECT_TRUE(inbox_->Listening());
  EXPECT_TRUE(HandOverMeanwhile("/a.zk"));
  EXPECT_TRUE(Arrived(1));
}

TEST_F(InboxTest, IsOpenToItsUserAlone) {
  Open();
  struct stat status = {};
  ASSERT_EQ(stat(QFile::encodeName(Place()), &status), 0);
  EXPECT_EQ(status.st_mode & 077U, 0U);
}

TEST_F(InboxTest, LeavesNoSocketBehind) {
  Open();
  inbox_.reset();
  EXPECT_FALSE(QFileInfo::exists(Place()));
}

TEST_F(InboxTest, WaitsForAMessageThatComesInPieces) {
  Open();
  QLocalSocket guest;
  guest.connectToServer(Place());
  ASSERT_TRUE(guest.waitForConnected(kPatience));
  for (const char* piece : {"/a", "/b", ".zk"}) {
    guest.write(piece);
    guest.flush();
    QTest::qWait(20);
    EXPECT_TRUE(arrived_.isEmpty());
  }
  guest.write("\0", 1);
  guest.flush();
  EXPECT_TRUE(Arrived(1));
  EXPECT_EQ(arrived_, QStringList{"/a/b.zk"});
}

TEST_F(InboxTest, SeesOffWhoHasBeenHeard) {
  Open();
  QLocalSocket guest;
  guest.connectToServer(Place());
  ASSERT_TRUE(guest.waitForConnected(kPatience));
  guest.write("/a.zk", 6);
  const auto seenOff = [&] { return guest.state() == QLocalSocket::UnconnectedState; };
  EXPECT_TRUE(QTest::qWaitFor(seenOff, kPatience));
  EXPECT_TRUE(Arrived(1));
}

TEST_F(InboxTest, TurnsAwayWhoSaysNothingOrTooMuch) {
  Open();
  {
    QLocalSocket silent;
    silent.connectToServer(Place());
    ASSERT_TRUE(silent.waitForConnected(kPatience));
    QTest::qWait(20);
  }
  QLocalSocket chatty;
  chatty.connectToServer(Place());
  ASSERT_TRUE(chatty.waitForConnected(kPatience));
  chatty.write(QByteArray(200000, 'x'));
  EXPECT_TRUE(QTest::qWaitFor([&] { return chatty.state() == QLocalSocket::UnconnectedState; }, kPatience));
  EXPECT_TRUE(arrived_.isEmpty());
  EXPECT_TRUE(HandOverMeanwhile("/a.zk"));
}

TEST_F(InboxTest, MayBeAnsweredByADialog) {
  bool over = false;
  Inbox inbox(Place());
  inbox.Deliver([&](const QString&) {
    QEventLoop dialog;
    QTimer::singleShot(100, &dialog, &QEventLoop::quit);
    dialog.exec();
    over = true;
  });
  EXPECT_TRUE(HandOverMeanwhile("/a.zk"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return over; }, kPatience));
  EXPECT_TRUE(HandOverMeanwhile("/b.zk"));
}

TEST(TakeFileFromStart, AnswersThePathOnce) {
  EXPECT_EQ(TakeFileFromStart(), "");
  qputenv(kOpenVariable, "/kůň.zk");
  EXPECT_EQ(TakeFileFromStart(), "/kůň.zk");
  qputenv(kOpenVariable, "/k\xF9\xF2.zk");
  EXPECT_EQ(PathBytes(TakeFileFromStart()), "/k\xF9\xF2.zk");
  EXPECT_EQ(TakeFileFromStart(), "");
}

// The program itself, in a folder with a stand-in for the game that writes down what it is started for.
class DownloaderTest : public InboxTest {
 protected:
  void SetUp() override {
    ASSERT_TRUE(QFile::copy(ZORIK_DOWNLOADER, folder_.filePath("downloader")));
    QFile game(folder_.filePath("zorik"));
    ASSERT_TRUE(game.open(QIODevice::WriteOnly));
    game.write("#!/bin/sh\nprintf '%s' \"$ZORIK_OPEN\" >'" + folder_.filePath("started").toUtf8() + "'\n");
    game.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    runtime_ = qgetenv("XDG_RUNTIME_DIR");
    qputenv("XDG_RUNTIME_DIR", sockets_.Path().c_str());
    qputenv("ZORIK_HOME", folder_.filePath("domov").toUtf8());
  }
  ~DownloaderTest() override {
    if (!runtime_.isEmpty()) qputenv("XDG_RUNTIME_DIR", runtime_);
    qunsetenv("ZORIK_HOME");
  }

  // Answers the exit code.
  int Run(const QStringList& arguments) const {
    QProcess program;
    program.setWorkingDirectory(folder_.path());
    program.start(folder_.filePath("downloader"), arguments);
    while (program.state() != QProcess::NotRunning) QTest::qWait(5);
    return program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1;
  }

  QString Started() const {
    QString started;
    const auto read = [&] {
      QFile file(folder_.filePath("started"));
      if (file.open(QIODevice::ReadOnly)) started = QString::fromUtf8(file.readAll());
      return !started.isEmpty();
    };
    static_cast<void>(QTest::qWaitFor(read, kPatience));
    return started;
  }

  QByteArray runtime_;
};

TEST_F(DownloaderTest, HandsTheAbsolutePathToTheRunningGame) {
  Inbox game(InboxPlace(folder_.filePath("domov").toStdString()));
  game.Deliver([this](const QString& path) { arrived_.push_back(path); });
  ASSERT_TRUE(game.Listening());
  EXPECT_EQ(Run({"kůň s mezerou.zk"}), 0);
  EXPECT_EQ(Run({"/jinde/x.zkr"}), 0);
  EXPECT_EQ(Run({"file:///jinde/a%20b.zk"}), 0);
  EXPECT_TRUE(Arrived(3));
  EXPECT_EQ(arrived_, (QStringList{folder_.filePath("kůň s mezerou.zk"), "/jinde/x.zkr", "/jinde/a b.zk"}));
  EXPECT_FALSE(QFileInfo::exists(folder_.filePath("started")));
}

TEST_F(DownloaderTest, HandsNothingToTheGameOfAnotherHome) {
  Inbox game(InboxPlace(folder_.filePath("jinde").toStdString()));
  game.Deliver([this](const QString& path) { arrived_.push_back(path); });
  ASSERT_TRUE(game.Listening());
  EXPECT_EQ(Run({"x.zk"}), 0);
  EXPECT_EQ(Started(), folder_.filePath("x.zk"));
  EXPECT_TRUE(arrived_.isEmpty());
}

// As a game does that is built with its skins beside it.
TEST_F(DownloaderTest, FindsTheHomeOfTheGameBesideIt) {
  qunsetenv("ZORIK_HOME");
  ASSERT_TRUE(QDir(folder_.path()).mkpath("Skins"));
  Inbox game(InboxPlace(folder_.path().toStdString()));
  game.Deliver([this](const QString& path) { arrived_.push_back(path); });
  EXPECT_EQ(Run({"/x.zk"}), 0);
  EXPECT_TRUE(Arrived(1));
}

TEST_F(DownloaderTest, StartsTheGameWhenNoneRuns) {
  EXPECT_EQ(Run({"x.zk"}), 0);
  EXPECT_EQ(Started(), folder_.filePath("x.zk"));
}

// A shell hands over any bytes; the toolkit's own start of a program does not.
TEST_F(DownloaderTest, HandsOverNamesThatAreNoUtf8) {
  Inbox game(InboxPlace(folder_.filePath("domov").toStdString()));
  game.Deliver([this](const QString& path) { arrived_.push_back(path); });
  ASSERT_TRUE(game.Listening());
  const QByteArray program = folder_.filePath("downloader").toUtf8();
  const auto run = [&](const QByteArray& file) {
    auto done = std::async(std::launch::async, [&] { return std::system(program + " '" + file + "'"); });
    while (done.wait_for(std::chrono::milliseconds(0)) != std::future_status::ready) QTest::qWait(5);
    EXPECT_EQ(done.get(), 0);
  };
  run("/Hr\xE1\xE8/x.zk");
  run("file:///Hr%E1%E8/a%20b.zk");
  EXPECT_TRUE(Arrived(2));
  EXPECT_EQ(arrived_, (QStringList{PathText("/Hr\xE1\xE8/x.zk"), PathText("/Hr\xE1\xE8/a b.zk")}));
}

TEST_F(DownloaderTest, StartsTheGameForANameThatIsNoUtf8) {
  const QByteArray program = folder_.filePath("downloader").toUtf8();
  EXPECT_EQ(std::system(program + " '/Hr\xE1\xE8.zk'"), 0);
  QFile file(folder_.filePath("started"));
  ASSERT_TRUE(QTest::qWaitFor([&] { return file.exists() && file.size() > 0; }, kPatience));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll(), "/Hr\xE1\xE8.zk");
}

TEST_F(DownloaderTest, FailsWhenThereIsNoGame) {
  ASSERT_TRUE(QFile::remove(folder_.filePath("zorik")));
  EXPECT_EQ(Run({"x.zk"}), 1);
}

TEST_F(DownloaderTest, WantsExactlyOneFile) {
  EXPECT_EQ(Run({}), 2);
  EXPECT_EQ(Run({""}), 2);
  EXPECT_EQ(Run({"a.zk", "b.zk"}), 2);
  EXPECT_FALSE(QFileInfo::exists(folder_.filePath("started")));
}

}  // namespace
}  // namespace zorik
