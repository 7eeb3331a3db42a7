#include "screens/FrmPoSt.h"

#include <QKeyEvent>
#include <QPointer>
#include <QScreen>
#include <algorithm>

#include "data/Files.h"
#include "data/MailFile.h"
#include "data/RecordFile.h"
#include "data/Result.h"
#include "flow/Flow.h"
#include "platform/PathText.h"
#include "screens/CaveList.h"
#include "screens/CavePreview.h"
#include "screens/DesktopServices.h"
#include "screens/FrmDialog2.h"
#include "screens/MsgBox.h"
#include "screens/PageOffer.h"
#include "screens/PlainText.h"
#include "screens/ScrollButton.h"
#include "screens/SkinLabel.h"
#include "screens/SkinPlacing.h"
#include "screens/StartWords.h"
#include "skin/GameFont.h"
#include "skin/Skin.h"
#include "skin/ToQString.h"

namespace zorik {
namespace {

constexpr QColor kPlainText(0xE8, 0xE8, 0xE0);
constexpr QSize kPlainSize(760, 540);

// Letters, in logical pixels.
constexpr int kNameLetters = 18;
constexpr int kTextLetters = 14;
constexpr int kTotalLetters = 20;
constexpr int kCaveLetters = 17;
constexpr int kSmallLetters = 12;

// What older skins give no place for.
constexpr QRect kRestBox(26, 504, 374, 18);
constexpr QRect kRecordBox(420, 416, 314, 34);
constexpr int kMargin = 24;
constexpr int kGap = 8;
constexpr int kTotalSign = 44;   // room for a sign in front of the total
constexpr int kTotalWidth = 66;  // five digits; more of them are smaller

Qt::Alignment Sideways(SkinData::Align align) {
  switch (align) {
    case SkinData::Align::Right:
      return Qt::AlignRight;
    case SkinData::Align::Centre:
      return Qt::AlignHCenter;
    default:
      return Qt::AlignLeft;
  }
}

// The word that Czech has for so many caves.
QString RestWord(const Skin& skin, int rest) {
  if (rest <= 0) return {};
  return skin.Text(rest == 1 ? TextId::OneCave : rest <= 4 ? TextId::FewCaves : TextId::ManyCaves);
}

// A button that the skin gives no place is never seen.
void Show(SkinButton& button, bool wanted) {
  button.setVisible(wanted && HasPlace(button));
}

// The least of some heights that is below another one.
int Below(int top, std::initializer_list<int> others) {
  int least = others.begin()[others.size() - 1];
  for (const int other : others) {
    if (other > top) least = std::min(least, other);
  }
  return least;
}

}  // namespace

FrmPoSt::FrmPoSt(Skin& skin, Flow& flow, LetterOpeners openers)
    : skin_(skin), flow_(flow), openers_(std::move(openers)) {
  setFocusPolicy(Qt::StrongFocus);
  Build();
}

SkinLabel* FrmPoSt::NewLabel(const char* name) {
  auto* const label = new SkinLabel(this);
  label->setObjectName(name);
  return label;
}

void FrmPoSt::Build() {
  collectionName_ = NewLabel("Label4");
  author_ = NewLabel("Label3");
  lblDescription_ = NewLabel("lblDescription");
  lblTotal_ = NewLabel("lblTotal");
  lblRest_ = NewLabel("lblRest");
  lblCaveName_ = NewLabel("lblCaveName");
  lblCaveDescription_ = NewLabel("lblCaveDescription");
  lblRecord_ = NewLabel("lblRecord");
  preview_ = new CavePreview(skin_, this);
  imgBonus_ = new SkinPicture(this);
  imgBonus_->setObjectName("imgBonus");
  list_ = new CaveList(this);
  vscroll_ = new ScrollButton(Qt::Vertical, this);
  vscroll_->setObjectName("vscroll");
  const std::pair<SkinButton*&, const char*> buttons[] = {
      {replay_, "replay"}, {play_, "play"},         {congratulation_, "congratulation"},
      {send_, "send"},     {practice_, "practice"}, {close_, "close"},
      {help_, "help"},     {ghost_, "ghost"},       {pair_, "pair"}};
  for (const auto& [button, name] : buttons) {
    button = new SkinButton(this);
    button->setObjectName(name);
  }

  connect(author_, &SkinLabel::LinkClicked, this, &FrmPoSt::ClickedAuthor);
  connect(lblRecord_, &SkinLabel::LinkClicked, this, &FrmPoSt::StoreWanted);
  connect(list_, &CaveList::CaveClicked, this, &FrmPoSt::SelectCave);
  connect(list_, &CaveList::CaveDoubleClicked, this, &FrmPoSt::ClickedStart);
  connect(replay_, &SkinButton::clicked, this, &FrmPoSt::PlayRecord);
  connect(play_, &SkinButton::clicked, this, &FrmPoSt::ClickedStart);
  connect(congratulation_, &SkinButton::clicked, this, &FrmPoSt::Congratulate);
  connect(send_, &SkinButton::clicked, this, &FrmPoSt::ClickedSend);
  connect(practice_, &SkinButton::clicked, this, &FrmPoSt::ClickedPractice);
  connect(close_, &SkinButton::clicked, this, &FrmPoSt::Back);
  connect(help_, &SkinButton::clicked, this, &FrmPoSt::HelpWanted);
  connect(ghost_, &SkinButton::clicked, this, [this] { emit GhostWanted(MenuPlace(*ghost_)); });
  connect(pair_, &SkinButton::clicked, this, [this] { emit PairWanted(MenuPlace(*pair_)); });
  connect(vscroll_, &ScrollButton::Stepped, list_, &CaveList::Scroll);
}

// The box of a line of text without a width of its own. Aligned to the right it ends at the place that the
// skin names, centred it lies around it.
QRect FrmPoSt::LineBox(const std::string& key, int height, int right) const {
  const SkinData& table = skin_.Data();
  const int anchor = table.SkinInt(key + ".left");
  const int top = table.SkinInt(key + ".top");
  switch (table.SkinAlign(key + ".alignment")) {
    case SkinData::Align::Right:
      return {kMargin, top, anchor - kMargin, height};
    case SkinData::Align::Centre: {
      const int half = std::min(anchor - kMargin, right - anchor);
      return {anchor - half, top, 2 * half, height};
    }
    default:
      return {anchor, top, right - anchor, height};
  }
}

void FrmPoSt::PlaceHead() {
  const SkinData& table = skin_.Data();
  const int right = width() - kMargin;

  const auto nameTop = table.SkinInt("select.collname.top");
  const bool besideTotal = table.SkinInt("select.score.left") > table.SkinInt("select.collname.left") &&
                           std::abs(table.SkinInt("select.score.top") - nameTop) < kTotalLetters;
  const int nameRight = besideTotal ? table.SkinInt("select.score.left") - kTotalSign : right;
  collectionName_->SetLook(skin_.Colour("select.collname.textcolor", kPlainText),
                           Sideways(table.SkinAlign("select.collname.alignment")), kNameLetters);
  collectionName_->setGeometry(LineBox("select.collname", kNameLetters + kGap, nameRight));

  lblTotal_->setGeometry(table.SkinInt("select.score.left"), table.SkinInt("select.score.top"), kTotalWidth,
                         kTotalLetters + kGap);

  const int textTop = table.SkinInt("select.colldescription.top");
  const int authorTop = table.SkinInt("select.collauthor.top");
  const int textBottom = Below(textTop, {authorTop, table.SkinInt("select.caves.top"), height()});
  lblDescription_->SetLook(skin_.Colour("select.colldescription.textcolor", kPlainText),
                           Sideways(table.SkinAlign("select.colldescription.alignment")), kTextLetters);
  lblDescription_->setGeometry(table.SkinInt("select.colldescription.left"), textTop,
                               table.SkinInt("select.colldescription.width"), textBottom - textTop);

  author_->setGeometry(table.SkinInt("select.collauthor.left"), authorTop,
                       table.SkinInt("select.collauthor.width"), kTextLetters + kGap);
}

void FrmPoSt::PlaceCave() {
  const SkinData& table = skin_.Data();
  const int bonusTop = table.SkinInt("select.bonus.top");
  lblCaveName_->SetLook(skin_.Colour("select.cavename.textcolor", kPlainText),
                        Sideways(table.SkinAlign("select.cavename.alignment")), kCaveLetters);
  lblCaveName_->setGeometry(LineBox("select.cavename", kCaveLetters + kGap, width() - kMargin));

  const QRect record = BoxOf(skin_, "select.record", kRecordBox);
  const int top = table.SkinInt("select.cavedescription.top");
  const int previewTop = table.SkinInt("select.preview.top");
  const int bottom = Below(top, {bonusTop, previewTop, record.top(), height()});
  lblCaveDescription_->SetLook(skin_.Colour("select.cavedescription.textcolor", kPlainText),
                               Sideways(table.SkinAlign("select.cavedescription.alignment")), kTextLetters);
  lblCaveDescription_->setGeometry(table.SkinInt("select.cavedescription.left"), top,
                                   table.SkinInt("select.cavedescription.width"), bottom - top);

  lblRecord_->SetLook(skin_.Colour("select.record.textcolor", kPlainText),
                      Sideways(table.SkinAlign("select.record.alignment")), kSmallLetters);
  lblRecord_->setGeometry(record);
  lblRest_->SetLook(skin_.Colour("select.rest.textcolor", kPlainText),
                    Sideways(table.SkinAlign("select.rest.alignment")) | Qt::AlignVCenter, kSmallLetters);
  lblRest_->setGeometry(BoxOf(skin_, "select.rest", kRestBox));

  preview_->SkinIt();
  imgBonus_->SetPicture(skin_.Picture("select.bonus.image"));
  imgBonus_->move(table.SkinInt("select.bonus.left"), bonusTop);
}

void FrmPoSt::SkinButtons() {
  PlaceButton(skin_, *replay_, "select.replay", skin_.Text(TextId::PlayRecord));
  PlaceButton(skin_, *play_, "select.play", skin_.Text(TextId::PlayCave));
  PlaceButton(skin_, *congratulation_, "select.congratulation", skin_.Text(TextId::ReadCongratulation));
  PlaceButton(skin_, *send_, "select.send", skin_.Text(TextId::SendRecords) + '\n' + kAsPageWords.In(skin_));
  PlaceButton(skin_, *practice_, "select.practice", kPracticeButtonWords.In(skin_));
  PlaceButton(skin_, *vscroll_, "select.vscroll", QString());
  PlaceButton(skin_, *close_, "select.close", kCloseWords.In(skin_));
  PlaceButton(skin_, *help_, "select.help", kHelpWords.In(skin_));
  PlaceButton(skin_, *ghost_, "select.ghost", kGhostWords.In(skin_));
  PlaceButton(skin_, *pair_, "select.pair", kOpenPairWords.In(skin_));
}

void FrmPoSt::SkinIt() {
  SetWindowPicture(skin_, Surface(), *this, "select", kPlainSize);
  PlaceHead();
  PlaceCave();
  list_->SkinIt(skin_);
  SetLWPost();
}

void FrmPoSt::SetLWPost() {
  SetTitle(*this, skin_.Text(TextId::CaveSelection));
  SkinButtons();
  if (flow_.IsOpen()) ShowColl();
}

Result<Done> FrmPoSt::LoadColl(const QString& path, const QString& player) {
  if (!flow_.OpenCollection(PathBytes(path), PathBytes(player)))
    return Failure{(kNotOpenedWords.Before(skin_) + "\r\n" + ShownPath(path)).toStdString()};
  SkinIt();
  if (!testAttribute(Qt::WA_Moved)) move(screen()->availableGeometry().center() - rect().center());
  show();
  activateWindow();
  return Done{};
}

const Selection& FrmPoSt::Caves() const {
  return flow_.Caves();
}

void FrmPoSt::ShowColl() {
  collectionName_->SetText(ToQString(Caves().Collection().Name));
  lblDescription_->SetText(ToQString(Caves().Collection().Description));
  ShowAuthor();
  ShowCaves();
}

void FrmPoSt::ShowCaves() {
  FillRows();
  CelkSkore();
  SelectCave(Caves().Selected());
}

void FrmPoSt::ShowAuthor() {
  const PlayedCollection& collection = Caves().Collection();
  const bool link = !collection.AuthorMail.empty();
  author_->SetText(QString("© ") + ToQString(collection.Author));
  author_->SetLook(
      skin_.Colour(link ? "select.collauthor.linkcolor" : "select.collauthor.textcolor", kPlainText),
      Sideways(skin_.Data().SkinAlign("select.collauthor.alignment")), kTextLetters);
  if (link) {
    author_->SetLink(skin_.Colour("select.collauthor.hovercolor", kPlainText),
                     '"' + ToQString(collection.AuthorMail) + '"' + skin_.Text(TextId::WriteToAuthor));
  } else {
    author_->SetLink(QColor(), QString());
  }
}

void FrmPoSt::FillRows() {
  const QString closed = skin_.Said("select.caves.canttext").replace('\n', ' ');
  std::vector<CaveList::Row> rows;
  for (int i = 1; i <= Caves().CaveCount(); ++i) {
    const CaveState state = Caves().State(i);
    const QString name = state == CaveState::Closed ? closed : ToQString(Caves().Cave(i).Record.Name);
    rows.push_back({name, Caves().Score(i), state, flow_.IsStored(i)});
  }
  list_->SetRows(std::move(rows));
  Show(*vscroll_, list_->Range() > 0);
}

void FrmPoSt::CelkSkore() {
  const int rest = Caves().Rest();
  lblRest_->SetText(skin_.Text(TextId::Rest) + ' ' + QString::number(rest) + ' ' + RestWord(skin_, rest) +
                    '.');
  ShowTotal();
  Show(*congratulation_, rest == 0);
}

void FrmPoSt::ShowTotal() {
  const QString total = QString::fromStdString(FiveDigits(Caves().Total()));
  int letters = kTotalLetters;
  while (letters > 1 && QFontMetrics(GameFont(letters)).horizontalAdvance(total) > kTotalWidth) --letters;
  lblTotal_->SetLook(skin_.Colour("select.score.textcolor", kPlainText), Qt::AlignLeft, letters);
  lblTotal_->SetText(total);
}

void FrmPoSt::SelectCave(int number) {
  flow_.Choose(number);
  list_->Select(Caves().Selected());
  ShowCave();
}

void FrmPoSt::ShowCave() {
  const int number = Caves().Selected();
  const CaveState state = Caves().State(number);
  const bool solved = state == CaveState::Solved || state == CaveState::SolvedByOther;
  const QString& rowName = list_->Rows()[static_cast<std::size_t>(number - 1)].name;
  Show(*replay_, solved);
  Show(*play_, state != CaveState::Closed);
  Show(*practice_, state != CaveState::Closed);
  Show(*pair_, solved);
  imgBonus_->setVisible(JeBonus(rowName.toStdString()));
  lblCaveName_->SetText(rowName);
  ShowRecord(solved);
  if (state != CaveState::Closed) {
    const bool timed = solved && flow_.IsStored(number);
    preview_->ShowCave(Caves().Cave(number), timed ? Caves().RecordPath() : std::string());
    lblCaveDescription_->SetText(ToQString(Caves().Cave(number).Record.Description));
    return;
  }
  preview_->ShowLock();
  const int before = Caves().OpenCaveBefore(number);
  const QString name = before == 0 ? QString() : ToQString(Caves().Cave(before).Record.Name);
  lblCaveDescription_->SetText(skin_.Text(TextId::SolveFirst) + "\r\n" + name);
}

// What is not stored yet can be, by a click.
void FrmPoSt::ShowRecord(bool solved) {
  const bool stored = flow_.IsStored(Caves().Selected());
  const QString name = ToQString(Caves().RecordName());
  const QString path = PathText(Caves().RecordPath());
  const QColor hover = skin_.Colour("select.collauthor.hovercolor", kPlainText);
  lblRecord_->SetLink(stored ? QColor() : hover, stored && solved ? path : QString());
  lblRecord_->SetText(!solved ? QString() : stored ? name : name + '\n' + kNotKeptWords.In(skin_));
}

void FrmPoSt::ClickedStart() {
  if (flow_.MayStart()) emit PlayCave();
}

void FrmPoSt::ClickedPractice() {
  if (flow_.MayStart()) emit PracticeWanted();
}

void FrmPoSt::Congratulate() {
  FrmDialog2(skin_, this).ShowG(ToQString(Caves().Congratulation()));
}

void FrmPoSt::ClickedSend() {
  const Result<std::string> mail = WriteMail(Caves().Collection(), Caves().PlayerFolder());
  if (!mail) {
    Say(kNotStoredWords.In(skin_) + "\r\n" + ShownPath(Caves().PlayerFolder() + "/temp.eml"));
    return;
  }
  const QString path = PathText(*mail);
  openers_.file(path, TellNoProgram(ShownPath(path)));
}

// The record of the chosen cave, where there is one that counts.
void FrmPoSt::ClickedAsPage() {
  if (replay_->isHidden()) return;
  const Result<std::string> record = ReadWhole(Caves().RecordPath());
  if (!record) return Say(kNoRecordWords.In(skin_));
  OfferPage(skin_, this, *record, Caves().Cave(Caves().Selected()).Record.Name);
}

void FrmPoSt::ClickedAuthor() {
  const PlayedCollection& collection = Caves().Collection();
  const QString address = ToQString(collection.AuthorMail);
  const QString subject = skin_.Text(TextId::SubjectStart) + " '" + ToQString(collection.Name) + "' " +
                          skin_.Text(TextId::SubjectEnd);
  openers_.link(MailLink(address, subject), TellNoProgram(address));
}

// A menu opens at its button, or at the list where the skin gives that no place.
QPoint FrmPoSt::MenuPlace(const SkinButton& button) const {
  const QWidget& by = button.isHidden() ? static_cast<const QWidget&>(*list_) : button;
  return by.mapToGlobal(by.rect().center());
}

void FrmPoSt::contextMenuEvent(QContextMenuEvent* event) {
  if (flow_.IsOpen()) emit GhostWanted(event->globalPos());
}

// The desktop may take a while to find out that it has none.
OpenFailed FrmPoSt::TellNoProgram(const QString& target) {
  return [here = QPointer(this), target] {
    if (!here) return;
    WhenInSight(here, [here, target] { here->Say(kNoProgramWords.Before(here->skin_) + "\r\n" + target); });
  };
}

void FrmPoSt::Say(const QString& text) {
  Tell(skin_, this, skin_.Text(TextId::Program), text);
}

SkinButton* FrmPoSt::ButtonOf(int key) const {
  switch (key) {
    case Qt::Key_Z:
    case Qt::Key_R:
      return replay_;
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return play_;
    case Qt::Key_G:
      return congratulation_;
    case Qt::Key_F1:
      return help_;
    default:
      return nullptr;
  }
}

// Presses the button of a key, if it is to be seen. False when the key has none and does nothing else.
bool FrmPoSt::Command(int key) {
  if (SkinButton* const button = ButtonOf(key); button != nullptr) {
    if (!button->isHidden()) emit button->clicked();
    return true;
  }
  switch (key) {
    case Qt::Key_E:
    case Qt::Key_S:
      ClickedSend();
      return true;
    case Qt::Key_W:
      ClickedAsPage();
      return true;
    case Qt::Key_T:
      ClickedPractice();
      return true;
    case Qt::Key_M:
      if (author_->IsLink()) ClickedAuthor();
      return true;
    case Qt::Key_U:
      if (!flow_.IsStored(Caves().Selected())) emit StoreWanted();
      return true;
    case Qt::Key_D:
      emit GhostWanted(MenuPlace(*ghost_));
      return true;
    case Qt::Key_V:
      emit PairWanted(MenuPlace(*pair_));
      return true;
    case Qt::Key_Escape:
      emit Back();
      return true;
    default:
      return false;
  }
}

void FrmPoSt::keyPressEvent(QKeyEvent* event) {
  const bool chord = (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
  if (!flow_.IsOpen() || chord) {
    event->ignore();
    return;
  }
  if (list_->Step(event->key())) return;
  if (event->isAutoRepeat() || !(Command(event->key()) || list_->TypeAhead(*event))) event->ignore();
}

// Only the start screen ends the game.
void FrmPoSt::closeEvent(QCloseEvent* event) {
  event->ignore();
  emit Back();
}

}  // namespace zorik
