#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <memory>
#include <string>
#include <vector>

#include "data/Cp1250.h"
#include "data/Files.h"
#include "data/RecordFile.h"
#include "data/Result.h"
#include "data/Scramble.h"
#include "flow/Flow.h"
#include "screens/FrmPoSt.h"
#include "screens/SkinButton.h"
#include "screens/SkinLabel.h"
#include "screens/TestSkin.h"
#include "skin/Skin.h"
#include "support/Spoiled.h"

namespace zorik::test {

// A text in the bytes of the game.
inline std::string Bytes(const QString& text) {
  return *FromUtf8(text.toStdString());
}

// A text of the game for people.
inline QString Words(std::string_view bytes) {
  return QString::fromStdString(ToUtf8(bytes));
}

// The shipped skins' tables and texts without their pictures, and a game folder for the player "Žofie".
class PostHome {
 public:
  PostHome() {
    for (const char* name : {"Default", "English"}) {
      for (const char* file : {"skindata.txt", "cestina.txt"}) {
        const std::string path = std::string(name) + "/Menu/" + file;
        const auto text = ReadWhole(ZORIK_SKIN_SOURCES "/" + path);
        folder.File("Skins/" + path, *FromUtf8(*text));
      }
    }
    EXPECT_TRUE(skin.Apply({folder.Root() + "/Skins"}));
    std::filesystem::create_directories(PlayerFolder());
  }

  std::string PlayerFolder() const { return folder.Root() + "/Players/Žofie"; }
  QString CollectionPath() const { return QString::fromStdString(folder.Root() + "/Caves/a.zk"); }

  // Writes the collection "Sada", by "Jára" with this address, of caves with these names.
  void Collection(const std::vector<QString>& names, const QString& mail = "jara@x.cz") {
    EditedCollection collection;
    collection.Name = "Sada";
    collection.Author = Bytes("Jára");
    collection.Description = Bytes("Popis sady");
    collection.Mail = Bytes(mail);
    for (const QString& name : names) collection.CaveList.push_back(OneStepCave(Bytes(name)));
    collection.CongratulationText = Bytes("Skvělé!\r\nBody: $P");
    caves = collection.CaveList;
    names_ = names;
    Chance chance;
    const auto bytes = BuildCollection(collection, chance);
    ASSERT_TRUE(bytes);
    folder.File("Caves/a.zk", *bytes);
  }

  // Caves "c1", "c2" and so on.
  void Caves(int count) {
    std::vector<QString> names;
    for (int i = 1; i <= count; ++i) names.push_back("c" + QString::number(i));
    Collection(names);
  }

  std::string RecordPath(int number) const {
    const std::string name = RecordFileName("Sada", Bytes(names_[static_cast<std::size_t>(number - 1)]));
    return PlayerFolder() + "/" + FileSystemName(name);
  }

  // A record of the cave in the player's folder.
  void Record(int number, int score, const QString& player = "Žofie") const {
    Chance chance(5);
    const std::string bytes = BuildRecordHead("Sada", score, Bytes(player), chance) +
                              ScrambleText(caves[static_cast<std::size_t>(number - 1)] + "---00", chance) +
                              "\r\nAAA\r\n";
    ASSERT_TRUE(WriteWhole(RecordPath(number), bytes));
  }

  Folder folder;
  Skin skin;
  std::vector<std::string> caves;  // their texts, without marker

 private:
  std::vector<QString> names_;
};

// The selection screen on it.
class PostScreen : public PostHome {
 public:
  void Open() {
    LetterOpeners openers;
    openers.file = [this](const QString& path, const OpenFailed& failed) {
      openedFiles.push_back(path);
      if (nothingOpens) failed();
    };
    openers.link = [this](const QUrl& link, const OpenFailed& failed) {
      openedLinks.push_back(link.toString(QUrl::FullyEncoded));
      if (nothingOpens) failed();
    };
    window = std::make_unique<FrmPoSt>(skin, flow, openers);
    const auto loaded = window->LoadColl(CollectionPath(), "Žofie");
    ASSERT_TRUE(loaded) << loaded.Message();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
  }

  // Plays the selected cave and wins it: its one step, with 50 seconds and one dog, is worth 50 points. The
  // record is not stored.
  void Prosel() {
    ASSERT_TRUE(flow.Start());
    FinishRun();
  }

  // The rest of that, from the start of the run on.
  void FinishRun() {
    StepToWin(hra);
    ASSERT_TRUE(flow.Win());
    flow.ScoreClosed();
    flow.ScoreClosed();
    window->ShowCaves();
  }

  void Spoil() const { test::Spoil(PlayerFolder()); }
  void Mend() const { test::Mend(PlayerFolder()); }

  QString Text(const char* label) const { return window->findChild<SkinLabel*>(label)->Text(); }
  SkinLabel& Label(const char* label) const { return *window->findChild<SkinLabel*>(label); }
  SkinButton& Button(const char* name) const { return *window->findChild<SkinButton*>(name); }
  bool Shown(const char* name) const { return window->findChild<QWidget*>(name)->isVisible(); }
  void Press(Qt::Key key) const { QTest::keyClick(window.get(), key); }
  void Click(const char* name) const { QTest::mouseClick(&Button(name), Qt::LeftButton); }

  Hra hra{1};
  Flow flow{hra, {folder.Root() + "/Players", folder.Root() + "/Replays"}, 1};
  std::unique_ptr<FrmPoSt> window;
  QStringList openedFiles;
  QStringList openedLinks;
  bool nothingOpens = false;
};

}  // namespace zorik::test
