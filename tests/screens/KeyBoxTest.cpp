#include <gtest/gtest.h>

#include <QImage>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <cstdlib>
#include <vector>

#include "screens/KeyBox.h"
#include "screens/PaintedParts.h"

namespace zorik {
namespace {

class AKeyBox : public testing::Test {
 protected:
  AKeyBox() {
    auto* const rows = new QVBoxLayout(&window);
    rows->addWidget(other);
    rows->addWidget(box);
    QPalette colours = window.palette();
    colours.setColor(QPalette::Button, QColor(100, 80, 60));
    colours.setColor(QPalette::ButtonText, Qt::white);
    colours.setColor(QPalette::Highlight, Qt::yellow);
    colours.setColor(QPalette::Mid, QColor(0, 0, 90));
    window.setPalette(colours);
    box->setText("HHH");
    box->SetAsking("HHHHHH");
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    other->setFocus();
    box->installEventFilter(&painted);
    QObject::connect(box, &KeyBox::Caught, box, [this](const KeyChoice& key) { caught.push_back(key); });
  }

  ~AKeyBox() override { box->StopAsking(); }

  QImage Seen() const {
    QImage seen(box->size(), QImage::Format_ARGB32);
    seen.fill(Qt::transparent);
    box->render(&seen, {}, {}, QWidget::RenderFlags());
    return seen;
  }

  void Ask() {
    QTest::mouseClick(box, Qt::LeftButton);
    ASSERT_TRUE(box->Asks());
  }

  // Where letters of this colour stand, or nearly this colour.
  QRect LettersOf(QColor colour) const {
    const QImage seen = Seen();
    QRegion letters;
    for (int y = 4; y < seen.height() - 4; ++y) {
      for (int x = 4; x < seen.width() - 4; ++x) {
        const QColor here = seen.pixelColor(x, y);
        const int off = std::abs(here.red() - colour.red()) + std::abs(here.green() - colour.green()) +
                        std::abs(here.blue() - colour.blue());
        if (off < 60) letters += QRect(x, y, 1, 1);
      }
    }
    return letters.boundingRect();
  }

  QWidget window;
  QLineEdit* other = new QLineEdit(&window);
  KeyBox* box = new KeyBox(&window, 120);
  test::PaintedParts painted;
  QSignalSpy asked{box, &KeyBox::Asked};
  std::vector<KeyChoice> caught;
};

TEST_F(AKeyBox, IsAsLargeAsItWasMadeInAnyWindow) {
  EXPECT_EQ(box->sizeHint(), QSize(120, 24));
  window.resize(500, 300);
  QCoreApplication::processEvents();
  EXPECT_EQ(box->size(), QSize(120, 24));
  EXPECT_EQ(box->focusPolicy(), Qt::StrongFocus) << "the keyboard leads to it";
  EXPECT_TRUE(box->testAttribute(Qt::WA_Hover));
}

TEST_F(AKeyBox, HasItsWordsInItsMiddle) {
  const QRect words = LettersOf(Qt::white);
  EXPECT_NEAR(words.center().x(), box->rect().center().x(), 2);
  EXPECT_NEAR(words.center().y(), box->rect().center().y(), 2);
}

TEST_F(AKeyBox, CutsWordsThatAreTooLongWithinItsRim) {
  box->setText(QString(200, 'H'));
  const QRect words = LettersOf(Qt::white);
  EXPECT_GE(words.left(), 6);
  EXPECT_LE(words.right(), box->width() - 1 - 6);
  EXPECT_GT(words.width(), 60);
}

TEST_F(AKeyBox, IsLitAndDarkAndSaysSoWhileItAsks) {
  const QColor rim = Seen().pixelColor(60, 1);
  EXPECT_LT(rim.red(), 120);
  const QColor ground = Seen().pixelColor(10, 12);
  const int short_ = LettersOf(Qt::white).width();
  painted.Settle();
  Ask();
  EXPECT_TRUE(painted.Come());
  EXPECT_EQ(asked.count(), 1);
  EXPECT_LT(Seen().pixelColor(10, 12).lightness(), ground.lightness() - 15);
  EXPECT_GT(Seen().pixelColor(60, 1).red(), 150) << "its rim is lit";
  EXPECT_GT(LettersOf(Qt::yellow).width(), short_ * 3 / 2) << "it shows other words";
  painted.Settle();
  box->StopAsking();
  EXPECT_TRUE(painted.Come());
  EXPECT_FALSE(box->Asks());
  EXPECT_NEAR(LettersOf(Qt::white).width(), short_, 1);
  EXPECT_GT(Seen().pixelColor(60, 1).red(), 150) << "it still has the focus";
  other->setFocus();
  EXPECT_EQ(Seen().pixelColor(60, 1), rim);
}

TEST_F(AKeyBox, IsARoundBoxThatIsTheSameOnAllSides) {
  box->setText({});
  const QImage seen = Seen();
  const QRect all = seen.rect();
  for (int y = 0; y < seen.height(); ++y) {
    for (int x = 0; x < seen.width(); ++x) {
      EXPECT_NEAR(qAlpha(seen.pixel(x, y)), qAlpha(seen.pixel(all.right() - x, y)), 12) << x << ' ' << y;
      EXPECT_NEAR(qAlpha(seen.pixel(x, y)), qAlpha(seen.pixel(x, all.bottom() - y)), 12) << x << ' ' << y;
    }
  }
  EXPECT_LT(qAlpha(seen.pixel(0, 0)), 30);
  EXPECT_EQ(qAlpha(seen.pixel(60, 12)), 255);
}

TEST_F(AKeyBox, CatchesShiftAndCtrlWhenTheyAreLetGoAloneAndNoOtherWay) {
  Ask();
  QTest::keyRelease(box, Qt::Key_Shift);
  EXPECT_TRUE(caught.empty()) << "it was held since before";
  QTest::keyPress(box, Qt::Key_Shift);
  EXPECT_TRUE(box->Asks());
  QTest::keyRelease(box, Qt::Key_Control);
  EXPECT_TRUE(box->Asks()) << "another one";
  QTest::keyRelease(box, Qt::Key_Shift);
  ASSERT_EQ(caught.size(), 1U);
  EXPECT_EQ(caught.back().key, Qt::Key_Shift);
  EXPECT_FALSE(box->Asks());
  Ask();
  QTest::keyRelease(box, Qt::Key_Shift);
  EXPECT_EQ(caught.size(), 1U) << "it asks anew";
}

TEST_F(AKeyBox, CatchesAKeyOnceAndNoneThatRepeats) {
  Ask();
  QKeyEvent held(QEvent::KeyPress, Qt::Key_A, {}, "a", true);
  QApplication::sendEvent(box, &held);
  EXPECT_TRUE(caught.empty());
  QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
  ASSERT_EQ(caught.size(), 1U);
  EXPECT_EQ(caught.back().key, Qt::Key_A);
  EXPECT_TRUE(caught.back().ctrl);
  QTest::keyClick(box, Qt::Key_B);
  EXPECT_EQ(caught.size(), 1U);
  Ask();
  QTest::keyClick(box, Qt::Key_B);
  EXPECT_FALSE(caught.back().ctrl);
}

TEST_F(AKeyBox, LeavesEverythingAsItWasForEscAndWhenTheFocusGoes) {
  Ask();
  QTest::keyClick(box, Qt::Key_Escape);
  ASSERT_EQ(caught.size(), 1U);
  EXPECT_EQ(caught.back().key, 0);
  Ask();
  other->setFocus();
  ASSERT_EQ(caught.size(), 2U);
  EXPECT_EQ(caught.back().key, 0);
  EXPECT_FALSE(box->Asks());
  box->setFocus();
  other->setFocus();
  EXPECT_EQ(caught.size(), 2U) << "it did not ask";
}

TEST_F(AKeyBox, IsNoShortcutWhileItAsks) {
  QKeyEvent before(QEvent::ShortcutOverride, Qt::Key_Q, Qt::ControlModifier);
  before.ignore();
  QApplication::sendEvent(box, &before);
  EXPECT_FALSE(before.isAccepted());
  Ask();
  QKeyEvent asks(QEvent::ShortcutOverride, Qt::Key_Q, Qt::ControlModifier);
  asks.ignore();
  QApplication::sendEvent(box, &asks);
  EXPECT_TRUE(asks.isAccepted());
}

// Notes which keys come to a widget.
class HeardKeys : public QObject {
 public:
  int keys = 0;

 protected:
  bool eventFilter(QObject* /*object*/, QEvent* event) override {
    const QEvent::Type type = event->type();
    if (type == QEvent::ShortcutOverride || type == QEvent::KeyPress || type == QEvent::KeyRelease) ++keys;
    return false;
  }
};

TEST_F(AKeyBox, KeepsItsKeysFromTheWindowWhileItAsks) {
  HeardKeys heard;
  Ask();
  window.installEventFilter(&heard);
  const auto send = [&](QEvent::Type type, Qt::Key key) {
    QKeyEvent event(type, key, {});
    QApplication::sendEvent(box, &event);
    EXPECT_TRUE(event.isAccepted()) << key;
  };
  send(QEvent::ShortcutOverride, Qt::Key_Shift);
  send(QEvent::KeyPress, Qt::Key_Shift);
  send(QEvent::KeyRelease, Qt::Key_Control);
  send(QEvent::ShortcutOverride, Qt::Key_A);
  send(QEvent::KeyPress, Qt::Key_A);
  EXPECT_EQ(heard.keys, 0);
  EXPECT_EQ(caught.size(), 1U);
}

TEST_F(AKeyBox, IsLitWhileItAsksAlsoWhereTheFocusIsElsewhere) {
  const QColor rim = Seen().pixelColor(60, 1);
  box->click();
  ASSERT_TRUE(box->Asks());
  ASSERT_FALSE(box->hasFocus());
  EXPECT_GT(Seen().pixelColor(60, 1).red(), 150);
  box->StopAsking();
  EXPECT_EQ(Seen().pixelColor(60, 1), rim);
}

}  // namespace
}  // namespace zorik
