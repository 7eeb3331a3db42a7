#include "screens/FrmStart2.h"

#include <QApplication>
#include <QFileInfo>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <algorithm>
#include <utility>

#include "data/Files.h"
#include "data/PlayerName.h"
#include "platform/FileTypes.h"
#include "platform/FolderAlias.h"
#include "platform/PathText.h"
#include "screens/BringIn.h"
#include "screens/DesktopServices.h"
#include "screens/FingerButton.h"
#include "screens/FrmDialog3.h"
#include "screens/FrmSLang.h"
#include "screens/MsgBox.h"
#include "screens/PlainText.h"
#include "screens/ScrollButton.h"
#include "screens/SkinButton.h"
#include "screens/SkinPlacing.h"
#include "screens/StartLists.h"
#include "screens/StartWords.h"
#include "screens/StatisticsWindow.h"
#include "screens/ToolkitWords.h"
#include "skin/GameFont.h"
#include "skin/Skin.h"
#include "skin/ToQString.h"

namespace zorik {
namespace {

constexpr QSize kPlainSize(720, 520);
constexpr int kVersionLetters = 11;
constexpr int kVersionRise = 25;  // of the version's line above the lower edge of the window
constexpr int kVersionHeight = 13;
constexpr QColor kVersionInk(0x3A, 0x24, 0x18);

constexpr int kSettling = 150;  // milliseconds in which a file that is being written gets whole

// What a finger is drawn like and called, by mode. The last one's words are in the language table.
struct FingerRow {
  const char* name;
  const char* image;
  const char* text;
};

constexpr std::array kFingers = {
    FingerRow{"fingerPlay", "start.fingerPlay.image", "start.fingerPlay.text"},
    FingerRow{"fingerRePlay", "start.fingerrePlay.image", "start.fingerReplay.text"},
    FingerRow{"fingerEditor", "start.fingereditor.image", "start.fingerEditor.text"},
    FingerRow{"finger4", "start.finger4.image", ""},
};

ListLook LookOf(const Skin& skin, const std::string& key) {
  ListLook look;
  look.ground = skin.Colour(key + ".color", look.ground);
  look.text = skin.Colour(key + ".textcolor", look.text);
  look.selectionGround = skin.Colour(key + ".selection.color", look.selectionGround);
  look.selectionText = skin.Colour(key + ".selection.textcolor", look.selectionText);
  look.border = skin.Colour(key + ".border.color", look.border);
  look.borderSize = std::max(0, skin.Data().SkinInt(key + ".border.size"));
  return look;
}

}  // namespace

FrmStart2::FrmStart2(Skin& skin, const Paths& paths, Settings& settings)
    : skin_(skin),
      paths_(paths),
      settings_(settings),
      lblCColl_(new LabelList(Qt::Vertical, this)),
      lblPlr_(new LabelList(Qt::Horizontal, this)),
      close_(new SkinButton(this)),
      help_(new SkinButton(this)),
      vscroll_(new ScrollButton(Qt::Vertical, this)),
      hscroll_(new ScrollButton(Qt::Horizontal, this)),
      play_(new SkinButton(this)),
      addplayer_(new SkinButton(this)),
      changeskin_(new SkinButton(this)),
      statistics_(new SkinButton(this)) {
  setFocusPolicy(Qt::StrongFocus);
  settled_.setSingleShot(true);
  settled_.setInterval(kSettling);
  for (FingerButton*& finger : fingers_) finger = new FingerButton(this);
  fingers_[0]->setChecked(true);
  NameParts();
  Connect();
}

void FrmStart2::NameParts() {
  lblCColl_->setObjectName("lblCColl");
  lblPlr_->setObjectName("lblPlr");
  close_->setObjectName("close");
  help_->setObjectName("help");
  vscroll_->setObjectName("vscroll");
  hscroll_->setObjectName("hscroll");
  play_->setObjectName("play");
  addplayer_->setObjectName("addplayer");
  changeskin_->setObjectName("changeskin");
  statistics_->setObjectName("statistics");
  for (std::size_t i = 0; i < fingers_.size(); ++i) fingers_[i]->setObjectName(kFingers[i].name);
}

void FrmStart2::Connect() {
  connect(close_, &SkinButton::clicked, this, &FrmStart2::close);
  connect(help_, &SkinButton::clicked, this, &FrmStart2::Help);
  connect(play_, &SkinButton::clicked, this, &FrmStart2::Open);
  connect(addplayer_, &SkinButton::clicked, this, &FrmStart2::NewPlayer);
  connect(changeskin_, &SkinButton::clicked, this, &FrmStart2::ChangeSkin);
  connect(statistics_, &SkinButton::clicked, this, &FrmStart2::ShowStatistics);
  connect(vscroll_, &ScrollButton::Stepped, lblCColl_, &LabelList::Scroll);
  connect(hscroll_, &ScrollButton::Stepped, lblPlr_, &LabelList::Scroll);
  connect(lblCColl_, &LabelList::Opened, this, &FrmStart2::Open);
  connect(lblPlr_, &LabelList::Opened, this, &FrmStart2::Open);
  connect(&watcher_, &QFileSystemWatcher::directoryChanged, &settled_, qOverload<>(&QTimer::start));
  connect(&settled_, &QTimer::timeout, this, &FrmStart2::LookAgain);
  connect(lblPlr_, &LabelList::Chosen, this, [](int place) { StorePosledniHrac(place); });
  for (std::size_t i = 0; i < fingers_.size(); ++i) {
    const auto mode = static_cast<Mode>(i);
    connect(fingers_[i], &FingerButton::clicked, this, [this, mode] { ChooseMode(mode); });
    connect(fingers_[i], &FingerButton::Opened, this, &FrmStart2::Open);
  }
}

// Areas to be clicked and words of menus are not seen at once, so the player has something to look at before
// they are there.
void FrmStart2::FrmLoad() {
  SkinPalm();
  constexpr auto kOnceAndLater =
      static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection);
  connect(this, &FrmStart2::Painted, this, &FrmStart2::Furnish, kOnceAndLater);
  RegExt(skin_.Text(TextId::CollectionKind).toStdString(), skin_.Text(TextId::RecordKind).toStdString());
  FindColls();
  watcher_.addPath(FolderAlias(paths_.CavesPath));
  ListPlayers();
  move(screen()->availableGeometry().center() - rect().center());
  show();
  loaded_ = true;
  const auto ask = [this] {
    if (players_.isEmpty()) NewPlayer();
  };
  QMetaObject::invokeMethod(this, ask, Qt::QueuedConnection);
}

void FrmStart2::Furnish() {
  if (std::exchange(furnished_, true)) return;
  SkinFingers();
  new ToolkitWords(skin_, this);
}

// One that goes before it was painted is followed by other windows, which want those words, too.
void FrmStart2::hideEvent(QHideEvent* event) {
  SkinWindow::hideEvent(event);
  if (loaded_) Furnish();
}

void FrmStart2::SkinIt() {
  SkinPalm();
  SkinFingers();
}

void FrmStart2::SkinPalm() {
  SetTitle(*this, kProgramTitle);
  ShowMode();
  SkinLists();
  SkinButtons();
  ShowScrollButtons();
  Surface().Shape();
  update();
}

void FrmStart2::SkinButtons() {
  PlaceButton(skin_, *close_, "start.close", kCloseWords.In(skin_));
  PlaceButton(skin_, *help_, "start.help", kHelpWords.In(skin_));
  PlaceButton(skin_, *vscroll_, "start.vscroll", QString());
  PlaceButton(skin_, *hscroll_, "start.hscroll", QString());
  PlaceButton(skin_, *play_, "start.play", skin_.Caption(kFingers[0].text));
  PlaceButton(skin_, *addplayer_, "start.addplayer", skin_.Text(TextId::NewPlayer));
  PlaceButton(skin_, *changeskin_, "start.changeskin", kChangeSkinWords.In(skin_));
  PlaceButton(skin_, *statistics_, "start.statistics", kStatisticsWords.In(skin_));
}

void FrmStart2::SkinLists() {
  const ListLook colls = LookOf(skin_, "start.caves");
  QRect box = BoxOf(skin_, "start.caves", QRect(220, 200, 246, -1));
  const int lines = skin_.Data().SkinInt("start.caves.lines");
  if (box.height() < 0) box.setHeight(std::max(1, lines) * kRowHeight + 2 * colls.borderSize);
  lblCColl_->SetLook(colls);
  lblCColl_->setGeometry(HeldIn(this, box));
  lblPlr_->SetLook(LookOf(skin_, "start.players"));
  lblPlr_->setGeometry(HeldIn(this, BoxOf(skin_, "start.players", QRect(220, 412, 198, 20))));
}

void FrmStart2::SkinFingers() {
  for (std::size_t i = 0; i < fingers_.size(); ++i) {
    const FingerRow& row = kFingers[i];
    fingers_[i]->SetOverlay(skin_.Picture(row.image));
    const bool listed = static_cast<Mode>(i) != Mode::File;
    fingers_[i]->SetWords(listed ? skin_.Caption(row.text) : skin_.Text(TextId::CollectionFromFile));
  }
}

// The picture with the lit finger for play is laid over the one with none lit, which gives the window its
// shape.
void FrmStart2::ShowMode() {
  SetWindowPicture(skin_, Surface(), *this, "start.palm", kPlainSize);
  const QImage palmPlay = skin_.Picture("start.palmPlay.image");
  const bool lit = mode_ == Mode::Play && !palmPlay.isNull();
  if (lit) Surface().LayOver(palmPlay);
  fingers_[0]->SetLitBelow(lit);
  update();
}

void FrmStart2::ShowScrollButtons() {
  const auto show = [](ScrollButton& button, const LabelList& list) {
    button.setVisible(list.Overflows() && HasPlace(button));
  };
  show(*vscroll_, *lblCColl_);
  show(*hscroll_, *lblPlr_);
}

void FrmStart2::ChooseMode(Mode mode) {
  mode_ = mode;
  fingers_[static_cast<std::size_t>(mode)]->setChecked(true);
  ShowMode();
}

void FrmStart2::FindColls() {
  ShowColls(ReadColls(paths_.CavesPath, LanguageOf(skin_)));
}

// Other programs may put collections into the folder, or take them away.
void FrmStart2::LookAgain() {
  if (!loaded_ || !isVisible()) return;
  std::vector<CollRow> colls = ReadColls(paths_.CavesPath, LanguageOf(skin_));
  if (colls != colls_) ShowColls(std::move(colls));
}

void FrmStart2::SelectFile(const QString& path) {
  if (LiesIn(PathBytes(path), paths_.CavesPath)) SelectColl(QFileInfo(path).fileName());
}

void FrmStart2::ShowColls(std::vector<CollRow> colls) {
  const int old = lblCColl_->Selected();
  const QString file = old < 0 ? QString() : colls_[static_cast<std::size_t>(old)].file;
  colls_ = std::move(colls);
  QStringList names;
  for (const CollRow& row : colls_) names.push_back(row.name);
  lblCColl_->SetLabels(names);
  SelectColl(file);
  ShowScrollButtons();
}

// The first one when there is no such file.
void FrmStart2::SelectColl(const QString& file) {
  const auto row = std::find_if(colls_.begin(), colls_.end(),
                                [&file](const CollRow& candidate) { return candidate.file == file; });
  lblCColl_->Select(row == colls_.end() ? 0 : static_cast<int>(row - colls_.begin()));
}

void FrmStart2::FindPlrs() {
  ListPlayers();
  if (players_.isEmpty()) NewPlayer();
}

void FrmStart2::ListPlayers() {
  const QString old = Player();
  std::error_code error;
  std::filesystem::create_directories(paths_.PlayersPath, error);
  players_ = ReadPlayers(paths_.PlayersPath);
  QStringList labels;
  for (const QString& name : players_) labels.push_back(" « " + ShownPath(name) + " » ");
  lblPlr_->SetLabels(labels);
  const int last = players_.contains(old) ? static_cast<int>(players_.indexOf(old)) : ReadPosledniHrac();
  lblPlr_->Select(last < players_.size() ? last : 0);
  ShowScrollButtons();
}

void FrmStart2::SelectPlayer(const QString& name) {
  const auto place = players_.indexOf(name);
  if (place >= 0) lblPlr_->Select(static_cast<int>(place));
}

QString FrmStart2::Player() const {
  const int place = lblPlr_->Selected();
  return place < 0 ? QString() : players_[place];
}

QString FrmStart2::SelectedPath() const {
  const int place = lblCColl_->Selected();
  if (place < 0) return QString();
  return PathText(paths_.CavesPath) + '/' + colls_[static_cast<std::size_t>(place)].file;
}

void FrmStart2::Open() {
  switch (mode_) {
    case Mode::Play:
      return OpenSelected();
    case Mode::Replay:
      return AskForRecord();
    case Mode::Editor:
      return EditSelected();
    case Mode::File:
      return AskForAnyFile();
  }
}

void FrmStart2::OpenSelected() {
  const QString path = SelectedPath();
  if (path.isEmpty()) return TellOf(kNoCollectionWords.In(skin_));
  OpenPath(path);
}

void FrmStart2::EditSelected() {
  const QString path = SelectedPath();
  if (path.isEmpty() || IsThere(path)) emit EditCollection(path, Player());
}

void FrmStart2::OpenPath(const QString& path) {
  if (!IsThere(path)) return;
  if (Player().isEmpty()) NewPlayer();
  if (!Player().isEmpty()) emit OpenCollection(path, Player());
}

// A file may be gone since the list was made.
bool FrmStart2::IsThere(const QString& path) {
  if (IsReadableFile(PathBytes(path))) return true;
  TellOf(kNotOpenedWords.Before(skin_), path);
  FindColls();
  return false;
}

void FrmStart2::AskForRecord() {
  const QString own = PathText(paths_.PlayersPath) + '/' + Player();
  std::error_code error;
  const bool known = !Player().isEmpty() && std::filesystem::is_directory(PathBytes(own), error);
  // The folder of test runs may have come since the start.
  const bool tested = std::filesystem::is_directory(paths_.TestRecordsPath, error);
  const QString others = PathText(tested ? paths_.TestRecordsPath : paths_.RecordsPath);
  AnotherRepl(AskForFile(skin_, this, skin_.Text(TextId::RecordFromFile), known ? own : others,
                         {RecordFilter(skin_)}));
}

void FrmStart2::AskForAnyFile() {
  const QString path =
      AskForFile(skin_, this, skin_.Text(TextId::CollectionFromFile), PathText(paths_.CavesPath),
                 {skin_.Text(TextId::CollectionFromFile) + " (*.zk)", RecordFilter(skin_)});
  if (!path.isEmpty()) OpenByKind(path);
}

void FrmStart2::AnotherColl(const QString& path) {
  if (path.isEmpty() || !IsThere(path)) return;
  const QString place = BringIn(skin_, *this, path, paths_.CavesPath);
  if (place != path) {
    FindColls();
    SelectFile(place);
  }
  OpenPath(place);
}

void FrmStart2::AnotherRepl(const QString& path) {
  if (!path.isEmpty() && IsThere(path)) emit PlayRecord(path);
}

void FrmStart2::OpenFromOutside(const QString& path) {
  if (path.isEmpty()) return;
  activateWindow();
  OpenByKind(path);
}

void FrmStart2::OpenByKind(const QString& path) {
  const QString kind = QFileInfo(path).suffix().toLower();
  if (kind == "zk") return AnotherColl(path);
  if (kind == "zkr") return AnotherRepl(path);
  TellOf(kUnknownFileWords.Before(skin_), path);
}

void FrmStart2::NewPlayer() {
  if (addingPlayer_) return;
  addingPlayer_ = true;
  const QString typed = FrmDialog3(skin_, this).AskName();
  addingPlayer_ = false;
  const std::string name = PlayerName(typed.normalized(QString::NormalizationForm_C).toStdString());
  if (name.empty()) return;
  const QString shown = ToQString(name);
  const auto added = AddPlayer(paths_.PlayersPath, name);
  const auto words = [&](TextId text) { return skin_.Text(text).replace("?1?", shown); };
  if (added == Added::Yes) Tell(skin_, this, skin_.Text(TextId::NewPlayer), words(TextId::PlayerAdded));
  if (added == Added::ThereAlready)
    Tell(skin_, this, skin_.Text(TextId::PlayerNotAddedTitle), words(TextId::PlayerNotAdded));
  // Another name, as the second line advises, would not help.
  if (added == Added::NotWritten) {
    Tell(skin_, this, skin_.Text(TextId::PlayerNotAddedTitle),
         words(TextId::PlayerNotAdded).section('\r', 0, 0) + '\n' + kFolderWords.Before(skin_) + '\n' +
             ShownPath(paths_.PlayersPath));
  }
  FindPlrs();
  SelectPlayer(shown);
}

void FrmStart2::ChangeSkin() {
  FrmSLang window(skin_, settings_, this);
  connect(&window, &FrmSLang::SkinChanged, this, [this] {
    SkinIt();
    FindColls();
    emit SkinChanged();
  });
  window.exec();
}

void FrmStart2::ShowStatistics() {
  if (Player().isEmpty()) return;
  const std::string folder = PathBytes(Player());
  StatisticsWindow(skin_, paths_.PlayersPath + '/' + folder, PlayerOfFolder(folder), this).exec();
}

void FrmStart2::Help() {
  OpenFileOrTell(skin_, this, HelpPage(paths_, skin_, "help.html"));
}

void FrmStart2::TellOf(const QString& words, const QString& path) {
  Tell(skin_, this, skin_.Text(TextId::Program), path.isEmpty() ? words : words + '\n' + ShownPath(path));
}

void FrmStart2::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  if (lblCColl_->Step(key)) return;
  if (key == Qt::Key_Left) return lblPlr_->Select(lblPlr_->Selected() - 1);
  if (key == Qt::Key_Right) return lblPlr_->Select(lblPlr_->Selected() + 1);
  if (event->isAutoRepeat()) return;
  if (key >= Qt::Key_1 && key <= Qt::Key_4) return ChooseMode(static_cast<Mode>(key - Qt::Key_1));
  switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
      return Open();
    case Qt::Key_Insert:
      return NewPlayer();
    case Qt::Key_F1:
      return Help();
    case Qt::Key_F2:
      return ChangeSkin();
    case Qt::Key_F3:
      return ShowStatistics();
    default:
      if (!lblCColl_->TypeAhead(*event)) event->ignore();
  }
}

bool FrmStart2::focusNextPrevChild(bool next) {
  const int count = static_cast<int>(fingers_.size());
  ChooseMode(static_cast<Mode>((static_cast<int>(mode_) + (next ? 1 : count - 1)) % count));
  return true;
}

void FrmStart2::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QString words = InLines(skin_.Said("version.text"), kMostInCaption);
  const int lines = static_cast<int>(words.count('\n')) + 1;
  painter.setPen(skin_.Colour("version.textcolor", kVersionInk));
  painter.setFont(GameFont(kVersionLetters));
  painter.drawText(
      BoxOf(skin_, "version", QRect(0, height() - kVersionRise, width(), lines * kVersionHeight)),
      Qt::AlignCenter, words);
  emit Painted();
}

// The folders, and the files of pictures, may have changed meanwhile.
void FrmStart2::showEvent(QShowEvent* event) {
  SkinWindow::showEvent(event);
  if (event->spontaneous() || !loaded_) return;
  SkinIt();
  FindColls();
  ListPlayers();
}

// Not every folder can be watched.
void FrmStart2::changeEvent(QEvent* event) {
  SkinWindow::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) settled_.start();
}

// Whoever ends the game may still refuse.
void FrmStart2::closeEvent(QCloseEvent* event) {
  event->ignore();
  emit Quit();
}

}  // namespace zorik
