#include <QApplication>
#include <QIcon>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <system_error>

#include "app/Game.h"
#include "app/Headless.h"
#include "platform/Inbox.h"
#include "platform/Paths.h"
#include "platform/Settings.h"
#include "screens/MsgBox.h"
#include "screens/Wording.h"

namespace {

std::string ProgramFolder() {
  std::error_code error;
  const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
  return error ? std::string(".") : program.parent_path().string();
}

// What keeps the game from starting, said where somebody sees it.
int GiveUp(bool display, const std::string& reason) {
  if (display) {
    zorik::Tell(nullptr, zorik::kProgramTitle, QString::fromStdString(reason));
  } else {
    std::fprintf(stderr, "%s\n", reason.c_str());
  }
  return 1;
}

std::string NoFolder(const std::string& folder) {
  return std::string(zorik::wording::kNoFolder) + "\n" + folder;
}

std::unique_ptr<QApplication> OpenDisplay(int& argc, char** argv) {
  const zorik::AnewWithoutDisplay otherwise;
  return std::make_unique<QApplication>(argc, argv);
}

// One game is enough for one home folder: it takes what this one was started for, and shows itself.
int ShowOther(const QString& place) {
  if (zorik::HandOverPatiently(zorik::TakeFileFromStart(), place)) return 0;
  return GiveUp(true, zorik::wording::kNoAnswer);
}

int Play(const zorik::Surroundings& surroundings) {
  const QString place = zorik::InboxPlace(zorik::OwnFolder(surroundings));
  zorik::Inbox inbox(place);
  if (inbox.Taken()) return ShowOther(place);
  const zorik::Result<zorik::Paths> paths = zorik::FindPaths(surroundings);
  if (!paths) return GiveUp(true, NoFolder(paths.Message()));
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setWindowIcon(QIcon(":/zorik.png"));
  QGuiApplication::setDesktopFileName("zorik");
  zorik::Game game(*paths, zorik::FindSett(), inbox);
  game.Begin();
  return QApplication::exec();
}

int PlayWithoutDisplay(const zorik::Surroundings& surroundings) {
  const zorik::Result<zorik::Paths> paths = zorik::FindPaths(surroundings);
  return paths ? zorik::PlayHeadless(*paths) : GiveUp(false, NoFolder(paths.Message()));
}

}  // namespace

int main(int argc, char** argv) {
  using namespace zorik;
  const bool display = DisplayNamed();
  const std::unique_ptr<QApplication> application = display ? OpenDisplay(argc, argv) : nullptr;
  const Surroundings surroundings = ReadSurroundings(ProgramFolder());
  return display ? Play(surroundings) : PlayWithoutDisplay(surroundings);
}
