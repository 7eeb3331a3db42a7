#include <QApplication>
#include <QIcon>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

#include "app/Game.h"
#include "app/Headless.h"
#include "app/HeadlessWords.h"
#include "data/ProgramFolder.h"
#include "data/Result.h"
#include "platform/EndSignals.h"
#include "platform/Inbox.h"
#include "platform/LeftFiles.h"
#include "platform/Paths.h"
#include "platform/Settings.h"
#include "screens/MsgBox.h"

namespace {

std::unique_ptr<QApplication> OpenDisplay(int& argc, char** argv) {
  const zorik::AnewWithoutDisplay otherwise;
  return std::make_unique<QApplication>(argc, argv);
}

int GiveUp(const std::string& reason) {
  zorik::Tell(nullptr, zorik::kProgramTitle, QString::fromStdString(reason));
  return EXIT_FAILURE;
}

// Where the game lives. What killed saves have left there is swept up.
zorik::Result<zorik::Paths> MoveIn(const zorik::Environment& environment) {
  zorik::Result<zorik::Paths> paths = zorik::FindPaths(environment);
  if (!paths) return paths;
  for (const std::string& folder : WrittenFolders(*paths, environment)) zorik::SweepLeftFiles(folder);
  return paths;
}

// One game is enough for one home folder: it takes what this one was started for, and shows itself.
int ShowOther(const QString& place) {
  if (zorik::HandOverPatiently(zorik::TakeFileFromStart(), place)) return EXIT_SUCCESS;
  return GiveUp(std::string(zorik::WordsOfDesktop().NoAnswer));
}

int Play(const zorik::Environment& environment) {
  const QString place = zorik::InboxPlace(zorik::OwnFolder(environment));
  zorik::Inbox inbox(place);
  if (inbox.Taken()) return ShowOther(place);
  const zorik::Result<zorik::Paths> paths = MoveIn(environment);
  if (!paths) return GiveUp(std::string(zorik::WordsOfDesktop().NoFolder) + "\n" + paths.Message());
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setWindowIcon(QIcon(":/zorik.png"));
  QGuiApplication::setDesktopFileName("zorik");
  const bool firstStart = zorik::IsFirstStart();
  zorik::Game game(*paths, zorik::FindSett(), inbox);
  const zorik::EndSignals ending([&game] { game.EndByDesktop(); });
  return game.Run(firstStart);
}

int PlayWithoutDisplay(const zorik::Environment& environment) {
  const zorik::Result<zorik::Paths> paths = MoveIn(environment);
  if (paths) return zorik::PlayHeadless(*paths);
  const std::string words(zorik::WordsOfDesktop().NoFolder);
  std::fprintf(stderr, "%s\n%s\n", words.c_str(), paths.Message().c_str());
  return EXIT_FAILURE;
}

}  // namespace

int main(int argc, char** argv) {
  using namespace zorik;
  const Environment environment = ReadEnvironment(RunningProgramFolder());
  // The toolkit, too, is to keep its files there.
  if (!environment.Home.empty()) setenv("HOME", environment.Home.c_str(), 1);
  const bool display = DisplayNamed();
  const std::unique_ptr<QApplication> application = display ? OpenDisplay(argc, argv) : nullptr;
  return display ? Play(environment) : PlayWithoutDisplay(environment);
}
