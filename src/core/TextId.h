#pragma once

#include <cstddef>

namespace zorik {

// The texts of the language table by what they say; their numbers are the places at which they stand in it.
// Places keep their meaning for ever, for skins have been made for them; those that are not named here are
// free.
enum class TextId {
  // The buttons of the selection.
  PlayCave = 0,
  PlayRecord = 1,

  // Names of the objects, in the order of the editor's palette.
  Space = 10,
  Dirt = 11,
  Boulder = 12,
  Gem = 13,
  Brick = 14,
  KeyRed = 15,
  KeyGreen = 16,
  Steel = 17,
  Finish = 18,
  Amoeba = 19,
  MagicWall = 20,
  Box = 21,
  KeyBlue = 22,
  LockRed = 23,
  Slime = 24,
  Fly = 25,
  FireFlyLeft = 26,
  FireFlyUp = 27,
  FireFlyRight = 28,
  FireFlyDown = 29,
  ButterFlyLeft = 30,
  ButterFlyUp = 31,
  ButterFlyRight = 32,
  ButterFlyDown = 33,
  WallH = 34,
  WallV = 35,
  LockBlue = 36,
  LockGreen = 37,
  Bomb = 38,
  Flea = 39,
  Sensor = 40,
  Cat = 41,
  DragonFly = 42,

  // The editor of collections.
  Closed = 43,
  ClosedTitle = 44,
  ClosedText = 45,
  SaveChanges = 46,  // ?1? = the collection
  SaveChangesTitle = 47,
  PlayerNotAddedTitle = 48,
  DeleteCave = 49,  // then the cave's name, then the end
  DeleteCaveEnd = 50,
  DeleteCaveTitle = 51,
  NewCollection = 52,
  NoDescription = 53,
  NewCongratulation = 54,  // $P = the score
  OpenCollectionTitle = 55,
  CollectionKind = 56,  // what such files are called
  SaveCollectionTitle = 57,
  Dog = 58,  // ?1? = its number

  // Windows and hints of the editor and of the selection.
  CaveProperties = 70,
  MarkHint = 71,
  ReadCongratulation = 73,
  PointsAtStart = 74,
  Replace = 75,  // ?1? by ?2?
  SendRecords = 76,
  WriteToAuthor = 77,
  Rest = 78,
  OneCave = 79,       // the word for one
  FewCaves = 80,      // for two to four
  ManyCaves = 81,     // for more
  SubjectStart = 82,  // of a letter with records, then the collection's name, then the end
  SubjectEnd = 83,
  SolveFirst = 84,

  // What the game says while it runs.
  LeadDog = 89,
  FewDogs = 90,   // " 2-4" gives way to the number
  ManyDogs = 91,  // " 5-9" likewise

  // The title of the game window.
  PlayingRecord = 92,
  RecordForPlayer = 93,
  PlayedBy = 94,
  TestedBy = 95,

  // Messages in a run, and its two boxes.
  MagicWallWakes = 96,
  Paused = 97,
  IdleQuestion = 98,
  Program = 99,  // title of most messages
  IdleTitle = 100,
  AmoebaEnclosed = 101,
  AmoebaTooBig = 102,
  AmoebaFast = 103,
  MagicWallSpent = 104,
  FinishOpen = 105,

  // Records, collections and players.
  RecordedBy = 106,
  RecordWillPlay = 107,
  CaveSelection = 108,
  RecordKind = 109,  // what such files are called
  RecordFromFile = 110,
  CollectionFromFile = 111,
  CopyCollection = 112,
  DeleteOriginal = 113,
  NewPlayer = 114,
  PlayerAdded = 115,     // ?1? = the name
  PlayerNotAdded = 116,  // ?1? = the name

  // Labels in the editors.
  Name = 117,
  Description = 118,
  CaveWidth = 119,
  CaveHeight = 120,
  TotalTime = 121,
  GemsNeeded = 122,
  PointsBefore = 123,
  PointsAfter = 124,
  MagicWallTime = 125,
  AmoebaTime = 126,
  SlimePermeability = 127,
  Colouring = 128,
  CollectionName = 129,
  Author = 130,
  Mail = 131,
  CollectionDescription = 132,
  Corrected = 133,

  // Answers of the cave's properties.
  BonusTitle = 134,
  BonusText = 135,
  BonusThisCave = 136,  // ?1? = its name
  GemsInCave = 137,
  TimeAndPointsTitle = 138,
  TimeAndPoints = 139,
  WhatThenTitle = 140,
  WhatThen = 141,
  SlimeTitle = 142,
  SlimeOdds = 143,
  SlimeNothing = 144,
  SlimeAll = 145,
  PetrifyingTitle = 146,
  Petrifying = 147,  // ?1? = cells, ?2? = seconds

  // The cave editor.
  CannotTest = 177,  // title of the two behind it
  NoDog = 178,
  MissingDog = 179,
  Warning = 180,
  Classic = 181,
  Cold = 182,
  Hot = 183,
  Natural = 184,
  Mystery = 185,
  CancelButton = 186,
  BonusButton = 187,
  GemsButton = 188,
  TimeToPointsButton = 189,
  WhatThenButton = 190,
  SlimeButton = 191,
  PetrifyingButton = 192,
  MakeFrame = 193,  // ?1? and ?2? as in Replace
  FromOutside = 194,
  NewLargeCave = 195,
  NewSmallCave = 196,
  CaveTest = 197,  // name of the collection in a test run
  CaveEditor = 198,
  About = 199,
};

// How many places the table has.
inline constexpr std::size_t kTextCount = 200;

}  // namespace zorik
