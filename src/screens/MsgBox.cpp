#include "screens/MsgBox.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPixmap>
#include <QScreen>
#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "screens/PlainText.h"
#include "screens/ShowText.h"
#include "screens/SkinButton.h"
#include "screens/SkinWindow.h"
#include "screens/StartWords.h"
#include "screens/Tones.h"
#include "skin/GameFont.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr int kLetters = 16;
constexpr int kHeadLetters = 12;
constexpr int kMargin = 16;  // around all but the icon
constexpr int kIconLeft = 12;
constexpr int kGap = 12;  // between rows, icon and text, and buttons
constexpr int kLineWidth = 420;

struct ButtonRow {
  MsgResult result;
  Qt::Key key;
  const char* name;  // in the skin's table
  bool hasPicture;
  const char* plate;
  StartWords words;
};

constexpr std::array kButtons = {
    ButtonRow{MsgResult::Yes, Qt::Key_Y, "yes", true, "plate", kYesWords},
    ButtonRow{MsgResult::No, Qt::Key_N, "no", true, "plateback", kNoWords},
    ButtonRow{MsgResult::Ok, Qt::Key_O, "ok", true, "plate", kOkWords},
    ButtonRow{MsgResult::Retry, Qt::Key_R, "retry", true, "plate", kRetryWords},
    ButtonRow{MsgResult::Elsewhere, Qt::Key_S, "elsewhere", false, "plate", kElsewhereWords},
    ButtonRow{MsgResult::Later, Qt::Key_L, "later", false, "plateback", kLaterWords},
    ButtonRow{MsgResult::Leave, Qt::Key_Q, "leave", false, "plateback", kLeaveWithoutWords},
    ButtonRow{MsgResult::Cancel, Qt::Key_C, "close", true, "plateback", kCancelWords},
};

std::vector<MsgResult> ResultsOf(MsgButtons buttons) {
  switch (buttons) {
    case MsgButtons::OkCancel:
      return {MsgResult::Ok, MsgResult::Cancel};
    case MsgButtons::YesNo:
      return {MsgResult::Yes, MsgResult::No};
    case MsgButtons::YesNoCancel:
      return {MsgResult::Yes, MsgResult::No, MsgResult::Cancel};
    case MsgButtons::RetryCancel:
      return {MsgResult::Retry, MsgResult::Cancel};
    case MsgButtons::NotStored:
      return {MsgResult::Retry, MsgResult::Elsewhere, MsgResult::Later};
    case MsgButtons::NotStoredAtEnd:
      return {MsgResult::Retry, MsgResult::Elsewhere, MsgResult::Leave, MsgResult::Cancel};
    default:
      return {MsgResult::Ok};
  }
}

MsgIcon IconOf(MsgButtons buttons) {
  switch (buttons) {
    case MsgButtons::OkCancel:
    case MsgButtons::RetryCancel:
    case MsgButtons::NotStored:
    case MsgButtons::NotStoredAtEnd:
      return MsgIcon::Exclamation;
    case MsgButtons::YesNo:
    case MsgButtons::YesNoCancel:
      return MsgIcon::Question;
    default:
      return MsgIcon::None;
  }
}

// The name of an icon's picture; empty for none.
const char* PictureOf(MsgIcon icon) {
  switch (icon) {
    case MsgIcon::Information:
      return "iInformation";
    case MsgIcon::Question:
      return "iQuestion";
    case MsgIcon::Exclamation:
      return "iExclamation";
    case MsgIcon::Critical:
      return "iCritical";
    default:
      return "";
  }
}

int LineHeight(const QFontMetrics& metrics) {
  return metrics.size(0, "\n").height() - metrics.size(0, QString()).height();
}

// The window behind the message box.
class FrmDialog : public SkinDialog {
 public:
  FrmDialog(Skin& skin, QWidget* parent, MsgButtons buttons);

  // Names the window, loads the icon and lays everything out around the text.
  void ShowText(const QString& title, const QString& text, MsgIcon icon);

  MsgResult Result() const { return result_; }

  // One more key for OK.
  void SetOkKey(Qt::Key key) { okKey_ = key; }

 protected:
  void OnEnter() override { Press(shown_.front()); }
  void OnEsc() override;
  void reject() override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool Shown(MsgResult result) const {
    return std::find(shown_.begin(), shown_.end(), result) != shown_.end();
  }
  std::optional<MsgResult> EscResult() const;
  void Press(MsgResult result);
  void AddButtons();
  void SkinIt();
  void ShowTitle(const QString& title);
  void Wrap(const QString& text, QSize room);
  void PlaceButtons(int top);
  int ButtonsWidth() const;

  Skin& skin_;
  std::vector<MsgResult> shown_;
  MsgResult result_;
  Qt::Key okKey_ = Qt::Key_unknown;
  QLabel* lblTitle_;
  QLabel* lblText_;
  QLabel* imgIcon_;
  std::vector<SkinButton*> buttons_;
};

FrmDialog::FrmDialog(Skin& skin, QWidget* parent, MsgButtons buttons)
    : SkinDialog(parent),
      skin_(skin),
      shown_(ResultsOf(buttons)),
      result_(EscResult().value_or(MsgResult::Ok)),
      lblTitle_(NewLabel(this)),
      lblText_(NewLabel(this)),
      imgIcon_(NewLabel(this)) {
  lblTitle_->setObjectName("lblTitle");
  lblText_->setObjectName("lblText");
  imgIcon_->setObjectName("imgIcon");
  SkinIt();
  AddButtons();
}

void FrmDialog::SkinIt() {
  const Tones tones = TonesOf(skin_.Colour("dialog.color", kPlainGround));
  Surface().SetColour(tones.ground);
  QPalette colours = PaletteOf(tones);
  setPalette(colours);
  setFont(GameFont(kLetters));
  lblTitle_->setFont(GameFont(kHeadLetters));
  colours.setColor(QPalette::WindowText, tones.mark);
  lblTitle_->setPalette(colours);
}

// All buttons of a box look alike: where one has no picture of its own, all say in words what they do.
void FrmDialog::AddButtons() {
  const bool words = std::any_of(kButtons.begin(), kButtons.end(), [this](const ButtonRow& row) {
    return Shown(row.result) && !row.hasPicture;
  });
  for (const ButtonRow& row : kButtons) {
    if (!Shown(row.result)) continue;
    auto* const button = new SkinButton(this);
    const auto picture = [&](const char* name) {
      return skin_.Picture(std::string("dialog.") + name + ".image");
    };
    button->setObjectName(row.name);
    if (words) {
      button->SetPlate(picture(row.plate));
    } else {
      button->SetPicture(picture(row.name));
    }
    button->SetWords(row.words.In(skin_));
    connect(button, &SkinButton::clicked, this, [this, &row] { Press(row.result); });
    buttons_.push_back(button);
  }
}

std::optional<MsgResult> FrmDialog::EscResult() const {
  for (const MsgResult result : {MsgResult::No, MsgResult::Cancel, MsgResult::Later}) {
    if (Shown(result)) return result;
  }
  return std::nullopt;
}

void FrmDialog::OnEsc() {
  if (const auto result = EscResult()) Press(*result);
}

// Closing the window has to end in an answer.
void FrmDialog::reject() {
  Press(EscResult().value_or(MsgResult::Ok));
}

void FrmDialog::Press(MsgResult result) {
  if (!Shown(result)) return;
  result_ = result;
  done(static_cast<int>(result));
}

void FrmDialog::keyPressEvent(QKeyEvent* event) {
  const bool command = (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
  for (const ButtonRow& row : kButtons) {
    const bool its = event->key() == row.key || (row.result == MsgResult::Ok && event->key() == okKey_);
    if (!its || command || event->isAutoRepeat()) continue;
    Press(row.result);
    return;
  }
  SkinDialog::keyPressEvent(event);
}

int FrmDialog::ButtonsWidth() const {
  int width = static_cast<int>(buttons_.size() - 1) * kGap;
  for (const SkinButton* const button : buttons_) width += button->width();
  return width;
}

void FrmDialog::PlaceButtons(int top) {
  int left = (width() - ButtonsWidth()) / 2;
  for (SkinButton* const button : buttons_) {
    button->move(left, top);
    left += button->width() + kGap;
  }
}

void FrmDialog::Wrap(const QString& text, QSize room) {
  // A text too long for the screen gets longer lines; what still is too much is left out.
  const QFontMetrics metrics(lblText_->font());
  const qsizetype mostLines = std::max(1, room.height() / LineHeight(metrics));
  const QString plain = InLines(text);
  WrappedText wrapped = WrapText(plain, metrics, kLineWidth, mostLines);
  if (!wrapped.whole) wrapped = WrapText(plain, metrics, std::max(kLineWidth, room.width()), mostLines);
  lblText_->setText(wrapped.lines.join('\n'));
  lblText_->resize(metrics.size(0, lblText_->text()));
}

void FrmDialog::ShowTitle(const QString& title) {
  SetTitle(*this, title);
  const int room = screen()->availableSize().width() - 2 * kMargin;
  lblTitle_->setText(lblTitle_->fontMetrics().elidedText(OneLine(title), Qt::ElideRight, room));
  lblTitle_->adjustSize();
}

void FrmDialog::ShowText(const QString& title, const QString& text, MsgIcon icon) {
  ShowTitle(title);
  const QImage picture = icon == MsgIcon::None ? QImage() : skin_.MenuPicture(PictureOf(icon));
  imgIcon_->setPixmap(QPixmap::fromImage(picture));
  imgIcon_->setVisible(!picture.isNull());
  imgIcon_->resize(picture.size());

  const int left = picture.isNull() ? kMargin : kIconLeft + picture.width() + kGap;
  const int top = kMargin + lblTitle_->height() + kGap;
  int bottom = kMargin + kGap;
  for (const SkinButton* const button : buttons_) {
    bottom = std::max(bottom, kMargin + kGap + button->height());
  }
  const QSize area = screen()->availableSize();
  Wrap(text, QSize(area.width() - left - kMargin, area.height() - top - bottom));

  const int row = std::max(lblText_->height(), picture.height());
  setFixedSize(
      std::max({left + lblText_->width(), kMargin + lblTitle_->width(), kMargin + ButtonsWidth()}) + kMargin,
      top + row + bottom);
  lblTitle_->move((width() - lblTitle_->width()) / 2, kMargin);
  imgIcon_->move(kIconLeft, top + (row - picture.height()) / 2);
  const int spare = width() - kMargin - left - lblText_->width();
  lblText_->move(left + spare / 2, top + (row - lblText_->height()) / 2);
  PlaceButtons(height() - bottom + kGap);
}

// What was answered; what stands for it where the program ends is in the result all the same.
struct Answer {
  MsgResult result;
  bool given;
};

Answer Open(Skin& skin, QWidget* parent, const QString& prompt, MsgButtons buttons, MsgIcon icon,
            const QString& title, Qt::Key okKey) {
  FrmDialog dialog(skin, parent, buttons);
  dialog.SetOkKey(okKey);
  dialog.ShowText(title.isEmpty() ? QString(kProgramTitle) : title, prompt,
                  icon == MsgIcon::OfSet ? IconOf(buttons) : icon);
  const bool given = dialog.exec() != QDialog::Rejected;
  return {dialog.Result(), given};
}

}  // namespace

MsgResult SkinMsgBox(Skin& skin, QWidget* parent, const QString& prompt, MsgButtons buttons, MsgIcon icon,
                     const QString& title) {
  return Open(skin, parent, prompt, buttons, icon, title, Qt::Key_unknown).result;
}

void Tell(Skin& skin, QWidget* parent, const QString& title, const QString& text, Qt::Key key) {
  Open(skin, parent, text, MsgButtons::Ok, MsgIcon::OfSet, title, key);
}

bool AskRetry(Skin& skin, QWidget* parent, const QString& title, const QString& text) {
  return SkinMsgBox(skin, parent, text, MsgButtons::RetryCancel, MsgIcon::OfSet, title) == MsgResult::Retry;
}

bool Ask(Skin& skin, QWidget* parent, const QString& title, const QString& text) {
  return SkinMsgBox(skin, parent, text, MsgButtons::YesNo, MsgIcon::OfSet, title) == MsgResult::Yes;
}

std::optional<bool> AnswerTo(Skin& skin, QWidget* parent, const QString& title, const QString& text) {
  const Answer answer = Open(skin, parent, text, MsgButtons::YesNo, MsgIcon::OfSet, title, Qt::Key_unknown);
  return answer.given ? std::optional(answer.result == MsgResult::Yes) : std::nullopt;
}

void Tell(QWidget* parent, const QString& title, const QString& text) {
  Skin none;
  Tell(none, parent, title, text);
}

bool Ask(QWidget* parent, const QString& title, const QString& text) {
  Skin none;
  return Ask(none, parent, title, text);
}

}  // namespace zorik
