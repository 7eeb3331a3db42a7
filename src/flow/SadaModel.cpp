#include "flow/SadaModel.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <system_error>
#include <utility>

#include "data/CaveO.h"
#include "data/Files.h"
#include "data/KeepBeside.h"
#include "data/Result.h"

namespace zorik {

namespace {

constexpr const char* kNoMail = "@";

using TextPlace = std::string EditedCollection::*;
constexpr std::array<TextPlace, 4> kTexts{&EditedCollection::Name, &EditedCollection::Author,
                                          &EditedCollection::Mail, &EditedCollection::Description};

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
  fileName_.clear();
  sada_ = {};
  sada_.Name = words_.Name;
  sada_.Mail = kNoMail;
  sada_.Description = words_.Cave.Description;
  sada_.CongratulationText = words_.Congratulation;
  sada_.CaveList = {NewCave(NewCaveSize::Small)};
  GetNames(0);
  chg_ = false;
  faulty_ = false;
  keptAs_.clear();
}

Result<SadaModel::OpenReport> SadaModel::Open(const std::string& path) {
  const Result<std::string> bytes = ReadWhole(path);
  if (!bytes) return Failure{bytes.Message()};
  Result<OpenReport> report = Take(*bytes);
  if (!report || report->Closed) return report;
  fileName_ = path;
  faulty_ = !report->Faults.empty();
  chg_ = faulty_;
  return report;
}

Result<SadaModel::OpenReport> SadaModel::Import(const std::string& bytes) {
  Result<OpenReport> report = Take(bytes);
  if (!report || report->Closed) return report;
  fileName_.clear();
  faulty_ = false;
  chg_ = true;
  return report;
}

Result<std::string> SadaModel::Bytes() {
  return BuildCollection(sada_, decoration_);
}

Result<SadaModel::OpenReport> SadaModel::Take(const std::string& bytes) {
  Result<EditedCollection> read = ReadForEditor(bytes);
  if (!read) return Failure{read.Message()};
  OpenReport report;
  report.Closed = read->Closed;
  if (report.Closed) return report;
  sada_ = std::move(*read);
  report.Faults = FaultsOfCollection(bytes);
  DropUnreadable(sada_);
  if (sada_.CaveList.empty()) sada_.CaveList = {NewCave(NewCaveSize::Small)};
  GetNames(0);
  keptAs_.clear();
  return report;
}

std::optional<SadaModel::TooLong> SadaModel::CannotHold() const {
  for (const SadaText text : {SadaText::Name, SadaText::Author}) {
    const std::size_t length = Text(text).size();
    if (length > kHighestNumber) return TooLong{text, length, kHighestNumber};
  }
  return std::nullopt;
}

Result<SadaModel::SaveReport> SadaModel::Save(const std::string& path) {
  const Result<std::string> bytes = Bytes();
  if (!bytes) return Failure{bytes.Message()};
  SaveReport report;
  if (faulty_ && IsSameFile(path, fileName_)) {
    Result<std::string> copy = KeepBeside(path);
    if (!copy) return Failure{copy.Message()};
    keptAs_ = *std::move(copy);
    faulty_ = false;  // should writing fail now, the next try needs no second copy
  }
  const Result<Done> written = WriteWhole(path, *bytes);
  if (!written) return Failure{written.Message()};
  report.KeptAs = std::exchange(keptAs_, {});
  report.CongratulationLeftOut = EndsWithMarker(sada_.CongratulationText);
  if (report.CongratulationLeftOut) sada_.CongratulationText.clear();
  fileName_ = path;
  faulty_ = false;
  chg_ = false;
  return report;
}

const std::string& SadaModel::Text(SadaText text) const {
  return sada_.*PlaceOf(text);
}

void SadaModel::SetText(SadaText text, std::string value) {
  sada_.*PlaceOf(text) = std::move(value);
  chg_ = true;
}

void SadaModel::SetCongratulation(std::string text) {
  sada_.CongratulationText = std::move(text);
  chg_ = true;
}

void SadaModel::Select(int number) {
  if (number >= 1 && number <= ListCount()) selected_ = number;
}

void SadaModel::ToggleOpen(int number) {
  if (number < 2 || number > ListCount()) return;
  sada_.OpenFlags.flip(Index(number));
  chg_ = true;
}

void SadaModel::AddCave(std::string text) {
  chg_ = true;
  if (sada_.CaveList.size() > kMostToAdd) return;
  for (int number = ListCount(); number >= selected_; --number) {
    sada_.OpenFlags.set(Index(number) + 1, IsOpen(number));
  }
  sada_.CaveList.insert(sada_.CaveList.begin() + selected_ - 1, std::move(text));
  GetNames(selected_ - 1);
}

void SadaModel::AddCave(NewCaveSize size) {
  AddCave(NewCave(size));
}

void SadaModel::Up() {
  if (selected_ <= 1) return;
  Swap(selected_ - 1);
  GetNames(selected_ - 2);
}

void SadaModel::Down() {
  if (selected_ >= ListCount()) return;
  Swap(selected_);
  GetNames(selected_);
}

void SadaModel::Delete() {
  const int count = ListCount();
  if (count == 1) return;
  for (int number = selected_; number < count; ++number) {
    sada_.OpenFlags.set(Index(number), IsOpen(number + 1));
  }
  sada_.OpenFlags.reset(Index(count));
  sada_.CaveList.erase(sada_.CaveList.begin() + selected_ - 1);
  GetNames(selected_ - 1);
  chg_ = true;
}

void SadaModel::SetSelected(std::string text) {
  sada_.CaveList[Index(selected_) - 1] = std::move(text);
  GetNames(selected_ - 1);
}

// Reads the names anew, opens cave 1 and selects the row behind this one, or the last row.
void SadaModel::GetNames(int selection) {
  names_.clear();
  for (const std::string& cave : sada_.CaveList) {
    Result<CaveRecord> record = ParseCaveText(cave);
    names_.push_back(record ? std::move(record->Name) : std::string());
  }
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
