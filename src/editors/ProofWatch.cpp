#include "editors/ProofWatch.h"

#include <utility>

#include "data/Result.h"

namespace zorik {
namespace {

constexpr int kSlice = 50;  // ticks between two looks whether the answer is still wanted

}  // namespace

void ProofWatch::SetRecord(std::string record) {
  record_ = std::move(record);
  proof_.reset();
  verdict_.reset();
  bad_ = false;
  background_.Drop();
  if (!record_.empty() && !caveText_.empty()) return Ask();
  emit Judged();
}

void ProofWatch::SetCave(const std::string& caveText) {
  if (caveText == caveText_) return;
  caveText_ = caveText;
  if (!record_.empty()) Ask();
}

void ProofWatch::Ask() {
  const auto question = std::make_shared<Question>(Question{record_, caveText_, proof_, {}});
  background_.Start([question](const std::atomic<bool>& dropped) { Look(*question, dropped); },
                    [this, question] {
                      proof_ = question->proof;
                      bad_ = !proof_;
                      verdict_ = std::move(question->verdict);
                      emit Judged();
                    });
}

void ProofWatch::Look(Question& question, const std::atomic<bool>& dropped) {
  if (!question.proof) {
    const auto proof = Proof::Read(question.record);
    if (!proof) return;
    question.proof = *proof;
  }
  ProofRun run(question.proof, question.caveText);
  while (!dropped && !run.Go(kSlice)) continue;
  if (!dropped) question.verdict = run.Verdict();
}

}  // namespace zorik
