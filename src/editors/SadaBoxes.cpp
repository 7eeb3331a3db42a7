#include "editors/SadaBoxes.h"

#include <QFormLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QRegularExpressionValidator>
#include <QTextCursor>
#include <QTextDocument>
#include <QVBoxLayout>
#include <algorithm>

#include "data/CaveO.h"
#include "editors/BoxText.h"
#include "screens/BoxNote.h"
#include "screens/Hint.h"
#include "screens/PlainText.h"
#include "screens/StrangeLetters.h"
#include "screens/WholeText.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr int kBodyDigits = 5;
constexpr int kDescriptionLines = 3;  // at least
constexpr int kNoteGap = 2;
constexpr int kNameLetters = 26;  // at least to be seen of a text

// Takes all the height that the others leave.
QSizePolicy Tall(QSizePolicy policy) {
  policy.setVerticalPolicy(QSizePolicy::Expanding);
  policy.setVerticalStretch(1);
  return policy;
}

}  // namespace

TextId LabelOf(SadaText text) {
  constexpr std::array kLabels{TextId::CollectionName, TextId::Author, TextId::Mail,
                               TextId::CollectionDescription};
  return kLabels[static_cast<std::size_t>(text)];
}

BodyBox::BodyBox(QWidget* parent) : QLineEdit(parent) {
  setValidator(new QRegularExpressionValidator(QRegularExpression("-?[0-9]{0,5}"), this));
  connect(this, &QLineEdit::editingFinished, this, &BodyBox::Format);
  Format();
}

void BodyBox::Format() {
  setText(QString("%1").arg(std::max(0, text().toInt()), kBodyDigits, 10, QChar('0')));
}

// The click that brings the focus would put the caret among the digits.
void BodyBox::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  QMetaObject::invokeMethod(this, &QLineEdit::selectAll, Qt::QueuedConnection);
}

DescriptionBox::DescriptionBox(QWidget* parent) : QPlainTextEdit(parent) {
  setTabChangesFocus(true);
  connect(document(), &QTextDocument::contentsChange, this, [this](int position, int /*removed*/, int added) {
    position_ = position;
    added_ = added;
  });
  connect(this, &QPlainTextEdit::textChanged, this, &DescriptionBox::Fit);
}

void DescriptionBox::Load(const QString& text) {
  const bool whole = text.size() <= kMostInBox;
  loading_ = true;
  setPlainText(whole ? text : InLines(text, kMostInBox));
  loading_ = false;
  setReadOnly(!whole);
  most_ = std::max(SadaModel::kLongestDescription, KeptLength(WholeText(*document())));
}

// In a box the keys of the clipboard are the box's; one of several lines would leave Shift+Insert to the
// menu.
bool DescriptionBox::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride &&
      static_cast<QKeyEvent*>(event)->matches(QKeySequence::Paste)) {
    event->accept();
    return true;
  }
  return QPlainTextEdit::event(event);
}

// Of what was just put in the end goes if it is too much. The author takes both back by one step. A cut takes
// no more than half of what is too much, since a line break counts for two.
void DescriptionBox::Fit() {
  if (loading_) return;
  const QString text = WholeText(*document());
  const QString added = text.mid(position_, added_);
  const std::size_t rest = KeptLength(text) - std::min(KeptLength(text), KeptLength(added));
  QString fitting = added.left(static_cast<qsizetype>(most_));
  while (!fitting.isEmpty() && rest + KeptLength(fitting) > most_) {
    const std::size_t excess = rest + KeptLength(fitting) - most_;
    fitting.chop(static_cast<qsizetype>(std::max<std::size_t>(1, excess / 2)));
  }
  if (!fitting.isEmpty() && fitting.back().isHighSurrogate()) fitting.chop(1);
  if (fitting == added) {
    emit Edited(text);
  } else {
    Replace(added, fitting);
  }
}

void DescriptionBox::Replace(const QString& added, const QString& fitting) {
  QTextCursor cursor(document());
  cursor.joinPreviousEditBlock();
  cursor.setPosition(position_);
  cursor.setPosition(position_ + static_cast<int>(added.size()), QTextCursor::KeepAnchor);
  cursor.insertText(fitting);
  cursor.endEditBlock();
}

SadaBoxes::SadaBoxes(SadaModel& sada, QWidget* parent)
    : QWidget(parent),
      sada_(sada),
      Text3_(MakeBox("Text3", SadaText::Name)),
      Text1_(MakeBox("Text1", SadaText::Author)),
      Text2_(MakeBox("Text2", SadaText::Mail)),
      Text4_(new DescriptionBox(this)),
      txtBody_(new BodyBox(this)) {
  Text4_->setObjectName("Text4");
  txtBody_->setObjectName("txtBody");
  connect(Text4_, &DescriptionBox::Edited, this, [this](const QString& text) {
    sada_.SetText(SadaText::Description, FromBox(text));
    emit Changed();
  });
  LayOut();
}

QLineEdit* SadaBoxes::MakeBox(const char* name, SadaText text) {
  auto* const box = new QLineEdit(this);
  box->setObjectName(name);
  box->setMinimumWidth(box->fontMetrics().averageCharWidth() * kNameLetters);
  connect(box, &QLineEdit::textEdited, this, [this, box, text](const QString& typed) {
    const QString line = InOneLine(typed);
    if (line != typed) {
      const int caret = box->cursorPosition();
      box->setText(line);
      box->setCursorPosition(caret);
    }
    sada_.SetText(text, FromBox(line));
    emit Changed();
  });
  return box;
}

// A box with its note below.
QWidget* SadaBoxes::RowOf(QWidget* box, std::size_t place) {
  auto* const whole = new QWidget(this);
  auto* const row = new QVBoxLayout(whole);
  row->setContentsMargins({});
  row->setSpacing(kNoteGap);
  row->addWidget(box);
  if (place < notes_.size()) row->addWidget(notes_[place]);
  return whole;
}

void SadaBoxes::LayOut() {
  notes_ = {new BoxNote(*Text3_, kHighestNumber), new BoxNote(*Text1_, kHighestNumber),
            new BoxNote(*Text2_, std::nullopt), new BoxNote(*Text4_, SadaModel::kLongestDescription)};
  auto* const form = new QFormLayout(this);
  form->setContentsMargins({});
  form->setRowWrapPolicy(QFormLayout::WrapAllRows);
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  const std::array<QWidget*, 5> boxes{Text3_, Text1_, Text2_, Text4_, txtBody_};
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    labels_[i] = NewLabel(this);
    labels_[i]->setBuddy(boxes[i]);
    QWidget* const row = RowOf(boxes[i], i);
    if (boxes[i] == Text4_) row->setSizePolicy(Tall(row->sizePolicy()));
    form->addRow(labels_[i], row);
    if (i > 0) setTabOrder(boxes[i - 1], boxes[i]);
  }
  Text4_->setMinimumHeight(Text4_->fontMetrics().lineSpacing() * kDescriptionLines);
  txtBody_->setFixedWidth(txtBody_->fontMetrics().horizontalAdvance(QString(kBodyDigits * 2, '0')));
}

void SadaBoxes::SetLWEd(const Skin& skin) {
  for (std::size_t i = 0; i < labels_.size(); ++i) {
    const bool body = i + 1 == labels_.size();
    const QString words = skin.Text(body ? TextId::PointsAtStart : LabelOf(static_cast<SadaText>(i)));
    labels_[i]->setText(InMenu(words));
    SetHint(*labels_[i]->buddy(), words);
  }
  for (BoxNote* const note : notes_) note->SetWords(skin);
}

void SadaBoxes::Load() {
  Text3_->setText(ToBox(sada_.Text(SadaText::Name)));
  Text1_->setText(ToBox(sada_.Text(SadaText::Author)));
  Text2_->setText(ToBox(sada_.Text(SadaText::Mail)));
  Text4_->Load(ToBox(sada_.Text(SadaText::Description)));
  for (QLineEdit* const box : {Text3_, Text1_, Text2_}) box->setCursorPosition(0);
}

void SadaBoxes::Cover(const QString& words) {
  for (QLineEdit* const box : {Text3_, Text1_, Text2_}) box->setText(words);
  Text4_->Load(words);
}

void SadaBoxes::Begin() {
  Text3_->setFocus();
  SelectFromEnd(*Text3_);
}

QWidget* SadaBoxes::Box(SadaText text) const {
  const std::array<QWidget*, 4> boxes{Text3_, Text1_, Text2_, Text4_};
  return boxes[static_cast<std::size_t>(text)];
}

}  // namespace zorik
