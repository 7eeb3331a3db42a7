#pragma once

#include <string>

#include "data/ProgramFolder.h"

class QWidget;

namespace zorik {

class Skin;

// Offers to write a record, given as the bytes of its file, as a page of one file for a browser; the player
// chooses where. caveName: after which the page is proposed to be called. A game that came without
// the page's template says so; it is looked for from the folder of the program.
void OfferPage(Skin& skin, QWidget* parent, const std::string& record, const std::string& caveName,
               const std::string& programFolder = RunningProgramFolder());

}  // namespace zorik
