#pragma once

#include "core/Machine.h"

namespace zorik {

// The rules that the tick and other rules call; each lives in its own file below rules/.

// Gravity.cpp: lets what stands in a cell fall, roll, pass a magic wall and split; answers whether more has
// happened than that it stayed or fell into the cell below.
bool NewGravitace(Hra& hra, Cell c);

// Impact.cpp: what the falling object in a cell does to the thing right below.
void Dopad(Hra& hra, Cell c);

// DogStep.cpp: the steered dog takes one step in KeyDirection.
void PohybH(Hra& hra);

// Fleas.cpp: the swarm takes one step in KeyDirection.
void PohybB(Hra& hra);

// Keys.cpp: the dog or the cat takes what lies in a cell; call it before the cell is cleared.
void SpapanZamek(Hra& hra, Cell c);

// Teleport.cpp: one tick of the cave's teleport; call it only when there is one.
void Teleport(Hra& hra);

// Explosion.cpp: blows up the 3 x 3 block around a cell; one tick of an explosion that burns; lights a bomb,
// which goes off in the next tick.
void Exploze(Hra& hra, Cell c);
void Burn(Hra& hra, Cell c);
void LightBomb(Hra& hra, Cell c);

// Amoeba.cpp: the room of the amoeba is counted in the object scan; it grows right after; its cells come to
// an end in the closing scan, which keeps the tally and answers a sound or 0; it speeds up with time.
struct AmoebaList {
  std::array<std::uint16_t, kAmoebaListSize> places;  // of the first count
  int count = 0;                                      // candidates beyond the list are counted and lost

  Cell At(std::size_t i) const { return Cell::AtPlace(places[i]); }
};
void FindAmoebaRoom(const Hra& hra, Cell c, AmoebaList& list);
void GrowAmoeba(Hra& hra, const AmoebaList& list);
bool IsAmoebaTooBig(const Hra& hra, int cells);
std::optional<SoundId> SettleAmoeba(Hra& hra, Cell c, int& cells);
void HurryAmoeba(Hra& hra);

// Walls.cpp: the walls that grow.
void GrowWallH(Hra& hra, Cell c);
void GrowWallV(Hra& hra, Cell c);

// Slime.cpp
void Slime(Hra& hra, Cell c);

// Sensor.cpp: sets off the idle sensors beside a cell; one tick of a sensor's countdown, answers a sound or
// 0.
void TestCidla(Hra& hra, Cell c);
std::optional<SoundId> CountSensor(Hra& hra, Cell c);

// Monsters.cpp: one step of a firefly, butterfly, fly or dragonfly; what its contact does at the tick's end.
void Potvory(Hra& hra, Cell c);
void Contact(Hra& hra, Cell c);

// Fly.cpp: headings of flies are 1 up, 2 right, 3 down, 4 left.
void MoveFly(Hra& hra, Cell c);
// The heading in which a fly that cannot go on turns; also the wandering cat asks it.
int MouchaS(Hra& hra, Cell c, int heading);

// DragonFly.cpp
void MoveDragonFly(Hra& hra, Cell c);

// Cat.cpp: one tick of the cat.
void Kocka(Hra& hra);

// CatScript.cpp: an event moves the cat's program behind the label of its letter.
void KockaEvent(Hra& hra, char letter);

}  // namespace zorik
