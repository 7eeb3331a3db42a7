#include "screens/FrmDialog2.h"

#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QShortcut>
#include <QTextEdit>

#include "screens/BoxNote.h"
#include "screens/PlainText.h"
#include "screens/SkinButton.h"
#include "screens/SkinPlacing.h"
#include "screens/StartWords.h"
#include "screens/WholeText.h"
#include "skin/GameFont.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr int kLetters = 16;
constexpr int kReadLetters = 20;
constexpr QSize kPlainSize(520, 360);
constexpr QRect kPlainBox(40, 60, 440, 220);

template <class Box>
Box* NewBox(const char* name, int letters, QWidget* parent) {
  auto* const box = new Box(parent);
  box->setObjectName(name);
  box->setFrameShape(QFrame::NoFrame);
  box->setFont(GameFont(letters));
  return box;
}

}  // namespace

FrmDialog2::FrmDialog2(Skin& skin, QWidget* parent)
    : SkinDialog(parent),
      skin_(skin),
      picText_(NewBox<QTextEdit>("picText", kReadLetters, this)),
      Text1_(NewBox<QPlainTextEdit>("Text1", kLetters, this)),
      note_(new BoxNote(*Text1_, std::nullopt)),
      ok_(new SkinButton(this)),
      close_(new SkinButton(this)),
      help_(new SkinButton(this)) {
  picText_->setReadOnly(true);
  picText_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  for (QWidget* const box : std::initializer_list<QWidget*>{picText_, Text1_}) box->installEventFilter(this);
  note_->setFont(GameFont(kLetters));
  note_->setAutoFillBackground(true);
  connect(note_, &BoxNote::Changed, this, &FrmDialog2::PlaceNote);
  ok_->setObjectName("ok");
  close_->setObjectName("close");
  help_->setObjectName("help");
  connect(ok_, &SkinButton::clicked, this, &FrmDialog2::OnEnter);
  connect(close_, &SkinButton::clicked, this, &FrmDialog2::OnEsc);
  connect(help_, &SkinButton::clicked, this, &FrmDialog2::HelpWanted);
  // As long as the button is there.
  connect(new QShortcut(QKeySequence(Qt::Key_F1), help_), &QShortcut::activated, this,
          &FrmDialog2::HelpWanted);
}

void FrmDialog2::SkinIt() {
  SetTitle(*this, skin_.Said("congratulation.text"));
  SetWindowPicture(skin_, Surface(), *this, "congratulation", kPlainSize);
  QPalette colours = palette();
  colours.setColor(QPalette::Base, skin_.Colour("congratulation.congrat.color", Qt::white));
  colours.setColor(QPalette::Text, skin_.Colour("congratulation.congrat.textcolor"));
  for (QWidget* const box : std::initializer_list<QWidget*>{picText_, Text1_}) {
    box->setGeometry(BoxOf(skin_, "congratulation.congrat", kPlainBox));
    box->setPalette(colours);
  }
  note_->SetWords(skin_);
  PlaceButton(skin_, *ok_, "congratulation.ok", kOkWords.In(skin_));
  PlaceButton(skin_, *close_, "congratulation.close", kCancelWords.In(skin_));
  PlaceButton(skin_, *help_, "congratulation.help", kHelpWords.In(skin_));
}

void FrmDialog2::SetMode(bool editing) {
  picText_->setVisible(!editing);
  Text1_->setVisible(editing);
  if (!editing) note_->hide();
  close_->setVisible(editing);
  help_->setVisible(editing);
  setFocusProxy(editing ? static_cast<QWidget*>(Text1_) : picText_);
  setFocus();
}

// It takes its room from the box.
void FrmDialog2::PlaceNote() {
  QRect box = BoxOf(skin_, "congratulation.congrat", kPlainBox);
  if (!note_->text().isEmpty()) {
    const int height = note_->heightForWidth(box.width());
    note_->setGeometry(box.left(), box.bottom() + 1 - height, box.width(), height);
    box.setHeight(box.height() - height);
  }
  Text1_->setGeometry(box);
}

void FrmDialog2::ShowG(const QString& text) {
  SkinIt();
  picText_->setPlainText(InLines(text, kMostInBox));
  picText_->selectAll();
  picText_->setAlignment(Qt::AlignHCenter);
  picText_->moveCursor(QTextCursor::Start);
  SetMode(false);
  exec();
}

std::optional<QString> FrmDialog2::SetG(const QString& text) {
  SkinIt();
  const bool whole = text.size() <= kMostInBox;
  Text1_->setPlainText(whole ? text : InLines(text, kMostInBox));
  Text1_->setReadOnly(!whole);
  SetMode(true);
  if (exec() != Accepted || !whole) return std::nullopt;
  return WholeText(*Text1_->document()).replace('\n', "\r\n");
}

// In the box for editing Enter begins a new line, and with Ctrl it is the window's, like all Enter and Esc
// of the box for reading.
bool FrmDialog2::eventFilter(QObject* object, QEvent* event) {
  const bool ours = object == picText_ || object == Text1_;
  if (!ours || event->type() != QEvent::KeyPress) return SkinDialog::eventFilter(object, event);
  auto* const key = static_cast<QKeyEvent*>(event);
  const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
  const bool forWindow = object == picText_ || key->modifiers().testFlag(Qt::ControlModifier);
  if (!(enter && forWindow) && key->key() != Qt::Key_Escape) return false;
  keyPressEvent(key);
  return true;
}

}  // namespace zorik
