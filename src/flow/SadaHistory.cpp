#include "flow/SadaHistory.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace zorik {

namespace {

using TextPlace = std::string EditedCollection::*;
constexpr std::array<TextPlace, 5> kTexts{&EditedCollection::Name, &EditedCollection::Author,
                                          &EditedCollection::Mail, &EditedCollection::Description,
                                          &EditedCollection::CongratulationText};

std::size_t SizeOf(const std::string& text) {
  return sizeof(std::string) + text.capacity();
}

}  // namespace

bool SadaMoment::Holds(const EditedCollection& sada) const {
  for (std::size_t i = 0; i < kTexts.size(); ++i) {
    if (!texts_[i] || *texts_[i] != sada.*kTexts[i]) return false;
  }
  const auto same = [](const Text& text, const std::string& cave) { return *text == cave; };
  return openFlags_ == sada.OpenFlags &&
         std::equal(caves_.begin(), caves_.end(), sada.CaveList.begin(), sada.CaveList.end(), same);
}

EditedCollection SadaMoment::Collection() const {
  EditedCollection sada;
  for (std::size_t i = 0; i < kTexts.size(); ++i) sada.*kTexts[i] = *texts_[i];
  for (const Text& cave : caves_) sada.CaveList.push_back(*cave);
  sada.OpenFlags = openFlags_;
  return sada;
}

std::size_t SadaMoment::Size() const {
  return sizeof(*this) + caves_.capacity() * sizeof(Text);
}

SadaMoment SadaHistory::At(const EditedCollection& sada) {
  SadaMoment moment;
  for (std::size_t i = 0; i < kTexts.size(); ++i) {
    const std::string& text = sada.*kTexts[i];
    const SadaMoment::Text& known = latest_.texts_[i];
    moment.texts_[i] = known && *known == text ? known : Keep(text);
  }
  std::unordered_map<std::string_view, SadaMoment::Text> known;
  for (const SadaMoment::Text& cave : latest_.caves_) known.emplace(*cave, cave);
  moment.caves_.reserve(sada.CaveList.size());
  for (const std::string& cave : sada.CaveList) {
    const auto found = known.find(cave);
    moment.caves_.push_back(found != known.end() ? found->second : Keep(cave));
  }
  moment.openFlags_ = sada.OpenFlags;
  latest_ = moment;
  return moment;
}

// A text counts for as long as some moment has it.
SadaMoment::Text SadaHistory::Keep(const std::string& text) {
  auto copy = std::make_unique<std::string>(text);
  *textBytes_ += SizeOf(*copy);
  const auto forget = [bytes = textBytes_](const std::string* kept) {
    *bytes -= SizeOf(*kept);
    delete kept;
  };
  return {copy.release(), forget};
}

void SadaHistory::Do(SadaStep step, SadaState before) {
  redo_.clear();
  undo_.push_back({std::move(step), std::move(before)});
  Trim();
}

void SadaHistory::CallLast(SadaAct act) {
  redo_.clear();
  if (!undo_.empty()) undo_.back().Step.Act = act;
}

std::vector<SadaStep> SadaHistory::StepsOf(const std::deque<Way>& ways, std::size_t most) {
  std::vector<SadaStep> steps;
  for (auto way = ways.rbegin(); way != ways.rend() && steps.size() < most; ++way) steps.push_back(way->Step);
  return steps;
}

std::optional<SadaHistory::Way> SadaHistory::Go(std::deque<Way>& from, std::deque<Way>& to, SadaState now) {
  if (from.empty()) return std::nullopt;
  Way way = std::move(from.back());
  from.pop_back();
  to.push_back({way.Step, std::move(now)});
  return way;
}

std::size_t SadaHistory::Bytes() const {
  std::size_t bytes = *textBytes_;
  for (const auto* ways : {&undo_, &redo_}) {
    for (const Way& way : *ways) bytes += sizeof(Way) + way.Step.Cave.capacity() + way.State.Moment.Size();
  }
  return bytes;
}

void SadaHistory::Trim() {
  while (undo_.size() > 1 && Bytes() > kMostBytes) undo_.pop_front();
}

}  // namespace zorik
