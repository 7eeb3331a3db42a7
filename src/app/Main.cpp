#include <QApplication>
#include <QIcon>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <system_error>

#include "app/Game.h"
#include "app/Headless.h"
#include "app/HeadlessWords.h"
#include "platform/LeftFiles.h"
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

// There is no folder to play in, for this reason; said where somebody sees it.
int GiveUp(bool display, const std::string& reason) {
  if (display) {
    zorik::Tell(nullptr, zorik::kProgramTitle,
                QString::fromStdString(std::string(zorik::wording::kNoFolder) + "\n" + reason));
  } else {
    const std::string words(zorik::WordsOfDesktop().NoFolder);
    std::fprintf(stderr, "%s\n%s\n", words.c_str(), reason.c_str());
  }
  return 1;
}

std::unique_ptr<QApplication> OpenDisplay(int& argc, char** argv) {
  const zorik::AnewWithoutDisplay otherwise;
  return std::make_unique<QApplication>(argc, argv);
}

int Play(const zorik::Paths& paths) {
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setWindowIcon(QIcon(":/zorik.png"));
  QGuiApplication::setDesktopFileName("zorik");
  zorik::Game game(paths, zorik::FindSett());
  game.Begin();
  return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  using namespace zorik;
  const Surroundings surroundings = ReadSurroundings(ProgramFolder());
  // The toolkit, too, is to keep its files there.
  if (!surroundings.Home.empty()) setenv("HOME", surroundings.Home.c_str(), 1);
  const bool display = DisplayNamed();
  const std::unique_ptr<QApplication> application = display ? OpenDisplay(argc, argv) : nullptr;
  const Result<Paths> paths = FindPaths(surroundings);
  if (!paths) return GiveUp(display, paths.Message());
  for (const std::string& folder : WrittenFolders(*paths, surroundings)) SweepLeftFiles(folder);
  return display ? Play(*paths) : PlayHeadless(*paths);
}
