#include <gtest/gtest.h>

#include <QMenu>

#include "editors/Mnemonics.h"

namespace zorik {
namespace {

std::string Marked(const QStringList& captions) {
  return WithMnemonics(captions).join(" | ").toStdString();
}

TEST(Mnemonics, AreTheBeginningsOfWordsWhereTheseAreFree) {
  EXPECT_EQ(Marked({"Nová", "Otevřít", "Uložit", "Uložit jako"}),
            "&Nová | &Otevřít | &Uložit | Uložit &jako");
}

TEST(Mnemonics, AreLettersWithinAWordWhereNoBeginningIsFree) {
  EXPECT_EQ(Marked({"Nahoru", "Nová", "Noc"}), "&Nahoru | N&ová | No&c");
}

TEST(Mnemonics, AreLettersOfEveryKeyboardBeforeOthers) {
  EXPECT_EQ(Marked({"Úpravy", "Číslo Úhel", "Ž"}), "Ú&pravy | Čí&slo Úhel | &Ž")
      << "what is left where nothing else is";
}

TEST(Mnemonics, AreTheDigitThatEndsACaption) {
  EXPECT_EQ(Marked({"Zorík 1", "Zorík 2", "Náhodně 10"}), "Zorík &1 | Zorík &2 | &Náhodně 10");
}

TEST(Mnemonics, StandBehindACaptionWhoseLettersAreAllTaken) {
  EXPECT_EQ(Marked({"Ab", "Ba", "Ab", "…"}), "&Ab | &Ba | Ab (&C) | … (&D)");
}

TEST(Mnemonics, AreNoneWhereNothingIsFree) {
  QStringList captions;
  for (int i = 0; i < 40; ++i) captions << "A";
  const QStringList marked = WithMnemonics(captions);
  EXPECT_EQ(marked[0].toStdString(), "&A");
  EXPECT_EQ(marked[35].toStdString(), "A (&9)");
  EXPECT_EQ(marked[36].toStdString(), "A");
}

TEST(Mnemonics, LeaveAmpersandsOfACaptionAsTheyAre) {
  EXPECT_EQ(Marked({"R&&B", "&&"}), "&R&&B | && (&A)");
  EXPECT_EQ(WithoutMnemonic("R&&&B").toStdString(), "R&&B");
  EXPECT_EQ(MnemonicOf("R&&&B"), QChar('B'));
  EXPECT_TRUE(MnemonicOf("R&&B").isNull());
  EXPECT_EQ(MnemonicOf("&čas"), QChar(u'Č'));
}

TEST(Mnemonics, AreTheFirstDigitOfANumberBeforeLettersWithinAWord) {
  EXPECT_EQ(Marked({"10 kroků"}), "10 &kroků") << "the beginning of a word before that";
  EXPECT_EQ(Marked({"k", "10 kroků"}), "&k | &10 kroků");
  EXPECT_EQ(Marked({"k", "1", "10 kroků"}), "&k | &1 | 10 k&roků") << "no digit within a number";
}

TEST(Mnemonics, AreLettersOfTheLanguageBeforeDigitsWithinAWord) {
  EXPECT_EQ(Marked({"a", "a5b"}), "&a | a5&b");
  EXPECT_EQ(Marked({"x", "x5š"}), "&x | x5&š");
  EXPECT_EQ(Marked({"x", "xš Ž"}), "&x | xš &Ž") << "the beginning of a word first";
  EXPECT_EQ(Marked({"B", "B2"}), "&B | B&2") << "what is left";
}

TEST(Mnemonics, AreTheSameLetterWhetherItIsLargeOrSmall) {
  EXPECT_EQ(Marked({"Ab", "ac"}), "&Ab | a&c");
  EXPECT_EQ(Marked({"šx", "Šy"}), "š&x | Š&y");
  EXPECT_EQ(Marked({"š", "Š"}), "&š | Š (&A)");
}

TEST(Mnemonics, BeginAfterAnySignThatIsNoLetter) {
  EXPECT_EQ(Marked({"o", "(o)krok"}), "&o | (o)&krok");
  EXPECT_EQ(Marked({"o", "o-x5"}), "&o | o-&x5");
}

TEST(Mnemonics, AreNoneOfACaptionThatEndsInAMark) {
  EXPECT_EQ(WithoutMnemonic("Ab&").toStdString(), "Ab");
  EXPECT_EQ(WithoutMnemonic("&").toStdString(), "");
  EXPECT_TRUE(MnemonicOf("Ab&").isNull());
  EXPECT_EQ(MnemonicOf("A&b"), QChar('B'));
  EXPECT_EQ(WithoutMnemonic("&Ab && &Cd").toStdString(), "Ab && Cd");
}

TEST(Mnemonics, AreGivenToItemsAndNotToLinesBetweenThem) {
  QMenu menu;
  menu.addAction("Ab");
  QAction* const line = menu.addSeparator();
  line->setText("Ab");
  menu.addMenu("Ac")->addAction("Ab");
  menu.addAction("Bd");
  GiveMnemonics(menu.actions());
  QStringList texts;
  for (const QAction* const action : menu.actions()) texts << action->text();
  EXPECT_EQ(texts, QStringList({"&Ab", "Ab", "A&c", "&Bd"}));
}

TEST(Mnemonics, StayTheSameWhenTheyAreGivenAgain) {
  const QStringList once = WithMnemonics({"Ab", "Ba", "Ab", "R&&B", "Zorík 1"});
  EXPECT_EQ(WithMnemonics(once), once);
}

TEST(Mnemonics, ComeBackWhenAMenuThatWasNamedAnewShows) {
  QMenu menu;
  QAction* const first = menu.addAction("Zpět");
  menu.addSeparator();
  QAction* const second = menu.addAction("Znovu");
  KeepMnemonics(menu);
  menu.popup({});
  EXPECT_EQ(first->text().toStdString(), "&Zpět");
  EXPECT_EQ(second->text().toStdString(), "Z&novu");
  menu.close();
  QObject::connect(&menu, &QMenu::aboutToShow, second, [second] { second->setText("Vložit"); });
  menu.popup({});
  EXPECT_EQ(second->text().toStdString(), "&Vložit");
  menu.close();
}

}  // namespace
}  // namespace zorik
