#include "app/Headless.h"

#include <unistd.h>

#include <QBuffer>
#include <QtGlobal>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

#include "app/HeadlessWords.h"
#include "core/Hra.h"
#include "data/Cp1250.h"
#include "data/Files.h"
#include "data/Folders.h"
#include "data/Result.h"
#include "run/PlayOut.h"
#include "skin/CavePainter.h"

namespace zorik {
namespace {

constexpr QSize kPictureSize(1560, 920);  // a whole view at the tiles' own size

// No run that is worth showing is this long.
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
  void MoveView(bool jump) override { painter_.MoveView(hra_, jump); }

 private:
  const Hra& hra_;
  CavePainter& painter_;
};

// The record of the first cave of the first collection that has one.
std::optional<std::string> FirstRecord(const std::string& folder) {
  for (const std::string& collection : FoldersIn(folder)) {
    const Result<std::string> bytes = ReadWhole(folder + "/" + collection + "/01.zkr");
    if (bytes) return *bytes;
  }
  return std::nullopt;
}

// The words with what they speak of in its places; that itself is not looked at.
std::string Filled(std::string_view words, const std::string& first, const std::string& second = {}) {
  std::string filled;
  for (std::size_t i = 0; i < words.size();) {
    const std::string_view rest = words.substr(i);
    const bool place = rest.starts_with("?1?") || rest.starts_with("?2?");
    if (place) {
      filled += rest[1] == '1' ? first : second;
    } else {
      filled += rest[0];
    }
    i += place ? 3 : 1;
  }
  return filled;
}

void Print(std::string_view line) {
  std::printf("%.*s\n", static_cast<int>(line.size()), line.data());
}

void PrintVerdict(const HeadlessWords& words, const Hra& hra) {
  const std::string cave = ToUtf8(hra.CaveName);
  Print(hra.Win ? Filled(words.Won, cave, std::to_string(hra.Win->Score)) : Filled(words.NotWon, cave));
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
  const HeadlessWords& words = WordsOfDesktop();
  Print(words.NoDisplay);
  const std::optional<std::string> record = FirstRecord(paths.ShippedReplays);
  if (!record) {
    Print(words.NoRecord);
    return 1;
  }
  CavePainter painter(SkinPlaces{paths.SkinsPath, kDefaultSkin, paths.ShippedSkins});
  Hra hra;
  PictureStage stage(hra, painter);
  hra.SetStage(stage);
  if (!Replay(hra, *record)) {
    Print(words.NoCave);
    return 1;
  }
  PlayOut(hra, kMostTicks);
  PrintVerdict(words, hra);
  const std::string picture = paths.AppPath + "/" + std::string(words.Picture);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  const bool drawn = painter.Compose(hra, kPictureSize).save(&buffer, "PNG");
  const bool stored = drawn && WriteWhole(picture, bytes.toStdString());
  Print(stored ? Filled(words.PictureIs, picture) : std::string(words.NotStored));
  return hra.Win ? 0 : 1;
}

}  // namespace zorik
