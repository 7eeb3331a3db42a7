#pragma once

#include <optional>

class QWidget;

namespace zorik {

class RecoveryStore;
class Skin;
struct KeptEntry;

// Offers what programs that were killed have left, one after the other, the newest first. The answer is the
// one to go on with. All others go to the discarded ones.
std::optional<KeptEntry> OfferLeft(Skin& skin, QWidget* parent, RecoveryStore& store);

}  // namespace zorik
