// The buttons of the dialog that answer questions.
#include "editors/FormalityScreen.h"

namespace zorik {
namespace {

using test::Boxes;
using test::InDialogNamed;

class FrmFormalityAnswersTest : public test::FormalityWindowTest {
 protected:
  // What a button answers, "title: text", with a number typed first.
  QString Answer(const char* button, const char* box = nullptr, const QString& number = {}) const {
    const Boxes boxes;
    Dialog([&](QWidget& it) {
      if (box != nullptr) Type(Box(it, box), number);
      Press(it, button);
    });
    return boxes.said.isEmpty() ? QString() : boxes.titles.front() + ": " + boxes.said.front();
  }

  // The same with its line breaks.
  QStringList Lines(const char* button, const char* box, const QString& text) const {
    QString said;
    Dialog([&](QWidget& it) {
      Type(Box(it, box), text);
      InDialogNamed message("", [&said](QWidget& shown) {
        if (auto* const label = shown.findChild<QLabel*>("lblText")) said = label->text();
      });
      Press(it, button);
    });
    return said.remove('\r').split('\n');
  }
};

TEST_F(FrmFormalityAnswersTest, TellsWhatABonusCaveIs) {
  EXPECT_EQ(Answer("Command3"),
            "Bonusová komnata: Komnata se slovem BONUS ve jménu je bonusová: hráč ji smí přeskočit a za její "
            "projití získá 500 bodů navíc.");
  EXPECT_EQ(Answer("Command3", "Text3", "Velký Bonus"),
            "Bonusová komnata: Komnata se slovem BONUS ve jménu je bonusová: hráč ji smí přeskočit a za její "
            "projití získá 500 bodů navíc. Komnata „Velký Bonus“ je bonusová.");
}

TEST_F(FrmFormalityAnswersTest, BreaksTheLinesOfItsAnswers) {
  EXPECT_EQ(Lines("Command3", "Text3", "Můj bonus"),
            QStringList({"Komnata se slovem BONUS ve jménu je bonusová:", "hráč ji smí přeskočit",
                         "a za její projití získá 500 bodů navíc.", "Komnata „Můj bonus“ je bonusová."}));
  EXPECT_EQ(Lines("Command8", "Text8", "1"),
            QStringList({"Do zkamenění chybí amébě 6 buněk.", "Dojde k němu asi v čase 3 s."}));
}

TEST_F(FrmFormalityAnswersTest, CountsGems) {
  EXPECT_EQ(Answer("Command4"), "Zorík: Počet drahokamů v komnatě: 2");
}

TEST_F(FrmFormalityAnswersTest, TellsHowTimeTurnsIntoPoints) {
  EXPECT_EQ(Answer("Command5"),
            "Čas a body: Za každou zbylou sekundu je jeden bod za každého živého Zoríka.");
}

TEST_F(FrmFormalityAnswersTest, TellsWhatComesAfterTheAmoebaTime) {
  EXPECT_EQ(Answer("Command6"), "Co bude pak?: Po uplynutí tohoto času roste améba asi osmkrát rychleji.");
}

TEST_F(FrmFormalityAnswersTest, TellsWhatThePermeabilityMeans) {
  constexpr int kOdds[] = {127, 63, 31, 15, 7, 3, 1};
  for (int p = 1; p < 8; ++p) {
    EXPECT_EQ(Answer("Command7", "Text11", QString::number(p)),
              QString("Co znamená propustnost %1?: Šance, že předmět v jednom okamžiku propadne, je 1:%2.")
                  .arg(p)
                  .arg(kOdds[p - 1]));
  }
  EXPECT_EQ(Answer("Command7", "Text11", "0"), "Co znamená propustnost 0?: Blátem nic nepropadne.");
  EXPECT_EQ(Answer("Command7", "Text11", ""), "Co znamená propustnost 0?: Blátem nic nepropadne.");
  EXPECT_EQ(Answer("Command7", "Text11", "8"),
            "Co znamená propustnost 8?: Blátem propadne vše, co na něm spočine.");
  EXPECT_EQ(Answer("Command7", "Text11", "9"), "Co znamená propustnost 9?: :-)");
}

// The dialog's size counts, the amoebas are those of the cave: 137 - 1 cells, 18 of them slow.
TEST_F(FrmFormalityAnswersTest, ComputesThePetrifyingFromItsBoxes) {
  const Boxes boxes;
  Dialog([](QWidget& it) {
    Type(Box(it, "Text1"), "30");
    Type(Box(it, "Text2"), "20");
    Type(Box(it, "Text8"), "60");
    Press(it, "Command8");
  });
  EXPECT_EQ(boxes.titles, QStringList("Zkamenění améby"));
  EXPECT_EQ(boxes.said, QStringList("Do zkamenění chybí amébě 136 buněk. Dojde k němu asi v čase 107 s."));
}

}  // namespace
}  // namespace zorik
