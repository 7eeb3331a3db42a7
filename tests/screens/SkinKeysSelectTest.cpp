#include "data/Result.h"
#include "flow/Flow.h"
#include "screens/CaveList.h"
#include "screens/FrmPoSt.h"
#include "screens/SkinKeys.h"
#include "screens/StartLists.h"

namespace zorik {
namespace test {
namespace {

// Caves of the collection below by their state.
constexpr int kSolved = 1;  // a bonus cave
constexpr int kOfOther = 2;
constexpr int kOpen = 3;
constexpr int kClosed = 5;

// Looks while a cave is selected.
Sight On(int number, const Sight& sight) {
  return [=](QWidget& window) {
    QTest::keyClick(&window, Qt::Key_Home);
    for (int i = 1; i < number; ++i) QTest::keyClick(&window, Qt::Key_Down);
    return sight(window);
  };
}

// A row of the list without the border around it when it is selected. The frame is one pixel wide.
QRect RowOf(const QWidget& list, int number) {
  return QRect(1, 1 + kRowHeight * (number - 1), list.width() - 2, kRowHeight).adjusted(2, 2, -2, -2);
}
Sight Letters(int number, QColor colour) {
  return [=](QWidget& window) {
    QWidget& list = Part(window, "CaveList");
    return YesNo(Holds(list, RowOf(list, number), colour));
  };
}
Sight GroundOf(int number) {
  return [=](QWidget& window) {
    return PixelOf("CaveList", RowOf(Part(window, "CaveList"), number).topLeft())(window);
  };
}
QString NameOfClosed(QWidget& window) {
  return dynamic_cast<CaveList&>(Part(window, "CaveList")).Rows()[kClosed - 1].name;
}

// Looks while the pointer is on the author.
Sight Hovered(const Sight& sight) {
  return [sight](QWidget& window) {
    QWidget& label = Part(window, "Label3");
    QEnterEvent enter({5, 5}, {5, 5}, {5, 5});
    QApplication::sendEvent(&label, &enter);
    const QString seen = sight(window);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&label, &leave);
    return seen;
  };
}

const QColor kInk("#FF00A0");

// A label of one line, whose side says which end of it "left" is.
SkinKeys KeysOfLine(const std::string& key, const QString& name) {
  const std::string middle = key + ".left=400";
  return {{key + ".left", "61", Left(name), "61"},
          {key + ".top", "73", Top(name), "73"},
          {key + ".alignment", "right", SideOf(name), "right", {middle}},
          {key + ".alignment", "center", SideOf(name), "centre", {middle}},
          {key + ".textcolor", "FF00A0", Ink(name, kInk), "yes"}};
}

// A label in a box.
SkinKeys KeysOfBox(const std::string& key, const QString& name) {
  return {{key + ".left", "61", Left(name), "61"},
          {key + ".top", "73", Top(name), "73"},
          {key + ".width", "211", Width(name), "211"},
          {key + ".alignment", "right", SideOf(name), "right"},
          {key + ".alignment", "center", SideOf(name), "centre"}};
}

SkinKeys KeysOfRest() {
  return KeysOfBox("select.rest", "lblRest") +
         SkinKeys{{"select.rest.height", "57", Height("lblRest"), "57"},
                  {"select.rest.textcolor", "FF00A0", Ink("lblRest", kInk), "yes"}};
}

SkinKeys KeysOfRecord() {
  const std::string key = "select.record.";
  const auto seen = [](const Sight& sight) { return On(kSolved, sight); };
  return {{key + "left", "61", Left("lblRecord"), "61"},
          {key + "top", "73", Top("lblRecord"), "73"},
          {key + "width", "211", Width("lblRecord"), "211"},
          {key + "height", "57", Height("lblRecord"), "57"},
          {key + "alignment", "right", seen(SideOf("lblRecord")), "right"},
          {key + "alignment", "center", seen(SideOf("lblRecord")), "centre"},
          {key + "textcolor", "FF00A0", seen(Ink("lblRecord", kInk)), "yes"}};
}

// A lock shows both colours, and a closed cave is not drawn.
SkinKeys KeysOfPreview() {
  const std::string key = "select.preview.", asks = key + "left=61";
  return {{key + "left", "61", Left("preview"), "61"},
          {key + "top", "73", Top("preview"), "73", {asks}},
          {key + "width", "211", Width("preview"), "211", {asks}},
          {key + "height", "157", Height("preview"), "157", {asks}},
          {key + "color", "104080", On(kClosed, PixelOf("preview", {20, 3})), "#104080", {asks}},
          {key + "textcolor", "FF00A0", On(kClosed, Ink("preview", kInk)), "yes", {asks}}};
}

SkinKeys KeysOfCaves() {
  const QString list = "CaveList";
  const std::string key = "select.caves.";
  return {{key + "left", "61", Left(list), "61"},
          {key + "top", "73", Top(list), "73"},
          {key + "width", "211", Width(list), "211"},
          {key + "height", "157", Height(list), "157"},
          {key + "lines", "4", Height(list), "58", {"select.caves.height=-1"}},
          {key + "color", "104080", On(kOpen, GroundOf(kClosed)), "#104080"},
          {key + "border.size", "5", FrameOf(list), "5"},
          {key + "border.color", "8000C0", PixelOf(list, {0, 0}), "#8000c0"},
          {key + "textcolor", "FF00A0", On(kClosed, Letters(kOpen, kInk)), "yes"},
          {key + "cantcolor", "FF00A0", On(kOpen, Letters(kClosed, kInk)), "yes"},
          {key + "solvcolor", "FF00A0", On(kOpen, Letters(kSolved, kInk)), "yes"},
          {key + "elsecolor", "FF00A0", On(kOpen, Letters(kOfOther, kInk)), "yes"},
          {key + "canttext", "tma", NameOfClosed, "tma"},
          {key + "canttext", "tma", On(kClosed, WordsOn("lblCaveName")), "tma"},
          {key + "selection.bgcolor", "108040", On(kOpen, GroundOf(kOpen)), "#108040"},
          {key + "selection.textcolor", "FF00A0", On(kOpen, Letters(kOpen, kInk)), "yes"},
          {key + "selection.cantcolor", "FF00A0", On(kClosed, Letters(kClosed, kInk)), "yes"},
          {key + "selection.solvcolor", "FF00A0", On(kSolved, Letters(kSolved, kInk)), "yes"},
          {key + "selection.elsecolor", "FF00A0", On(kOfOther, Letters(kOfOther, kInk)), "yes"}};
}

}  // namespace

SkinKeys KeysOfSelection() {
  const QString ground = KeyHome::GroundColour().name();
  return SkinKeys{{"select.image", "ground", Pixel({700, 400}), ground},
                  {"select.width", "640", WindowWidth, "640"},
                  {"select.height", "480", WindowHeight, "480"},
                  {"select.bonus.image", "small", On(kSolved, PixelOf("imgBonus", {9, 9})), ground},
                  {"select.bonus.left", "61", Left("imgBonus"), "61"},
                  {"select.bonus.top", "73", Top("imgBonus"), "73"},
                  {"select.collauthor.linkcolor", "FF00A0", Ink("Label3", kInk), "yes"},
                  {"select.collauthor.hovercolor", "FF00A0", Hovered(Ink("Label3", kInk)), "yes"},
                  {"select.colldescription.textcolor", "FF00A0", Ink("lblDescription", kInk), "yes"},
                  {"select.cavedescription.textcolor", "FF00A0", On(kClosed, Ink("lblCaveDescription", kInk)),
                   "yes"},
                  {"select.score.left", "61", Left("lblTotal"), "61"},
                  {"select.score.top", "73", Top("lblTotal"), "73"},
                  {"select.score.textcolor", "FF00A0", Ink("lblTotal", kInk), "yes"}} +
         KeysOfLine("select.collname", "Label4") + KeysOfLine("select.cavename", "lblCaveName") +
         KeysOfBox("select.colldescription", "lblDescription") + KeysOfBox("select.collauthor", "Label3") +
         KeysOfBox("select.cavedescription", "lblCaveDescription") + KeysOfButton("select.replay", "replay") +
         KeysOfButton("select.play", "play") + KeysOfButton("select.congratulation", "congratulation") +
         KeysOfButton("select.send", "send") + KeysOfButton("select.practice", "practice") +
         KeysOfButton("select.vscroll", "vscroll") + KeysOfButton("select.close", "close") +
         KeysOfButton("select.help", "help") + KeysOfButton("select.ghost", "ghost") +
         KeysOfButton("select.pair", "pair") + KeysOfRest() + KeysOfRecord() + KeysOfPreview() +
         KeysOfCaves();
}

SkinKeys KeysOfPlainAuthor() {
  return {{"select.collauthor.textcolor", "FF00A0", Ink("Label3", kInk), "yes"}};
}

}  // namespace test

namespace {

// The selection screen on a collection whose author has this address.
void CheckSelection(const test::SkinKeys& keys, const QString& mail) {
  test::KeyHome home;
  std::vector<QString> names = {"Bonus"};
  for (int i = 2; i <= 40; ++i) names.push_back("c" + QString::number(i));
  home.Collection(names, mail);
  home.Record(1, 10);
  home.Record(2, 20, "Jiný");
  Hra hra;
  Flow flow(hra, {home.folder.Root() + "/Players", {}}, 1);
  FrmPoSt window(home.skin, flow);
  ASSERT_TRUE(window.LoadColl(home.CollectionPath(), "Žofie"));
  test::CheckKeys(home, keys, [&](const auto& look) {
    window.SkinIt();
    look(window);
  });
}

TEST(SkinKeysOfTheSelectionScreen, HaveTheirEffect) {
  CheckSelection(test::KeysOfSelection(), "jara@x.cz");
}

TEST(SkinKeysOfTheSelectionScreen, HaveTheirEffectOnAnAuthorWithoutAnAddress) {
  CheckSelection(test::KeysOfPlainAuthor(), "");
}

}  // namespace
}  // namespace zorik
