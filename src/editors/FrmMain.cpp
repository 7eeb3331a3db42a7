#include "editors/FrmMain.h"

#include <QActionGroup>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QStatusBar>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

#include "data/Result.h"
#include "editors/CaveView.h"
#include "editors/DoubtPage.h"
#include "editors/DrawHand.h"
#include "editors/DrawMenus.h"
#include "editors/EditorTitle.h"
#include "editors/FrmFormality.h"
#include "editors/FrmStats.h"
#include "editors/Palette.h"
#include "editors/ProofDesk.h"
#include "editors/ProofOffer.h"
#include "editors/SidePanel.h"
#include "editors/ToolHint.h"
#include "editors/ToolNames.h"
#include "editors/ToolStrip.h"
#include "editors/ToolWords.h"
#include "editors/WindowPlace.h"
#include "platform/PathText.h"
#include "screens/Hint.h"
#include "screens/Marks.h"
#include "screens/MsgBox.h"
#include "screens/PlainText.h"
#include "screens/StartWords.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr int kIcon = 20;
constexpr int kAmoebaTool = 10;
constexpr int kCatTool = 33;
enum LabelPlace : std::size_t { kEditLabel, kPropsLabel, kTestLabel, kCatButton, kDogButton };

constexpr StartWords kStoredWords{"caption.main.stored"};

struct FirstTool {
  ToolButton button;
  int palette;
};
constexpr std::array<FirstTool, 3> kFirstTools{{
    {ToolButton::Right, 1},
    {ToolButton::Left, 2},
    {ToolButton::Middle, 3},
}};

}  // namespace

FrmMain::FrmMain(Skin& skin, CatEditor editCat, std::uint64_t seed, QWidget* parent)
    : QMainWindow(parent), skin_(skin), editCat_(std::move(editCat)), rnd_(seed) {
  setObjectName("frmMain");
  LayOut();
  MakeMenus();
  MakeStatusBar();
  frmFormality_ = new FrmFormality(skin_, model_, this);
  connect(frmFormality_, &FrmFormality::VlOK, this, [this](const Formality& values) {
    const QSize before = shownSize_;
    model_.SetProperties(values);
    AfterChange();
    if (shownSize_ != before) view_->SetRozm();
  });
  connect(frmFormality_, &FrmFormality::HelpWanted, this, &FrmMain::HelpWanted);
  connect(frmFormality_, &FrmFormality::ShortcutsWanted, this, [this] { ShowShortcuts(frmFormality_); });
  SetLW();
  resize(sizeHint());
  // Its place is known from the start, so that a message can open in its middle.
  if (!RestoreSize(*this)) PutInMiddle(*this);
}

// What the window's parts still tell while they go is of no use any more.
FrmMain::~FrmMain() {
  delete proof_;
  hand_.reset();
  palette_->disconnect(this);
  view_->disconnect(this);
  view_->Picture().disconnect(this);
}

QToolButton* FrmMain::MakeLabel(const char* name, std::function<void()> act) {
  auto* const label = new QToolButton(this);
  label->setObjectName(name);
  label->setAutoRaise(true);
  label->setFocusPolicy(Qt::TabFocus);
  label->setIconSize(QSize(kIcon, kIcon));
  connect(label, &QToolButton::clicked, this, std::move(act));
  return label;
}

void FrmMain::LayOut() {
  auto* const middle = new QWidget(this);
  auto* const rows = new QVBoxLayout(middle);
  auto* const bar = new QHBoxLayout;
  const auto caption = [this](int palette) { return NameOfTool(skin_, palette, palette_->CurrentDog()); };
  palette_ = new Palette(tiles_, caption, middle);
  const auto under = [this](QMenu* menu, LabelPlace place) {
    menu->popup(labels_[place]->mapToGlobal(labels_[place]->rect().bottomLeft()));
  };
  labels_[kEditLabel] = MakeLabel("Label7", [this, under] { under(mnuEd_, kEditLabel); });
  labels_[kPropsLabel] = MakeLabel("Label3", [this] { ShowProperties(); });
  labels_[kTestLabel] = MakeLabel("Label8", [this] { Test(); });
  labels_[kCatButton] = MakeLabel("Command1", [this] { EditScript(); });
  labels_[kDogButton] = MakeLabel("Command2", [this, under] { under(PesMenu_, kDogButton); });
  for (QToolButton* const label : labels_) bar->addWidget(label);
  bar->addStretch();
  imgAmoeba_ = NewLabel(middle);
  lblAmoebas_ = NewLabel(middle);
  lblAmoebas_->setObjectName("Label1");
  bar->addWidget(imgAmoeba_);
  bar->addWidget(lblAmoebas_);
  view_ = new CaveView(model_, tiles_, middle);
  panel_ = new SidePanel(*view_, middle);
  doubts_ = new DoubtPage(skin_, panel_);
  panel_->AddPage(*doubts_, "caption.main.checks");
  rows->addLayout(bar);
  rows->addWidget(palette_, 0, Qt::AlignLeft);
  proof_ = new ProofDesk(skin_, model_, view_->Picture(), *panel_);
  rows->addWidget(&proof_->Offer());
  strip_ = new ToolStrip(middle);
  auto* const beside = new QHBoxLayout;
  beside->addWidget(strip_);
  beside->addWidget(panel_, 1);
  rows->addLayout(beside, 1);
  setCentralWidget(middle);
  setTabOrder(labels_[kDogButton], palette_);
  setTabOrder(palette_, &view_->Picture());
  ConnectTools();
}

void FrmMain::ConnectTools() {
  connect(palette_, &Palette::ToolSelected, this, &FrmMain::UpdateCaptions);
  connect(palette_, &Palette::Pointed, this, [this](int palette) {
    pointed_ = palette;
    UpdateStatus();
  });
  connect(view_, &CaveView::Zoomed, this, &FrmMain::UpdateStatus);
  ConnectHand();
  connect(doubts_, &DoubtPage::Chosen, &view_->Picture(), &EditKom::LeadMark);
  connect(proof_, &ProofDesk::Stands, doubts_, &DoubtPage::LookAtProof);
  connect(&view_->Picture(), &EditKom::MarkMoved, this, &FrmMain::UpdateStatus);
}

void FrmMain::MakeStatusBar() {
  lblCell_ = NewLabel(this);
  lblCell_->setObjectName("lblCell");
  lblSize_ = NewLabel(this);
  lblSize_->setObjectName("lblSize");
  statusBar()->addWidget(lblCell_);
  words_ = new ToolWords(skin_, *hand_, this);
  statusBar()->addWidget(words_, 1);
  hint_ = new ToolHint(*palette_, tiles_, this);
  statusBar()->addPermanentWidget(hint_);
  connect(palette_, &Palette::ToolSelected, hint_, qOverload<>(&QWidget::update));
  statusBar()->addPermanentWidget(lblSize_);
}

// Texts and tiles

void FrmMain::SetLW() {
  menus_.SetCaptions(skin_);
  menus_.SetHints(skin_);
  drawMenus_->DrawIcons(*this);
  words_->Update();
  panel_->SetLW(skin_);
  proof_->SetLW();
  doubts_->SetLW();
  const auto name = [this](LabelPlace place, const char* key) {
    labels_[place]->setText(" " + InMenu(skin_.Caption(key)) + " ");
    labels_[place]->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  };
  name(kEditLabel, "caption.main.edit");
  name(kPropsLabel, "caption.main.props");
  name(kTestLabel, "caption.main.test");
  const QString cat = skin_.Caption("caption.main.cat");
  const QString dogs = skin_.Caption("caption.main.dogs");
  SetHint(*labels_[kCatButton], cat);
  labels_[kCatButton]->setAccessibleName(cat);
  SetHint(*labels_[kDogButton], dogs);
  labels_[kDogButton]->setAccessibleName(dogs);
  const QString amoebas = skin_.Caption("caption.main.amoeba");
  SetHint(*imgAmoeba_, amoebas);
  SetHint(*lblAmoebas_, amoebas);
  const QString dog = InMenu(skin_.Caption("caption.main.dog"));
  const auto actions = dogs_->actions();
  for (int n = 1; n <= kDogs; ++n) actions[n - 1]->setText(dog + " " + QString::number(n));
  frmFormality_->SetLWEd();
  if (isVisible()) LoadTiles();
  UpdateCaptions();
  UpdateStatus();
}

void FrmMain::LoadTiles() {
  shownScheme_ = model_.Cave().Colouring;
  tiles_.Load(skin_.Places(), kColourings[EntryOfColouring(shownScheme_)].scheme);
  imgAmoeba_->setPixmap(TilePixmap(kAmoebaTool, 1));
  ShowIcon(kCatButton, kCatTool);
  ShowIcon(kDogButton, kDogTool);
  labels_[kTestLabel]->setIcon(style()->standardIcon(QStyle::SP_MediaPlay));
  labels_[kPropsLabel]->setIcon(style()->standardIcon(QStyle::SP_FileDialogDetailedView));
  labels_[kEditLabel]->setIcon(style()->standardIcon(QStyle::SP_ArrowDown));
  const auto dogs = dogs_->actions();
  for (int n = 1; n <= kDogs; ++n) dogs[n - 1]->setIcon(TilePixmap(kDogTool, n));
  palette_->update();
  hint_->update();
  view_->Picture().update();
}

QPixmap FrmMain::TilePixmap(int palette, int dog) {
  const double ratio = devicePixelRatioF();
  QPixmap icon = QPixmap::fromImage(tiles_.Tile(palette, dog, qRound(kIcon * ratio)));
  icon.setDevicePixelRatio(ratio);
  return icon;
}

void FrmMain::ShowIcon(std::size_t label, int palette) {
  labels_[label]->setIcon(TilePixmap(palette, palette_->CurrentDog()));
}

void FrmMain::UpdateStatus() {
  QString cell;
  const auto marked = view_->Picture().Marked();
  if (pointed_ >= 0) {
    cell = NameOfTool(skin_, pointed_, palette_->CurrentDog());
  } else if (marked && model_.Inside(marked->x(), marked->y())) {
    const QString object = NameOfLetter(skin_, model_.At(marked->x(), marked->y()));
    cell = QString("%1, %2   %3").arg(marked->x() + 1).arg(marked->y() + 1).arg(object);
  }
  lblCell_->setText(OneLine(cell, kMostInCaption));
  lblSize_->setText(QString("%1 × %2   %3 %")
                        .arg(model_.Width())
                        .arg(model_.Height())
                        .arg(view_->Picture().CellSize() * 100 / EditKom::kCell));
  lblAmoebas_->setText(QString::number(model_.Amoebas()));
}

// The mark tells whether the cave is another one than that of the collection.
void FrmMain::UpdateTitle() {
  SetCaveTitle(*this, skin_.Text(TextId::CaveEditor), model_.Cave().Name, origin_);
  const Result<std::string> text = model_.Text();
  setWindowModified(!stored_.empty() && (!text || *text != stored_));
}

// A cave comes and goes

FrmMain::Start FrmMain::Edit(const std::string& caveText, const CaveOrigin& origin) {
  const auto report = model_.OpenCave(caveText);
  if (!report) return Start::Unreadable;
  origin_ = origin;
  stored_ = caveText;
  // The skin or the screen may be another one by now.
  shownScheme_ = -1;
  ShowOpened();
  proof_->Opened(origin_);
  ComeBack();
  if (report->empty() || FrmFormality::AskToOpen(skin_, this, *report)) return Start::Editing;
  hide();
  return Start::Declined;
}

void FrmMain::Store() {
  model_.EndStroke();
  if (const auto text = BuiltText()) emit StoreWanted(*text);
}

void FrmMain::Stored(const std::string& caveText, const CaveOrigin& origin) {
  origin_ = origin;
  stored_ = caveText;
  UpdateTitle();
  constexpr int kConfirmed = 5000;  // ms
  const QString file = FillMarks(kStoredWords.In(skin_), ShownPath(origin.File), QString());
  statusBar()->showMessage(OneLine(file), kConfirmed);
}

void FrmMain::Restore() {
  const auto report = model_.Restore();
  ShowOpened();
  if (!report.empty()) FrmFormality::Warn(skin_, this, report);
}

void FrmMain::ShowOpened() {
  shownSize_ = {};
  hand_->Forget();
  AfterChange();
  view_->SetRozm();
  Dog(1);
  palette_->Forget();
  for (const FirstTool& first : kFirstTools) palette_->SelectTool(first.button, first.palette);
}

void FrmMain::ComeBack() {
  show();
  activateWindow();
  view_->Picture().setFocus();
}

std::optional<std::string> FrmMain::BuiltText() {
  Result<std::string> text = model_.Text();
  if (text) return *std::move(text);
  const QString field = skin_.Text(LabelWithoutRoom(model_.Cave()).value_or(TextId::Name));
  Tell(skin_, this, skin_.Text(TextId::Warning),
       FillMarks(skin_.Caption("caption.main.noroom"), field, QString()));
  return std::nullopt;
}

void FrmMain::closeEvent(QCloseEvent* event) {
  model_.EndStroke();
  const auto text = BuiltText();
  if (!text) {
    event->ignore();
    return;
  }
  proof_->Leave();
  StoreSize(*this);
  event->accept();
  emit Done(*text);
  emit Closed();
}

// Changes

void FrmMain::AfterChange() {
  view_->Picture().EndStroke();
  proof_->CaveChanged();
  const QSize size(model_.Width(), model_.Height());
  if (size != shownSize_) {
    shownSize_ = size;
    view_->TakeSize();
  }
  if (model_.Cave().Colouring != shownScheme_) LoadTiles();
  view_->Picture().update();
  doubts_->Look(model_.Cave());
  UpdateMenus();
  UpdateStatus();
}

char FrmMain::LetterOf(ToolButton button) const {
  return LetterOfTool(palette_->Tool(button), palette_->CurrentDog());
}

QString FrmMain::NameOf(ToolButton button) const {
  const int palette = palette_->Tool(button);
  return palette < 0 ? QString() : NameOfTool(skin_, palette, palette_->CurrentDog());
}

void FrmMain::Dog(int n) {
  dogs_->actions()[n - 1]->setChecked(true);
  palette_->SetCurrentDog(n);
  hint_->update();
  ShowIcon(kDogButton, kDogTool);
  UpdateCaptions();
  UpdateStatus();
}

void FrmMain::Replace(int every) {
  model_.ReplaceO(LetterOf(ToolButton::Right), LetterOf(ToolButton::Left), every);
  AfterChange();
}

void FrmMain::ReplaceRandom(int wanted) {
  model_.ReplaceRandom(LetterOf(ToolButton::Right), LetterOf(ToolButton::Left), wanted, rnd_);
  AfterChange();
}

void FrmMain::MakeFrame() {
  model_.MakeFrame(LetterOf(ToolButton::Left));
  AfterChange();
}

void FrmMain::Undo(bool redo) {
  if (redo) {
    model_.Redo();
  } else {
    model_.Undo();
  }
  AfterChange();
}

// Other windows. When one goes together with the message over it, the desktop may leave the keys to nobody.

void FrmMain::ShowProperties() {
  model_.EndStroke();
  frmFormality_->SetProps();
  frmFormality_->exec();
  activateWindow();
}

void FrmMain::ShowStats() {
  FrmStats(skin_, model_, tiles_, this).exec();
}

void FrmMain::EditScript() {
  const auto script = editCat_(model_.Cave().Script);
  activateWindow();
  if (!script) return;
  model_.SaveScript(*script);
  AfterChange();
}

void FrmMain::Test() {
  model_.EndStroke();
  if (const auto missing = model_.MissingDog()) {
    const std::string text =
        *missing == 0 ? skin_.Words().At(TextId::NoDog)
                      : BlankJoin(skin_.Words().At(TextId::MissingDog), std::to_string(*missing)) + ".";
    Tell(skin_, this, skin_.Text(TextId::CannotTest), QString::fromStdString(text));
    return;
  }
  const auto text = BuiltText();
  if (!text) return;
  hide();
  emit TestRun(*text);
}

}  // namespace zorik
