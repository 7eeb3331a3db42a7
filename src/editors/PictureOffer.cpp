#include "editors/PictureOffer.h"

#include <QBuffer>
#include <QImage>
#include <memory>

#include "core/Machine.h"
#include "data/FileTrouble.h"
#include "data/Files.h"
#include "platform/PathText.h"
#include "platform/UserFolders.h"
#include "screens/MsgBox.h"
#include "screens/SaveBox.h"
#include "screens/StartWords.h"
#include "screens/TroubleWords.h"
#include "skin/CavePainter.h"
#include "skin/Skin.h"
#include "skin/WholeCave.h"

namespace zorik {
namespace {

constexpr StartWords kPictureWords{"caption.main.picture"};
constexpr StartWords kPictureKindWords{"caption.main.picturekind"};

}  // namespace

void OfferCavePicture(Skin& skin, QWidget* parent, const CaveRecord& cave, int cell) {
  const auto run = std::make_unique<Hra>();
  StartRun(*run, {}, cave, RunKind::Practice);
  CavePainter painter(skin.Places());
  const QString title = kPictureWords.In(skin) + QString(" %1 × %1").arg(cell);
  OfferPicture(skin, parent, title, cave.Name, WholeCave(painter, *run, cell));
}

void OfferPicture(Skin& skin, QWidget* parent, const QString& title, const std::string& name,
                  const QImage& picture) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  const bool made = picture.save(&buffer, "PNG");
  std::string proposed = FileSystemName(CleanFileName(name) + ".png");
  const QString path = AskForNewFile(
      skin, parent, {title, kPictureKindWords.In(skin), "png", HomeText() + '/' + PathText(proposed)});
  if (path.isEmpty()) return;
  const Result<Done, FileFailure> written =
      made ? WriteFile(PathBytes(path), {bytes.data(), static_cast<std::size_t>(bytes.size())})
           : Result<Done, FileFailure>(FileFailure{});
  if (written) return;
  Tell(skin, parent, skin.Text(TextId::Program),
       kNotStoredWords.In(skin) + '\n' + ShownPath(path) + LineOfTrouble(skin, written.Why().Trouble));
}

}  // namespace zorik
