#include <gtest/gtest.h>

#include <QHelpEvent>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QTextDocumentFragment>
#include <QToolTip>

#include "screens/SkinLabel.h"

namespace zorik {
namespace {

class SkinLabelTest : public testing::Test {
 protected:
  SkinLabelTest() {
    label_.resize(200, 40);
    label_.SetLook(Qt::yellow, Qt::AlignLeft, 14);
    label_.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&label_));
  }

  // Whether anything is drawn in a part of it.
  bool Drawn(const QRect& part) {
    QImage image(label_.size(), QImage::Format_ARGB32);
    image.fill(Qt::black);
    label_.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    for (int x = part.left(); x <= part.right(); ++x) {
      for (int y = part.top(); y <= part.bottom(); ++y) {
        if (image.pixelColor(x, y).red() > 100) return true;
      }
    }
    return false;
  }

  void Enter(QPoint place = QPoint(5, 5)) {
    QEnterEvent event(place, place, place);
    QApplication::sendEvent(&label_, &event);
  }

  void Leave() {
    QEvent event(QEvent::Leave);
    QApplication::sendEvent(&label_, &event);
  }

  // What appears while the pointer rests on it: all that is written there, and its widget.
  struct Hint {
    QString text;
    int width = 0;
  };
  Hint Rest() {
    QHelpEvent event(QEvent::ToolTip, QPoint(5, 5), label_.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&label_, &event);
    Hint hint;
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
      auto* const shown = qobject_cast<QLabel*>(widget);
      if (shown == nullptr || !shown->isVisible() || !widget->inherits("QTipLabel")) continue;
      hint.text = QTextDocumentFragment::fromHtml(shown->text()).toPlainText();
      hint.width = shown->width();
    }
    QToolTip::hideText();
    return hint;
  }

  SkinLabel label_{nullptr};
};

TEST_F(SkinLabelTest, ShowsAShortTextWithoutAHint) {
  label_.SetText("Krátký");
  EXPECT_EQ(label_.Text(), "Krátký");
  EXPECT_EQ(label_.toolTip(), "");
  EXPECT_TRUE(Drawn(QRect(0, 0, 100, 20)));
  EXPECT_FALSE(Drawn(QRect(100, 0, 100, 40)));
}

TEST_F(SkinLabelTest, KeepsToItsAlignment) {
  label_.SetLook(Qt::yellow, Qt::AlignRight, 14);
  label_.SetText("Krátký");
  EXPECT_FALSE(Drawn(QRect(0, 0, 100, 40)));
  EXPECT_TRUE(Drawn(QRect(100, 0, 100, 20)));
}

TEST_F(SkinLabelTest, BreaksALongTextIntoLines) {
  label_.SetText("Text, kterému jeden řádek nestačí");
  EXPECT_TRUE(Drawn(QRect(0, 20, 200, 20)));
  EXPECT_EQ(label_.toolTip(), "");
}

TEST_F(SkinLabelTest, BreaksAtTheLineEndsOfATextToo) {
  label_.SetText("a\r\nb");
  EXPECT_TRUE(Drawn(QRect(0, 20, 20, 20)));
}

TEST_F(SkinLabelTest, ShowsAllOfATextThatFindsNoRoomAsAHint) {
  const QString text = QString("Slovo ").repeated(30).trimmed();
  label_.SetText(text);
  EXPECT_EQ(label_.toolTip(), text);
  label_.SetText("Krátký");
  EXPECT_EQ(label_.toolTip(), "");
}

TEST_F(SkinLabelTest, ShowsALongHintInLines) {
  const QString text = QString("Slovo ").repeated(60).trimmed();
  label_.SetText(text);
  const Hint hint = Rest();
  EXPECT_EQ(QString(hint.text).replace('\n', ' '), text);
  EXPECT_GT(hint.text.count('\n'), 1);
  EXPECT_LT(hint.width, 480);
}

TEST_F(SkinLabelTest, BreaksAHintWithoutABlankToo) {
  const QString path = "/home/" + QString("x").repeated(400);
  label_.SetHint(path);
  const Hint hint = Rest();
  EXPECT_EQ(QString(hint.text).remove('\n'), path);
  EXPECT_LT(hint.width, 480);
}

TEST_F(SkinLabelTest, ShowsMarkupInAHintAsItIsWritten) {
  label_.SetHint("/home/<b>tom</b> & <i>");
  EXPECT_EQ(Rest().text, "/home/<b>tom</b> & <i>");
}

TEST_F(SkinLabelTest, ShowsNoHintThatItDoesNotHave) {
  label_.SetText("Krátký");
  EXPECT_EQ(Rest().text, "");
}

TEST_F(SkinLabelTest, PrefersItsOwnHint) {
  label_.SetText(QString("Slovo ").repeated(30));
  label_.SetHint("cesta");
  EXPECT_EQ(label_.toolTip(), "cesta");
}

TEST_F(SkinLabelTest, FitsItsTextAnewWhenItGrows) {
  const QString text = QString("Slovo ").repeated(12).trimmed();
  label_.SetText(text);
  EXPECT_EQ(label_.toolTip(), text);
  label_.resize(200, 100);
  EXPECT_EQ(label_.toolTip(), "");
}

TEST_F(SkinLabelTest, ChangesItsColourUnderThePointerOnlyAsALink) {
  label_.SetText("Jára");
  Enter();
  EXPECT_EQ(label_.Colour(), QColor(Qt::yellow));
  Leave();
  label_.SetLink(Qt::white, "napiš");
  EXPECT_EQ(label_.Colour(), QColor(Qt::yellow));
  Enter();
  EXPECT_EQ(label_.Colour(), QColor(Qt::white));
  Leave();
  EXPECT_EQ(label_.Colour(), QColor(Qt::yellow));
}

TEST_F(SkinLabelTest, ActsAsALinkWhenItIsLetGoInside) {
  QSignalSpy clicked(&label_, &SkinLabel::LinkClicked);
  QTest::mouseClick(&label_, Qt::LeftButton);
  EXPECT_EQ(clicked.size(), 0);
  label_.SetLink(Qt::white, "napiš");
  QTest::mouseClick(&label_, Qt::LeftButton);
  EXPECT_EQ(clicked.size(), 1);
  QTest::mouseClick(&label_, Qt::RightButton);
  QTest::mousePress(&label_, Qt::LeftButton, {}, QPoint(5, 5));
  QTest::mouseRelease(&label_, Qt::LeftButton, {}, QPoint(5, 60));
  EXPECT_EQ(clicked.size(), 1);
}

}  // namespace
}  // namespace zorik
