// A menu of lines of which one is chosen.
#include <gtest/gtest.h>

#include <QAction>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <functional>

#include "screens/ChoiceMenu.h"
#include "screens/TestSkin.h"
#include "screens/Tones.h"

namespace zorik {
namespace {

const QStringList kLines{"a & b", "c", "d"};

class ChoiceMenuTest : public testing::Test {
 protected:
  ChoiceMenuTest() {
    skin.Data("dialog.color=FFF8E0\n");
    skin.Apply();
    window.resize(400, 300);
    window.show();
  }

  std::optional<std::size_t> Choose(std::optional<std::size_t> marked, std::function<void(QMenu&)> act) {
    bool opened = false;
    QTimer::singleShot(0, &window, [&] {
      auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      if (menu == nullptr) return;
      opened = true;
      act(*menu);
      menu->close();
    });
    const auto chosen = ChooseFromMenu(skin.Skin(), window, "menu", kLines, marked, at);
    EXPECT_TRUE(opened);
    return chosen;
  }

  test::TestSkin skin;
  QWidget window;
  QPoint at{100, 120};
};

TEST_F(ChoiceMenuTest, OpensAtItsPlaceWithItsLinesAsTheyAreWritten) {
  EXPECT_EQ(Choose({},
                   [this](QMenu& menu) {
                     EXPECT_EQ(menu.objectName(), "menu");
                     EXPECT_EQ(menu.parentWidget(), &window);
                     EXPECT_EQ(menu.pos(), at);
                     QStringList lines;
                     for (const QAction* const action : menu.actions()) {
                       lines << action->text().replace("&&", "&");
                       EXPECT_FALSE(action->isCheckable()) << "none of them holds";
                     }
                     EXPECT_EQ(lines, kLines);
                     EXPECT_EQ(menu.activeAction(), menu.actions().first());
                   }),
            std::nullopt)
      << "nothing was chosen";
}

TEST_F(ChoiceMenuTest, MarksTheLineThatHoldsAndBeginsThere) {
  Choose(1, [](QMenu& menu) {
    for (int i = 0; i < 3; ++i) {
      EXPECT_TRUE(menu.actions()[i]->isCheckable()) << i;
      EXPECT_EQ(menu.actions()[i]->isChecked(), i == 1) << i;
    }
    EXPECT_EQ(menu.activeAction(), menu.actions()[1]);
  });
}

TEST_F(ChoiceMenuTest, AnswersWithTheLineThatIsChosen) {
  for (std::size_t line = 0; line < 3; ++line) {
    EXPECT_EQ(Choose(1,
                     [line](QMenu& menu) {
                       QAction* const action = menu.actions()[static_cast<qsizetype>(line)];
                       QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(action).center());
                     }),
              line);
  }
  EXPECT_EQ(Choose(1, [](QMenu& menu) { QTest::keyClick(&menu, Qt::Key_Escape); }), std::nullopt);
}

TEST_F(ChoiceMenuTest, HasTheColoursOfTheBoxes) {
  Choose(1, [](QMenu& menu) {
    const Tones tones = TonesOf("#FFF8E0");
    const QPalette colours = menu.palette();
    EXPECT_EQ(colours.color(QPalette::Window), tones.ground);
    EXPECT_EQ(colours.color(QPalette::Base), tones.ground);
    EXPECT_EQ(colours.color(QPalette::Text), tones.text);
    EXPECT_EQ(colours.color(QPalette::Highlight), tones.line);
    EXPECT_EQ(colours.color(QPalette::HighlightedText), tones.text);
    EXPECT_EQ(menu.font().pixelSize(), 14);
  });
}

}  // namespace
}  // namespace zorik
