#include "editors/ProofDesk.h"

#include <QFileInfo>
#include <QLocale>
#include <utility>

#include "data/Result.h"
#include "editors/ProofOffer.h"
#include "editors/ProofPage.h"
#include "editors/SidePanel.h"
#include "editors/ToolNames.h"
#include "flow/SadaModel.h"
#include "platform/PathText.h"
#include "screens/Marks.h"
#include "screens/MsgBox.h"
#include "screens/StartWords.h"
#include "screens/TroubleWords.h"

namespace zorik {
namespace {

constexpr int kMostPaws = 5;
constexpr StartWords kNotStored{"caption.proof.notstored"};

// In one piece, wherever its line ends.
QString PlaceText(Cell c) {
  return QString("%1,%2%3").arg(c.x() + 1).arg(QChar(QChar::Nbsp)).arg(c.y() + 1);
}

}  // namespace

ProofDesk::ProofDesk(Skin& skin, const CaveModel& cave, EditKom& picture, SidePanel& panel)
    : skin_(skin),
      cave_(cave),
      picture_(picture),
      panel_(panel),
      page_(new ProofPage),
      offer_(new ProofOffer),
      overlay_(cave) {
  picture_.SetLayer(&overlay_);
  panel.AddPage(*page_, "caption.proof.page");
  connect(&watch_, &ProofWatch::Judged, this, &ProofDesk::Judged);
  connect(&work_, &ProofWork::WentOn, this, &ProofDesk::ShowWork);
  connect(&work_, &ProofWork::Solved, this,
          [this](const std::string& record) { OfferRecord(record, "caption.proof.offersolved"); });
  connect(&work_, &ProofWork::Impossible, this, [this] { TellEnd("caption.proof.impossible"); });
  connect(&work_, &ProofWork::NotPlayable, this, [this] { TellEnd("caption.proof.nocave"); });
  connect(&work_, &ProofWork::NotRated, this, [this] { TellEnd("caption.proof.bad"); });
  connect(&work_, &ProofWork::Rated, this, &ProofDesk::TellRating);
  connect(page_, &ProofPage::GoWanted, this, &ProofDesk::Go);
  connect(page_, &ProofPage::ShownChanged, this, &ProofDesk::ShowOverlay);
  connect(page_, &ProofPage::TickChosen, this, &ProofDesk::ShowOverlay);
  connect(page_, &ProofPage::TryWanted, this, &ProofDesk::Try);
  connect(page_, &ProofPage::TryWithDogWanted, this, &ProofDesk::TryWithDog);
  connect(page_, &ProofPage::SolveWanted, this, &ProofDesk::Solve);
  connect(page_, &ProofPage::RateWanted, this, &ProofDesk::Rate);
  connect(page_, &ProofPage::StopWanted, &work_, &ProofWork::GiveUp);
  connect(&picture_, &EditKom::LayerChosen, this, &ProofDesk::ChooseTick);
  connect(offer_, &ProofOffer::Taken, this, &ProofDesk::Take);
  connect(&picture_, &EditKom::MarkMoved, this, [this] {
    if (picture_.Marked()) pointed_ = picture_.Marked();
    page_->SetDog(pointed_.has_value());
  });
}

ProofDesk::~ProofDesk() {
  picture_.SetLayer(nullptr);
}

void ProofDesk::SetLW() {
  page_->SetLW(skin_);
  offer_->SetLW(skin_);
  told_.clear();
  Judged();
}

QString ProofDesk::With(const char* key, const QString& a, const QString& b) const {
  return FillMarks(skin_.Caption(key), a, b);
}

// The cave

std::string ProofDesk::CaveText() const {
  Result<std::string> text = cave_.Text();
  return text ? *std::move(text) : std::string();
}

void ProofDesk::Opened(const CaveOrigin& origin) {
  work_.GiveUp();
  offer_->hide();
  told_.clear();
  origin_ = origin;
  pointed_.reset();
  page_->SetDog(false);
  CaveChanged();
  name_ = cave_.Cave().Name;
  watch_.SetRecord(shelf_.Find(origin_, name_, CaveText()));
}

void ProofDesk::CaveChanged() {
  const std::string text = CaveText();
  if (text == watch_.Cave()) return;
  if (work_.Doing() != ProofWork::Kind::None) work_.GiveUp();
  told_.clear();
  watch_.SetCave(text);
  ShowWork();
}

// The proof of a cave that has another name by now goes with it when the collection is saved.
void ProofDesk::Leave() {
  work_.GiveUp();
  const std::string& name = cave_.Cave().Name;
  if (name != name_ && !watch_.Record().empty()) shelf_.KeepWaiting(origin_, name, watch_.Record());
}

// What is shown

void ProofDesk::Judged() {
  const ProofVerdict* const verdict = watch_.Verdict();
  const bool place = verdict != nullptr && verdict->flaw && verdict->flaw->why != ProofBreak::NoCave;
  page_->SetVerdict(VerdictText(), place);
  const bool run = verdict != nullptr && !verdict->record.empty();
  page_->SetTicks(run ? verdict->ticks - 1 : -1);
  overlay_.SetVerdict(verdict);
  ShowOverlay();
  ShowWork();
  TellStanding();
}

void ProofDesk::TellStanding() {
  const ProofVerdict* const verdict = watch_.Verdict();
  standing_ = {};
  standing_.fails = verdict != nullptr ? !verdict->wins : watch_.IsBad();
  if (verdict != nullptr && verdict->wins) standing_.record = verdict->record;
  if (verdict != nullptr && verdict->flaw && verdict->flaw->why != ProofBreak::NoCave)
    standing_.where = Spot{verdict->flaw->cell.x(), verdict->flaw->cell.y()};
  emit Stands(standing_);
}

void ProofDesk::ShowOverlay() {
  overlay_.ShowWay(page_->WantsWay());
  overlay_.ShowUntouched(page_->WantsUntouched());
  overlay_.SetTick(page_->Tick());
  picture_.update();
}

QString ProofDesk::VerdictText() const {
  if (watch_.Record().empty()) return With("caption.proof.none");
  if (watch_.IsBad()) return With("caption.proof.bad");
  const ProofVerdict* const verdict = watch_.Verdict();
  if (verdict == nullptr) return With("caption.proof.asking");
  QString text;
  if (verdict->wins) {
    const QString seconds =
        QLocale(LanguageOf(skin_)).toString(static_cast<double>(verdict->ticks) / kTicksPerSecond, 'f', 1);
    text = With("caption.proof.wins", QString::number(verdict->ticks), seconds);
  } else if (verdict->flaw) {
    text = FlawText(*verdict->flaw);
  }
  if (verdict->missing)
    text += '\n' + With("caption.proof.missing", QString::number(verdict->missing->tick),
                        PlaceText(verdict->missing->cell));
  if (verdict->otherChance > 0)
    text += '\n' + With("caption.proof.chance", QString::number(verdict->otherChance));
  return text;
}

QString ProofDesk::FlawText(const ProofFlaw& flaw) const {
  if (flaw.why == ProofBreak::NoCave) return With("caption.proof.nocave");
  const QString where = With("caption.proof.breaks", QString::number(flaw.tick), PlaceText(flaw.cell));
  switch (flaw.why) {
    case ProofBreak::DogDies:
      return where + ' ' + With("caption.proof.dies", QString::number(flaw.unit));
    case ProofBreak::FinishShut:
      return where + ' ' + With("caption.proof.shut");
    case ProofBreak::TimeUp:
      return where + ' ' + With("caption.proof.timeup");
    default:
      if (flaw.letter == 0) return where;
      return where + ' ' + With("caption.proof.noeffect", NameOfLetter(skin_, flaw.letter));
  }
}

void ProofDesk::ShowWork() {
  const ProofVerdict* const verdict = watch_.Verdict();
  const ProofWork::Kind doing = work_.Doing();
  const ProofWork::Progress done = work_.Done();
  QString text = told_;
  if (doing == ProofWork::Kind::Solve)
    text = With("caption.proof.solving", QString::number(done.ticks / 1000), QString::number(done.gems));
  if (doing == ProofWork::Kind::Rate)
    text = With("caption.proof.rating", QString::number(done.tries), QString::number(ProofWork::kTries));
  page_->SetWork(text, doing != ProofWork::Kind::None, verdict != nullptr && verdict->wins);
}

// And to the moment before it.
void ProofDesk::Go() {
  const ProofVerdict* const verdict = watch_.Verdict();
  if (verdict == nullptr || !verdict->flaw) return;
  page_->SetTick(verdict->flaw->tick - 1);
  emit picture_.LedByKeys({verdict->flaw->cell.x(), verdict->flaw->cell.y()});
}

// The page tells which one it has become.
void ProofDesk::ChooseTick(QPoint cell) {
  const auto tick = overlay_.TickAt(cell);
  if (!tick) return;
  page_->SetTick(*tick);
  panel_.TurnTo(*page_);
}

// Tries

void ProofDesk::Try() {
  const ProofVerdict* const verdict = watch_.Verdict();
  if (verdict != nullptr && !verdict->record.empty()) emit TryRun(verdict->record, page_->Tick());
}

// The first dog is put there in a copy.
void ProofDesk::TryWithDog() {
  const auto cell = picture_.Marked() ? picture_.Marked() : pointed_;
  if (!cell || !cave_.Inside(cell->x(), cell->y())) return;
  CaveModel copy = cave_;
  copy.Draw(cell->x(), cell->y(), '1');
  const Result<std::string> text = copy.Text();
  if (text) emit TryCave(*text);
}

// Long work

void ProofDesk::Solve() {
  told_.clear();
  work_.Solve(CaveText(), origin_.Collection);
}

void ProofDesk::Rate() {
  const ProofVerdict* const verdict = watch_.Verdict();
  if (verdict == nullptr || !verdict->wins) return;
  told_.clear();
  work_.Rate(CaveText(), verdict->record);
}

void ProofDesk::TellEnd(const char* key) {
  told_ = With(key);
  ShowWork();
}

void ProofDesk::TellRating(const Rating& rating) {
  const QLocale locale(LanguageOf(skin_));
  told_ = With("caption.proof.paws", QString::number(rating.paws), QString::number(kMostPaws)) + '\n' +
          With("caption.proof.odds", QString::number(rating.survived), QString::number(rating.tries)) + '\n' +
          With("caption.proof.limit", locale.toString(rating.limitRatio, 'f', 1)) + '\n' +
          With("caption.proof.escapes", QString::number(rating.review.closeCalls));
  ShowWork();
  standing_.tries = rating.tries;
  standing_.survived = rating.survived;
  emit Stands(standing_);
}

// A new proof

void ProofDesk::Won(const std::string& record) {
  OfferRecord(record, "caption.proof.offer");
}

void ProofDesk::OfferRecord(const std::string& record, const char* key) {
  const auto proof = Proof::Read(record);
  if (!proof) return;
  offered_ = record;
  offer_->Ask(With(key, QString::number((*proof)->Ticks().size())));
}

void ProofDesk::Take() {
  const std::string record = std::exchange(offered_, {});
  if (record.empty()) return;
  const auto put = shelf_.Keep(origin_, cave_.Cave().Name, record);
  if (!put) return TellNotStored(put.Why());
  told_ = put->waits ? With("caption.proof.waits") : QString();
  if (!put->keptAs.empty())
    told_ = With("caption.proof.kept", QFileInfo(ShownPath(PathText(put->keptAs))).fileName());
  watch_.SetRecord(record);
}

void ProofDesk::CollectionSaved(const SadaModel& sada) {
  const std::string& collection = sada.Text(SadaText::Name);
  if (origin_.Collection == collection) origin_.File = sada.FileName();
  std::vector<std::string> caves;
  for (int number = 1; number <= sada.ListCount(); ++number) caves.push_back(sada.Cave(number));
  const auto saved = shelf_.Saved(collection, sada.FileName(), caves);
  if (!saved) TellNotStored(saved.Why());
}

void ProofDesk::TellNotStored(const ProofShelf::NotStored& why) {
  Tell(skin_, picture_.window(), skin_.Text(TextId::Warning),
       kNotStored.Before(skin_) + '\n' + ShownPath(why.path) + LineOfTrouble(skin_, why.Trouble));
}

}  // namespace zorik
