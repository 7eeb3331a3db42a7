#include "screens/CavePreview.h"

#include <QLocale>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "core/Hra.h"
#include "data/Files.h"
#include "data/Result.h"
#include "run/PlayOut.h"
#include "screens/SkinLabel.h"
#include "screens/SkinPlacing.h"
#include "screens/StartWords.h"
#include "skin/CavePainter.h"
#include "skin/Skin.h"
#include "skin/WholeCave.h"

namespace zorik {
namespace {

constexpr int kPause = 60;             // milliseconds, more than the repeat of a key that is held
constexpr int kFacts = 18;             // the height of their line
constexpr int kLetters = 12;           // logical pixels
constexpr int kCorner = 6;             // its radius
constexpr int kLargestCell = 48;       // device pixels
constexpr std::size_t kMostKept = 99;  // as many as a collection has caves
constexpr int kMostTicks = 30'000;     // of a record: more than any cave's time allows
constexpr QColor kPlainGround(0x10, 0x10, 0x18);
constexpr QColor kPlainText(0xE8, 0xE8, 0xE0);

// The largest rectangle of this shape in a room, in its middle.
QRectF FittedInto(const QRectF& room, QSize shape) {
  const QSizeF size = QSizeF(shape).scaled(room.size(), Qt::KeepAspectRatio);
  return {room.center() - QPointF(size.width() / 2, size.height() / 2), size};
}

// The ticks of the win in a record file.
std::optional<int> TicksOf(const std::string& path) {
  Result<std::string> bytes = ReadWhole(path);
  const auto run = std::make_unique<Hra>();
  if (!bytes || !Replay(*run, std::move(*bytes))) return std::nullopt;
  return PlayOut(*run, kMostTicks).Wins() ? std::optional(run->Elapsed) : std::nullopt;
}

// The place of the default skin's table goes with the default skin's picture of the window. A skin that has
// drawn its own says itself where there is room.
bool HasRoom(const Skin& skin) {
  if (skin.Data().IsOwn("select.preview.left")) return true;
  const std::string name = "Menu/" + skin.Data().SkinText("select.image");
  const std::string picture = SkinPicPath(skin.Places(), name, {});
  const std::vector<std::string> own = FoldersOf(skin.Places(), skin.Places().Skin, "Menu");
  return std::none_of(own.begin(), own.end(), [&](const std::string& folder) {
    return picture.starts_with(ResolvePath(folder) + "/");
  });
}

void DrawLock(QPainter& painter, const QRectF& room, QColor colour) {
  const qreal unit = std::min(room.width(), room.height()) / 10;
  const QPointF middle = room.center();
  painter.setPen(QPen(colour, unit * 0.8));
  painter.setBrush(Qt::NoBrush);
  const QRectF shackle(middle.x() - 1.4 * unit, middle.y() - 3 * unit, 2.8 * unit, 4 * unit);
  painter.drawRoundedRect(shackle, 1.4 * unit, 1.4 * unit);
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  painter.drawRoundedRect(QRectF(middle.x() - 2.2 * unit, middle.y() - 0.6 * unit, 4.4 * unit, 3.4 * unit),
                          unit * 0.5, unit * 0.5);
}

}  // namespace

CavePreview::CavePreview(Skin& skin, QWidget* parent)
    : QWidget(parent), skin_(skin), facts_(new SkinLabel(this)) {
  setObjectName("preview");
  facts_->setObjectName("previewFacts");
  pause_.setSingleShot(true);
  pause_.setInterval(kPause);
  connect(&pause_, &QTimer::timeout, this, &CavePreview::Catch);
}

CavePreview::~CavePreview() = default;

void CavePreview::SkinIt() {
  const QRect box = BoxOf(skin_, "select.preview", {-1, -1, -1, -1});
  wanted_ = box.x() >= 0 && box.y() >= 0 && box.width() > 0 && box.height() > kFacts && HasRoom(skin_);
  setVisible(wanted_);
  pictures_.clear();
  painter_.reset();
  if (!wanted_) return;
  setGeometry(box);
  facts_->SetLook(skin_.Colour("select.preview.textcolor", kPlainText), Qt::AlignCenter, kLetters);
  facts_->setGeometry(0, height() - kFacts, width(), kFacts);
}

QRect CavePreview::Room() const {
  return {0, 0, width(), height() - kFacts};
}

void CavePreview::ShowCave(const PlayedCave& cave, const std::string& record) {
  if (!wanted_) return;
  cave_ = cave;
  record_ = record;
  ShowFacts();
  const bool known = Known() != nullptr && (record_.empty() || KnownBest() != nullptr);
  known ? pause_.stop() : pause_.start();
  update();
}

void CavePreview::ShowLock() {
  if (!wanted_) return;
  pause_.stop();
  cave_.reset();
  facts_->SetText({});
  update();
}

const QImage* CavePreview::Known() const {
  const auto known = cave_ ? pictures_.find(cave_->Text) : pictures_.end();
  return known == pictures_.end() ? nullptr : &known->second;
}

// A record may have been replaced by a better one.
const CavePreview::Best* CavePreview::KnownBest() const {
  const auto known = bests_.find(record_);
  return known == bests_.end() || known->second.stamp != StampOf(record_) ? nullptr : &known->second;
}

void CavePreview::Catch() {
  if (!cave_ || !isVisible()) return;
  if (Known() == nullptr) {
    if (pictures_.size() >= kMostKept) pictures_.clear();
    pictures_[cave_->Text] = Drawn();
  }
  if (!record_.empty() && KnownBest() == nullptr) bests_[record_] = {StampOf(record_), TicksOf(record_)};
  ShowFacts();
  update();
}

// Twice as large as it is shown, so that it stays smooth; a cell has whole pixels.
QImage CavePreview::Drawn() {
  const auto run = std::make_unique<Hra>();
  if (!OpenCave(*run, *cave_, RunKind::Practice)) return {};
  if (!painter_) painter_ = std::make_unique<CavePainter>(skin_.Places());
  const QSizeF room = QSizeF(Room().size()) * devicePixelRatioF() * 2;
  const double fitting = std::min(room.width() / run->CaveWidth, room.height() / run->CaveHeight);
  const int cell = std::clamp(static_cast<int>(std::ceil(fitting)), 1, kLargestCell);
  const QImage image = WholeCave(*painter_, *run, cell);
  const QRectF shown = FittedInto(Room(), image.size());
  return image.scaled((shown.size() * devicePixelRatioF()).toSize(), Qt::IgnoreAspectRatio,
                      Qt::SmoothTransformation);
}

void CavePreview::ShowFacts() {
  const CaveRecord& cave = cave_->Record;
  const Best* const best = record_.empty() ? nullptr : KnownBest();
  const bool timed = best != nullptr && best->ticks;
  QString facts = (timed ? kPreviewWonWords : kPreviewWords).In(skin_);
  if (timed) {
    const double seconds = static_cast<double>(*best->ticks) / kTicksPerSecond;
    facts.replace("?5?", QLocale(LanguageOf(skin_)).toString(seconds, 'f', 1));
  }
  facts.replace("?1?", QString::number(cave.Width)).replace("?2?", QString::number(cave.Height));
  facts.replace("?3?", QString::number(cave.GemsNeeded)).replace("?4?", QString::number(cave.Time));
  facts_->SetText(facts);
}

void CavePreview::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  painter.setPen(Qt::NoPen);
  painter.setBrush(skin_.Colour("select.preview.color", kPlainGround));
  painter.drawRoundedRect(rect(), kCorner, kCorner);
  const QImage* const picture = Known();
  if (!cave_) {
    DrawLock(painter, rect(), skin_.Colour("select.preview.textcolor", kPlainText));
  } else if (picture != nullptr && !picture->isNull()) {
    painter.drawImage(FittedInto(Room(), picture->size()), *picture);
  }
}

// The tiles are the game's own copy of them while it is played.
void CavePreview::hideEvent(QHideEvent* event) {
  painter_.reset();
  QWidget::hideEvent(event);
}

}  // namespace zorik
