#pragma once

#include <QString>
#include <functional>

#include "editors/EditStep.h"
#include "editors/StepsMenu.h"

namespace zorik {

class CaveModel;
class Skin;

// What a step was.
QString WordsOfStep(const Skin& skin, EditStep step);

// The steps of the edited cave for their list. Whoever shows the cave is told when the list has led to
// another moment.
StepsOf StepsOfCave(const Skin& skin, CaveModel& cave, std::function<void()> changed);

}  // namespace zorik
