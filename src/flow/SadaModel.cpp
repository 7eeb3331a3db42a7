#include "flow/SadaModel.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <system_error>
#include <utility>

#include "data/CaveO.h"
#include "data/FileTrouble.h"
#include "data/KeepBeside.h"

namespace zorik {

namespace {

constexpr const char* kNoMail = "@";

using TextPlace = std::string EditedCollection::*;
constexpr std::array<TextPlace, 4> kTexts{&EditedCollection::Name, &EditedCollection::Author,
                                          &EditedCollection::Mail, &EditedCollection::Description};

constexpr std::array<SadaAct, 4> kActs{SadaAct::Name, SadaAct::Author, SadaAct::Mail, SadaAct::Description};

TextPlace PlaceOf(SadaText text) {
  return kTexts[static_cast<std::size_t>(text)];
}

bool IsSameFile(const std::string& one, const std::string& other) {
  std::error_code error;
  return one == other || std::filesystem::equivalent(one, other, error);
}

std::size_t Index(int number) {
  return static_cast<std::size_t>(number);
}

// The name in a cave's text; empty for one that does not parse.
std::string NameIn(const std::string& cave) {
  Result<CaveRecord> record = ParseCaveText(cave);
  return record ? std::move(record->Name) : std::string();
}

// Leaves out what cannot be read; the flags of the rest go with their caves.
void DropUnreadable(EditedCollection& sada) {
  std::vector<std::string> caves;
  CaveFlags open;
  for (std::size_t i = 0; i < sada.CaveList.size(); ++i) {
    if (!IsReadableCave(sada.CaveList[i])) continue;
    caves.push_back(std::move(sada.CaveList[i]));
    open.set(caves.size(), sada.OpenFlags[i + 1]);
  }
  sada.CaveList = std::move(caves);
  sada.OpenFlags = open;
}

}  // namespace

SadaModel::SadaModel(SadaWords words, std::uint64_t seed) : words_(std::move(words)), decoration_(seed) {
  New();
}

void SadaModel::New() {
  RememberLeaving(SadaAct::New);
  sada_ = {};
  sada_.Name = words_.Name;
  sada_.Mail = kNoMail;
  sada_.Description = words_.Cave.Description;
  sada_.CongratulationText = words_.Congratulation;
  sada_.CaveList = {NewCave(NewCaveSize::Small)};
  GetNames(0);
  chg_ = false;
  file_ = {};
  file_.Saved = Shared();
}

Result<SadaModel::OpenReport, FileFailure> SadaModel::Open(const std::string& path) {
  const Result<std::string, FileFailure> bytes = ReadFile(path);
  if (!bytes) return bytes.Why();
  Result<OpenReport> report = Read(*bytes, SadaAct::Open);
  if (!report) return FileFailure{{report.Message()}, FileTrouble::NoCollection};
  if (report->Closed) return *std::move(report);
  file_ = {path, !report->Faults.empty(), {}, Shared()};
  chg_ = file_.Faulty;
  ForgetComingBack();
  return *std::move(report);
}

Result<SadaModel::OpenReport> SadaModel::Import(const std::string& bytes) {
  Result<OpenReport> report = Read(bytes, SadaAct::Import);
  if (!report || report->Closed) return report;
  file_ = {};
  chg_ = true;
  return report;
}

Result<std::string> SadaModel::Bytes() {
  return BuildCollection(sada_, decoration_);
}

// Takes the place of what was there; where that comes from is for the caller to say.
Result<SadaModel::OpenReport> SadaModel::Read(const std::string& bytes, SadaAct act) {
  Result<EditedCollection> read = ReadForEditor(bytes);
  if (!read) return Failure{read.Message()};
  OpenReport report;
  report.Closed = read->Closed;
  if (report.Closed) return report;
  RememberLeaving(act);
  sada_ = std::move(*read);
  report.Faults = FaultsOfCollection(bytes);
  DropUnreadable(sada_);
  if (sada_.CaveList.empty()) sada_.CaveList = {NewCave(NewCaveSize::Small)};
  GetNames(0);
  return report;
}

std::optional<SadaModel::TooLong> SadaModel::CannotHold() const {
  for (const SadaText text : {SadaText::Name, SadaText::Author}) {
    const std::size_t length = Text(text).size();
    if (length > kHighestNumber) return TooLong{text, length, kHighestNumber};
  }
  return std::nullopt;
}

Result<SadaModel::SaveReport, FileFailure> SadaModel::Save(const std::string& path) {
  const Result<std::string> bytes = Bytes();
  if (!bytes) return FileFailure{{bytes.Message()}};
  SaveReport report;
  if (file_.Faulty && IsSameFile(path, file_.Path)) {
    Result<std::string, FileFailure> copy = KeepBeside(path);
    if (!copy) return copy.Why();
    file_.KeptAs = *std::move(copy);
    file_.Faulty = false;  // should writing fail now, the next try needs no second copy
  }
  const Result<Done, FileFailure> written = WriteFile(path, *bytes);
  if (!written) return written.Why();
  report.KeptAs = std::move(file_.KeptAs);
  report.CongratulationLeftOut = EndsWithMarker(sada_.CongratulationText);
  if (report.CongratulationLeftOut) sada_.CongratulationText.clear();
  file_ = {path, false, {}, Shared()};
  chg_ = false;
  EndTyping();  // so that one can come back to what was saved
  return report;
}

const std::string& SadaModel::Text(SadaText text) const {
  return sada_.*PlaceOf(text);
}

void SadaModel::SetText(SadaText text, std::string value) {
  chg_ = true;
  if (sada_.*PlaceOf(text) == value) return;
  if (typing_ != text) Remember(kActs[static_cast<std::size_t>(text)]);
  typing_ = text;
  sada_.*PlaceOf(text) = std::move(value);
}

void SadaModel::SetCongratulation(std::string text) {
  chg_ = true;
  if (sada_.CongratulationText == text) return;
  Remember(SadaAct::Congratulation);
  sada_.CongratulationText = std::move(text);
}

void SadaModel::Select(int number) {
  if (number >= 1 && number <= ListCount()) selected_ = number;
}

void SadaModel::ToggleOpen(int number) {
  if (number < 2 || number > ListCount()) return;
  Remember(SadaAct::Mark, Name(number));
  sada_.OpenFlags.flip(Index(number));
  chg_ = true;
}

void SadaModel::AddCave(std::string text, NewCavePlace place) {
  chg_ = true;
  if (sada_.CaveList.size() > kMostToAdd) return;
  Remember(SadaAct::Add, NameIn(text));
  Append(std::move(text), place);
}

void SadaModel::AddCave(NewCaveSize size, NewCavePlace place) {
  AddCave(NewCave(size), place);
}

void SadaModel::Paste(NewCavePlace place) {
  chg_ = true;
  if (sada_.CaveList.size() > kMostToAdd) return;
  Remember(SadaAct::Paste, NameIn(clipCave_));
  Append(clipCave_, place);
}

void SadaModel::Append(std::string text, NewCavePlace place) {
  if (place == NewCavePlace::End) {
    selected_ = ListCount() + 1;
    sada_.OpenFlags.reset(Index(selected_));
  }
  for (int number = ListCount(); number >= selected_; --number) {
    sada_.OpenFlags.set(Index(number) + 1, IsOpen(number));
  }
  sada_.CaveList.insert(sada_.CaveList.begin() + selected_ - 1, std::move(text));
  GetNames(selected_ - 1);
}

void SadaModel::Up() {
  if (selected_ <= 1) return;
  Remember(SadaAct::Up, Name(selected_));
  Swap(selected_ - 1);
  GetNames(selected_ - 2);
}

void SadaModel::Down() {
  if (selected_ >= ListCount()) return;
  Remember(SadaAct::Down, Name(selected_));
  Swap(selected_);
  GetNames(selected_);
}

void SadaModel::Delete() {
  if (ListCount() == 1) return;
  Remember(SadaAct::Delete, Name(selected_));
  Remove();
}

void SadaModel::Cut() {
  if (ListCount() == 1) return;
  Remember(SadaAct::Cut, Name(selected_));
  Copy();
  Remove();
}

void SadaModel::Remove() {
  const int count = ListCount();
  for (int number = selected_; number < count; ++number) {
    sada_.OpenFlags.set(Index(number), IsOpen(number + 1));
  }
  sada_.OpenFlags.reset(Index(count));
  sada_.CaveList.erase(sada_.CaveList.begin() + selected_ - 1);
  GetNames(selected_ - 1);
  chg_ = true;
}

void SadaModel::SetSelected(std::string text) {
  if (Cave(selected_) == text) return;
  Remember(SadaAct::Edit, Name(selected_));
  sada_.CaveList[Index(selected_) - 1] = std::move(text);
  GetNames(selected_ - 1);
  chg_ = true;
}

// Reads the names anew, opens cave 1 and selects the row behind this one, or the last row.
void SadaModel::GetNames(int selection) {
  names_.clear();
  for (const std::string& cave : sada_.CaveList) names_.push_back(NameIn(cave));
  sada_.OpenFlags.set(1);
  selected_ = std::min(selection, ListCount() - 1) + 1;
}

// Swaps this cave with the one below.
void SadaModel::Swap(int upper) {
  const bool open = IsOpen(upper);
  std::swap(sada_.CaveList[Index(upper) - 1], sada_.CaveList[Index(upper)]);
  sada_.OpenFlags.set(Index(upper), IsOpen(upper + 1));
  sada_.OpenFlags.set(Index(upper) + 1, open);
  chg_ = true;
}

// Words that no cave has room for give way to those of the game.
std::string SadaModel::NewCave(NewCaveSize size) const {
  const char* const source = size == NewCaveSize::Small ? "*1" : "*2";
  const Result<std::string> cave = FetchCaveText(source, 0, words_.Cave);
  return cave ? *cave : *NewCaveText(size);
}

}  // namespace zorik
