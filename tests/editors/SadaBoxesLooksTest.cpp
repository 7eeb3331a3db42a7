// Where the boxes for the texts of a collection stand.
#include <gtest/gtest.h>

#include <QClipboard>
#include <QLabel>
#include <algorithm>

#include "editors/SadaBoxes.h"
#include "editors/SadaScreen.h"
#include "screens/BoxNote.h"

namespace zorik {
namespace {

const std::vector<const char*> kBoxes = {"Text3", "Text1", "Text2", "Text4", "txtBody"};

class SadaBoxesLooksTest : public test::SadaWindowTest {
 protected:
  SadaBoxes& Boxes() const { return *window->findChild<SadaBoxes*>(); }
  QRect Place(const QWidget& part) const { return {part.mapTo(&Boxes(), QPoint()), part.size()}; }
  QRect PlaceOf(const char* box) const { return Place(Child<QWidget>(box)); }
  const QLabel& LabelOf(const char* box) const {
    for (const QLabel* const label : Boxes().findChildren<QLabel*>())
      if (label->buddy() == &Child<QWidget>(box)) return *label;
    ADD_FAILURE() << box;
    return *Boxes().findChild<QLabel*>();
  }
  void Resize(QSize size) const {
    window->resize(size);
    QCoreApplication::processEvents();
  }
};

TEST_F(SadaBoxesLooksTest, StandOneBelowTheOtherEachBelowItsName) {
  Open();
  Resize({1000, 600});
  int bottom = -1;
  for (const char* const box : kBoxes) {
    const QRect label = Place(LabelOf(box)), place = PlaceOf(box);
    EXPECT_GT(label.top(), bottom) << box;
    EXPECT_GE(place.top(), label.bottom()) << box;
    EXPECT_EQ(place.left(), 0) << box;
    EXPECT_EQ(label.left(), 0) << box;
    if (box != std::string("txtBody")) {
      EXPECT_EQ(place.width(), Boxes().width()) << box;
    }
    bottom = place.bottom();
  }
  EXPECT_LE(bottom, Boxes().height());
}

TEST_F(SadaBoxesLooksTest, HaveALineEachAndTheDescriptionSeveral) {
  Open();
  Resize({800, 700});
  for (const char* const box : kBoxes) {
    if (box == std::string("Text4")) continue;
    EXPECT_EQ(PlaceOf(box).height(), Child<QWidget>(box).sizeHint().height()) << box;
  }
  EXPECT_GE(Text4().minimumHeight(), 3 * Text4().fontMetrics().lineSpacing());
}

TEST_F(SadaBoxesLooksTest, LeaveAllTheHeightToTheDescription) {
  Open();
  Resize({800, 700});
  const int low = PlaceOf("Text4").height(), all = Boxes().height();
  Resize({800, 900});
  EXPECT_GT(Boxes().height(), all + 100);
  EXPECT_EQ(PlaceOf("Text4").height() - low, Boxes().height() - all);
}

TEST_F(SadaBoxesLooksTest, AreAsWideAsWhatTheyHold) {
  Open();
  for (const char* const box : {"Text3", "Text1", "Text2"})
    EXPECT_GE(Box(box).minimumWidth(), 26 * Box(box).fontMetrics().averageCharWidth()) << box;
  const int digits = Box("txtBody").fontMetrics().horizontalAdvance("00000");
  EXPECT_GT(Box("txtBody").width(), digits);
  EXPECT_LE(Box("txtBody").width(), 2 * digits);
}

TEST_F(SadaBoxesLooksTest, AreExplainedInTheWordsBesideThem) {
  ASSERT_TRUE(skin.Apply(SkinPlaces{ZORIK_SKINS, "English"}));
  Open();
  const std::vector<QString> words = {"Collection name", "Author", "E-mail", "Collection description",
                                      "Points at the start"};
  for (std::size_t box = 0; box < kBoxes.size(); ++box) {
    EXPECT_EQ(LabelOf(kBoxes[box]).text(), words[box]);
    EXPECT_TRUE(Child<QWidget>(kBoxes[box]).toolTip().contains(words[box])) << kBoxes[box];
  }
}

TEST_F(SadaBoxesLooksTest, HaveTheirNotesRightBelow) {
  Open();
  TypeInto("Text3", QString(250, 'D'));
  TypeInto("Text1", QString(250, 'D'));
  TypeInto("Text2", QString(QChar(0x3B1)));
  TypeInto("Text4", "Popis");
  Resize({800, 650});
  const auto notes = Boxes().findChildren<BoxNote*>();
  ASSERT_EQ(notes.size(), 4);
  for (std::size_t box = 0; box < 4; ++box) {
    const QRect place = PlaceOf(kBoxes[box]);
    const int below = PlaceOf(kBoxes[box + 1]).top();
    EXPECT_TRUE(std::any_of(notes.begin(), notes.end(), [&](const BoxNote* note) {
      const QRect there = Place(*note);
      return note->isVisible() && there.top() > place.bottom() && there.bottom() < below;
    })) << kBoxes[box];
  }
}

TEST_F(SadaBoxesLooksTest, CutNoLetterInTwo) {
  Open();
  Text4().clear();
  // The last letter is one of two halves.
  Text4().insertPlainText(QString(279, 'x') + QString::fromUtf8("\xF0\x9F\x98\x80"));
  const QString kept = Text4().toPlainText();
  ASSERT_GE(kept.size(), 279);
  EXPECT_FALSE(kept.back().isHighSurrogate());
  EXPECT_TRUE(kept.startsWith(QString(279, 'x')));
}

TEST_F(SadaBoxesLooksTest, TakeOfALongTextInTheMiddleWhatFits) {
  Open();
  Text4().setPlainText(QString(100, 'a') + QString(100, 'b'));
  QTextCursor cursor = Text4().textCursor();
  cursor.setPosition(100);
  Text4().setTextCursor(cursor);
  QGuiApplication::clipboard()->setText(QString(50, 'c') + QString(50, 'd'));
  Text4().paste();
  EXPECT_EQ(Text4().toPlainText(),
            QString(100, 'a') + QString(50, 'c') + QString(30, 'd') + QString(100, 'b'));
  EXPECT_EQ(Sada().Text(SadaText::Description).size(), 280U);
  Text4().undo();
  EXPECT_EQ(Text4().toPlainText().toStdString(), std::string(100, 'a') + std::string(100, 'b'))
      << "one step takes it all back";
}

TEST_F(SadaBoxesLooksTest, TakeBackWhatWasThereBeforeALetterTooMany) {
  Open();
  TypeInto("Text4", QString(280, 'a'));
  Type(Text4(), "x");
  EXPECT_EQ(Text4().toPlainText().toStdString(), std::string(280, 'a'));
  Text4().setFocus();
  for (int step = 0; step < 3; ++step) Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_LT(Text4().toPlainText().size(), 280);
}

}  // namespace
}  // namespace zorik
