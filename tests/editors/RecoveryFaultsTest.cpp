// What cannot be kept, and what was kept and cannot be opened.
#include <gtest/gtest.h>

#include <QPushButton>
#include <filesystem>

#include "data/Chance.h"
#include "data/Folders.h"
#include "data/Result.h"
#include "editors/FrmSada.h"
#include "editors/RecoveryWords.h"
#include "editors/SadaScreen.h"
#include "flow/KeptSada.h"
#include "screens/Toast.h"

namespace zorik {
namespace {

using test::Names;

class RecoveryFaultsTest : public test::SadaWindowTest {
 protected:
  std::string RecoveryPath() const { return folder.Root() + "/Recovery"; }
  std::size_t Running() const { return FilesIn(RecoveryPath() + "/Running", ".recovery").size(); }
  std::size_t Discarded() const { return RecoveryStore(RecoveryPath()).Discarded().size(); }
  RecoveryKeeper& Keeper() const { return window->Keeper(); }

  // Where the folder should be is a file.
  void TakePlaceOfFolder() const {
    std::filesystem::remove_all(RecoveryPath());
    folder.File("Recovery", "x");
  }
  // The remark that is to be seen, which goes then; nothing if there is none.
  static QString Remark() {
    QString words;
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
      auto* const toast = dynamic_cast<Toast*>(widget);
      if (toast == nullptr || !toast->isVisible()) continue;
      words = toast->text();
      toast->hide();
    }
    return words;
  }

  // A collection of these lines among the discarded ones of a folder; answers its file.
  std::string Discard(const std::string& place, const Names& lines) const {
    SadaModel model({}, 1);
    KeptSada kept = *model.Kept(std::nullopt);
    Chance chance;
    kept.Bytes = ScrambleLines(lines, chance);
    kept.Name = "Jedna";
    EXPECT_TRUE(RecoveryStore(place).Discard(kept, 1000));
    const std::string there = place + "/Discarded";
    const auto files = FilesIn(there, ".recovery");
    return files.empty() ? std::string() : there + '/' + files.front();
  }
  // Something happens to the file of the only discarded one while the list is open, then that is opened.
  void OpenDiscarded(const std::function<void()>& meanwhile) {
    dialogs.Then([meanwhile](QWidget& dialog) {
      meanwhile();
      dialog.findChild<QPushButton*>("btnOpen")->click();
    });
    dialogs.Press("ok");
    Action("mnuDiscarded").trigger();
  }
  void ExpectNothingOpened(const std::string& path) const {
    EXPECT_TRUE(dialogs.Last().startsWith("Soubor nelze otevřít:")) << dialogs.Last().toStdString();
    EXPECT_TRUE(dialogs.Last().contains(QString::fromStdString(std::filesystem::path(path).filename())));
    EXPECT_EQ(Running(), 0U);
    EXPECT_TRUE(std::filesystem::exists(path)) << "it stays";
  }

  const Names sound_{"ESadaA", "CEva", "@0", test::OneStepCave("A") + "---01", "Hura"};
};

TEST_F(RecoveryFaultsTest, ItIsToldOnceThatNothingCanBeKeptUntilItGoesWellAgain) {
  const QString words = "Nouzová kopie rozdělané sady se nedala zapsat.";
  OpenCaves({"A"});
  TakePlaceOfFolder();
  TypeName("Nova");
  Keeper().Keep();
  EXPECT_EQ(Remark(), words);
  TypeName("Dalsi");
  Keeper().Keep();
  EXPECT_EQ(Remark(), "");
  std::filesystem::remove(RecoveryPath());
  Keeper().Keep();
  EXPECT_EQ(Remark(), "");
  EXPECT_EQ(Running(), 1U);
  TakePlaceOfFolder();
  TypeName("Posledni");
  Keeper().Keep();
  EXPECT_EQ(Remark(), words);
}

TEST_F(RecoveryFaultsTest, ItIsToldThatWhatIsDiscardedCouldNotBeKept) {
  OpenCaves({"A"});
  TakePlaceOfFolder();
  Key(Qt::Key_N, Qt::ControlModifier);
  EXPECT_EQ(Remark(), "") << "nothing was lost";
  TypeName("Nova");
  Key(Qt::Key_N, Qt::ControlModifier);
  EXPECT_NE(Remark(), "");
  EXPECT_EQ(Rows(), Names{"*Nová malá komnata"}) << "it is done all the same";
}

TEST_F(RecoveryFaultsTest, NothingIsKeptBeforeTheEditorOpens) {
  sada.SetText(SadaText::Name, "Nova");
  ASSERT_TRUE(sada.Chg());
  Keeper().Keep();
  EXPECT_FALSE(std::filesystem::exists(RecoveryPath()));
}

TEST_F(RecoveryFaultsTest, NothingTouchesWhatWasKeptForTheEnd) {
  OpenCaves({"A"});
  TypeName("Nova");
  Keeper().KeepForEnd();
  ASSERT_EQ(Running(), 1U);
  TypeName("Dalsi");
  Keeper().Keep();
  Keeper().Discard();
  Key(Qt::Key_S, Qt::ControlModifier);
  Keeper().Settle();
  Keeper().End();
  EXPECT_EQ(Running(), 1U);
  EXPECT_EQ(Discarded(), 0U);
  const std::string copy = folder.Root() + "/Copy";
  std::filesystem::copy(RecoveryPath(), copy, std::filesystem::copy_options::recursive);
  const std::vector<KeptEntry> left = RecoveryStore(copy).Left();
  ASSERT_EQ(left.size(), 1U);
  EXPECT_EQ(left[0].Name, "Nova");
}

TEST_F(RecoveryFaultsTest, TheListIsShutWithoutAChange) {
  Discard(RecoveryPath(), sound_);
  OpenCaves({"A", "B"});
  TypeName("Nova");
  dialogs.Cancel();
  Action("mnuDiscarded").trigger();
  EXPECT_EQ(Rows(), (Names{"*A", "B"}));
  EXPECT_EQ(Box("Text3").text(), "Nova");
  EXPECT_EQ(Discarded(), 1U);
}

TEST_F(RecoveryFaultsTest, WhatCanBeReadNoLongerIsNotOpened) {
  OpenCaves({"A", "B"});
  const std::string path = Discard(RecoveryPath(), sound_);
  OpenDiscarded([&path] { EXPECT_TRUE(WriteWhole(path, "x")); });
  ExpectNothingOpened(path);
  EXPECT_EQ(Rows(), (Names{"*A", "B"}));
  EXPECT_FALSE(window->isWindowModified());
}

TEST_F(RecoveryFaultsTest, AClosedOneIsNotOpened) {
  OpenCaves({"A", "B"});
  const std::string path = Discard(RecoveryPath(), sound_);
  const std::string shut = Discard(folder.Root() + "/Other", {"ESadaA", "AX", "a@b.czQ", "x---01", ""});
  OpenDiscarded([&path, &shut] {
    std::filesystem::copy(shut, path, std::filesystem::copy_options::overwrite_existing);
  });
  ExpectNothingOpened(path);
  EXPECT_EQ(Rows(), (Names{"*A", "B"}));
  EXPECT_FALSE(window->isWindowModified());
}

TEST_F(RecoveryFaultsTest, WhatIsWrongWithOneIsToldWhenItOpens) {
  Open();
  Names lines = sound_;
  lines.insert(lines.begin() + 4, test::OneStepCave("B") + "---X2");
  Discard(RecoveryPath(), lines);
  OpenDiscarded([] {});
  EXPECT_TRUE(dialogs.Last().contains("Vynechána komnata s poškozeným číslem: 5"))
      << dialogs.Last().toStdString();
  EXPECT_EQ(Rows(), Names{"*A"});
  EXPECT_TRUE(window->isWindowModified());
}

TEST_F(RecoveryFaultsTest, OneThatWasLeftStaysWhereItIsWhenItCannotBeOpened) {
  const std::string path = Discard(RecoveryPath(), sound_);
  const std::vector<KeptEntry> kept = RecoveryStore(RecoveryPath()).Discarded();
  ASSERT_EQ(kept.size(), 1U);
  ASSERT_TRUE(WriteWhole(path, "x"));
  dialogs.Press("ok");
  window->OpenLeft(kept[0]);
  ExpectNothingOpened(path);
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(Rows(), Names{"*Nová malá komnata"});
}

TEST_F(RecoveryFaultsTest, AnAgeIsCountedInDaysFromTheSecondOn) {
  KeptEntry entry;
  entry.Time = 1000000;
  const auto age = [&](std::int64_t seconds) { return AgeOfKept(skin, entry, entry.Time + seconds); };
  EXPECT_EQ(age(2 * 86400 - 1), "47\u00A0h");
  EXPECT_EQ(age(2 * 86400), "2\u00A0d");
  EXPECT_EQ(age(119), "1\u00A0min");
}

}  // namespace
}  // namespace zorik
