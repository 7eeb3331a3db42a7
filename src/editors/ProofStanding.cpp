#include "editors/ProofStanding.h"

#include <utility>

#include "data/Result.h"
#include "solve/Rating.h"

namespace zorik {

std::vector<Doubt> DoubtsAboutStanding(const CaveRecord& cave, const ProofStanding& proof) {
  if (proof.fails)
    return {{.kind = DoubtKind::NotWon, .sentence = "the proof does not win", .cell = proof.where}};
  if (proof.record.empty()) return {};
  Result<Review> review = ReviewRecord(proof.record);
  if (!review) return {};
  std::vector<Review> wins;
  wins.push_back(*std::move(review));
  return DoubtsAboutProof(RateCave(cave, std::move(wins), proof.tries, proof.survived));
}

}  // namespace zorik
