#include <QApplication>
#include <cstdio>
#include <filesystem>
#include <string>
#include <system_error>

#include "app/Headless.h"
#include "platform/Paths.h"
#include "platform/Settings.h"
#include "screens/HraWindow.h"
#include "screens/MsgBox.h"
#include "screens/PlayFlow.h"
#include "screens/Session.h"
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

int Play(zorik::Session session, const zorik::SkinPlaces& places, zorik::Settings settings) {
  zorik::DSound sound;
  if (const auto opened = sound.DSInit(); !opened) return GiveUp(true, opened.Message());
  zorik::Skin skin;
  if (!skin.Wear(places)) zorik::Tell(nullptr, zorik::kProgramTitle, zorik::wording::kNoLanguage);
  zorik::HraWindow window(skin, sound, settings);
  zorik::PlayFlow flow(std::move(session), skin, window);
  window.showMaximized();
  flow.OpenCave(1);
  return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  using namespace zorik;
  auto trial = std::make_unique<DisplayTrial>(argc, argv);
  const bool display = trial->There();
  const std::unique_ptr<QApplication> application =
      display ? std::make_unique<QApplication>(argc, argv) : nullptr;
  trial.reset();
  const Result<Paths> paths = FindPaths(ReadSurroundings(ProgramFolder()));
  if (!paths) return GiveUp(display, std::string(wording::kNoFolder) + "\n" + paths.Message());
  Result<Session> session = Session::OpenFirst(*paths);
  if (!session) return GiveUp(display, std::string(wording::kNoCollection) + "\n" + session.Message());
  SkinPlaces places{paths->SkinsPath};
  if (!display) return PlayHeadless(*paths, *session, places);
  const Settings settings = FindSett();
  places.Skin = settings.Skin.toStdString();
  return Play(std::move(*session), places, settings);
}
