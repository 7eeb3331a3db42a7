// What is being edited is kept, what was discarded can be had again.
#include <gtest/gtest.h>

#include <QDateTime>
#include <QPushButton>
#include <QTableWidget>
#include <filesystem>

#include "data/Folders.h"
#include "data/Result.h"
#include "editors/CaveModel.h"
#include "editors/FrmSada.h"
#include "editors/RecoveryOffer.h"
#include "editors/RecoveryWords.h"
#include "editors/SadaScreen.h"
#include "editors/UnfinishedCave.h"
#include "flow/KeptSada.h"

namespace zorik {
namespace {

using test::Names;

class RecoveryTest : public test::SadaWindowTest {
 protected:
  std::string RecoveryPath() const { return folder.Root() + "/Recovery"; }
  std::size_t Running() const { return FilesIn(RecoveryPath() + "/Running", ".recovery").size(); }

  // What another program would find, were this one killed now.
  std::vector<KeptEntry> Found() const {
    const std::string copy = folder.Root() + "/Copy";
    std::filesystem::remove_all(copy);
    if (std::filesystem::exists(RecoveryPath()))
      std::filesystem::copy(RecoveryPath(), copy, std::filesystem::copy_options::recursive);
    return RecoveryStore(copy).Left();
  }
  Names Discarded() const {
    Names names;
    for (const KeptEntry& entry : RecoveryStore(RecoveryPath()).Discarded()) names.push_back(entry.Name);
    return names;
  }
  RecoveryKeeper& Keeper() const { return window->Keeper(); }
};

// Keeping

TEST_F(RecoveryTest, HalfAMinuteAfterAChangeItIsKept) {
  OpenCaves({"*Jedna", "Druha"});
  TypeName("Nova");
  EXPECT_EQ(Running(), 0U);
  EXPECT_LE(Keeper().Interval(), std::chrono::seconds(30));
  EXPECT_GE(Keeper().Interval(), std::chrono::seconds(25)) << "nobody waits for it more often";
  Keeper().SetInterval(std::chrono::milliseconds(20));
  ASSERT_TRUE(QTest::qWaitFor([this] { return Running() > 0; }));
  const std::vector<KeptEntry> found = Found();
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].Name, "Nova");
  EXPECT_EQ(found[0].Caves, 2);
  EXPECT_EQ(found[0].FileName, Path("a.zk"));
}

TEST_F(RecoveryTest, WhatComesAfterIsKeptWhenItsTurnComes) {
  Open();
  Keeper().SetInterval(std::chrono::milliseconds(20));
  for (const char* name : {"Jedna", "Druha"}) {
    TypeName(name);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Running() > 0 && Found().at(0).Name == name; })) << name;
  }
  dialogs.Press("yes").Cancel();
  window->close();
  EXPECT_EQ(Running(), 1U) << "it was not left";
}

TEST_F(RecoveryTest, NothingIsKeptOfWhatHasNotChanged) {
  OpenCaves({"*Jedna"});
  Keeper().Keep();
  EXPECT_EQ(Running(), 0U);
}

TEST_F(RecoveryTest, ASaveTakesAwayWhatWasKept) {
  OpenCaves({"*Jedna"});
  TypeName("Nova");
  Keeper().Keep();
  ASSERT_EQ(Running(), 1U);
  Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(Running(), 0U);
  window->close();
  EXPECT_EQ(Discarded(), Names{});
}

TEST_F(RecoveryTest, TheEndByTheDesktopKeepsTheLastStateForTheNextStart) {
  OpenCaves({"*Jedna"});
  TypeName("Nova");
  Keeper().KeepForEnd();
  dialogs.Press("no");
  window->close();
  ASSERT_EQ(Found().size(), 1U);
  EXPECT_EQ(Found()[0].Name, "Nova");
  EXPECT_EQ(Discarded(), Names{});
}

TEST_F(RecoveryTest, TheCaveThatIsEditedIsKeptInItsPlace) {
  OpenCaves({"*Jedna", "Druha"});
  sada.Select(2);
  window->mnuEdit_Click();
  Keeper().SetCave([] { return std::optional(test::OneStepCave("Rozdelana")); });
  Keeper().Keep();
  const std::vector<KeptEntry> found = Found();
  ASSERT_EQ(found.size(), 1U);
  SadaModel taken({}, 1);
  ASSERT_TRUE(taken.TakeUp(*RecoveryStore::Read(found[0])));
  EXPECT_EQ(taken.Name(1), "Jedna");
  EXPECT_EQ(taken.Name(2), "Rozdelana");
  EXPECT_EQ(taken.ListSelected(), 2);
}

TEST_F(RecoveryTest, ACaveThatGoesOnAfterTheCollectionWasSavedIsKept) {
  OpenCaves({"*Jedna"});
  Keeper().SetCave([] { return std::optional(test::OneStepCave("Rozdelana")); });
  ASSERT_FALSE(Sada().Chg());
  Keeper().Keep();
  EXPECT_EQ(Found().size(), 1U);
}

TEST_F(RecoveryTest, AnUnfinishedCaveHasTheProgramThatIsEditedAndTextsWithoutRoom) {
  CaveModel model;
  ASSERT_TRUE(model.OpenCave(*NewCaveText(NewCaveSize::Small)));
  EXPECT_EQ(UnfinishedCave(model, std::nullopt), *model.Text());
  const auto cave = UnfinishedCave(model, "/K1");
  ASSERT_TRUE(cave);
  EXPECT_EQ(ParseCaveText(*cave)->Script, "/K1");
  Formality formality = FormalityOf(model.Cave());
  formality.Name = std::string(300, 'N');
  model.SetProperties(formality);
  ASSERT_FALSE(model.Text());
  const auto shortened = UnfinishedCave(model, std::nullopt);
  ASSERT_TRUE(shortened);
  EXPECT_EQ(ParseCaveText(*shortened)->Name, std::string(190, 'N'));
}

// Discarding

TEST_F(RecoveryTest, WhatIsNotSavedOnLeavingIsAmongTheDiscardedOnes) {
  OpenCaves({"*Jedna"});
  TypeName("Nova");
  dialogs.Press("no");
  window->close();
  EXPECT_EQ(Discarded(), Names{"Nova"});
  EXPECT_EQ(Running(), 0U);
  Open();
  EXPECT_EQ(Discarded(), Names{"Nova"});
}

TEST_F(RecoveryTest, WhatANewCollectionTakesThePlaceOfIsAmongThem) {
  OpenCaves({"*Jedna"});
  TypeName("Nova");
  Key(Qt::Key_N, Qt::ControlModifier);
  EXPECT_EQ(Discarded(), Names{"Nova"});
  Key(Qt::Key_N, Qt::ControlModifier);
  EXPECT_EQ(Discarded(), Names{"Nova"}) << "nothing had changed";
}

TEST_F(RecoveryTest, WhatIsNotSavedBeforeAnotherIsOpenedIsAmongThem) {
  OpenCaves({"*Jedna"});
  TypeName("Nova");
  dialogs.Press("no").Cancel();
  Key(Qt::Key_O, Qt::ControlModifier);
  EXPECT_EQ(Discarded(), Names{"Nova"});
  Keeper().Keep();
  EXPECT_EQ(Found().size(), 1U) << "it is still being edited";
}

TEST_F(RecoveryTest, ADiscardedOneIsOpenedAsChangedWithItsPath) {
  OpenCaves({"*Jedna", "Druha"});
  TypeName("Nova");
  Key(Qt::Key_N, Qt::ControlModifier);
  dialogs.Then([](QWidget& dialog) {
    const auto* const list = dialog.findChild<QTableWidget*>("lstDiscarded");
    ASSERT_EQ(list->rowCount(), 1);
    EXPECT_EQ(list->item(0, 1)->text(), "Nova");
    EXPECT_EQ(list->item(0, 2)->text(), "2");
    dialog.findChild<QPushButton*>("btnOpen")->click();
  });
  Action("mnuDiscarded").trigger();
  EXPECT_EQ(Rows(), (Names{"*Jedna", "Druha"}));
  EXPECT_EQ(Box("Text3").text(), "Nova");
  EXPECT_EQ(Sada().FileName(), Path("a.zk"));
  EXPECT_TRUE(window->isWindowModified());
  EXPECT_EQ(Discarded(), Names{"Nova"});
  EXPECT_EQ(Running(), 1U);
}

TEST_F(RecoveryTest, AsksBeforeADiscardedOneTakesThePlaceOfChanges) {
  OpenCaves({"*Jedna"});
  TypeName("Nova");
  Key(Qt::Key_N, Qt::ControlModifier);
  TypeName("Dalsi");
  const auto open = [](QWidget& dialog) { dialog.findChild<QPushButton*>("btnOpen")->click(); };
  dialogs.Then(open).Press("close");
  Action("mnuDiscarded").trigger();
  EXPECT_EQ(Sada().Text(SadaText::Name), "Dalsi");
  dialogs.Then(open).Press("no");
  Action("mnuDiscarded").trigger();
  EXPECT_EQ(Sada().Text(SadaText::Name), "Nova");
  EXPECT_EQ(Discarded(), (Names{"Dalsi", "Nova"}));
}

TEST_F(RecoveryTest, ADiscardedOneIsDeletedWhenTheAuthorAgrees) {
  Open();
  for (const char* name : {"Jedna", "Druha"}) {
    TypeName(name);
    Key(Qt::Key_N, Qt::ControlModifier);
  }
  const auto press = [](QWidget& dialog) {
    dialog.findChild<QTableWidget*>("lstDiscarded")->selectRow(1);
    QTest::keyClick(dialog.findChild<QTableWidget*>("lstDiscarded"), Qt::Key_Delete);
    dialog.close();
  };
  dialogs.Then([&](QWidget& dialog) {
    QTimer::singleShot(0, &dialog, [&] { dialog.findChild<QPushButton*>("btnDelete")->click(); });
  });
  dialogs.Press("no");
  dialogs.Then([&](QWidget& dialog) { dialog.close(); });
  Action("mnuDiscarded").trigger();
  EXPECT_EQ(Discarded(), (Names{"Druha", "Jedna"}));
  dialogs.Then([&](QWidget& dialog) { QTimer::singleShot(0, &dialog, [&] { press(dialog); }); });
  dialogs.Press("yes");
  Action("mnuDiscarded").trigger();
  EXPECT_EQ(Discarded(), Names{"Druha"});
}

TEST_F(RecoveryTest, ADiscardedOneIsOpenedByADoubleClick) {
  Open();
  for (const char* name : {"Jedna", "Druha"}) {
    TypeName(name);
    Key(Qt::Key_N, Qt::ControlModifier);
  }
  dialogs.Then([](QWidget& dialog) {
    auto* const list = dialog.findChild<QTableWidget*>("lstDiscarded");
    const QPoint place = list->visualItemRect(list->item(1, 1)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place);
  });
  Action("mnuDiscarded").trigger();
  EXPECT_EQ(Sada().Text(SadaText::Name), "Jedna");
}

TEST_F(RecoveryTest, TheNextOneIsChosenWhereOneWasDeleted) {
  Open();
  for (const char* name : {"Jedna", "Druha", "Treti"}) {
    TypeName(name);
    Key(Qt::Key_N, Qt::ControlModifier);
  }
  std::vector<int> rows;
  dialogs.Then([&rows](QWidget& dialog) {
    auto* const list = dialog.findChild<QTableWidget*>("lstDiscarded");
    list->selectRow(1);
    QTimer::singleShot(0, &dialog, [&rows, &dialog, list] {
      QTest::keyClick(list, Qt::Key_Delete);
      rows.push_back(list->currentRow());
      dialog.close();
    });
  });
  dialogs.Press("yes");
  Action("mnuDiscarded").trigger();
  EXPECT_EQ(rows, std::vector<int>{1});
  EXPECT_EQ(Discarded(), (Names{"Treti", "Jedna"}));
}

TEST_F(RecoveryTest, OneThatCannotBeDeletedIsTold) {
  Open();
  TypeName("Jedna");
  Key(Qt::Key_N, Qt::ControlModifier);
  const std::string path = RecoveryStore(RecoveryPath()).Discarded().at(0).Path;
  dialogs.Then([&path](QWidget& dialog) {
    std::filesystem::remove(path);
    std::filesystem::create_directories(path + "/not empty");
    QTimer::singleShot(0, &dialog, [&dialog] { dialog.findChild<QPushButton*>("btnDelete")->click(); });
  });
  dialogs.Press("yes").Press("ok").Cancel();
  Action("mnuDiscarded").trigger();
  EXPECT_TRUE(dialogs.Last().startsWith("Soubor se nepodařilo vymazat")) << dialogs.Last().toStdString();
}

TEST_F(RecoveryTest, ACaveThatGoesOnIsKeptBeyondASave) {
  OpenCaves({"*Jedna"});
  Keeper().SetCave([] { return test::OneStepCave("Jinak"); });
  Keeper().Keep();
  EXPECT_EQ(Running(), 1U);
  ASSERT_FALSE(Sada().Chg());
  Keeper().Settle();
  EXPECT_EQ(Running(), 1U);
  Keeper().SetCave([] { return test::OneStepCave("Jedna"); });
  Keeper().Settle();
  EXPECT_EQ(Running(), 0U);
}

TEST_F(RecoveryTest, NothingIsKeptOfACollectionThatTheAuthorHasLeft) {
  OpenCaves({"*Jedna"});
  TypeName("Nova");
  dialogs.Press("no");
  window->close();
  Keeper().Keep();
  EXPECT_EQ(Running(), 0U);
}

TEST_F(RecoveryTest, AnEmptyListHasNothingToOpenOrDelete) {
  Open();
  dialogs.Then([](QWidget& dialog) {
    EXPECT_FALSE(dialog.findChild<QPushButton*>("btnOpen")->isEnabled());
    EXPECT_FALSE(dialog.findChild<QPushButton*>("btnDelete")->isEnabled());
    dialog.close();
  });
  Action("mnuDiscarded").trigger();
}

// Offering

class OfferTest : public RecoveryTest {
 protected:
  // As a program that was killed so long ago.
  void Leave(const char* name, std::int64_t seconds) const {
    SadaModel model({}, 1);
    model.SetText(SadaText::Name, name);
    RecoveryStore store(RecoveryPath());
    ASSERT_TRUE(store.Keep(*model.Kept(std::nullopt), QDateTime::currentSecsSinceEpoch() - seconds));
  }
};

TEST_F(OfferTest, TellsNameAgeAndNumberOfCavesAndOpensTheOne) {
  Leave("Jedna", 5 * 60 + 10);
  RecoveryStore& store = Keeper().Store();
  dialogs.Press("yes");
  const std::optional<KeptEntry> left = OfferLeft(skin, nullptr, store);
  ASSERT_TRUE(left);
  EXPECT_TRUE(dialogs.Last().contains("„Jedna“, počet komnat 1")) << dialogs.Last().toStdString();
  EXPECT_TRUE(dialogs.Last().contains("stáří 5 min")) << dialogs.Last().toStdString();
  window->OpenLeft(*left);
  EXPECT_EQ(Sada().Text(SadaText::Name), "Jedna");
  EXPECT_TRUE(window->isWindowModified());
  EXPECT_EQ(Running(), 1U) << "now it is this program's";
  EXPECT_FALSE(std::filesystem::exists(left->Path));
  TypeName("Dal");
  Keeper().Keep();
  EXPECT_EQ(Running(), 1U) << "it is there once only";
  EXPECT_TRUE(RecoveryStore(RecoveryPath()).Left().empty());
}

TEST_F(OfferTest, PutsTheOthersAmongTheDiscardedOnes) {
  Leave("Stara", 7200);
  Leave("Nova", 60);
  dialogs.Press("no").Press("no");
  EXPECT_FALSE(OfferLeft(skin, nullptr, Keeper().Store()));
  EXPECT_TRUE(dialogs.said.at(0).contains("Nova")) << dialogs.said.at(0).toStdString();
  EXPECT_EQ(Discarded().size(), 2U);
  EXPECT_EQ(Running(), 0U);
}

TEST_F(OfferTest, AsksNoMoreOnceOneIsTaken) {
  Leave("Stara", 7200);
  Leave("Nova", 60);
  dialogs.Press("yes");
  const std::optional<KeptEntry> taken = OfferLeft(skin, nullptr, Keeper().Store());
  ASSERT_TRUE(taken);
  EXPECT_EQ(taken->Name, "Nova");
  EXPECT_EQ(Discarded(), Names{"Stara"});
}

TEST_F(OfferTest, LeavesWhatItGotNoAnswerAboutForTheNextStart) {
  Leave("Stara", 7200);
  Leave("Nova", 60);
  dialogs.Press("no").Then([](QWidget& /*dialog*/) { QCoreApplication::exit(); });
  EXPECT_FALSE(OfferLeft(skin, nullptr, Keeper().Store()));
  EXPECT_EQ(Discarded(), Names{"Nova"});
  ASSERT_EQ(Found().size(), 1U);
  EXPECT_EQ(Found()[0].Name, "Stara");
  // The toolkit takes the end for lasting until it is run anew.
  QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(); });
  QApplication::exec();
}

TEST_F(OfferTest, CountsAnAgeInWhatIsEasyToRead) {
  KeptEntry entry;
  entry.Time = 1000000;
  const auto age = [&](std::int64_t seconds) { return AgeOfKept(skin, entry, entry.Time + seconds); };
  EXPECT_EQ(age(-100), "méně než minuta");
  EXPECT_EQ(age(59), "méně než minuta");
  EXPECT_EQ(age(60), "1\u00A0min");
  EXPECT_EQ(age(7199), "119\u00A0min");
  EXPECT_EQ(age(7200), "2\u00A0h");
  EXPECT_EQ(age(86400 * 3), "3\u00A0d");
}

}  // namespace
}  // namespace zorik
