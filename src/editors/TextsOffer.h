#pragma once

#include <optional>

#include "flow/SadaModel.h"

class QWidget;

namespace zorik {

class Skin;

// A collection as a folder of texts that any editor can change.

// Lets the author choose where to put the folder, which gets the collection's name, and writes it. What lies
// in such a folder already is written over only after a question.
void OfferTexts(Skin& skin, QWidget* parent, SadaModel& sada);

// Lets the author choose such a folder, and opens it as a collection that was not saved yet. Nothing when he
// does not, or when it cannot be read; a message has told where and why then, and nothing has changed.
std::optional<SadaModel::OpenReport> TakeTexts(Skin& skin, QWidget* parent, SadaModel& sada);

}  // namespace zorik
