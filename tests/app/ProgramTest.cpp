#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QTest>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <memory>

#include "data/Files.h"
#include "data/Result.h"
#include "platform/Inbox.h"
#include "support/TempFolder.h"

namespace zorik::test {
namespace {

namespace fs = std::filesystem;

constexpr int kPatience = 60000;  // milliseconds

// The program itself, as the desktop starts it, with a home of its own that somebody has played in before.
class ProgramTest : public testing::Test {
 protected:
  void SetUp() override {
    fs::create_directories(root_ / "home");
    fs::create_directories(root_ / "config/Ortvan");
    ASSERT_TRUE(WriteWhole((root_ / "config/Ortvan/Zorik2.ini").string(), "[General]\nSkin=English\n"));
    Set("ZORIK_HOME", At("home"));
    Set("XDG_CONFIG_HOME", At("config"));
    Set("XDG_DATA_HOME", At("data"));
    Set("XDG_CACHE_HOME", At("cache"));
    Set("XDG_RUNTIME_DIR", QString::fromStdString(sockets_.Path()));
    Set("LC_ALL", "en_US.UTF-8");
    Set("SDL_AUDIODRIVER", "dummy");
    Set("QT_QPA_PLATFORM", "offscreen");
    runtime_ = qgetenv("XDG_RUNTIME_DIR");
    qputenv("XDG_RUNTIME_DIR", sockets_.Path().c_str());
  }
  ~ProgramTest() override {
    program_.kill();
    program_.waitForFinished(kPatience);
    runtime_.isNull() ? qunsetenv("XDG_RUNTIME_DIR") : qputenv("XDG_RUNTIME_DIR", runtime_);
  }

  QString At(const char* name) const { return QString::fromStdString((root_ / name).string()); }
  void Set(const char* name, const QString& value) { around_.insert(name, value); }
  void HasNoDisplay() {
    for (const char* const name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"}) around_.remove(name);
  }

  void Start() {
    program_.setProcessEnvironment(around_);
    program_.setWorkingDirectory(At("."));
    program_.start(ZORIK_PROGRAM, {});
    ASSERT_TRUE(program_.waitForStarted(kPatience));
  }

  // Its exit code; -1 where it was ended from outside or does not end.
  int Ended() {
    const bool ended =
        QTest::qWaitFor([this] { return program_.state() == QProcess::NotRunning; }, kPatience);
    return ended && program_.exitStatus() == QProcess::NormalExit ? program_.exitCode() : -1;
  }
  int Run() {
    Start();
    return Ended();
  }

  QString Said() { return QString::fromUtf8(program_.readAllStandardOutput()); }

  // Whether it has taken it upon itself to end in order when it is asked to.
  bool HearsTheDesktop() const {
    QFile status("/proc/" + QString::number(program_.processId()) + "/status");
    if (!status.open(QIODevice::ReadOnly)) return false;
    const QByteArray all = status.readAll();
    const qsizetype at = all.indexOf("SigCgt:");
    const qulonglong caught =
        all.mid(at + 7, all.indexOf('\n', at) - at - 7).trimmed().toULongLong(nullptr, 16);
    return (caught >> (SIGTERM - 1) & 1U) != 0;
  }

  void StartGame() {
    Start();
    ASSERT_TRUE(QTest::qWaitFor([this] { return HearsTheDesktop(); }, kPatience));
  }

  QString Place() const { return InboxPlace((root_ / "home").string()); }

  // What a save has left behind that was killed a while ago.
  fs::path LeftFile() const {
    const fs::path left = root_ / "home/.zorik-999999999-0.tmp";
    EXPECT_TRUE(WriteWhole(left.string(), "half"));
    fs::last_write_time(left, fs::file_time_type::clock::now() - std::chrono::minutes(10));
    return left;
  }

  TempFolder temp_{"program"};
  const TempFolder sockets_{"run", TempFolder::kShort};
  const fs::path root_ = temp_.Path();
  QProcessEnvironment around_ = QProcessEnvironment::systemEnvironment();
  QProcess program_;
  QByteArray runtime_;
};

TEST_F(ProgramTest, HandsWhatItWasStartedForToTheGameOfTheSameHomeAndEnds) {
  Inbox game(Place());
  QStringList arrived;
  game.Deliver([&arrived](const QString& path) { arrived << path; });
  ASSERT_TRUE(game.Listening());
  EXPECT_EQ(Run(), 0);
  Set(kOpenVariable, "/elsewhere/x.zk");
  EXPECT_EQ(Run(), 0);
  ASSERT_TRUE(QTest::qWaitFor([&arrived] { return arrived.size() == 2; }, kPatience));
  EXPECT_EQ(arrived, QStringList({"", "/elsewhere/x.zk"})) << "without a file it is to show itself";
}

TEST_F(ProgramTest, EndsInOrderWhenTheDesktopAsksItTo) {
  const fs::path left = LeftFile();
  StartGame();
  EXPECT_FALSE(fs::exists(left)) << "what a killed save has left is swept";
  ASSERT_EQ(kill(static_cast<pid_t>(program_.processId()), SIGTERM), 0);
  EXPECT_EQ(Ended(), 0);
}

TEST_F(ProgramTest, TellsInABoxThatItsFolderCannotBeMade) {
  ASSERT_TRUE(WriteWhole((root_ / "file").string(), "no folder"));
  Set("ZORIK_HOME", At("file/home"));
  Start();
  EXPECT_FALSE(program_.waitForFinished(3000)) << "nobody has read it yet";
}

TEST_F(ProgramTest, TellsInWordsThatItsFolderCannotBeMadeWhereThereIsNoDisplay) {
  ASSERT_TRUE(WriteWhole((root_ / "file").string(), "no folder"));
  Set("ZORIK_HOME", At("file/home"));
  HasNoDisplay();
  EXPECT_EQ(Run(), 1);
  EXPECT_EQ(QString::fromUtf8(program_.readAllStandardError()),
            "The game's folder cannot be made.\n" + At("file/home") + "\n");
}

TEST_F(ProgramTest, PlaysWithoutADisplayAndSweepsAsWell) {
  const fs::path left = LeftFile();
  HasNoDisplay();
  Run();
  EXPECT_TRUE(Said().startsWith("There is no display here"));
  EXPECT_FALSE(fs::exists(left));
}

TEST_F(ProgramTest, TakesADisplayThatCannotBeOpenedForNone) {
  Set("QT_QPA_PLATFORM", "no-such-platform");
  EXPECT_GE(Run(), 0) << "it is not killed by that";
  EXPECT_TRUE(Said().startsWith("There is no display here"));
}

}  // namespace
}  // namespace zorik::test
