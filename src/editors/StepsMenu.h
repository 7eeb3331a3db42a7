#pragma once

#include <QString>
#include <cstddef>
#include <functional>

class QMenu;

namespace zorik {

class Skin;

// The steps of an editor, as a list to choose from: which of them are done, and how it goes to another
// moment.
struct StepsOf {
  std::function<std::size_t()> steps;               // how many are known
  std::function<std::size_t()> done;                // the first of them
  std::function<QString(std::size_t place)> words;  // what a step was
  std::function<void(std::size_t done)> goTo;       // takes back or does again until so many are done
};

// Makes a menu the list of an editor's steps whenever it shows, the last step on top: each of them leads to
// the moment after it, what stands at the bottom to the beginning. The present moment is marked. Of many
// steps only those around it are there.
void MakeStepsMenu(QMenu& menu, const Skin& skin, StepsOf steps);

}  // namespace zorik
