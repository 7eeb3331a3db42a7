#pragma once

#include <QString>
#include <map>

namespace zorik {

class SadaModel;
class Skin;

// What is doubtful about the names of a collection's caves, since the records of their wins are called by
// them: by the caves' numbers, in the words of a skin.
std::map<int, QString> DoubtfulNames(const Skin& skin, const SadaModel& sada);

// What of that is said below the list of caves: that of the selected cave, or else of the first one that
// there is something to say of. Empty when there is none.
QString NameNote(const Skin& skin, const std::map<int, QString>& doubts, int selected);

}  // namespace zorik
