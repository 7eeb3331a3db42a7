#include <gtest/gtest.h>

#include <set>

#include "core/SoundId.h"
#include "core/TextId.h"
#include "data/Cp1250.h"
#include "data/Files.h"
#include "data/Result.h"
#include "skin/Texts.h"

namespace zorik {
namespace {

struct TextRow {
  int place;
  TextId text;
  const char* czech;  // "#" stands for a line break
};

// The table of texts as all skins have it.
constexpr TextRow kTexts[] = {
    {0, TextId::PlayCave, "Hrát komnatu"},
    {1, TextId::PlayRecord, "Přehrát záznam"},
    {10, TextId::Space, "Prázdno"},
    {11, TextId::Dirt, "Hlína"},
    {12, TextId::Boulder, "Balvan"},
    {13, TextId::Gem, "Drahokam"},
    {14, TextId::Brick, "Cihlová zeď"},
    {15, TextId::KeyRed, "Červený klíč"},
    {16, TextId::KeyGreen, "Zelený klíč"},
    {17, TextId::Steel, "Ocel"},
    {18, TextId::Finish, "Cíl"},
    {19, TextId::Amoeba, "Améba"},
    {20, TextId::MagicWall, "Kouzelná zeď"},
    {21, TextId::Box, "Bedna"},
    {22, TextId::KeyBlue, "Modrý klíč"},
    {23, TextId::LockRed, "Červený zámek"},
    {24, TextId::Slime, "Bláto"},
    {25, TextId::Fly, "Moucha"},
    {26, TextId::FireFlyLeft, "Světluška vlevo"},
    {27, TextId::FireFlyUp, "Světluška nahoru"},
    {28, TextId::FireFlyRight, "Světluška vpravo"},
    {29, TextId::FireFlyDown, "Světluška dolů"},
    {30, TextId::ButterFlyLeft, "Motýl vlevo"},
    {31, TextId::ButterFlyUp, "Motýl nahoru"},
    {32, TextId::ButterFlyRight, "Motýl vpravo"},
    {33, TextId::ButterFlyDown, "Motýl dolů"},
    {34, TextId::WallH, "Zeď rostoucí do stran"},
    {35, TextId::WallV, "Zeď rostoucí nahoru a dolů"},
    {36, TextId::LockBlue, "Modrý zámek"},
    {37, TextId::LockGreen, "Zelený zámek"},
    {38, TextId::Bomb, "Bomba"},
    {39, TextId::Flea, "Blecha"},
    {40, TextId::Sensor, "Čidlo"},
    {41, TextId::Cat, "Kočka"},
    {42, TextId::DragonFly, "Vážka"},
    {43, TextId::Closed, "(uzavřeno)"},
    {44, TextId::ClosedTitle, "Uzavřená sada"},
    {45, TextId::ClosedText, "Autor tuto sadu uzavřel, nelze ji upravovat.#Otevře se nová prázdná sada."},
    {46, TextId::SaveChanges, "Sada „?1?“ byla změněna. Uložit změny?"},
    {47, TextId::SaveChangesTitle, "Neuložené změny"},
    {48, TextId::PlayerNotAddedTitle, "Hráč nebyl přidán"},
    {49, TextId::DeleteCave, "Opravdu vymazat komnatu"},
    {50, TextId::DeleteCaveEnd, "z této sady?"},
    {51, TextId::DeleteCaveTitle, "Vymazat komnatu"},
    {52, TextId::NewCollection, "Nová sada"},
    {53, TextId::NoDescription, "Bez popisu"},
    {54, TextId::NewCongratulation, "Gratuluji! Prošel jsi celou sadu.#Tvé skóre: $P"},
    {55, TextId::OpenCollectionTitle, "Otevřít sadu komnat"},
    {56, TextId::CollectionKind, "Sada komnat"},
    {57, TextId::SaveCollectionTitle, "Uložit sadu komnat"},
    {58, TextId::Dog, "Zorík č. ?1?"},
    {70, TextId::CaveProperties, "Vlastnosti komnaty"},
    {71, TextId::MarkHint, "P = komnata otevřená od začátku, změníte kliknutím"},
    {73, TextId::ReadCongratulation, "Přečíst gratulaci"},
    {74, TextId::PointsAtStart, "Body na začátek"},
    {75, TextId::Replace, "Nahradit „?1?“ za „?2?“"},
    {76, TextId::SendRecords, "Odeslat záznamy e-mailem"},
    {77, TextId::WriteToAuthor, ": napište autorovi"},
    {78, TextId::Rest, "Zbývá projít:"},
    {79, TextId::OneCave, "komnata"},
    {80, TextId::FewCaves, "komnaty"},
    {81, TextId::ManyCaves, "komnat"},
    {82, TextId::SubjectStart, "Sada"},
    {83, TextId::SubjectEnd, "ze hry Zorík"},
    {84, TextId::SolveFirst, "Nejdříve musíš projít komnatu:"},
    {89, TextId::LeadDog, "Doveď Zoríka do cíle!"},
    {90, TextId::FewDogs, "Zoríci v komnatě: 2-4. Přepínáš klávesou Tab."},
    {91, TextId::ManyDogs, "V komnatě je 5-9 Zoríků. Přepínáš klávesou Tab."},
    {92, TextId::PlayingRecord, "přehrávání záznamu"},
    {93, TextId::RecordForPlayer, "záznam pro hráče"},
    {94, TextId::PlayedBy, "hraje"},
    {95, TextId::TestedBy, "zkouší"},
    {96, TextId::MagicWallWakes, "Kouzelná zeď se probudila!"},
    {97, TextId::Paused, "Pauza. Pokračuj stiskem OK."},
    {98, TextId::IdleQuestion, "Haf! Jsi tam ještě?"},
    {99, TextId::Program, "Zorík"},
    {100, TextId::IdleTitle, "Zorík se nudí"},
    {101, TextId::AmoebaEnclosed, "Améba se udusila."},
    {102, TextId::AmoebaTooBig, "Améba příliš narostla a zkameněla."},
    {103, TextId::AmoebaFast, "Améba začala růst rychleji!"},
    {104, TextId::MagicWallSpent, "Kouzelná zeď dokouzlila."},
    {105, TextId::FinishOpen, "Cíl je otevřen!"},
    {106, TextId::RecordedBy, "je hráč, který tento záznam nahrál."},
    {107, TextId::RecordWillPlay, "Záznam se nyní přehraje."},
    {108, TextId::CaveSelection, "Výběr komnaty"},
    {109, TextId::RecordKind, "Záznam hry"},
    {110, TextId::RecordFromFile, "Přehrát záznam ze souboru"},
    {111, TextId::CollectionFromFile, "Sada komnat ze souboru"},
    {112, TextId::CopyCollection, "Zkopírovat tuto sadu mezi sady hry?"},
    {113, TextId::DeleteOriginal, "Vymazat původní soubor?"},
    {114, TextId::NewPlayer, "Nový hráč"},
    {115, TextId::PlayerAdded, "Hráč ?1? byl přidán."},
    {116, TextId::PlayerNotAdded, "Hráče ?1? se nepodařilo přidat.#Zkus jiné jméno."},
    {117, TextId::Name, "Název"},
    {118, TextId::Description, "Popis"},
    {119, TextId::CaveWidth, "Šířka komnaty"},
    {120, TextId::CaveHeight, "Výška komnaty"},
    {121, TextId::TotalTime, "Celkový čas"},
    {122, TextId::GemsNeeded, "Potřeba sebrat"},
    {123, TextId::PointsBefore, "Bodů za drahokam před otevřením cíle"},
    {124, TextId::PointsAfter, "Bodů za drahokam po otevření cíle"},
    {125, TextId::MagicWallTime, "Jak dlouho bude kouzelná zeď kouzlit"},
    {126, TextId::AmoebaTime, "Čas améby"},
    {127, TextId::SlimePermeability, "Propustnost bláta"},
    {128, TextId::Colouring, "Zabarvení komnaty"},
    {129, TextId::CollectionName, "Název sady"},
    {130, TextId::Author, "Autor"},
    {131, TextId::Mail, "E-mail"},
    {132, TextId::CollectionDescription, "Popis sady"},
    {133, TextId::Corrected, "Tyto údaje byly opraveny:"},
    {134, TextId::BonusTitle, "Bonusová komnata"},
    {135, TextId::BonusText,
     "Komnata se slovem BONUS ve jménu je bonusová:#hráč ji smí přeskočit#a za její projití získá 500 bodů "
     "navíc."},
    {136, TextId::BonusThisCave, "Komnata „?1?“ je bonusová."},
    {137, TextId::GemsInCave, "Počet drahokamů v komnatě:"},
    {138, TextId::TimeAndPointsTitle, "Čas a body"},
    {139, TextId::TimeAndPoints, "Za každou zbylou sekundu je jeden bod#za každého živého Zoríka."},
    {140, TextId::WhatThenTitle, "Co bude pak?"},
    {141, TextId::WhatThen, "Po uplynutí tohoto času roste améba asi osmkrát rychleji."},
    {142, TextId::SlimeTitle, "Co znamená propustnost"},
    {143, TextId::SlimeOdds, "Šance, že předmět v jednom okamžiku propadne, je"},
    {144, TextId::SlimeNothing, "Blátem nic nepropadne."},
    {145, TextId::SlimeAll, "Blátem propadne vše, co na něm spočine."},
    {146, TextId::PetrifyingTitle, "Zkamenění améby"},
    {147, TextId::Petrifying, "Do zkamenění chybí amébě ?1? buněk.#Dojde k němu asi v čase ?2? s."},
    {177, TextId::CannotTest, "Nelze otestovat"},
    {178, TextId::NoDog, "Nenalezen žádný Zorík."},
    {179, TextId::MissingDog, "Nenalezen Zorík"},
    {180, TextId::Warning, "Upozornění"},
    {181, TextId::Classic, "Klasická"},
    {182, TextId::Cold, "Chladná"},
    {183, TextId::Hot, "Teplá"},
    {184, TextId::Natural, "Přírodní"},
    {185, TextId::Mystery, "Tajemná"},
    {186, TextId::CancelButton, "Zrušit"},
    {187, TextId::BonusButton, "Bonus?"},
    {188, TextId::GemsButton, "Spočítat drahokamy"},
    {189, TextId::TimeToPointsButton, "Jak se přepočítává čas na body?"},
    {190, TextId::WhatThenButton, "Co pak?"},
    {191, TextId::SlimeButton, "Co to v praxi znamená?"},
    {192, TextId::PetrifyingButton, "Vypočítat zkamenění"},
    {193, TextId::MakeFrame, "Udělat okraj z „?2?“"},
    {194, TextId::FromOutside, "Sada zvenčí"},
    {195, TextId::NewLargeCave, "Nová velká komnata"},
    {196, TextId::NewSmallCave, "Nová malá komnata"},
    {197, TextId::CaveTest, "Zkouška komnaty"},
    {198, TextId::CaveEditor, "Zoríkův editor komnat"},
    {199, TextId::About,
     "Zorík##Hra o psu, jeskyních a drahokamech.#Všechny obrázky, zvuky a texty jsou součástí skinu."},
};

struct SoundRow {
  int number;
  SoundId sound;
};

// The sounds as rules have always played them.
constexpr SoundRow kSounds[] = {
    {0, SoundId::Dirt},
    {1, SoundId::FallGem},
    {2, SoundId::CollectGem},
    {3, SoundId::Boulder},
    {4, SoundId::BoulderPush},
    {5, SoundId::Explosion},
    {6, SoundId::BoxPush},
    {7, SoundId::Dog},
    {8, SoundId::ExitOpen},
    {9, SoundId::MagicWall},
    {10, SoundId::Back},
    {11, SoundId::Sensor},
    {12, SoundId::AmoebaEnclosed},
    {13, SoundId::Amoeba},
    {14, SoundId::SensorOut},
    {15, SoundId::AmoebaDead},
};

std::string WithBreaks(std::string text) {
  for (std::size_t at = text.find('#'); at != std::string::npos; at = text.find('#'))
    text.replace(at, 1, "\r\n");
  return text;
}

TEST(TextId, IsThePlaceOfItsTextInTheLanguageTable) {
  const auto source = ReadWhole(ZORIK_SKIN_SOURCES "/Default/Menu/cestina.txt");
  ASSERT_TRUE(source);
  Texts texts;
  ASSERT_TRUE(texts.LoadTexts(FromUtf8(*source).value_or("")));
  for (const TextRow& row : kTexts) {
    EXPECT_EQ(static_cast<int>(row.text), row.place) << row.czech;
    EXPECT_EQ(texts.At(row.text), WithBreaks(row.czech)) << row.place;
  }
}

TEST(TextId, IsThereForEveryTextOfTheDefaultSkin) {
  const auto source = ReadWhole(ZORIK_SKIN_SOURCES "/Default/Menu/cestina.txt");
  ASSERT_TRUE(source);
  Texts texts;
  ASSERT_TRUE(texts.LoadTexts(FromUtf8(*source).value_or("")));
  std::set<int> named;
  for (const TextRow& row : kTexts) named.insert(row.place);
  EXPECT_EQ(named.size(), std::size(kTexts)) << "a place stands there twice";
  for (int place = 0; place < static_cast<int>(kTextCount); ++place) {
    EXPECT_EQ(!texts.At(static_cast<TextId>(place)).empty(), named.contains(place)) << place;
  }
}

TEST(SoundId, IsTheNumberOfTheSound) {
  EXPECT_EQ(std::size(kSounds), kSoundCount);
  int number = 0;
  for (const SoundRow& row : kSounds) {
    EXPECT_EQ(row.number, number++);
    EXPECT_EQ(static_cast<int>(row.sound), row.number);
  }
}

}  // namespace
}  // namespace zorik
