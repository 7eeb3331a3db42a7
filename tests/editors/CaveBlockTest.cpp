#include <algorithm>
#include <iterator>
#include <string>

#include "data/CaveO.h"
#include "data/Chance.h"
#include "data/ReadableCave.h"
#include "editors/CaveBlock.h"
#include "editors/Letters.h"
#include "support/RandomCave.h"

namespace zorik {
namespace {

using test::LettersOf;
using test::Picture;

CaveBlock BlockOf(const Picture& rows) {
  CaveBlock block{static_cast<int>(rows.at(0).size()), static_cast<int>(rows.size()), {}};
  for (const std::string& row : rows) block.letters += row;
  return block;
}

CaveBlock AnyBlock(Chance& rnd) {
  CaveBlock block{static_cast<int>(rnd.Below(CaveRecord::kColumns)) + 1,
                  static_cast<int>(rnd.Below(CaveRecord::kRows)) + 1,
                  {}};
  for (int i = 0; i < block.width * block.height; ++i) block.letters += static_cast<char>(rnd.Below(256));
  return block;
}

// Turning

TEST(CaveBlock, TurnsCellsAsASheetOfPaper) {
  const CaveBlock block = BlockOf({"RDX", "WT;"});
  EXPECT_EQ(Turned(block, CaveTurn::MirrorAside), BlockOf({"XDR", ";TW"}));
  EXPECT_EQ(Turned(block, CaveTurn::MirrorUpright), BlockOf({"WT;", "RDX"}));
  EXPECT_EQ(Turned(block, CaveTurn::Right), BlockOf({"WR", "TD", ";X"}));
  EXPECT_EQ(Turned(block, CaveTurn::Left), BlockOf({"X;", "DT", "RW"}));
}

struct Turns {
  char letter;
  const char* turned;  // aside, upright, right, left
};
// Fireflies F O P Q and butterflies U Y Z B head left, up, right and down; E grows aside, V upright.
constexpr Turns kDirected[] = {
    {'F', "PFOQ"}, {'O', "OQPF"}, {'P', "FPQO"}, {'Q', "QOFP"}, {'U', "ZUYB"},
    {'Y', "YBZU"}, {'Z', "UZBY"}, {'B', "BYUZ"}, {'E', "EEVV"}, {'V', "VVEE"},
};
constexpr CaveTurn kTurns[] = {CaveTurn::MirrorAside, CaveTurn::MirrorUpright, CaveTurn::Right,
                               CaveTurn::Left};

TEST(CaveBlock, TurnsLettersThatHaveADirectionAndNoOther) {
  for (int code = 0; code < 256; ++code) {
    const char letter = static_cast<char>(code);
    const auto* const row = std::find_if(std::begin(kDirected), std::end(kDirected),
                                         [=](const Turns& it) { return it.letter == letter; });
    for (std::size_t i = 0; i < std::size(kTurns); ++i) {
      const char wanted = row == std::end(kDirected) ? letter : row->turned[i];
      EXPECT_EQ(Turned(letter, kTurns[i]), wanted) << code << " turn " << i;
    }
  }
}

TEST(CaveBlock, IsTheSameAfterTwoMirrorsFourTurnsOrATurnBack) {
  Chance rnd(5);
  for (int i = 0; i < 50; ++i) {
    const CaveBlock block = AnyBlock(rnd);
    for (const CaveTurn mirror : {CaveTurn::MirrorAside, CaveTurn::MirrorUpright}) {
      EXPECT_EQ(Turned(Turned(block, mirror), mirror), block);
    }
    const CaveBlock half = Turned(Turned(block, CaveTurn::Right), CaveTurn::Right);
    EXPECT_EQ(Turned(Turned(half, CaveTurn::Right), CaveTurn::Right), block);
    EXPECT_EQ(half, Turned(Turned(block, CaveTurn::MirrorAside), CaveTurn::MirrorUpright));
    EXPECT_EQ(Turned(Turned(block, CaveTurn::Right), CaveTurn::Left), block);
  }
}

// Text

TEST(CaveBlock, IsWrittenAsTheCellsOfAReadableCave) {
  EXPECT_EQ(WriteBlock(BlockOf({"W1#", ".;:"})), "cells:\n| W1#\n| .;:\n");
}

TEST(CaveBlock, ComesBackFromItsTextWhateverItsLetters) {
  Chance rnd(6);
  for (int i = 0; i < 50; ++i) {
    const CaveBlock block = AnyBlock(rnd);
    const auto again = ReadBlock(WriteBlock(block));
    ASSERT_TRUE(again) << again.Message();
    EXPECT_EQ(*again, block);
  }
}

TEST(CaveBlock, IsReadFromAWholeReadableCave) {
  for (std::uint64_t number = 0; number < 40; ++number) {
    const std::string line = test::MakeRun(number).caveText + "---07";
    const auto readable = WriteReadableCave(line, 7);
    if (!readable) continue;
    const auto block = ReadBlock(*readable);
    ASSERT_TRUE(block) << block.Message();
    const Result<CaveRecord> cave = ParseCaveText(line);
    EXPECT_EQ(*block, BlockOf(LettersOf(*cave)));
  }
}

TEST(CaveBlock, IsReadFromRowsWithAndWithoutBars) {
  const CaveBlock block = BlockOf({"#W1", ":.;"});
  for (const char* text : {"#W1\n:.;", "#W1\n:.;\n", "\r\n#W1\r\n:.;\r\n\r\n", "  #W1 \n  :.; \n",
                           "| #W1\n| :.;\n", "|#W1\n|:.;", "| #W1\n:.;"}) {
    const auto read = ReadBlock(text);
    ASSERT_TRUE(read) << text << read.Message();
    EXPECT_EQ(*read, block) << text;
  }
}

struct BadText {
  std::string text;
  BlockFault fault;
  int line;
};

TEST(CaveBlock, RefusesATextThatIsNoneAndSaysWhy) {
  const std::string wide(CaveRecord::kColumns + 1, 'W');
  std::string high;
  for (int y = 0; y <= CaveRecord::kRows; ++y) high += "W\n";
  const BadText kTexts[] = {
      {"", BlockFault::NoCells, 0},
      {" \r\n\n", BlockFault::NoCells, 0},
      {"Dear Zorík", BlockFault::Letter, 1},
      {"\nWWW\nW w\n", BlockFault::Letter, 3},
      {"WWW\n\nWW\n", BlockFault::Uneven, 3},
      {"cells:\n| WWW\n| WW\n", BlockFault::Uneven, 3},
      {"W\n" + wide, BlockFault::TooLarge, 2},
      {high, BlockFault::TooLarge, CaveRecord::kRows + 1},
      {"name: A cave\ncells:\n", BlockFault::NoCells, 0},
      {"cells:\n|\n|\n", BlockFault::NoCells, 2},
      {"cells:\n| W\\W\n", BlockFault::Form, 0},
      {"cells:\nWWW\n", BlockFault::Form, 0},
      {std::string("W\0W", 3), BlockFault::Letter, 1},
      {"W\xFFW", BlockFault::Letter, 1},
  };
  for (const BadText& bad : kTexts) {
    const auto read = ReadBlock(bad.text);
    ASSERT_FALSE(read) << bad.text;
    EXPECT_EQ(read.Why().fault, bad.fault) << bad.text << read.Message();
    EXPECT_EQ(read.Why().line, bad.line) << bad.text;
    EXPECT_FALSE(read.Message().empty());
  }
}

TEST(CaveBlock, TakesAsMuchAsACaveCanHold) {
  std::string text;
  for (int y = 0; y < CaveRecord::kRows; ++y) text += std::string(CaveRecord::kColumns, 'D') + "\n";
  const auto read = ReadBlock(text);
  ASSERT_TRUE(read);
  EXPECT_EQ(read->width, CaveRecord::kColumns);
  EXPECT_EQ(read->height, CaveRecord::kRows);
}

}  // namespace
}  // namespace zorik
