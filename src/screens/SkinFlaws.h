#pragma once

#include <QString>

#include "skin/SkinFlaw.h"

class QWidget;

namespace zorik {

class Skin;

// Tells in one message what is wrong with a skin, and what comes of it; nothing where nothing is wrong.
void TellFlaws(Skin& skin, QWidget* parent, const SkinFlaws& flaws, const QString& outcome = QString());

}  // namespace zorik
