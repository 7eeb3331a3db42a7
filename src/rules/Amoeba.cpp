// Amoeba: takes one free or dirt cell beside it now and then, kills monsters by contact, turns to gems when
// it is enclosed and to boulders when it is too big.
#include <algorithm>

#include "core/Rules.h"

namespace zorik {
namespace {

bool HasRoom(const Hra& hra, Cell c) {
  return hra.Field(c) <= kDirt;
}

void Petrify(Hra& hra, Cell c, std::uint16_t code) {
  hra.SetObject(c, code, kResting);
  PREKR(hra, c);
  hra.stage().PZvukStop(SoundId::Amoeba);
}

void Enclosed(Hra& hra) {
  if (hra.AmoebaState == kAmoebaEnclosed) return;
  hra.stage().ShowMessage(TextId::AmoebaEnclosed, Colour::Green);
  KockaEvent(hra, 'F');
  hra.AmoebaState = kAmoebaEnclosed;
}

void TooBig(Hra& hra) {
  hra.AmoebaState = kAmoebaTooBig;
  hra.stage().ShowMessage(TextId::AmoebaTooBig, Colour::Green);
  KockaEvent(hra, 'E');
}

}  // namespace

void FindAmoebaRoom(const Hra& hra, Cell c, AmoebaList& list) {
  if (!HasRoom(hra, c) || !BesideAmoeba(hra, c)) return;
  if (list.count < kAmoebaListSize)
    list.places[static_cast<std::size_t>(list.count)] = static_cast<std::uint16_t>(c.place());
  ++list.count;
}

bool IsAmoebaTooBig(const Hra& hra, int cells) {
  return cells * 22 >= hra.CaveWidth * hra.CaveHeight * 5;
}

// The first draw is made in every tick of every cave. Only the first candidate is looked at once more: one
// that something else has taken meanwhile can be overgrown.
void GrowAmoeba(Hra& hra, const AmoebaList& list) {
  hra.AmoebaRoom = list.count;
  const bool grows = Nahoda(hra, hra.AmoebaState == kAmoebaFast ? 4 : 32) == 1;
  if (grows && list.count > 0 && HasRoom(hra, list.At(0))) {
    const int k = Nahoda(hra, list.count) - 1;
    if (k >= 0 && k < std::min(list.count, kAmoebaListSize)) {
      const Cell c = list.At(static_cast<std::size_t>(k));
      hra.SetObject(c, kAmoeba, kFlat);
      hra.SetFieldMark(c, 0);
      PREKR(hra, c);
      TestCidla(hra, c);
    }
  }
  if (hra.AmoebaRoom == 0 && hra.PrevAmoebaRoom != 0) hra.stage().PZvukStop(SoundId::Amoeba);
  hra.PrevAmoebaRoom = hra.AmoebaRoom;
}

std::optional<SoundId> SettleAmoeba(Hra& hra, Cell c, int& cells) {
  std::optional<SoundId> sound;
  PREKR(hra, c);
  if (hra.AmoebaState != kAmoebaTooBig) {
    if (hra.AmoebaRoom == 0) {
      Petrify(hra, c, kGem);
      sound = SoundId::AmoebaEnclosed;
      Enclosed(hra);
    }
    ++cells;
    if (IsAmoebaTooBig(hra, cells)) TooBig(hra);
  }
  if (hra.AmoebaState == kAmoebaTooBig) {
    Petrify(hra, c, kBoulder);
    sound = SoundId::AmoebaDead;
  }
  return sound;
}

void HurryAmoeba(Hra& hra) {
  const bool late = hra.Elapsed / kTicksPerSecond >= hra.AmoebaTime - 1;
  if (!late || hra.AmoebaState != kAmoebaSlow || hra.AmoebaRoom == 0) return;
  hra.AmoebaState = kAmoebaFast;
  hra.stage().ShowMessage(TextId::AmoebaFast, Colour::Green);
}

}  // namespace zorik
