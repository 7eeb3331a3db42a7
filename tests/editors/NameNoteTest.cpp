// What the collection editor says of names under which records would not find room beside each other.
#include <QLabel>

#include "editors/SadaScreen.h"

namespace zorik {
namespace {

using test::Names;

const QString kTwice = "Jmenuje se stejně jako komnata č. 1, výhra v jedné by proto nahradila výhru v druhé.";

class NameNoteTest : public test::SadaWindowTest {
 protected:
  QString Note() const {
    const auto& label = Child<QLabel>("lblNames");
    return label.isVisible() ? label.text() : QString();
  }
  // The caves that have the mark.
  std::vector<int> Marked() const {
    std::vector<int> marked;
    for (int number = 1; number <= Sada().ListCount(); ++number) {
      if (Seen(List().Doubt(number))) marked.push_back(number);
    }
    return marked;
  }
  QString Hint(QPoint place) const { return HintAt(place).replace('\n', ' '); }
};

TEST_F(NameNoteTest, SaysNothingOfNamesThatAreFine) {
  OpenCaves({"*A", "B", "C"});
  EXPECT_EQ(Note(), "");
  EXPECT_EQ(Marked(), std::vector<int>());
}

TEST_F(NameNoteTest, MarksACaveWithTheNameOfAnEarlierOneAndSaysWhatComesOfIt) {
  OpenCaves({"*A", "B", "a"});
  EXPECT_EQ(Note(), "Komnata 3: " + kTwice);
  EXPECT_EQ(Marked(), std::vector<int>{3});
  EXPECT_EQ(Hint(List().Doubt(3).center()), kTwice);
  EXPECT_EQ(Hint(List().lblCave(3).center()), kTwice);
  EXPECT_EQ(Hint(List().lblCave(2).center()), "");
  EXPECT_FALSE(window->isWindowModified());
}

TEST_F(NameNoteTest, SpeaksOfTheSelectedCaveAndCountsTheOthers) {
  OpenCaves({"*A", "A", "B", "A"});
  EXPECT_EQ(Note(), "Komnata 2: " + kTwice + " Vykřičník má komnat: 2.");
  ClickCave(4);
  EXPECT_EQ(Note(), "Komnata 4: " + kTwice + " Vykřičník má komnat: 2.");
  EXPECT_EQ(List().accessibleDescription(), "4 A. " + kTwice);
  ClickCave(3);
  EXPECT_EQ(Note(), "Komnata 2: " + kTwice + " Vykřičník má komnat: 2.");
  EXPECT_EQ(List().accessibleDescription(), "3 B");
}

TEST_F(NameNoteTest, KnowsEachChangeOfTheList) {
  Open();
  EXPECT_EQ(Note(), "");
  Key(Qt::Key_F3);
  EXPECT_EQ(Note(), "Komnata 2: " + kTwice) << "a new cave is called like the other";
  window->CaveDone(test::OneStepCave("Kost"));
  EXPECT_EQ(Note(), "");
  Action("mnuUndo").trigger();
  EXPECT_EQ(Note(), "Komnata 2: " + kTwice);
  EXPECT_EQ(Marked(), std::vector<int>{2});
  Action("mnuUndo").trigger();
  EXPECT_EQ(Note(), "");
}

TEST_F(NameNoteTest, NamesARecordWhoseNameIsTooLongAsTheCollectionIsCalledSo) {
  OpenCaves({"*A"});
  // Two bytes for each letter, and those of " - A.zkr".
  TypeName(QString(124, QChar(0x159)));
  EXPECT_EQ(Note(), "Komnata 1: Jméno souboru se záznamem by mělo 256 bajtů, disk jich snese 255.");
  TypeName(QString(123, QChar(0x159)));
  EXPECT_EQ(Note(), "");
}

TEST_F(NameNoteTest, SaysAllThatIsWrongWithOneName) {
  OpenCaves({"*A", "A"});
  TypeName(QString(124, QChar(0x159)));
  const QString tooLong = "Jméno souboru se záznamem by mělo 256 bajtů, disk jich snese 255.";
  EXPECT_EQ(Hint(List().lblCave(1).center()), tooLong);
  QString both = Hint(List().lblCave(2).center());
  EXPECT_TRUE(both.contains(tooLong) && both.contains(kTwice)) << both.toStdString();
  EXPECT_EQ(both.remove(tooLong).remove(kTwice), " ") << "with a blank between";
}

TEST_F(NameNoteTest, SpeaksTheLanguageOfTheSkin) {
  OpenCaves({"*A", "A", "A"});
  ASSERT_TRUE(skin.Apply(SkinPlaces{ZORIK_SKINS, "English"}));
  window->SetLWEd();
  EXPECT_EQ(Note(),
            "Cave 2: It has the same name as cave 1, so a win in one would replace a win in the other. "
            "Caves with an exclamation mark: 2.");
}

TEST_F(NameNoteTest, TakesNoWordOfANameForAMarkOfItsOwn) {
  OpenCaves({"*?1? <b>", "?1? <b>"});
  EXPECT_EQ(Note(), "Komnata 2: " + kTwice);
}

}  // namespace
}  // namespace zorik
