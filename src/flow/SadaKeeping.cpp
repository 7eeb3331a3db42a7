// How the collection that is being edited is kept, and taken up again.
#include "data/CaveO.h"
#include "data/Result.h"
#include "flow/KeptSada.h"
#include "flow/SadaModel.h"

namespace zorik {
namespace {

void Shorten(std::string& text) {
  if (text.size() > kHighestNumber) text.resize(kHighestNumber);
}

}  // namespace

Result<KeptSada> SadaModel::Kept(const std::optional<std::string>& cave) const {
  EditedCollection sada = sada_;
  if (cave) sada.CaveList[static_cast<std::size_t>(selected_) - 1] = *cave;
  Shorten(sada.Name);
  Shorten(sada.Author);
  Chance decoration;  // always the same
  Result<std::string> bytes = BuildCollection(sada, decoration);
  if (!bytes) return Failure{bytes.Message()};
  KeptSada kept{*std::move(bytes), sada_.Name, sada_.Author, file_.Path, file_.Faulty, selected_};
  if (EndsWithMarker(sada_.CongratulationText)) kept.Congratulation = sada_.CongratulationText;
  return kept;
}

Result<SadaModel::OpenReport> SadaModel::TakeUp(const KeptSada& kept) {
  Result<OpenReport> report = Read(kept.Bytes, SadaAct::Open);
  if (!report || report->Closed) return report;
  sada_.Name = kept.Name;
  sada_.Author = kept.Author;
  if (!kept.Congratulation.empty()) sada_.CongratulationText = kept.Congratulation;
  file_ = {kept.FileName, kept.Faulty, {}, nullptr};
  chg_ = true;
  Select(kept.Selected);
  return report;
}

}  // namespace zorik
