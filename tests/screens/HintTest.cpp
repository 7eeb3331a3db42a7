#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QHelpEvent>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTextDocumentFragment>
#include <QTimer>
#include <QToolButton>
#include <QToolTip>

#include "screens/DesktopServices.h"
#include "screens/Hint.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

const QString kMarkup = "<img src=/dev/null> <b>R&D</b> &lt;";

class HintTest : public testing::Test {
 protected:
  ~HintTest() override {
    QToolTip::hideText();
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
  }

  static const QLabel* Shown() {
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
      if (widget->inherits("QTipLabel") && widget->isVisible()) return qobject_cast<QLabel*>(widget);
    }
    return nullptr;
  }

  // What a reader sees of the hint; a picture would be a sign of its own.
  static QString Read() {
    const QLabel* const shown = Shown();
    return shown == nullptr ? QString() : QTextDocumentFragment::fromHtml(shown->text()).toPlainText();
  }

  static QString RestOn(QWidget& widget, QPoint place = QPoint(5, 5)) {
    QHelpEvent event(QEvent::ToolTip, place, widget.mapToGlobal(place));
    QApplication::sendEvent(&widget, &event);
    return Read();
  }
};

TEST_F(HintTest, OfAWidgetIsShownAsItIsWritten) {
  QPushButton button;
  button.show();
  SetHint(button, kMarkup);
  EXPECT_EQ(RestOn(button), kMarkup);
  EXPECT_EQ(button.toolTip(), kMarkup) << "for who has the screen read out";
}

TEST_F(HintTest, OfAnActionIsShownAsItIsWrittenOnItsButton) {
  QAction action;
  SetHint(action, kMarkup);
  QToolButton button;
  button.setDefaultAction(&action);
  button.show();
  EXPECT_EQ(RestOn(button), kMarkup);
}

TEST_F(HintTest, OfARowOfTheToolkitIsShownAsItIsWritten) {
  KeepHintsPlain();
  QListWidget list;
  list.addItem("a");
  list.item(0)->setToolTip(kMarkup);
  list.show();
  EXPECT_EQ(RestOn(*list.viewport()), kMarkup);
}

TEST_F(HintTest, OfAFolderInAFileBoxIsShownAsItIsWritten) {
  QFileDialog box;
  Skin skin;
  PrepareFileBox(box, skin, "Otevřít");
  auto* const places = box.findChild<QListView*>("sidebar");
  ASSERT_NE(places, nullptr);
  places->model()->setData(places->model()->index(0, 0), kMarkup, Qt::ToolTipRole);
  box.show();
  const QRect first = places->visualRect(places->model()->index(0, 0));
  EXPECT_EQ(RestOn(*places->viewport(), first.center()), kMarkup);
}

TEST_F(HintTest, OfAnyLengthFitsTheScreen) {
  QWidget widget;
  widget.show();
  for (const QString& text :
       {QString(1000000, 'x'), QString("slovo ").repeated(20000), QString(10000, '\n')}) {
    ShowHint(QPoint(10, 10), text, widget);
    ASSERT_NE(Shown(), nullptr);
    EXPECT_LT(Shown()->width(), 480);
    EXPECT_LT(Shown()->height(), widget.screen()->availableGeometry().height());
    EXPECT_TRUE(Read().endsWith(QChar(0x2026)));
  }
}

TEST_F(HintTest, ThatIsEmptyHidesTheOneBefore) {
  QWidget widget;
  widget.show();
  ShowHint(QPoint(10, 10), "a", widget);
  EXPECT_EQ(Read(), "a");
  ShowHint(QPoint(10, 10), QString(), widget);
  EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
}

TEST_F(HintTest, OfAWidgetThatHasNoneIsThatOfTheOneAround) {
  QWidget around;
  around.resize(100, 100);
  SetHint(around, kMarkup);
  auto* const inside = new QWidget(&around);
  inside->resize(50, 50);
  around.show();
  EXPECT_EQ(RestOn(*inside), kMarkup);
}

TEST_F(HintTest, AMessageOfTheToolkitIsShownAsItIsWrittenToo) {
  KeepHintsPlain();
  QMessageBox box(QMessageBox::Warning, "a", "<b>Složka</b>");
  QTimer::singleShot(0, &box, &QDialog::accept);
  box.exec();
  EXPECT_EQ(box.textFormat(), Qt::PlainText);
}

}  // namespace
}  // namespace zorik
