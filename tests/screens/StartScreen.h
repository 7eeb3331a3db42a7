#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QSettings>
#include <QSignalSpy>
#include <map>
#include <memory>

#include "data/Chance.h"
#include "data/Cp1250.h"
#include "data/Scramble.h"
#include "screens/DialogScript.h"
#include "screens/FingerButton.h"
#include "screens/FrmStart2.h"
#include "screens/ScrollButton.h"
#include "screens/StartLists.h"
#include "screens/TestSkin.h"

namespace zorik::test {

// What the start screen's skin says, without the keys' values that a test changes.
inline std::map<std::string, std::string> StartKeys() {
  return {{"start.palm.image", "palm"},
          {"start.palmPlay.image", "palmPlay"},
          {"start.close.image", "small"},
          {"start.close.left", "300"},
          {"start.close.top", "10"},
          {"start.help.image", "small"},
          {"start.help.left", "300"},
          {"start.help.top", "40"},
          {"start.vscroll.image", "vscroll"},
          {"start.vscroll.left", "210"},
          {"start.vscroll.top", "60"},
          {"start.hscroll.image", "hscroll"},
          {"start.hscroll.left", "210"},
          {"start.hscroll.top", "180"},
          {"start.play.image", "small"},
          {"start.play.left", "100"},
          {"start.play.top", "210"},
          {"start.addplayer.image", "small"},
          {"start.addplayer.left", "20"},
          {"start.addplayer.top", "180"},
          {"start.changeskin.image", "small"},
          {"start.changeskin.left", "300"},
          {"start.changeskin.top", "70"},
          {"start.caves.left", "50"},
          {"start.caves.top", "60"},
          {"start.caves.width", "150"},
          {"start.caves.height", "74"},
          {"start.caves.lines", "5"},
          {"start.caves.color", "102030"},
          {"start.caves.textcolor", "E0E0E0"},
          {"start.caves.selection.color", "C0A000"},
          {"start.caves.selection.textcolor", "200000"},
          {"start.caves.border.size", "2"},
          {"start.caves.border.color", "804020"},
          {"start.players.left", "50"},
          {"start.players.top", "180"},
          {"start.players.width", "150"},
          {"start.players.height", "20"},
          {"start.players.color", "103020"},
          {"start.players.textcolor", "D0D0D0"},
          {"start.players.selection.color", "00A0C0"},
          {"start.players.selection.textcolor", "000020"},
          {"start.players.border.size", "2"},
          {"start.players.border.color", "208040"},
          {"start.fingerPlay.image", "finger1"},
          {"start.fingerrePlay.image", "finger2"},
          {"start.fingereditor.image", "finger3"},
          {"start.finger4.image", "finger4"},
          {"start.fingerPlay.text", "Hrát"},
          {"start.fingerReplay.text", "Záznam"},
          {"start.fingerEditor.text", "Editor"},
          {"version.text", "Zorík 2"}};
}

inline constexpr QSize kPalm(340, 260);

// The fingers of the test's skin stand side by side at the top, 30 x 40 each.
inline QRect FingerBox(int number) {
  return {10 + 60 * number, 5, 30, 40};
}

inline QImage Overlay(int number) {
  QImage image(kPalm, QImage::Format_RGB32);
  image.fill(Qt::black);
  const QRect box = FingerBox(number);
  for (int x = box.left(); x <= box.right(); ++x) {
    for (int y = box.top(); y <= box.bottom(); ++y) image.setPixelColor(x, y, QColor(250, 200, 40));
  }
  return image;
}

// A picture whose corner pixels are outside.
inline QImage Palm(QColor colour) {
  QImage image(kPalm, QImage::Format_RGB32);
  image.fill(colour);
  for (int x = 0; x < 4; ++x) {
    for (int y = 0; y < 4; ++y) image.setPixelColor(x, y, Qt::black);
  }
  return image;
}

// A start screen with a small skin, in folders of its own.
class StartScreen : public testing::Test {
 protected:
  StartScreen() {
    QSettings(QSettings::IniFormat, QSettings::UserScope, "Ortvan", "Zorik").clear();
    QSettings(QSettings::IniFormat, QSettings::UserScope, "Ortvan", "Zorik2").clear();
    skin_.Picture("palm", Palm(QColor(200, 180, 150)));
    skin_.Picture("palmPlay", Palm(QColor(220, 190, 120)));
    skin_.Picture("palm2", Palm(QColor(90, 90, 200)));
    for (int i = 0; i < 4; ++i) skin_.Picture("finger" + std::to_string(i + 1), Overlay(i));
    skin_.Picture("finger5", Overlay(4));
    skin_.Picture("small", Strips(kLooks, {20, 20}));
    skin_.Picture("other", Strips(kLooks, {16, 24}));
    skin_.Picture("vscroll", Strips(kLooks, {10, 30}));
    skin_.Picture("hscroll", Strips(kLooks, {30, 10}));
    WearKeys(StartKeys());
  }

  // The usual keys with these ones changed; empty ones are left out.
  void WearChanged(const std::map<std::string, std::string>& changed) {
    auto keys = StartKeys();
    for (const auto& [key, value] : changed) {
      if (value.empty()) {
        keys.erase(key);
      } else {
        keys[key] = value;
      }
    }
    WearKeys(keys);
  }
  void WearKeys(const std::map<std::string, std::string>& keys) {
    std::string lines;
    for (const auto& [key, value] : keys) lines += key + "=" + value + "\n";
    skin_.Data(lines);
    std::string texts = "\xEF\xBB\xBFČeština\nautor\n";
    for (int place = 0; place < 200; ++place) {
      texts += place == 115   ? "Hráč ?1? byl přidán."
               : place == 116 ? "Hráče ?1? nelze přidat.#Zkus jiné jméno."
                              : "Text " + std::to_string(place);
      texts += "\n";
    }
    skin_.File("cestina.txt", texts);
    skin_.Apply();
  }

  // A collection that the list can name; nothing but its first line is needed for that.
  void Coll(const std::string& file, const std::string& name) const {
    const std::string bytes = *FromUtf8(name);
    Chance chance;
    folder_.File("Caves/" + file,
                 ScrambleText(static_cast<char>(65 + bytes.size()) + bytes + "A", chance) + "\r\n");
  }
  void Player(const std::string& name) const {
    std::filesystem::create_directories(folder_.Root() + "/Players/" + name);
  }
  QString At(const std::string& path) const { return QString::fromStdString(folder_.Root() + "/" + path); }

  // Loads the start screen; a player must be there, or a script for the window that asks for one.
  FrmStart2& Load() {
    start_ = std::make_unique<FrmStart2>(skin_.Skin(), folder_.Paths(), settings_);
    opened_ = std::make_unique<QSignalSpy>(start_.get(), &FrmStart2::OpenCollection);
    played_ = std::make_unique<QSignalSpy>(start_.get(), &FrmStart2::PlayRecord);
    edited_ = std::make_unique<QSignalSpy>(start_.get(), &FrmStart2::EditCollection);
    start_->FrmLoad();
    QTest::qWait(20);
    return *start_;
  }

  template <class Part>
  Part& Find(const char* name) const {
    return *start_->findChild<Part*>(name);
  }
  LabelList& Colls() const { return Find<LabelList>("lblCColl"); }
  LabelList& Plrs() const { return Find<LabelList>("lblPlr"); }
  QStringList Files(const std::string& folder) const {
    return QDir(At(folder)).entryList(QDir::NoDotAndDotDot | QDir::AllEntries, QDir::Name);
  }
  void Click(const char* button) const { QTest::mouseClick(&Find<QWidget>(button), Qt::LeftButton); }
  void Key(Qt::Key key) const { QTest::keyClick(start_.get(), key); }

  TestSkin skin_;
  Folder folder_;
  Settings settings_;
  std::unique_ptr<FrmStart2> start_;
  std::unique_ptr<QSignalSpy> opened_;
  std::unique_ptr<QSignalSpy> played_;
  std::unique_ptr<QSignalSpy> edited_;
};

}  // namespace zorik::test
