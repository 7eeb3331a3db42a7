#include "screens/FrmAnalyze.h"

#include <QFontDatabase>
#include <QKeyEvent>
#include <QLabel>
#include <algorithm>

#include "data/RecordFile.h"
#include "screens/PlainText.h"
#include "screens/SkinButton.h"
#include "screens/SkinLabel.h"
#include "screens/SkinPlacing.h"
#include "screens/StartWords.h"
#include "screens/Tones.h"
#include "skin/GameFont.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr int kSecond = 1000;  // milliseconds
constexpr QSize kPlainSize(520, 220);

// What older skins give no place for.
constexpr QRect kLineBox(40, 80, 440, 36);
constexpr QRect kTotalBox(185, 126, 150, 40);
constexpr QRect kSecondsBox(318, 171, 40, 32);
constexpr QPoint kBonusPlace(400, 118);
constexpr QRect kAgainBox(312, 172, 178, 32);
constexpr QColor kLightText(0xE8, 0xE8, 0xE0);

constexpr int kLineLetters = 20;
constexpr int kTotalLetters = 26;
constexpr int kSecondsLetters = 20;
constexpr int kAgainLetters = 14;
constexpr int kPadding = 8;

QLabel* NewLabel(const char* name, const QRect& place, QWidget* parent) {
  auto* const label = zorik::NewLabel(parent);
  label->setObjectName(name);
  label->setAlignment(Qt::AlignCenter);
  label->setGeometry(place);
  return label;
}

void SetColour(QLabel* label, QColor colour) {
  QPalette colours = label->palette();
  colours.setColor(QPalette::WindowText, colour);
  label->setPalette(colours);
}

// Letters of one width, so large that the text fits.
QFont LineFont(const QString& text, int width) {
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  int letters = kLineLetters;
  do {
    font.setPixelSize(letters);
  } while (QFontMetrics(font).horizontalAdvance(text) > width && --letters > 1);
  return font;
}

// What reads well on the picture in the middle of a box.
QColor TextOn(const QImage& picture, const QRect& box) {
  const QPoint middle = box.center();
  return picture.valid(middle) ? TonesOf(picture.pixelColor(middle)).text : kLightText;
}

}  // namespace

FrmAnalyze::FrmAnalyze(Skin& skin, QWidget* parent)
    : SkinDialog(parent),
      skin_(skin),
      line_(NewLabel("Label2", kLineBox, this)),
      total_(NewLabel("Label3", kTotalBox, this)),
      seconds_(NewLabel("Label4", kSecondsBox, this)),
      Image1_(new SkinPicture(this)),
      ok_(new SkinButton(this)),
      again_(new SkinLabel(this)) {
  setModal(true);
  Image1_->setObjectName("Image1");
  ok_->setObjectName("ok");
  again_->setObjectName("again");
  again_->hide();
  total_->setFont(GameFont(kTotalLetters));
  seconds_->setFont(GameFont(kSecondsLetters));
  seconds_->installEventFilter(this);
  Timer1_.setObjectName("Timer1");
  Timer1_.setInterval(kSecond);
  connect(&Timer1_, &QTimer::timeout, this, &FrmAnalyze::CountDown);
  connect(ok_, &SkinButton::clicked, this, &FrmAnalyze::Close);
  connect(again_, &SkinLabel::LinkClicked, this, &FrmAnalyze::Again);
}

void FrmAnalyze::SkinIt() {
  SetTitle(*this, kProgramTitle);
  SetWindowPicture(skin_, Surface(), *this, "score", kPlainSize);
  const QImage picture = skin_.Picture("score.image");
  const auto place = [&](QLabel* label, const char* key, const QRect& otherwise) {
    label->setGeometry(BoxOf(skin_, key, otherwise));
    SetColour(label, TextOn(picture, label->geometry()));
  };
  place(line_, "score.line", kLineBox);
  place(total_, "score.total", kTotalBox);
  place(seconds_, "score.seconds", kSecondsBox);
  line_->setFont(LineFont(line_->text(), line_->width() - 2 * kPadding));
  Image1_->SetPicture(skin_.Picture("select.bonus.image"));
  Image1_->move(BoxOf(skin_, "score.bonus", QRect(kBonusPlace, QSize())).topLeft());
  PlaceButton(skin_, *ok_, "score.ok", kOkWords.In(skin_));
  again_->setGeometry(BoxOf(skin_, "score.again", kAgainBox));
  const QColor colour = TextOn(picture, again_->geometry());
  again_->SetLook(colour, Qt::AlignCenter, kAgainLetters);
  again_->SetLink(colour, QString());
  again_->SetText(kPlayAgainWords.In(skin_) + " (R)");
}

void FrmAnalyze::SetScore(const QString& line, int total, bool bonus) {
  const QRect box = BoxOf(skin_, "score.line", kLineBox);
  line_->setFont(LineFont(line, box.width() - 2 * kPadding));
  line_->setText(line);
  total_->setText(QString::fromStdString(FiveDigits(total)));
  Image1_->setVisible(bonus);
}

void FrmAnalyze::OfferAgain(bool offered) {
  again_->setVisible(offered);
}

void FrmAnalyze::NastavCas(int seconds) {
  Countdown_ = seconds;
  seconds_->setText(QString::number(seconds));
  seconds_->setCursor(Qt::PointingHandCursor);
  Timer1_.start();
}

void FrmAnalyze::ClearCountdown() {
  Timer1_.stop();
  seconds_->clear();
  seconds_->setCursor(Qt::ArrowCursor);
}

void FrmAnalyze::Open() {
  SkinIt();
  show();
  activateWindow();
}

void FrmAnalyze::CountDown() {
  --Countdown_;
  seconds_->setText(QString::number(Countdown_));
  if (Countdown_ <= 0) Close();
}

void FrmAnalyze::Close() {
  Timer1_.stop();
  if (!isVisible()) return;
  hide();
  emit Closed();
}

void FrmAnalyze::Again() {
  if (again_->isHidden() || !isVisible()) return;
  Timer1_.stop();
  hide();
  emit AgainWanted();
}

void FrmAnalyze::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_R || event->key() == Qt::Key_Z) return Again();
  if (event->key() == Qt::Key_Space && !event->isAutoRepeat()) {
    Close();
    return;
  }
  SkinDialog::keyPressEvent(event);
}

// Who wants to read on stops the seconds by a click.
bool FrmAnalyze::eventFilter(QObject* object, QEvent* event) {
  if (object != seconds_ || event->type() != QEvent::MouseButtonPress)
    return SkinDialog::eventFilter(object, event);
  Timer1_.stop();
  return true;
}

}  // namespace zorik
