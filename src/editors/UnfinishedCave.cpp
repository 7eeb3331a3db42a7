#include "editors/UnfinishedCave.h"

#include "data/CaveO.h"
#include "data/Result.h"
#include "editors/CaveModel.h"

namespace zorik {

std::optional<std::string> UnfinishedCave(const CaveModel& model, const std::optional<std::string>& program) {
  if (!program || *program == model.Cave().Script) {
    if (Result<std::string> text = model.Text()) return *std::move(text);
  }
  CaveRecord cave = model.Cave();
  if (program) cave.Script = *program;
  for (std::string* const text : {&cave.Name, &cave.Description}) {
    if (text->size() > kHighestNumber) text->resize(kHighestNumber);
  }
  Result<std::string> text = BuildCaveText(cave);
  if (!text) return std::nullopt;
  return *std::move(text);
}

}  // namespace zorik
