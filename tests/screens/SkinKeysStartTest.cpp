#include <QSettings>

#include "data/Result.h"
#include "screens/FrmStart2.h"
#include "screens/SkinKeys.h"
#include "screens/StartLists.h"

namespace zorik {
namespace test {
namespace {

// Does the same to the window before and after somebody looks: a key chooses a mode, then play again.
Sight InMode(Qt::Key key, const Sight& sight) {
  return [=](QWidget& window) {
    QTest::keyClick(&window, key);
    const QString seen = sight(window);
    QTest::keyClick(&window, Qt::Key_1);
    return seen;
  };
}

LabelList& List(QWidget& window, const QString& name) {
  return dynamic_cast<LabelList&>(Part(window, name));
}

// The ground of a label of a list, right of its words and left of a long list's mark, and whether its letters
// have a colour.
Sight GroundOf(const QString& list, int place) {
  return [=](QWidget& window) {
    const QPoint corner = List(window, list).PlaceOf(place).topRight();
    return PixelOf(list, corner + QPoint(-8, 2))(window);
  };
}
Sight LettersOf(const QString& list, int place, QColor colour) {
  return [=](QWidget& window) {
    LabelList& labels = List(window, list);
    return YesNo(Holds(labels, labels.PlaceOf(place), colour));
  };
}

// Whether the window reaches as far as a place.
Sight Reaches(QPoint place) {
  return [place](QWidget& window) {
    return YesNo(window.rect().contains(place) && window.mask().contains(place));
  };
}

SkinKeys KeysOfList(const std::string& key, const QString& name) {
  return {{key + ".left", "61", Left(name), "61"},
          {key + ".top", "73", Top(name), "73"},
          {key + ".width", "111", Width(name), "111"},
          {key + ".height", "57", Height(name), "57"},
          {key + ".color", "104080", GroundOf(name, 1), "#104080"},
          {key + ".textcolor", "FF00A0", LettersOf(name, 1, "#FF00A0"), "yes"},
          {key + ".selection.color", "108040", GroundOf(name, 0), "#108040"},
          {key + ".selection.textcolor", "FF00A0", LettersOf(name, 0, "#FF00A0"), "yes"},
          {key + ".border.size", "5", FrameOf(name), "5"},
          {key + ".border.color", "8000C0", PixelOf(name, {0, 0}), "#8000c0"}};
}

SkinKeys KeysOfFinger(const std::string& key, const QString& name) {
  const QRect box = KeyHome::FingerBox();
  return {{key, "finger", Left(name), QString::number(box.left())},
          {key, "finger", Height(name), QString::number(box.height())}};
}

// The version stands below all else, in the middle.
QString VersionWidth(QWidget& window) {
  const QRect line(0, window.height() - 25, window.width(), 13);
  const QImage image = Magnified(window).copy(QRect(line.topLeft() * kMagnified, line.size() * kMagnified));
  int first = image.width();
  int last = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixelColor(x, y) != QColor(0x3A, 0x24, 0x18)) continue;
      first = std::min(first, x);
      last = std::max(last, x);
    }
  }
  if (last < first) return "none";
  return (last - first) / kMagnified > 100 ? "long" : "short";
}

// Where the version is written, which is in a colour that nothing else has.
constexpr const char* kVersionInk = "version.textcolor=FF00A0";
QRect VersionPlace(QWidget& window) {
  const QImage image = window.grab().toImage();
  QRect written;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QColor colour = image.pixelColor(x, y);
      const bool ink = colour.red() > 180 && colour.green() < 110 && colour.blue() > 110;
      if (ink) written |= QRect(x, y, 1, 1);
    }
  }
  return written;
}
QString VersionLines(QWidget& window) {
  return VersionPlace(window).height() < 14 ? "one" : "two";
}
Sight VersionAt(QPoint place) {
  return [place](QWidget& window) {
    return YesNo((VersionPlace(window).center() - place).manhattanLength() < 5);
  };
}

}  // namespace

SkinKeys KeysOfStart() {
  const QString ground = KeyHome::GroundColour().name();
  const QString lit = QColor(Qt::yellow).name();
  return SkinKeys{
             {"start.palm.image", "ground", InMode(Qt::Key_2, Pixel({700, 500})), ground},
             {"start.palm.image", "small", WindowWidth, "300"},
             {"start.palm.image", "ground", Reaches({700, 500}), "yes"},
             {"start.palmPlay.image", "ground", Pixel({230, 470}), ground},
         } +
         KeysOfButton("start.close", "close") + KeysOfButton("start.help", "help") +
         KeysOfButton("start.vscroll", "vscroll") + KeysOfButton("start.hscroll", "hscroll") +
         KeysOfButton("start.play", "play") + KeysOfButton("start.addplayer", "addplayer") +
         KeysOfButton("start.changeskin", "changeskin") + KeysOfButton("start.statistics", "statistics") +
         KeysOfList("start.caves", "lblCColl") + KeysOfList("start.players", "lblPlr") +
         SkinKeys{{"start.caves.lines", "4", Height("lblCColl"), "60", {"start.caves.height=-1"}}} +
         KeysOfFinger("start.fingerPlay.image", "fingerPlay") +
         KeysOfFinger("start.fingerrePlay.image", "fingerRePlay") +
         KeysOfFinger("start.fingereditor.image", "fingerEditor") +
         KeysOfFinger("start.finger4.image", "finger4") +
         SkinKeys{
             {"start.fingerrePlay.image", "finger", InMode(Qt::Key_2, LookOf("fingerRePlay")), lit},
             {"start.fingereditor.image", "finger", InMode(Qt::Key_3, LookOf("fingerEditor")), lit},
             {"start.finger4.image", "finger", InMode(Qt::Key_4, LookOf("finger4")), lit},
             {"start.fingerPlay.text", "Vpřed", HintOf("fingerPlay"), "Vpřed"},
             {"start.fingerPlay.text", "Vpřed", HintOf("play"), "Vpřed"},
             {"start.fingerReplay.text", "Vpřed", HintOf("fingerRePlay"), "Vpřed"},
             {"start.fingerEditor.text", "Vpřed", HintOf("fingerEditor"), "Vpřed"},
             {"version.text", "", VersionWidth, "none"},
             {"version.text", "Verze, která má velmi dlouhé jméno", VersionWidth, "long"},
             {"version.textcolor", "FF00A0", VersionAt({360, 501}), "yes"},
             {"version.left", "100", VersionAt({460, 501}), "yes", {kVersionInk}},
             {"version.width", "100", VersionAt({50, 501}), "yes", {kVersionInk}},
             {"version.top", "50", VersionAt({360, 56}), "yes", {kVersionInk}},
             {"version.height", "100", VersionAt({360, 100}), "yes", {kVersionInk, "version.top=50"}},
             {"version.text", "Zorík#2", VersionLines, "two", {kVersionInk}},
         };
}

}  // namespace test

namespace {

TEST(SkinKeysOfTheStartScreen, HaveTheirEffect) {
  QSettings(QSettings::IniFormat, QSettings::UserScope, "Ortvan", "Zorik").clear();
  test::KeyHome home;
  // More than the lists hold, so that both scroll buttons are there.
  for (int i = 10; i < 40; ++i) {
    home.folder.File("Caves/" + std::to_string(i) + ".zk", "");
    std::filesystem::create_directories(home.folder.Root() + "/Players/P" + std::to_string(i));
  }
  Settings settings;
  FrmStart2 start(home.skin, home.folder.Paths(), settings);
  start.FrmLoad();
  QTest::qWait(20);
  test::CheckKeys(home, test::KeysOfStart(), [&](const auto& look) {
    start.SkinIt();
    look(start);
  });
}

}  // namespace
}  // namespace zorik
