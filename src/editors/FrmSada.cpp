#include "editors/FrmSada.h"

#include <QCloseEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QShortcut>
#include <QStatusBar>
#include <QToolButton>
#include <QUrl>

#include "data/Cp1250.h"
#include "data/Result.h"
#include "editors/BoxText.h"
#include "editors/ContactSheet.h"
#include "editors/EditorKeys.h"
#include "editors/EditorTitle.h"
#include "editors/FaultWords.h"
#include "editors/NameNote.h"
#include "editors/PictureOffer.h"
#include "editors/SadaBoxes.h"
#include "editors/SadaList.h"
#include "editors/SadaUndoMenu.h"
#include "editors/TextsOffer.h"
#include "editors/WindowPlace.h"
#include "platform/PathText.h"
#include "screens/DesktopServices.h"
#include "screens/FrmDialog2.h"
#include "screens/Marks.h"
#include "screens/MsgBox.h"
#include "screens/PlainText.h"
#include "screens/StartWords.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr QSize kUsualSize(740, 400);
constexpr int kGap = 16;

constexpr StartWords kTitleWords{"caption.sada.title"};
constexpr StartWords kSheetWords{"caption.sada.sheet"};
constexpr StartWords kLikeCaveWords{"caption.error.congrat"};

// The word for so many caves.
TextId WordOfCaves(int count) {
  if (count == 1) return TextId::OneCave;
  return count < 5 ? TextId::FewCaves : TextId::ManyCaves;
}

}  // namespace

SadaWords FrmSada::WordsOf(const Skin& skin) {
  const auto text = [&skin](TextId id) { return FromUtf8Lossy(skin.Words().At(id)); };
  return {text(TextId::NewCollection),
          text(TextId::NewCongratulation),
          {text(TextId::NewSmallCave), text(TextId::NewLargeCave), text(TextId::NoDescription)}};
}

FrmSada::FrmSada(Skin& skin, const Paths& paths, SadaModel& sada)
    : skin_(skin),
      paths_(paths),
      sada_(sada),
      keeper_(skin, sada, paths),
      frmLoading_(skin),
      files_(skin, paths, sada, frmLoading_, [this](SadaText text) { boxes_->Box(text)->setFocus(); }) {
  setObjectName("frmSada");
  sada_.SetWords(WordsOf(skin));
  sada_.New();
  MakeMenus();
  LayOut();
  AddKeys();
  SetLWEd();
  boxes_->Load();
  GetNames();
  if (RestoreSize(*this)) return;
  resize(kUsualSize);
  PutInMiddle(*this);
}

void FrmSada::LayOut() {
  auto* const centre = new QWidget(this);
  auto* const sides = new QHBoxLayout(centre);
  sides->setSpacing(kGap);
  boxes_ = new SadaBoxes(sada_, centre);
  connect(boxes_, &SadaBoxes::Changed, this, [this] {
    UpdateTitle();
    UpdateNames();
  });
  sides->addWidget(boxes_, 2);
  sides->addWidget(MakeListSide(), 3);
  setCentralWidget(centre);
}

QWidget* FrmSada::MakeListSide() {
  auto* const side = new QWidget(this);
  auto* const column = new QVBoxLayout(side);
  column->setContentsMargins({});
  list_ = new SadaList(sada_, side);
  list_->setObjectName("CaveList");
  list_->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(list_, &QWidget::customContextMenuRequested, this,
          [this](QPoint place) { mnuCave_->popup(list_->viewport()->mapToGlobal(place)); });
  connect(list_, &SadaList::CaveClicked, this, [this](int number) {
    sada_.Select(number);
    GetNames();
  });
  connect(list_, &SadaList::MarkClicked, this, [this](int number) {
    sada_.ToggleOpen(number);
    AfterChange();
  });
  connect(list_, &SadaList::Activated, this, &FrmSada::mnuEdit_Click);
  column->addWidget(list_, 1);
  lblNames_ = NewLabel(side);
  lblNames_->setObjectName("lblNames");
  lblNames_->setWordWrap(true);
  column->addWidget(lblNames_);
  auto* const row = new QHBoxLayout;
  for (QAction* const action :
       {mnuAdd_->menuAction(), findChild<QAction*>("mnuEdit"), mnuUp_, mnuDown_, mnuDelete_}) {
    auto* const button = new QToolButton(side);
    button->setDefaultAction(action);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setPopupMode(QToolButton::InstantPopup);
    button->setFocusPolicy(Qt::TabFocus);
    row->addWidget(button);
  }
  row->addStretch();
  lblCount_ = NewLabel(side);
  lblCount_->setObjectName("lblCount");
  row->addWidget(lblCount_);
  column->addLayout(row);
  return side;
}

void FrmSada::Open(const QString& path) {
  SetIcons();
  SetLWEd();
  show();
  raise();
  activateWindow();
  mnuNew_Click();
  keeper_.Begin();
  if (!path.isEmpty()) OpenColl(path);
  boxes_->Begin();
}

void FrmSada::CaveDone(const std::string& text) {
  editing_ = false;
  sada_.SetSelected(text);
  AfterChange();
  show();
  raise();
  activateWindow();
}

// What is shown

void FrmSada::SetLWEd() {
  sada_.SetWords(WordsOf(skin_));
  boxes_->SetLWEd(skin_);
  list_->SetMarkHint(skin_.Text(TextId::MarkHint));
  menus_.SetCaptions(skin_);
  menus_.SetHints(skin_);
  ShowLinks();
  UpdateNames();
  UpdateTitle();
  UpdateActions();
  UpdateCount();
}

void FrmSada::AfterChange() {
  statusBar()->clearMessage();
  GetNames();
  UpdateTitle();
}

void FrmSada::GetNames() {
  list_->GetNames();
  UpdateNames();
  UpdateActions();
  UpdateCount();
}

void FrmSada::UpdateNames() {
  const std::map<int, QString> doubts = DoubtfulNames(skin_, sada_);
  list_->SetDoubts(doubts);
  lblNames_->setText(NameNote(skin_, doubts, sada_.ListSelected()));
  lblNames_->setVisible(!doubts.empty());
}

void FrmSada::UpdateCount() {
  const int count = sada_.ListCount();
  lblCount_->setText(QString::number(count) + ' ' + OneLine(skin_.Text(WordOfCaves(count)), kMostInCaption));
}

void FrmSada::UpdateTitle() {
  SetCollectionTitle(*this, kTitleWords.In(skin_), sada_.Text(SadaText::Name), sada_.FileName());
  setWindowModified(sada_.Chg());
  undo_->Update();
  if (!sada_.Chg()) keeper_.Settle();
}

// New, open, save

void FrmSada::mnuNew_Click() {
  keeper_.Discard();
  sada_.SetWords(WordsOf(skin_));
  sada_.New();
  boxes_->Load();
  AfterChange();
}

void FrmSada::mnuOpen_Click() {
  if (!AskToSave()) return;
  const QString folder = QFileInfo(files_.ProposedPath()).absolutePath();
  const QString path = AskForFile(skin_, this, skin_.Text(TextId::OpenCollectionTitle), folder,
                                  {skin_.Text(TextId::CollectionKind) + " (*.zk)"});
  if (!path.isEmpty()) OpenColl(path);
}

void FrmSada::OpenColl(const QString& path) {
  const Result<SadaModel::OpenReport, FileFailure> report = [&] {
    const BusyNotice busy(frmLoading_);
    return sada_.Open(PathBytes(path));
  }();
  if (!report) return files_.TellNotOpened(*this, path, report.Why().Trouble);
  if (report->Closed) {
    TellClosed();
    mnuNew_Click();
    return;
  }
  boxes_->Load();
  AfterChange();
  if (!report->Faults.empty())
    Tell(skin_, this, skin_.Text(TextId::Program), FaultsInWords(skin_, report->Faults));
}

void FrmSada::TellClosed() {
  boxes_->Cover(skin_.Text(TextId::Closed));
  Tell(skin_, this, skin_.Text(TextId::ClosedTitle), skin_.Text(TextId::ClosedText));
}

bool FrmSada::mnuSave_Click() {
  return AfterSaving(files_.Save(*this));
}

bool FrmSada::mnuSaveAs_Click() {
  return AfterSaving(files_.SaveAs(*this));
}

bool FrmSada::StoreCave(const std::string& text, QWidget& over) {
  sada_.SetSelected(text);
  return AfterSaving(files_.Save(over));
}

bool FrmSada::AfterSaving(bool saved) {
  AfterChange();
  if (saved) emit Saved();
  return saved;
}

CaveOrigin FrmSada::OriginOfSelected() const {
  const int number = sada_.ListSelected();
  std::vector<std::string> before;
  for (int other = 1; other < number; ++other) before.push_back(sada_.Name(other));
  return {sada_.FileName(), sada_.Text(SadaText::Name), number, std::move(before)};
}

bool FrmSada::AskToSave() {
  if (!sada_.Chg()) return true;
  const QString question =
      FillMarks(skin_.Text(TextId::SaveChanges), ToBox(sada_.Text(SadaText::Name)), QString());
  switch (SkinMsgBox(skin_, this, question, MsgButtons::YesNoCancel, MsgIcon::OfSet,
                     skin_.Text(TextId::SaveChangesTitle))) {
    case MsgResult::Yes:
      return mnuSave_Click();
    case MsgResult::No:
      keeper_.Discard();
      return true;
    default:
      return false;
  }
}

void FrmSada::closeEvent(QCloseEvent* event) {
  if (!AskToSave()) {
    event->ignore();
    return;
  }
  StoreSize(*this);
  keeper_.End();
  event->accept();
  hide();
  emit Closed();
}

// Caves

// The collection counts as changed from here on, even if the cave stays as it was.
void FrmSada::mnuEdit_Click() {
  const BusyNotice busy(frmLoading_);
  sada_.SetChg();
  UpdateTitle();
  editing_ = true;
  const std::string cave = sada_.Cave(sada_.ListSelected());
  emit EditCave(cave, OriginOfSelected());
  if (editing_) hide();
}

void FrmSada::mnuDelete_Click() {
  if (sada_.ListCount() == 1) return;
  const QString name = ToBox(sada_.Name(sada_.ListSelected()));
  const QString question = skin_.Text(TextId::DeleteCave).trimmed() + " '" + name + "' " +
                           skin_.Text(TextId::DeleteCaveEnd).trimmed();
  if (!Ask(skin_, this, skin_.Text(TextId::DeleteCaveTitle), question)) return;
  sada_.Delete();
  AfterChange();
}

// A text that ends like a cave would be read as one, and a game that finds it unreadable opens nothing of the
// collection. So the author is asked for another end; a text that he left alone stays.
void FrmSada::mnuGratulace_Click() {
  const QString before = ToBox(sada_.CongratulationText());
  FrmDialog2 dialog(skin_, this);
  connect(&dialog, &FrmDialog2::HelpWanted, this, [this] { ShowPage("editovat.html"); });
  connect(new QShortcut(QKeySequence(kSheetKeys), &dialog), &QShortcut::activated, this,
          [&] { ShowShortcuts(dialog); });
  QString text = before;
  for (;;) {
    const std::optional<QString> edited = dialog.SetG(text);
    if (!edited) return;
    text = AsKept(QString(*edited).replace("\r\n", "\n"));
    if (text == before) return;
    if (!EndsWithMarker(FromBox(text))) break;
    Tell(skin_, this, skin_.Text(TextId::Program), kLikeCaveWords.In(skin_));
  }
  sada_.SetCongratulation(FromBox(text));
  UpdateTitle();
}

// Other forms of a collection

void FrmSada::mnuToTexts_Click() {
  if (files_.FitsFile(*this)) OfferTexts(skin_, this, sada_);
}

void FrmSada::mnuFromTexts_Click() {
  if (!AskToSave()) return;
  const auto report = TakeTexts(skin_, this, sada_);
  if (!report) return;
  if (report->Closed) TellClosed();
  boxes_->Load();
  AfterChange();
  if (!report->Faults.empty())
    Tell(skin_, this, skin_.Text(TextId::Program), FaultsInWords(skin_, report->Faults));
}

void FrmSada::mnuSheet_Click() {
  std::vector<std::string> caves;
  for (int number = 1; number <= sada_.ListCount(); ++number) caves.push_back(sada_.Cave(number));
  const std::string& name = sada_.Text(SadaText::Name);
  const QImage sheet = [&] {
    const BusyNotice busy(frmLoading_);
    return ContactSheet(skin_.Places(), ToBox(name), caves);
  }();
  OfferPicture(skin_, this, kSheetWords.In(skin_), name, sheet);
}

void FrmSada::ShowPage(const QString& page) {
  OpenFileOrTell(skin_, this, HelpPage(paths_, skin_, page));
}

}  // namespace zorik
