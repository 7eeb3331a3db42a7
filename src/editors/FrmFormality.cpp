#include "editors/FrmFormality.h"

#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QTextCursor>
#include <QTextDocument>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "data/Cp1250.h"
#include "editors/BoxText.h"
#include "editors/EditorKeys.h"
#include "editors/WindowPlace.h"
#include "screens/BoxNote.h"
#include "screens/Marks.h"
#include "screens/MsgBox.h"
#include "screens/PlainText.h"
#include "screens/StartWords.h"
#include "screens/WholeText.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

// The buttons, Command1 to Command8.
enum CommandPlace : std::size_t { kOk, kCancel, kBonus, kGems, kTimePoints, kWhatThen, kSlime, kPetrifying };
// Of all but the first.
constexpr std::array kCaptions{TextId::CancelButton,       TextId::BonusButton,    TextId::GemsButton,
                               TextId::TimeToPointsButton, TextId::WhatThenButton, TextId::SlimeButton,
                               TextId::PetrifyingButton};

constexpr StartWords kOpenChangedWords{"caption.form.changed"};
constexpr StartWords kWasWords{"caption.form.was"};

constexpr qsizetype kShownText = 80;         // letters of a text in a message
constexpr qsizetype kBeforeDifference = 20;  // of these in front of what has changed

constexpr int kAllColumns = 3;    // beside the labels
constexpr int kNumberWidth = 10;  // in digits
constexpr int kDescriptionLines = 4;
constexpr QSize kLeastArea(320, 120);

// Letters that no cave text can hold have become question marks.
bool HasGaps(const QString& text) {
  return !FromUtf8(text.normalized(QString::NormalizationForm_C).toStdString());
}

void ReportGaps(const QString& text, TextId label, std::vector<Correction>& report) {
  const Correction line{.label = label};
  if (HasGaps(text) && std::find(report.begin(), report.end(), line) == report.end()) report.push_back(line);
}

// Of two long texts, the parts that differ.
QString PartOf(const std::string& text, const std::string& other) {
  const QString shown = ToBox(text).simplified();
  const QString compared = ToBox(other).simplified();
  qsizetype same = 0;
  while (same < std::min(shown.size(), compared.size()) && shown[same] == compared[same]) ++same;
  const qsizetype start =
      same > kBeforeDifference && shown.size() > kShownText ? same - kBeforeDifference : 0;
  const bool cut = shown.size() - start > kShownText;
  return (start > 0 ? "…" : "") + shown.mid(start, kShownText) + (cut ? "…" : "");
}

QString LineOf(const Skin& skin, const Correction& line) {
  QString text = FillMarks(skin.Text(line.label), "1", QString());
  if (line.limit) text += " = " + QString::number(*line.limit);
  if (line.entry) text += " = " + skin.Text(*line.entry);
  QString was = line.wasEntry ? skin.Text(*line.wasEntry) : ToBox(line.was);
  const bool isText = line.label == TextId::Name || line.label == TextId::Description;
  if (isText && !line.was.empty()) {
    text += " = \"" + PartOf(line.text, line.was) + '"';
    was = '"' + PartOf(line.was, line.text) + '"';
  }
  return was.isEmpty() ? text : text + " (" + FillMarks(kWasWords.In(skin), was, QString()) + ')';
}

QString WarningOf(const Skin& skin, const std::vector<Correction>& report) {
  QStringList lines;
  for (const Correction& line : report) lines << LineOf(skin, line);
  return "\n" + skin.Text(TextId::Corrected) + "\n" + lines.join('\n');
}

int LettersWidth(const QWidget& widget, int letters) {
  return widget.fontMetrics().horizontalAdvance(QString(letters, '0'));
}

// What is too large for the screen scrolls.
class TextsArea : public QScrollArea {
 public:
  TextsArea(QWidget* inner, QWidget* parent) : QScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWidget(inner);
  }

  QSize sizeHint() const override {
    // The box of the description wants nothing, yet has a least height.
    const QSize texts = widget()->sizeHint().expandedTo(widget()->minimumSizeHint());
    return texts + QSize(verticalScrollBar()->sizeHint().width(), 0);
  }
  QSize minimumSizeHint() const override { return kLeastArea; }
};

}  // namespace

FrmFormality::FrmFormality(Skin& skin, const CaveModel& cave, QWidget* parent)
    : QDialog(parent),
      skin_(skin),
      cave_(cave),
      name_(new QLineEdit(this)),
      description_(new QPlainTextEdit(this)),
      colouring_(new QComboBox(this)),
      lblName_(NewLabel(this)),
      lblDescription_(NewLabel(this)),
      lblColouring_(NewLabel(this)) {
  setObjectName("frmFormality");
  setModal(true);
  name_->setObjectName("Text3");
  description_->setObjectName("Text4");
  // What the cave has room for, which is less than can be typed.
  noteName_ = new BoxNote(*name_, kHighestNumber);
  noteDescription_ = new BoxNote(*description_, kHighestNumber);
  description_->setTabChangesFocus(true);
  colouring_->setObjectName("Combo1");
  for (const NumberRow& row : kNumberRows) {
    const auto place = static_cast<std::size_t>(row.number);
    auto* const box = new QLineEdit(this);
    box->setObjectName(row.control);
    // Not by the longest text of the box, which would shorten a longer number of the cave, too.
    const QString digits = QString("[0-9]{0,%1}").arg(row.digits);
    box->setValidator(new QRegularExpressionValidator(QRegularExpression(digits), box));
    box->setFixedWidth(LettersWidth(*box, kNumberWidth));
    numbers_[place] = box;
    lblNumbers_[place] = NewLabel(this);
  }
  AddButtons();
  AddKeys();
  LayOut();
  connect(description_->document(), &QTextDocument::contentsChange, this,
          [this](int position, int /*removed*/, int added) { LimitDescription(position, added); });
  SetLWEd();
  sized_ = RestoreSize(*this);
}

// What its texts take is known by now only.
void FrmFormality::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (std::exchange(sized_, true)) return;
  texts_->updateGeometry();
  ResizeWithinScreen(*this, sizeHint());
}

void FrmFormality::AddButtons() {
  for (std::size_t i = 0; i < commands_.size(); ++i) {
    commands_[i] = new QPushButton(this);
    commands_[i]->setObjectName(QString("Command%1").arg(i + 1));
    commands_[i]->setAutoDefault(false);
  }
  commands_[kOk]->setDefault(true);
  const auto on = [this](CommandPlace place, auto act) {
    connect(commands_[place], &QPushButton::clicked, this, act);
  };
  on(kOk, [this] { Confirm(); });
  on(kCancel, [this] { reject(); });
  on(kBonus, [this] { AskBonus(); });
  on(kGems, [this] { AskGems(); });
  on(kTimePoints, [this] { Answer(TextId::TimeAndPointsTitle, skin_.Text(TextId::TimeAndPoints)); });
  on(kWhatThen, [this] { Answer(TextId::WhatThenTitle, skin_.Text(TextId::WhatThen)); });
  on(kSlime, [this] { AskSlime(); });
  on(kPetrifying, [this] { AskPetrifying(); });
}

void FrmFormality::AddKeys() {
  auto* const help = new QShortcut(QKeySequence(kHelpKey), this);
  connect(help, &QShortcut::activated, this, [this] { emit HelpWanted("vlastnosti.html"); });
  auto* const sheet = new QShortcut(QKeySequence(kSheetKeys), this);
  connect(sheet, &QShortcut::activated, this, &FrmFormality::ShortcutsWanted);
}

// The questions that belong to a number.
std::vector<QPushButton*> FrmFormality::Beside(CaveNumber number) const {
  switch (number) {
    case CaveNumber::Time:
      return {commands_[kTimePoints]};
    case CaveNumber::GemsNeeded:
      return {commands_[kGems]};
    case CaveNumber::AmoebaTime:
      return {commands_[kWhatThen], commands_[kPetrifying]};
    case CaveNumber::SlimePermeability:
      return {commands_[kSlime]};
    default:
      return {};
  }
}

void FrmFormality::AddRow(QGridLayout& grid, QLabel* label, QWidget* control, int columns,
                          const std::vector<QPushButton*>& beside) {
  const int row = grid.rowCount();
  label->setBuddy(control);
  grid.addWidget(label, row, 0, columns == kAllColumns ? Qt::AlignTop : Qt::AlignVCenter);
  grid.addWidget(control, row, 1, 1, columns);
  int column = 1 + columns;
  for (QPushButton* const button : beside) grid.addWidget(button, row, column++);
}

void FrmFormality::LayOut() {
  auto* const rows = new QVBoxLayout(this);
  auto* const texts = new QWidget;
  auto* const grid = new QGridLayout(texts);
  grid->setContentsMargins({});
  AddRow(*grid, lblName_, name_, 2, {commands_[kBonus]});
  grid->addWidget(noteName_, grid->rowCount(), 1, 1, kAllColumns);
  // Its lines alone tell how high it has to be; what is left over is its, too.
  description_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
  description_->setMinimumHeight(description_->fontMetrics().lineSpacing() * (kDescriptionLines + 1));
  AddRow(*grid, lblDescription_, description_, kAllColumns, {});
  grid->setRowStretch(grid->rowCount() - 1, 1);
  grid->addWidget(noteDescription_, grid->rowCount(), 1, 1, kAllColumns);
  for (const NumberRow& row : kNumberRows) {
    AddRow(*grid, lblNumbers_[static_cast<std::size_t>(row.number)], &Box(row.number), 1, Beside(row.number));
  }
  AddRow(*grid, lblColouring_, colouring_, 2, {});
  auto* const ends = new QHBoxLayout;
  ends->addStretch();
  ends->addWidget(commands_[kOk]);
  ends->addWidget(commands_[kCancel]);
  grid->setColumnStretch(kAllColumns, 1);
  rows->addWidget(texts_ = new TextsArea(texts, this), 1);
  rows->addLayout(ends);
  OrderTabs();
}

// Row by row, as it is read.
void FrmFormality::OrderTabs() {
  std::vector<QWidget*> order{name_, commands_[kBonus], description_};
  for (const NumberRow& row : kNumberRows) {
    order.push_back(&Box(row.number));
    for (QPushButton* const button : Beside(row.number)) order.push_back(button);
  }
  order.insert(order.end(), {colouring_, commands_[kOk], commands_[kCancel]});
  for (std::size_t i = 1; i < order.size(); ++i) setTabOrder(order[i - 1], order[i]);
}

void FrmFormality::SetLWEd() {
  SetTitle(*this, skin_.Text(TextId::CaveProperties));
  const auto label = [this](QLabel& control, TextId text) {
    control.setText("- " + InMenu(skin_.Text(text)));
  };
  label(*lblName_, TextId::Name);
  label(*lblDescription_, TextId::Description);
  label(*lblColouring_, TextId::Colouring);
  for (const NumberRow& row : kNumberRows)
    label(*lblNumbers_[static_cast<std::size_t>(row.number)], row.label);
  for (BoxNote* const note : {noteName_, noteDescription_}) note->SetWords(skin_);
  commands_[kOk]->setText(InMenu(skin_.Caption("caption.form.ok")));
  for (std::size_t i = kCancel; i < commands_.size(); ++i)
    commands_[i]->setText(InMenu(skin_.Text(kCaptions[i - kCancel])));
  const int chosen = colouring_->currentIndex();
  colouring_->clear();
  for (const ColouringRow& row : kColourings)
    colouring_->addItem(OneLine(skin_.Text(row.caption), kMostInCaption));
  colouring_->setCurrentIndex(std::max(0, chosen));
}

// To and from the boxes

void FrmFormality::SetProps() {
  const Formality values = FormalityOf(cave_.Cave());
  name_->setText(ToBox(values.Name));
  loadedDescription_ = values.Description;
  description_->setPlainText(ToBox(values.Description));
  shownDescription_ = WholeText(*description_->document());
  for (const NumberRow& row : kNumberRows)
    Box(row.number).setText(QString::number(values.Number(row.number)));
  colouring_->setCurrentIndex(static_cast<int>(values.Colouring));
  name_->setFocus();
  SelectFromEnd(*name_);
}

// Val: an empty box is 0.
int FrmFormality::Number(CaveNumber number) const {
  return Box(number).text().toInt();
}

Formality FrmFormality::Values() const {
  Formality values;
  values.Name = FromBox(InOneLine(name_->text()));
  const QString description = WholeText(*description_->document());
  values.Description = description == shownDescription_ ? loadedDescription_ : FromBox(description);
  for (const NumberRow& row : kNumberRows) {
    values.Numbers[static_cast<std::size_t>(row.number)] = Number(row.number);
  }
  values.Colouring = static_cast<std::size_t>(std::max(0, colouring_->currentIndex()));
  return values;
}

// Takes away the end of what was just put in, if it is too much.
void FrmFormality::LimitDescription(int position, int added) {
  const QString text = WholeText(*description_->document());
  const auto length = text.size() + text.count('\n');
  if (length <= kLongestDescription || added == 0) return;
  qsizetype excess = length - kLongestDescription;
  qsizetype end = std::min<qsizetype>(position + added, text.size());
  qsizetype begin = end;
  while (excess > 0 && begin > position) excess -= text.at(--begin) == '\n' ? 2 : 1;
  // The document is in the middle of its change here.
  QMetaObject::invokeMethod(
      description_,
      [this, begin, end] {
        QTextCursor cursor(description_->document());
        cursor.setPosition(static_cast<int>(begin));
        cursor.setPosition(static_cast<int>(end), QTextCursor::KeepAnchor);
        cursor.removeSelectedText();
      },
      Qt::QueuedConnection);
}

void FrmFormality::Confirm() {
  Formality values = Values();
  const Formality typed = values;
  std::vector<Correction> report = Correct(values);
  ReportGaps(name_->text(), TextId::Name, report);
  ReportGaps(WholeText(*description_->document()), TextId::Description, report);
  for (const NumberRow& row : kNumberRows) {
    const int value = values.Number(row.number);
    if (value != typed.Number(row.number)) Box(row.number).setText(QString::number(value));
  }
  if (values.Name != typed.Name) name_->setText(ToBox(values.Name));
  if (values.Description != typed.Description) description_->setPlainText(ToBox(values.Description));
  if (!report.empty()) Warn(skin_, this, report);
  emit VlOK(values);
  accept();
}

void FrmFormality::Warn(Skin& skin, QWidget* parent, const std::vector<Correction>& report) {
  Tell(skin, parent, skin.Text(TextId::Warning), WarningOf(skin, report));
}

bool FrmFormality::AskToOpen(Skin& skin, QWidget* parent, const std::vector<Correction>& report) {
  const QString question = kOpenChangedWords.In(skin);
  return Ask(skin, parent, skin.Text(TextId::Warning), WarningOf(skin, report) + "\n\n" + question);
}

void FrmFormality::done(int result) {
  StoreSize(*this);
  QDialog::done(result);
}

// Enter confirms in the boxes of one line; on a button it presses that.
void FrmFormality::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  auto* const button = qobject_cast<QPushButton*>(focusWidget());
  if (enter && button != nullptr) {
    button->click();
    return;
  }
  QDialog::keyPressEvent(event);
}

// Answers

void FrmFormality::Answer(TextId title, const QString& text) {
  Tell(skin_, this, skin_.Text(title), text);
}

void FrmFormality::AskBonus() {
  QString text = skin_.Text(TextId::BonusText);
  const QString name = name_->text();
  if (JeBonus(FromUtf8Lossy(name.toStdString())))
    text += "\n" + FillMarks(skin_.Text(TextId::BonusThisCave), name, QString());
  Answer(TextId::BonusTitle, text);
}

void FrmFormality::AskGems() {
  const std::string text = BlankJoin(skin_.Words().At(TextId::GemsInCave), std::to_string(cave_.SpoctiDrh()));
  Tell(skin_, this, QString(), QString::fromStdString(text));
}

void FrmFormality::AskSlime() {
  const int permeability = Number(CaveNumber::SlimePermeability);
  QString text = ":-)";
  if (permeability == 0) text = skin_.Text(TextId::SlimeNothing);
  if (permeability == 8) text = skin_.Text(TextId::SlimeAll);
  if (permeability > 0 && permeability < 8) {
    text = QString("%1 1:%2.")
               .arg(skin_.Text(TextId::SlimeOdds).trimmed(), QString::number(SlimeOdds(permeability)));
  }
  const std::string title =
      BlankJoin(skin_.Words().At(TextId::SlimeTitle), std::to_string(permeability) + "?");
  Tell(skin_, this, QString::fromStdString(title), text);
}

void FrmFormality::AskPetrifying() {
  const Petrifying answer = ComputePetrifying(Number(CaveNumber::Width), Number(CaveNumber::Height),
                                              cave_.NuOfOb('A'), Number(CaveNumber::AmoebaTime));
  const std::string text =
      WithNumber(WithNumber(skin_.Words().At(TextId::Petrifying), " ?1?", answer.cells), " ?2?", answer.time);
  Answer(TextId::PetrifyingTitle, QString::fromStdString(text));
}

}  // namespace zorik
