#include "app/Headless.h"

#include <unistd.h>

#include <QtGlobal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <system_error>

#include "core/Hra.h"
#include "data/Cp1250.h"
#include "data/Files.h"
#include "skin/CavePainter.h"

namespace zorik {
namespace {

constexpr QSize kPictureSize(1560, 920);  // a whole view at the tiles' own size

// A record may begin again for ever; no run that is worth showing is this long.
constexpr int kMostTicks = 100000;

bool IsSet(const char* name) {
  const char* const value = std::getenv(name);
  return value != nullptr && *value != '\0';
}

constexpr const char* kNoDisplay = "ZORIK_NO_DISPLAY";  // set when a try has failed

void BeginAnew(QtMsgType type, const QMessageLogContext& /*context*/, const QString& /*message*/) {
  if (type != QtFatalMsg) return;
  setenv(kNoDisplay, "1", 1);
  execl("/proc/self/exe", "zorik", nullptr);
}

// The stage of a run that only its last picture is wanted of.
class PictureStage : public Stage {
 public:
  PictureStage(const Hra& hra, CavePainter& painter) : hra_(hra), painter_(painter) {}

  void CaveOpens() override { painter_.CaveOpens(hra_); }
  void CellChanged(int x, int y) override { painter_.CellChanged(hra_, x, y); }
  void View(bool jump) override { painter_.View(hra_, jump); }

 private:
  const Hra& hra_;
  CavePainter& painter_;
};

// The record of the first cave of the first collection that has one.
std::optional<std::string> FirstRecord(const std::string& folder) {
  std::error_code error;
  std::set<std::filesystem::path> collections;
  for (const auto& entry : std::filesystem::directory_iterator(folder, error))
    collections.insert(entry.path());
  for (const std::filesystem::path& collection : collections) {
    const Result<std::string> bytes = ReadWhole((collection / "01.zkr").string());
    if (bytes) return *bytes;
  }
  return std::nullopt;
}

void PlayToTheEnd(Hra& hra) {
  for (int i = 0; i < kMostTicks; ++i) {
    if (Tick(hra, {}) != TickEnd::Running) return;
  }
}

void PrintVerdict(const Hra& hra) {
  const std::string cave = ToUtf8(hra.CaveName);
  if (hra.Win) {
    std::printf("Komnata „%s“: záznam dovedl Zoríka do cíle, skóre %d.\n", cave.c_str(), hra.Win->Score);
  } else {
    std::printf("Komnata „%s“: záznam skončil, aniž Zorík došel do cíle.\n", cave.c_str());
  }
}

}  // namespace

bool DisplayNamed() {
  if (IsSet(kNoDisplay)) return false;
  return IsSet("DISPLAY") || IsSet("WAYLAND_DISPLAY") || IsSet("QT_QPA_PLATFORM");
}

AnewWithoutDisplay::AnewWithoutDisplay() {
  qInstallMessageHandler(BeginAnew);
}

AnewWithoutDisplay::~AnewWithoutDisplay() {
  qInstallMessageHandler(nullptr);
}

int PlayHeadless(const Paths& paths) {
  std::puts("Není tu žádná obrazovka, Zorík proto přehraje záznam první komnaty bez okna.");
  const std::optional<std::string> record = FirstRecord(paths.ShippedReplays);
  if (!record) {
    std::puts("Záznam první komnaty chybí.");
    return 1;
  }
  CavePainter painter(SkinPlaces{paths.SkinsPath, kDefaultSkin, paths.ShippedSkins});
  Hra hra;
  PictureStage stage(hra, painter);
  hra.SetStage(stage);
  if (Replay(hra, *record)) {
    std::puts("Komnatu nelze otevřít.");
    return 1;
  }
  PlayToTheEnd(hra);
  PrintVerdict(hra);
  const std::string picture = paths.AppPath + "/posledni-okamzik.png";
  if (painter.Compose(hra, kPictureSize).save(QString::fromStdString(picture))) {
    std::printf("Poslední okamžik je na obrázku %s\n", picture.c_str());
  } else {
    std::puts("Soubor se nepodařilo uložit.");
  }
  return hra.Win ? 0 : 1;
}

}  // namespace zorik
