#include <QElapsedTimer>
#include <QListWidget>
#include <QSignalSpy>
#include <QTabWidget>

#include "editors/DoubtPage.h"
#include "editors/EditorScreen.h"

namespace zorik {
namespace {

using test::Picture;

class DoubtPageTest : public testing::Test, public test::EditorScreen {
 protected:
  DoubtPage& Page() const { return Child<DoubtPage>("doubts"); }
  QListWidget& List() const { return Child<QListWidget>("lstDoubts"); }
  QLabel& Fine() const { return Child<QLabel>("lblFine"); }
  QString Gems() const { return Child<QLabel>("lblGems").text(); }

  // What the page says once it has looked. Small caves are often their own mirror; that is left out.
  QStringList Said() const {
    EXPECT_TRUE(QTest::qWaitFor([this] { return Page().IsUpToDate(); }));
    QStringList said;
    for (int row = 0; row < List().count(); ++row) said << List().item(row)->text();
    said.removeIf([](const QString& line) { return line.contains("zrcadle"); });
    return said;
  }

  // Those of one piece are of another letter.
  static QString WithoutBlanks(QString line) { return line.remove(' ').remove(QChar(QChar::Nbsp)); }

  // A cave in which all is well, and which is not its own mirror.
  const Picture fine{"WWWWWWWW", "W1;;;D;W", "W.R;;;;W", "W..;TR;W", "WWWWWWWW"};
};

TEST_F(DoubtPageTest, SaysInALineThatAllIsWell) {
  Open(fine, {.needed = 1});
  EXPECT_EQ(Said(), QStringList());
  EXPECT_TRUE(Fine().isVisible());
  EXPECT_FALSE(List().isVisible());
  EXPECT_EQ(Fine().text(), "Vše v pořádku, nic podezřelého tu není.");
}

TEST_F(DoubtPageTest, TellsWhatAStrokeHasSpoilt) {
  Open(fine, {.needed = 1});
  ASSERT_EQ(Said(), QStringList());
  Click(4, 3);  // a boulder where the finish was
  EXPECT_FALSE(Page().IsUpToDate());
  EXPECT_EQ(Said(), QStringList{"Není tu cíl."});
  EXPECT_TRUE(List().isVisible());
  EXPECT_FALSE(Fine().isVisible());
  Action("mnuUndo").trigger();
  EXPECT_EQ(Said(), QStringList());
}

TEST_F(DoubtPageTest, LooksOnlyWhenTheAuthorPauses) {
  constexpr int kPause = 200;  // milliseconds, a little less than the page waits
  Open(fine, {.needed = 1});
  ASSERT_EQ(Said(), QStringList());
  Click(4, 3);
  QTest::qWait(kPause / 2);
  Click(3, 3);
  QElapsedTimer since;
  since.start();
  EXPECT_EQ(Said(), QStringList{"Není tu cíl."});
  EXPECT_GE(since.elapsed(), kPause) << "since the last stroke";
}

TEST_F(DoubtPageTest, TellsFaultsBeforeHints) {
  Open({"WWWWWWWW", "W1;;;WWW", "W.R;;WDW", "W..;;WWW", "WWWWWWWW"}, {.needed = 1});
  EXPECT_EQ(Said(), QStringList({"Není tu cíl.",
                                 "Cíl se otevře při 1 drahokamech, Zoríci jich ale mohou získat nejvýš 0.",
                                 "K drahokamu se žádný Zorík nikdy nedostane. (7, 3)"}));
  EXPECT_EQ(List().item(0)->toolTip(), "Chyba");
  EXPECT_EQ(List().item(2)->toolTip(), "Podezření");
}

TEST_F(DoubtPageTest, LeadsToTheCellOfALine) {
  Picture large = test::Full(80, 50, ';');
  large[1][1] = '1';
  large[2][3] = 'T';
  for (int y = 44; y < 49; ++y) large[static_cast<std::size_t>(y)].replace(70, 5, "WWWWW");
  large[46][72] = 'D';
  Open(large, {.needed = 0});
  const QStringList said = Said();
  const auto row = said.indexOf("K drahokamu se žádný Zorík nikdy nedostane. (73, 47)");
  ASSERT_GE(row, 0) << said.join('\n').toStdString();
  QTest::mouseClick(List().viewport(), Qt::LeftButton, {},
                    List().visualItemRect(List().item(static_cast<int>(row))).center());
  EXPECT_EQ(Area().Marked(), QPoint(72, 46));
  const QPoint shown = Area().mapTo(&Child<QWidget>("Ram"), Place(72, 46));
  EXPECT_TRUE(Child<QWidget>("Ram").rect().contains(shown));
}

TEST_F(DoubtPageTest, LeadsThereByEnterToo) {
  Open({"WWWWWWWW", "W1;;TWWW", "W.R;;WDW", "W..;;WWW", "WWWWWWWW"}, {.needed = 0});
  ASSERT_EQ(Said().size(), 1);
  List().setFocus();
  List().setCurrentRow(0);
  QTest::keyClick(&List(), Qt::Key_Return);
  EXPECT_EQ(Area().Marked(), QPoint(6, 2));
}

TEST_F(DoubtPageTest, NamesTheFirstOfVeryMany) {
  Picture walled = test::Full(12, 9, 'W');
  walled[1].replace(1, 3, "1;T");
  for (std::size_t y = 3; y < 8; ++y) walled[y].replace(1, 5, "DDDDD");
  Open(walled, {.needed = 0});
  const QStringList said = Said();
  ASSERT_EQ(said.size(), 21);
  EXPECT_EQ(said[20], "… a ještě 5× totéž");
}

TEST_F(DoubtPageTest, NamesTwentyAndCountsTheOthers) {
  struct Row {
    std::size_t gems;
    qsizetype lines;
    QString last;
  };
  for (const Row& row : {Row{20, 20, "K drahokamu se žádný Zorík nikdy nedostane. (7, 6)"},
                         Row{21, 21, "… a ještě 1× totéž"}, Row{22, 21, "… a ještě 2× totéž"}}) {
    Picture walled = test::Full(12, 9, 'W');
    walled[1].replace(1, 3, "1;T");
    for (std::size_t gem = 0; gem < row.gems; ++gem) walled[3 + gem / 7][1 + gem % 7] = 'D';
    Open(walled, {.needed = 0});
    const QStringList said = Said();
    ASSERT_EQ(said.size(), row.lines) << row.gems;
    EXPECT_EQ(WithoutBlanks(said.last()), WithoutBlanks(row.last));
    EXPECT_EQ(List().item(List().count() - 1)->toolTip(), "Podezření") << row.gems;
  }
}

TEST_F(DoubtPageTest, TellsOfFaultsAndHintsBySignsAndToThoseWhoListen) {
  Open({"WWWWWWWW", "W1;;;WWW", "W.R;;WDW", "W..;;WWW", "WWWWWWWW"}, {.needed = 1});
  ASSERT_EQ(Said().size(), 3);
  const auto sign = [this](int row) { return List().item(row)->icon().pixmap(16).toImage(); };
  EXPECT_FALSE(sign(0).isNull());
  EXPECT_EQ(sign(0), sign(1));
  EXPECT_NE(sign(0), sign(2)) << "a hint";
  EXPECT_EQ(List().item(0)->data(Qt::AccessibleTextRole), "Chyba Není tu cíl.");
  EXPECT_EQ(List().item(2)->data(Qt::AccessibleTextRole), "Podezření " + List().item(2)->text());
  EXPECT_EQ(List().accessibleName(), "Kontrola");
}

TEST_F(DoubtPageTest, LeadsNowhereByALineWithoutACell) {
  Open({"WWWWWWWW", "W1;;;WWW", "W.R;;WDW", "W..;;WWW", "WWWWWWWW"}, {.needed = 1});
  ASSERT_EQ(Said().size(), 3);
  const QSignalSpy chosen(&Page(), &DoubtPage::Chosen);
  for (const int row : {0, 2}) {
    QTest::mouseClick(List().viewport(), Qt::LeftButton, {},
                      List().visualItemRect(List().item(row)).center());
    EXPECT_EQ(chosen.size(), row / 2) << row;
  }
}

TEST_F(DoubtPageTest, StandsFromEdgeToEdgeWithTheGemsOnTop) {
  Open({"WWWWWWWW", "W1;;;WWW", "W.R;;WDW", "W..;;WWW", "WWWWWWWW"}, {.needed = 1});
  ASSERT_EQ(Said().size(), 3);
  const auto& gems = Child<QLabel>("lblGems");
  EXPECT_EQ(gems.geometry().topLeft(), QPoint(0, 0));
  EXPECT_EQ(gems.width(), Page().width());
  EXPECT_GT(gems.margin(), 0);
  EXPECT_TRUE(gems.wordWrap() && Fine().wordWrap() && List().wordWrap());
  EXPECT_EQ(List().x(), 0);
  EXPECT_EQ(List().width(), Page().width());
  EXPECT_GT(List().y(), gems.geometry().bottom());
  EXPECT_EQ(List().geometry().bottom(), Page().height() - 1) << "it takes all that is left";
  EXPECT_EQ(List().frameShape(), QFrame::NoFrame);
  EXPECT_EQ(List().iconSize(), QSize(16, 16));
  EXPECT_EQ(List().focusPolicy(), Qt::TabFocus) << "a click leaves the keys to the cave";
  EXPECT_EQ(List().horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff) << "its lines are wrapped";
  Open(fine, {.needed = 1});
  ASSERT_EQ(Said(), QStringList());
  EXPECT_EQ(Fine().width(), Page().width());
  EXPECT_GT(Fine().y(), gems.geometry().top());
  EXPECT_LT(Fine().y(), Page().height() / 2) << "right below the gems";
}

TEST_F(DoubtPageTest, SaysNothingBeforeItHasLooked) {
  DoubtPage page(skin, nullptr);
  page.show();
  EXPECT_FALSE(page.findChild<QLabel*>("lblFine")->isVisible());
  EXPECT_FALSE(page.findChild<QListWidget*>("lstDoubts")->isVisible());
  // More than the pause after which it looks.
  EXPECT_FALSE(QTest::qWaitFor([&page] { return page.IsUpToDate(); }, 600)) << "there is no cave to look at";
}

TEST_F(DoubtPageTest, LooksOnceOnlyAtTheSameCave) {
  Open({"WWWWWWWW", "W1;;;WWW", "W.R;;WDW", "W..;;WWW", "WWWWWWWW"}, {.needed = 1});
  ASSERT_EQ(Said().size(), 3);
  const QSignalSpy lines(List().model(), &QAbstractItemModel::rowsInserted);
  const auto again = [&lines] { return QTest::qWaitFor([&lines] { return !lines.isEmpty(); }, 600); };
  EXPECT_FALSE(again());
  for (int key = 0; key < 2; ++key) QTest::keyClick(window.get(), Qt::Key_F9);
  ASSERT_TRUE(Page().isVisible());
  EXPECT_FALSE(again()) << "it was out of sight meanwhile";
}

TEST_F(DoubtPageTest, TellsHowTheGemsStand) {
  Open(fine, {.needed = 1});
  Said();
  EXPECT_EQ(Gems(), "Drahokamy: 1 na začátku, získat jich lze 1, potřeba 1");
}

TEST_F(DoubtPageTest, SpeaksTheLanguageOfTheSkin) {
  Open(fine, {.needed = 1});
  Click(4, 3);
  ASSERT_EQ(Said(), QStringList{"Není tu cíl."});
  Wear("English");
  window->SetLW();
  EXPECT_EQ(Said(), QStringList{"There is no finish."});
  EXPECT_EQ(Child<QTabWidget>("pages").tabText(0), "Checks");
}

TEST_F(DoubtPageTest, LooksAtNothingWhileItIsHiddenAndAtAllWhenItIsShown) {
  Open(fine, {.needed = 1});
  ASSERT_EQ(Said(), QStringList());
  QTest::keyClick(window.get(), Qt::Key_F9);
  ASSERT_FALSE(Page().isVisible());
  Click(4, 3);
  QTest::qWait(600);
  EXPECT_FALSE(Page().IsUpToDate());
  QTest::keyClick(window.get(), Qt::Key_F9);
  EXPECT_EQ(Said(), QStringList{"Není tu cíl."});
}

TEST_F(DoubtPageTest, KeepsItsLineWhenTheCaveIsLookedAtAgain) {
  Open({"WWWWWWWW", "W1;;;WWW", "W.R;;WDW", "W..;;WWW", "WWWWWWWW"}, {.needed = 1});
  ASSERT_EQ(Said().size(), 3);
  List().setCurrentRow(1);
  Click(4, 3);
  ASSERT_EQ(Said().size(), 3);
  EXPECT_EQ(List().currentRow(), 1);
}

}  // namespace
}  // namespace zorik
