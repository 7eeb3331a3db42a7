// Where the selection screen has its parts by what the skin's table says.
#include <QSignalSpy>
#include <set>
#include <utility>
#include <vector>

#include "screens/PostList.h"
#include "screens/ScrollButton.h"

namespace zorik::test {
namespace {

constexpr int kMargin = 24;

class FrmPoStPlaces : public PostList {
 protected:
  // Opens it with these lines of the table more.
  void OpenWith(const std::string& lines) {
    const std::string file = folder.Root() + "/Skins/Default/Menu/skindata.txt";
    if (table_.empty()) table_ = *ReadWhole(file);
    folder.File("Skins/Default/Menu/skindata.txt", table_ + "\r\nselect:\r\n" + lines);
    ASSERT_TRUE(skin.Apply({folder.Root() + "/Skins"}));
    if (!window) Caves(3);
    Open();
  }

  QRect Place(const char* name) const { return window->findChild<QWidget*>(name)->geometry(); }

 private:
  std::string table_;
};

TEST_F(FrmPoStPlaces, LetTheNamesOfCollectionAndCaveReachToTheMarginOrEndAtOrLieAroundTheirPlace) {
  const std::vector<std::pair<const char*, std::string>> names{{"Label4", "collname"},
                                                               {"lblCaveName", "cavename"}};
  for (const auto& [label, key] : names) {
    const std::string place = key + ".left=300\r\n" + key + ".top=70\r\nscore.top=400\r\n" + key;
    OpenWith(place + ".alignment=left\r\n");
    const QRect left = Place(label);
    EXPECT_EQ(left.topLeft(), QPoint(300, 70)) << label;
    EXPECT_EQ(left.right() + 1, window->width() - kMargin) << label;
    OpenWith(place + ".alignment=right\r\n");
    const QRect right = Place(label);
    OpenWith(place + ".alignment=center\r\n");
    const QRect centre = Place(label);
    EXPECT_EQ(right, QRect(kMargin, 70, 300 - kMargin, left.height())) << label;
    EXPECT_EQ(centre, QRect(kMargin, 70, 2 * (300 - kMargin), left.height())) << label;
  }
}

TEST_F(FrmPoStPlaces, LeaveTheTotalBesideTheNameItsRoom) {
  OpenWith(
      "collname.left=30\r\ncollname.top=20\r\ncollname.alignment=left\r\nscore.left=500\r\nscore.top=25\r\n");
  EXPECT_EQ(Place("lblTotal").topLeft(), QPoint(500, 25));
  EXPECT_EQ(Place("Label4").right() + 1, 500 - 44) << "with a sign before it";
  OpenWith(
      "collname.left=30\r\ncollname.top=20\r\ncollname.alignment=left\r\nscore.left=500\r\nscore.top=90\r\n");
  EXPECT_EQ(Place("Label4").right() + 1, window->width() - kMargin);
  OpenWith(
      "collname.left=530\r\ncollname.top=20\r\ncollname.alignment=left\r\nscore.left=100\r\nscore.top="
      "25\r\n");
  EXPECT_EQ(Place("Label4").right() + 1, window->width() - kMargin);
}

// A total a line lower than the name, or no further to the right, is not beside it.
TEST_F(FrmPoStPlaces, TakeTheTotalForOneBesideTheNameWhileItIsInItsLine) {
  const std::string name = "collname.left=30\r\ncollname.top=60\r\ncollname.alignment=left\r\n";
  const auto end = [&](int left, int top) {
    OpenWith(name + "score.left=" + std::to_string(left) + "\r\nscore.top=" + std::to_string(top) + "\r\n");
    return Place("Label4").right() + 1;
  };
  OpenWith(name);
  const int letters = QFontInfo(Label("lblTotal").font()).pixelSize();
  const int margin = window->width() - kMargin;
  EXPECT_EQ(end(500, 60 + letters - 1), 500 - 44);
  EXPECT_EQ(end(500, 60 - letters + 1), 500 - 44);
  EXPECT_EQ(end(500, 60 + letters), margin);
  EXPECT_EQ(end(500, 60 - letters), margin);
  EXPECT_EQ(end(30, 60), margin) << "at the same place, which no name could end before";
}

TEST_F(FrmPoStPlaces, HaveRoomForALineOfTheirLetters) {
  Caves(2);
  Open();
  for (const char* const name : {"Label4", "Label3", "lblCaveName", "lblTotal"}) {
    const SkinLabel& label = Label(name);
    EXPECT_GE(label.height(), QFontInfo(label.font()).pixelSize()) << name;
  }
  EXPECT_GT(QFontInfo(Label("Label4").font()).pixelSize(), QFontInfo(Label("Label3").font()).pixelSize())
      << "the name of a collection is larger than its author's";
}

TEST_F(FrmPoStPlaces, LetADescriptionReachDownToWhatIsNextBelowIt) {
  const std::string text =
      "colldescription.left=40\r\ncolldescription.top=60\r\ncolldescription.width=300\r\n"
      "cavedescription.left=420\r\ncavedescription.top=70\r\ncavedescription.width=290\r\n";
  OpenWith(text +
           "collauthor.top=150\r\ncaves.top=180\r\nbonus.top=200\r\npreview.top=240\r\nrecord.top=300\r\n");
  EXPECT_EQ(Place("lblDescription"), QRect(40, 60, 300, 90));
  EXPECT_EQ(Place("lblCaveDescription"), QRect(420, 70, 290, 130));
  OpenWith(text +
           "collauthor.top=190\r\ncaves.top=180\r\nbonus.top=260\r\npreview.top=240\r\nrecord.top=300\r\n");
  EXPECT_EQ(Place("lblDescription"), QRect(40, 60, 300, 120));
  EXPECT_EQ(Place("lblCaveDescription"), QRect(420, 70, 290, 170));
  OpenWith(text +
           "collauthor.top=20\r\ncaves.top=50\r\nbonus.top=20\r\npreview.top=30\r\nrecord.top=300\r\n");
  EXPECT_EQ(Place("lblDescription"), QRect(40, 60, 300, window->height() - 60))
      << "what is above does not count";
  EXPECT_EQ(Place("lblCaveDescription"), QRect(420, 70, 290, 230));
}

TEST_F(FrmPoStPlaces, AreThoseOfTheTable) {
  OpenWith(
      "collauthor.left=31\r\ncollauthor.top=141\r\ncollauthor.width=203\r\n"
      "record.left=405\r\nrecord.top=411\r\nrecord.width=301\r\nrecord.height=33\r\n"
      "rest.left=21\r\nrest.top=501\r\nrest.width=371\r\nrest.height=17\r\n"
      "bonus.left=611\r\nbonus.top=101\r\n"
      "play.left=51\r\nplay.top=451\r\nsend.left=151\r\nsend.top=452\r\nclose.left=251\r\nclose.top=453\r\n"
      "help.left=351\r\nhelp.top=454\r\npractice.left=451\r\npractice.top=455\r\n"
      "replay.left=551\r\nreplay.top=456\r\npair.left=651\r\npair.top=457\r\n"
      "ghost.left=52\r\nghost.top=402\r\ncongratulation.left=152\r\ncongratulation.top=403\r\n");
  EXPECT_EQ(Place("Label3").topLeft(), QPoint(31, 141));
  EXPECT_EQ(Place("Label3").width(), 203);
  EXPECT_EQ(Place("lblRecord"), QRect(405, 411, 301, 33));
  EXPECT_EQ(Place("lblRest"), QRect(21, 501, 371, 17));
  EXPECT_EQ(Place("imgBonus").topLeft(), QPoint(611, 101));
  const std::vector<std::pair<const char*, QPoint>> buttons{
      {"play", {51, 451}},  {"send", {151, 452}},     {"close", {251, 453}},
      {"help", {351, 454}}, {"practice", {451, 455}}, {"replay", {551, 456}},
      {"pair", {651, 457}}, {"ghost", {52, 402}},     {"congratulation", {152, 403}}};
  std::set<QString> words;
  for (const auto& [name, place] : buttons) {
    EXPECT_EQ(Place(name).topLeft(), place) << name;
    EXPECT_FALSE(Button(name).accessibleName().isEmpty()) << name;
    words.insert(Button(name).toolTip());
  }
  EXPECT_EQ(words.size(), buttons.size()) << "each says what it does";
  EXPECT_FALSE(words.contains(""));
}

TEST_F(FrmPoStPlaces, ShowTheButtonsThatTheChosenCaveHasAUseFor) {
  Caves(3);
  Record(1, 10);
  Open();
  List().Select(1);
  const auto seen = [&] {
    QStringList names;
    for (const char* name : {"replay", "play", "practice", "pair"}) {
      if (Shown(name)) names << name;
    }
    return names;
  };
  ClickRow(1);
  EXPECT_EQ(seen(), QStringList({"replay", "play", "practice", "pair"})) << "won";
  ClickRow(2);
  EXPECT_EQ(seen(), QStringList({"play", "practice"})) << "open";
  ClickRow(3);
  EXPECT_EQ(seen(), QStringList()) << "closed";
  for (const char* name : {"send", "close", "help", "ghost"}) EXPECT_TRUE(Shown(name)) << name;
  EXPECT_FALSE(Shown("congratulation"));
}

TEST_F(FrmPoStPlaces, OpenTheMenusOfGhostAndPairAtTheirButtons) {
  Caves(1);
  Record(1, 10);
  Open();
  QSignalSpy ghost(window.get(), &FrmPoSt::GhostWanted);
  QSignalSpy pair(window.get(), &FrmPoSt::PairWanted);
  for (const auto& [name, wanted] : {std::pair{"ghost", &ghost}, std::pair{"pair", &pair}}) {
    Click(name);
    ASSERT_EQ(wanted->count(), 1) << name;
    EXPECT_EQ(wanted->at(0).at(0).toPoint(), Button(name).mapToGlobal(Button(name).rect().center())) << name;
  }
}

}  // namespace
}  // namespace zorik::test
