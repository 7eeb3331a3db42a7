// Events of the cat's program: a jump behind the label of the event's letter. A program is a row of tokens of
// two characters; a label is a star and a letter.
#include "core/Rules.h"

namespace zorik {

// Of two labels with the same letter the later one wins. A dead cat's program moves all the same.
void KockaEvent(Hra& hra, char letter) {
  const std::string_view program = hra.CatProgram;
  if (program.size() <= 2) return;
  for (std::size_t token = 0; token * 2 + 1 < program.size(); ++token) {
    if (program[token * 2] == '*' && program[token * 2 + 1] == letter)
      hra.CatPC = static_cast<int>(token) + 1;
  }
}

}  // namespace zorik
