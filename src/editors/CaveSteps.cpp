#include "editors/CaveSteps.h"

#include <array>
#include <utility>
#include <vector>

#include "editors/CaveModel.h"
#include "screens/StartWords.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

// In the order of the kinds.
constexpr std::array<StartWords, static_cast<std::size_t>(EditStep::End)> kWords{{
    {"caption.main.pencil"},
    {"caption.main.line"},
    {"caption.main.rectangle"},
    {"caption.main.box"},
    {"caption.main.fill"},
    {"caption.main.clear"},
    {"caption.main.cut"},
    {"caption.main.paste"},
    {"caption.main.step.move"},
    {"caption.main.mirror.aside"},
    {"caption.main.mirror.upright"},
    {"caption.main.turn.right"},
    {"caption.main.turn.left"},
    {"caption.main.row.insert"},
    {"caption.main.column.insert"},
    {"caption.main.row.delete"},
    {"caption.main.column.delete"},
    {"caption.main.resize"},
    {"caption.main.step.replace"},
    {"caption.main.step.random"},
    {"caption.main.step.frame"},
    {"caption.main.props"},
    {"caption.main.cat"},
    {"caption.main.restore"},
}};

EditStep StepAt(const CaveModel& cave, std::size_t place) {
  const std::vector<EditStep> done = cave.UndoSteps();
  return place < done.size() ? done[place] : cave.RedoSteps()[place - done.size()];
}

}  // namespace

QString WordsOfStep(const Skin& skin, EditStep step) {
  return kWords[static_cast<std::size_t>(step)].In(skin);
}

StepsOf StepsOfCave(const Skin& skin, CaveModel& cave, std::function<void()> changed) {
  return {.steps = [&cave] { return cave.UndoSteps().size() + cave.RedoSteps().size(); },
          .done = [&cave] { return cave.UndoSteps().size(); },
          .words = [&skin, &cave](std::size_t place) { return WordsOfStep(skin, StepAt(cave, place)); },
          .goTo =
              [&cave, changed = std::move(changed)](std::size_t done) {
                cave.UndoTo(done);
                changed();
              }};
}

}  // namespace zorik
