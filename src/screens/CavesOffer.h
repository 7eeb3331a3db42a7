#pragma once

namespace zorik {

class Skin;
struct Paths;

// Offers the collections that came with the game and that the player lacks, once, and brings them if he wants
// them. When it was this start that should have brought them and could not, that is said instead.
void OfferCaves(Skin& skin, Paths& paths);

}  // namespace zorik
