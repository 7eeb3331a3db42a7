#include <gtest/gtest.h>

#include <QHelpEvent>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QTextDocumentFragment>
#include <QToolTip>
#include <functional>
#include <utility>
#include <vector>

#include "screens/PaintedParts.h"
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

TEST_F(SkinLabelTest, FitsItsTextAnewToLettersOfAnotherSize) {
  const QString text = "Text na dva řádky, ne více";
  label_.SetText(text);
  ASSERT_EQ(label_.toolTip(), "");
  label_.SetLook(Qt::yellow, Qt::AlignLeft, 34);
  EXPECT_EQ(label_.toolTip(), text) << "it finds no room";
  label_.SetLook(Qt::yellow, Qt::AlignLeft, 8);
  EXPECT_EQ(label_.toolTip(), "");
  label_.resize(20, 12);
  EXPECT_EQ(label_.toolTip(), text);
}

TEST_F(SkinLabelTest, IsPaintedAnewWheneverItLooksDifferent) {
  test::PaintedParts parts;
  const auto painted = [&parts] { return QTest::qWaitFor([&parts] { return !parts.Take().isEmpty(); }); };
  label_.SetLink(Qt::white, "napiš");
  QCoreApplication::processEvents();
  parts.Watch(label_);
  const std::vector<std::pair<const char*, std::function<void()>>> changes{
      {"the pointer comes", [this] { Enter(); }},
      {"the pointer goes", [this] { Leave(); }},
      {"another text", [this] { label_.SetText("Jára"); }},
      {"another look", [this] { label_.SetLook(Qt::red, Qt::AlignRight, 14); }}};
  for (const auto& [name, change] : changes) {
    change();
    EXPECT_TRUE(painted()) << name;
  }
}

// A picture of the same size takes the place of another one at once.
TEST(SkinPictures, ArePaintedAnewWhenTheyChange) {
  SkinPicture part(nullptr);
  QImage image({30, 20}, QImage::Format_RGB32);
  image.fill(Qt::red);
  part.SetPicture(image);
  part.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&part));
  EXPECT_EQ(part.size(), image.size());
  QCoreApplication::processEvents();
  test::PaintedParts parts;
  parts.Watch(part);
  image.fill(Qt::blue);
  part.SetPicture(image);
  EXPECT_TRUE(QTest::qWaitFor([&parts] { return !parts.Take().isEmpty(); }));
  const QImage seen = part.grab().toImage();
  for (const QPoint corner : {QPoint(0, 0), QPoint(29, 0), QPoint(0, 19), QPoint(29, 19)})
    EXPECT_EQ(seen.pixelColor(corner), QColor(Qt::blue));
}

}  // namespace
}  // namespace zorik
