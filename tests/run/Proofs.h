#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "data/Result.h"
#include "run/ProofRun.h"
#include "solve/Walks.h"

namespace zorik::test {

inline std::shared_ptr<const Proof> ProofOf(const Walk& walk) {
  auto proof = Proof::Read(RecordOf(walk));
  if (proof) return *proof;
  ADD_FAILURE() << proof.Message();
  return nullptr;
}

inline ProofVerdict Judged(const std::shared_ptr<const Proof>& proof, const std::string& caveText) {
  ProofRun run(proof, caveText);
  while (!run.Go(1)) continue;
  return run.Verdict();
}

// What becomes of the walk where the cave is that picture.
inline ProofVerdict JudgedIn(const Walk& walk, const Picture& picture, const Numbers& numbers) {
  return Judged(ProofOf(walk), CaveTextOf(picture, numbers));
}
inline ProofVerdict JudgedIn(const Walk& walk, const Picture& picture) {
  return JudgedIn(walk, picture, walk.numbers);
}

}  // namespace zorik::test
