#include "solve/Gems.h"

#include <memory>

#include "core/Machine.h"
#include "solve/Reach.h"

namespace zorik {

GemCount GemsOf(const CaveRecord& cave) {
  const auto run = std::make_unique<Hra>();
  StartRun(*run, {}, cave, RunKind::Play);
  GemCount gems;
  ForEachCell(*run, [&](Cell c) { gems.there += run->Field(c) == kGem ? 1 : 0; });
  gems.most = MostGems(*run, Reach(*run));
  gems.needed = run->GemsNeeded;
  return gems;
}

}  // namespace zorik
