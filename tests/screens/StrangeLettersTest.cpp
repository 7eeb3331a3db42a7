#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>

#include "screens/StrangeLetters.h"

namespace zorik {
namespace {

using Places = QList<LetterPlace>;

TEST(StrangeLetters, AreThoseThatTheCodePageLacks) {
  EXPECT_EQ(StrangeLetters("Žluťoučký kůň – „100 €“ ß ł ő ą"), Places());
  EXPECT_EQ(StrangeLetters("a猫č"), (Places{{1, 1}}));
  EXPECT_EQ(StrangeLetters("ñ å и"), (Places{{0, 1}, {2, 1}, {4, 1}}));
  EXPECT_EQ(StrangeLetters(""), Places());
}

TEST(StrangeLetters, AreWholeLettersWithTheirAccents) {
  const QString accent(QChar(0x301));
  EXPECT_EQ(StrangeLetters("e" + accent), Places()) << "it is é, in two parts";
  EXPECT_EQ(StrangeLetters("xж" + accent + "x"), (Places{{1, 2}}));
  EXPECT_EQ(StrangeLetters("x🐈x"), (Places{{1, 2}}));
}

TEST(StrangeLetters, AreNoLineBreaks) {
  EXPECT_EQ(StrangeLetters(QString("č\nč") + QChar(QChar::LineSeparator) + "猫"), (Places{{4, 1}}));
}

TEST(StrangeLetters, AreNamedOnceEach) {
  EXPECT_EQ(StrangeLettersInWords("日本 日本č"), "日 本");
  EXPECT_EQ(StrangeLettersInWords(QString("a") + QChar(0x200F) + "b"), "U+200F");
  EXPECT_EQ(StrangeLettersInWords("абвгдежзий"), "а б в г д е ж з …");
}

TEST(StrangeLetters, CountAsTheyAreKept) {
  EXPECT_EQ(KeptLength("č\n🐈"), 4U);
  EXPECT_EQ(KeptLength(QString("e") + QChar(0x301)), 1U);
  EXPECT_EQ(KeptLength(""), 0U);
}

// Where a box shows red, from its left edge on; nothing where it does not.
template <class Box>
QList<int> RedColumns(Box& box) {
  const QImage picture = box.grab().toImage();
  QList<int> columns;
  for (int x = 0; x < picture.width(); ++x) {
    for (int y = 0; y < picture.height(); ++y) {
      const QColor colour = picture.pixelColor(x, y);
      if (colour.red() < colour.green() + 20) continue;
      columns << x;
      break;
    }
  }
  return columns;
}

template <class Box>
class MarkedBoxTest : public testing::Test {
 protected:
  MarkedBoxTest() {
    MarkStrangeLetters(box_);
    box_.resize(300, 60);
    box_.show();
  }
  void Type(const QString& text) {
    for (const QChar letter : text) {
      QKeyEvent key(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(letter));
      QApplication::sendEvent(&box_, &key);
    }
    QCoreApplication::processEvents();
  }

  Box box_;
};

using MarkedBoxes = testing::Types<QLineEdit, QPlainTextEdit>;
TYPED_TEST_SUITE(MarkedBoxTest, MarkedBoxes);

TYPED_TEST(MarkedBoxTest, UnderlinesALetterAsItIsTyped) {
  this->Type("abc");
  EXPECT_EQ(RedColumns(this->box_), QList<int>());
  this->Type("и");
  const QList<int> marked = RedColumns(this->box_);
  EXPECT_FALSE(marked.isEmpty());
  this->Type("xyz");
  EXPECT_EQ(RedColumns(this->box_).value(0), marked.value(0)) << "the letters behind it move nothing";
  EXPECT_LE(RedColumns(this->box_).size(), marked.size() + 2) << "and are not marked";
}

TYPED_TEST(MarkedBoxTest, MarksTheLetterWhereverTheCaretIs) {
  this->Type("и");
  const int first = RedColumns(this->box_).value(0);
  QTest::keyClick(&this->box_, Qt::Key_Home);
  this->Type("abc");
  EXPECT_GT(RedColumns(this->box_).value(0), first + 10);
}

TYPED_TEST(MarkedBoxTest, TakesTheMarkAwayWithTheLetter) {
  this->Type("aи");
  QTest::keyClick(&this->box_, Qt::Key_Backspace);
  EXPECT_EQ(RedColumns(this->box_), QList<int>());
}

}  // namespace
}  // namespace zorik
