#include <gtest/gtest.h>

#include <QHeaderView>
#include <QLabel>
#include <QTest>
#include <QTreeWidget>

#include "data/Cp1250.h"
#include "data/RecordFile.h"
#include "data/Scramble.h"
#include "screens/Sparkline.h"
#include "screens/StatisticsWindow.h"
#include "screens/TestSkin.h"
#include "support/OneStepCave.h"
#include "support/Patience.h"

namespace zorik {
namespace {

class Statistics : public testing::Test {
 protected:
  Statistics() {
    for (const char* name : {"Default", "English"}) {
      for (const char* file : {"/Menu/skindata.txt", "/Menu/cestina.txt"}) {
        const std::string path = std::string(name) + file;
        const auto text = ReadWhole(ZORIK_SKIN_SOURCES "/" + path);
        folder.File("Skins/" + path, *FromUtf8(*text));
      }
    }
    EXPECT_TRUE(skin.Apply({folder.Root() + "/Skins"}));
  }

  // A won record of a cave with this number, so many ticks long. It is worth what the clock shows of 50
  // seconds when the last tick begins.
  void Win(const std::string& collection, int number, int ticks) {
    Hra hra(1);
    hra.PlayerName = "Ada";
    hra.CollectionName = collection;
    const std::string name = "c" + std::to_string(number);
    const std::string digits = MarkerDigits(number);
    ASSERT_TRUE(PaintCave(hra, test::OneStepCave(name) + "---" + digits, RunKind::Play));
    test::Pass(hra, ticks - 1);
    ASSERT_EQ(test::Pass(hra, 1, "R"), TickEnd::Won);
    folder.File("Players/Ada/" + std::to_string(++records) + ".zkr", SaveRecord(hra, hra.Win->Score));
  }

  void Open() {
    window = std::make_unique<StatisticsWindow>(skin, folder.Root() + "/Players/Ada", "Ada", nullptr);
    window->show();
    ASSERT_TRUE(test::WaitFor([this] { return window->AllRead(); }, 20000));
    QCoreApplication::processEvents();
  }

  QString Text(const char* label) const { return window->findChild<QLabel*>(label)->text(); }
  QTreeWidget& Caves() const { return *window->findChild<QTreeWidget*>("lstCaves"); }

  // A row as its texts.
  static QString Row(const QTreeWidgetItem& item) {
    return item.text(0) + " | " + item.text(2) + " | " + item.text(3);
  }

  test::Folder folder;
  Skin skin;
  std::unique_ptr<StatisticsWindow> window;
  int records = 0;
};

TEST_F(Statistics, TellTheSumsAndTheBestOfEachCave) {
  Win("Sada", 1, 25);
  Win("Sada", 3, 605 - 120);
  Win("Jina", 2, 1);
  Open();
  EXPECT_EQ(window->windowTitle(), "Statistika: Ada") << "without the key of the button that opens it";
  EXPECT_EQ(Text("lblCaption"), "Statistika: Ada");
  EXPECT_EQ(Text("lblSums"), "Vyhrané komnaty: 3   Čas: 0:51,1 (tiky: 511)\nDrahokamy: 0   Body: " +
                                 QString::number(47 + 1 + 50));
  EXPECT_EQ(Text("lblRemarks"), "");
  ASSERT_EQ(Caves().topLevelItemCount(), 2);
  EXPECT_EQ(Row(*Caves().topLevelItem(0)), "Jina (1) | 0:00,1 | 50");
  const QTreeWidgetItem& sada = *Caves().topLevelItem(1);
  EXPECT_EQ(Row(sada), "Sada (2) | 0:51,0 | 48");
  ASSERT_EQ(sada.childCount(), 2);
  EXPECT_EQ(Row(*sada.child(0)), "01  c1 | 0:02,5 | 47");
  EXPECT_EQ(Row(*sada.child(1)), "03  c3 | 0:48,5 | 1");
  EXPECT_FALSE(sada.data(1, Qt::DecorationRole).value<QPixmap>().isNull());
}

TEST_F(Statistics, SpeakEnglishInTheEnglishSkin) {
  Win("Sada", 1, 25);
  SkinPlaces places{folder.Root() + "/Skins"};
  places.Skin = "English";
  ASSERT_TRUE(skin.Apply(places));
  Open();
  EXPECT_EQ(Text("lblSums"), "Caves won: 1   Time: 0:02.5 (ticks: 25)\nGems: 0   Points: 47");
}

TEST_F(Statistics, OfAPlayerWithoutRecordsSaySo) {
  Open();
  EXPECT_EQ(Text("lblRemarks"), "Tento hráč zatím nemá žádný záznam o výhře.");
  EXPECT_EQ(Caves().topLevelItemCount(), 0);
}

TEST_F(Statistics, TellOfFilesThatDoNotCount) {
  Win("Sada", 1, 5);
  folder.File("Players/Ada/x.zkr", "nothing");
  Open();
  EXPECT_EQ(Text("lblRemarks"), "Soubory, které nejsou záznamem o výhře: 1");
}

TEST_F(Statistics, ShowNamesAsTheyAreWritten) {
  Win("<b>Sada</b>", 1, 5);
  Open();
  EXPECT_EQ(Caves().topLevelItem(0)->text(0), "<b>Sada</b> (1)");
  EXPECT_EQ(window->findChild<QLabel*>("lblCaption")->textFormat(), Qt::PlainText);
}

TEST(ASparkline, HasABarForEachNumberAsTallAsThat) {
  const std::vector<int> numbers{10, 0, 5};
  const QImage picture = Sparkline(numbers, {24, 10}, Qt::red, Qt::blue);
  const auto height = [&](int bar, QColor colour) {
    int tall = 0;
    for (int y = 0; y < picture.height(); ++y) tall += picture.pixelColor(bar * 8 + 3, y) == colour ? 1 : 0;
    return tall;
  };
  EXPECT_EQ(height(0, Qt::red), 10);
  EXPECT_EQ(height(1, Qt::red), 0);
  EXPECT_EQ(height(1, Qt::blue), 1) << "a cave that is not won";
  EXPECT_EQ(height(2, Qt::red), 5);
  EXPECT_EQ(qAlpha(picture.pixel(7, 9)), 0) << "bars keep apart";
}

TEST(ASparkline, HoldsAnyNumberOfBarsAndNone) {
  EXPECT_EQ(Sparkline(std::vector<int>(300, 1), {180, 16}, Qt::red, Qt::blue).width(), 300);
  EXPECT_EQ(Sparkline({}, {180, 16}, Qt::red, Qt::blue).size(), QSize(180, 16));
  EXPECT_EQ(Sparkline(std::vector<int>{0}, {180, 16}, Qt::red, Qt::blue, 2).size(), QSize(360, 32));
}

TEST_F(Statistics, HaveACaveWithoutANumberLastAndByItsNameAlone) {
  Win("Sada", 0, 5);
  Win("Sada", 2, 5);
  Open();
  const QTreeWidgetItem& sada = *Caves().topLevelItem(0);
  ASSERT_EQ(sada.childCount(), 2);
  QStringList names{sada.child(0)->text(0), sada.child(1)->text(0)};
  names.sort();
  EXPECT_EQ(names, QStringList({"02  c2", "c0"}));
  // Three places: nothing in the first cave, and the one without a number behind the second.
  const QImage bars = sada.data(1, Qt::DecorationRole).value<QPixmap>().toImage();
  const auto tall = [&](int place) {
    int seen = 0;
    for (int y = 0; y < bars.height(); ++y) seen += qAlpha(bars.pixel(8 * place + 3, y)) != 0 ? 1 : 0;
    return seen;
  };
  EXPECT_EQ(tall(0), 1);
  EXPECT_GT(tall(1), 5);
  EXPECT_GT(tall(2), 5);
}

TEST_F(Statistics, AreATableOfWhichTheFirstCollectionIsOpen) {
  Win("Sada", 1, 25);
  Win("Jina", 2, 1);
  Open();
  QTreeWidget& caves = Caves();
  EXPECT_TRUE(caves.topLevelItem(0)->isExpanded());
  EXPECT_EQ(caves.currentItem(), caves.topLevelItem(0));
  EXPECT_FALSE(caves.topLevelItem(1)->isExpanded());
  EXPECT_EQ(caves.columnCount(), 4);
  for (int column : {0, 2, 3}) EXPECT_NE(caves.headerItem()->text(column), "");
  EXPECT_FALSE(caves.header()->sectionsMovable());
  EXPECT_EQ(caves.header()->length(), caves.viewport()->width()) << "it fills its width";
  EXPECT_GT(caves.header()->sectionSize(0), caves.header()->sectionSize(2)) << "names have what is left";
  for (const QTreeWidgetItem* const row : {caves.topLevelItem(0), caves.topLevelItem(0)->child(0)}) {
    for (const int column : {2, 3})
      EXPECT_TRUE((row->textAlignment(column) & Qt::AlignRight) != 0) << "figures stand below each other";
  }
}

TEST_F(Statistics, StandBelowEachOtherInTheMiddle) {
  Win("Sada", 1, 25);
  Open();
  const auto place = [&](const char* name) { return window->findChild<QWidget*>(name)->geometry(); };
  int bottom = 0;
  for (const char* name : {"lblCaption", "lblSums", "lstCaves", "ok"}) {
    const QRect part = place(name);
    EXPECT_GT(part.top(), bottom) << name;
    EXPECT_NEAR(part.center().x(), window->rect().center().x(), 1) << name;
    bottom = part.bottom();
  }
  EXPECT_LT(bottom, window->height());
  EXPECT_EQ(place("lstCaves").left(), 20);
  EXPECT_TRUE(window->findChild<QLabel*>("lblRemarks")->isHidden()) << "nothing is to be remarked";
  EXPECT_EQ(window->findChild<QLabel*>("lblSums")->alignment(), Qt::AlignCenter);
  EXPECT_GT(window->findChild<QLabel*>("lblCaption")->font().pixelSize(), window->font().pixelSize());
  QTest::mouseClick(window->findChild<QWidget*>("ok"), Qt::LeftButton);
  EXPECT_FALSE(window->isVisible());
}

}  // namespace
}  // namespace zorik
