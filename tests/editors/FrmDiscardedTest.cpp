// The window of the collections that the author has discarded.
#include <gtest/gtest.h>

#include <QDateTime>
#include <QHeaderView>
#include <QPushButton>
#include <QSettings>
#include <QTableWidget>
#include <algorithm>
#include <functional>

#include "data/Result.h"
#include "editors/Dialogs.h"
#include "editors/FrmDiscarded.h"
#include "editors/Mnemonics.h"
#include "flow/SadaModel.h"
#include "screens/Folder.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

using Chosen = std::optional<KeptEntry>;

class FrmDiscardedTest : public testing::Test {
 protected:
  FrmDiscardedTest() {
    QSettings(QSettings::IniFormat, QSettings::UserScope, "Ortvan", "Zorik2").clear();
    EXPECT_TRUE(skin_.Apply(SkinPlaces{ZORIK_SKINS, "Default"}));
  }
  void TearDown() override { EXPECT_TRUE(dialogs_.Done()) << dialogs_.said.join(" | ").toStdString(); }

  // A collection that was discarded at this minute of an afternoon.
  void Discard(const std::string& name, int minute, int caves = 1, const std::string& file = {}) {
    SadaModel model({}, 1);
    model.SetText(SadaText::Name, name);
    for (int added = 1; added < caves; ++added) model.AddCave(NewCaveSize::Small);
    KeptSada kept = *model.Kept(std::nullopt);
    kept.FileName = file;
    ASSERT_TRUE(store_.Discard(kept, QDateTime(QDate(2026, 3, 5), QTime(14, minute)).toSecsSinceEpoch()));
  }
  void DiscardThree() {
    Discard("Prvni", 1);
    Discard("Druha", 2);
    Discard("Treti", 3);
  }

  // Opens the window, does something to it and answers what was chosen.
  Chosen Choose(const std::function<void()>& act) {
    FrmDiscarded window(skin_, store_, nullptr);
    return ChooseIn(window, act);
  }
  Chosen ChooseIn(FrmDiscarded& window, const std::function<void()>& act) {
    dialogs_.Then([this, &act](QWidget& dialog) {
      dialog_ = &dialog;
      ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
      act();
      dialog.close();
    });
    return window.Choose();
  }

  // Does something that is followed by boxes which are answered so; tells what they said.
  static QStringList Answering(const QStringList& buttons, const std::function<void()>& act) {
    test::Dialogs answers;
    for (const QString& button : buttons) answers.Press(button);
    act();
    EXPECT_TRUE(answers.Done()) << answers.said.join(" | ").toStdString();
    return answers.said;
  }

  QTableWidget& List() const { return *dialog_->findChild<QTableWidget*>("lstDiscarded"); }
  QPushButton& Button(const char* name) const { return *dialog_->findChild<QPushButton*>(name); }
  // Without a desktop nobody gives the focus back when a box has gone.
  void Activate() const {
    dialog_->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog_));
  }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const {
    Activate();
    QTest::keyClick(dialog_->windowHandle(), key, modifiers);
  }
  QStringList Column(int column) const {
    QStringList words;
    for (int row = 0; row < List().rowCount(); ++row) words << List().item(row, column)->text();
    return words;
  }

  test::Folder folder_;
  Skin skin_;
  RecoveryStore store_{folder_.Root() + "/Recovery"};
  test::Dialogs dialogs_;
  QWidget* dialog_ = nullptr;
};

TEST_F(FrmDiscardedTest, TellsTimeNameCavesAndFileOfEachTheNewestFirst) {
  Discard("Stara", 5, 1, "/hry/stara.zk");
  Discard("Nova", 7, 3);
  const auto rows = [this] {
    EXPECT_EQ(Column(0), (QStringList{"5. 3. 2026 14.07", "5. 3. 2026 14.05"}));
    EXPECT_EQ(Column(1), (QStringList{"Nova", "Stara"}));
    EXPECT_EQ(Column(2), (QStringList{"3", "1"}));
    EXPECT_EQ(Column(3), (QStringList{"", "/hry/stara.zk"}));
    EXPECT_EQ(List().currentRow(), 0);
    EXPECT_EQ(List().selectedItems().size(), 4) << "a whole row is chosen";
    EXPECT_TRUE(List().hasFocus());
    Button("btnClose").setFocus();
  };
  FrmDiscarded window(skin_, store_, nullptr);
  EXPECT_FALSE(ChooseIn(window, rows));
  EXPECT_FALSE(ChooseIn(window, rows)) << "it is filled anew";
}

TEST_F(FrmDiscardedTest, SpeaksTheLanguageOfTheSkin) {
  struct Row {
    const char* skin;
    const char* title;
    QStringList heads, buttons;
    const char* about;
  };
  const std::vector<Row> rows = {{"Default",
                                  "Zahozené sady",
                                  {"Naposledy změněna", "Jméno", "Komnat", "Soubor"},
                                  {"Otevřít", "Vymazat", "Zavřít"},
                                  "Změny, které se neuložily, zůstávají tady."},
                                 {"English",
                                  "Discarded collections",
                                  {"Last changed", "Name", "Caves", "File"},
                                  {"Open", "Delete", "Close"},
                                  "Changes that were not saved stay here."}};
  for (const Row& row : rows) {
    ASSERT_TRUE(skin_.Apply(SkinPlaces{ZORIK_SKINS, row.skin}));
    Choose([this, &row] {
      EXPECT_EQ(dialog_->windowTitle(), row.title);
      QStringList heads, buttons;
      for (int column = 0; column < List().columnCount(); ++column)
        heads << List().horizontalHeaderItem(column)->text();
      EXPECT_EQ(heads, row.heads);
      for (const char* const name : {"btnOpen", "btnDelete", "btnClose"})
        buttons << WithoutMnemonic(Button(name).text());
      EXPECT_EQ(buttons, row.buttons);
      const auto labels = dialog_->findChildren<QLabel*>();
      EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [&row](const QLabel* label) {
        return label->isVisible() && label->wordWrap() && label->text().startsWith(row.about);
      })) << row.about;
    });
  }
}

TEST_F(FrmDiscardedTest, StandsInLinesWithItsButtonsBelow) {
  Discard("Jedna", 1, 1, "/" + std::string(300, 'a') + " " + std::string(300, 'b') + "/konec.zk");
  Discard("Druha", 2);
  Choose([this] {
    QTableWidget& list = List();
    EXPECT_EQ(list.rowHeight(0), list.rowHeight(1)) << "each takes a line";
    EXPECT_FALSE(list.wordWrap());
    EXPECT_EQ(list.textElideMode(), Qt::ElideMiddle) << "the end of a path is its name";
    EXPECT_FALSE(list.verticalHeader()->isVisible() || list.showGrid());
    EXPECT_FALSE(list.horizontalHeader()->highlightSections());
    EXPECT_EQ(list.horizontalHeader()->length(), list.viewport()->width()) << "the columns fill the list";
    const int time = list.fontMetrics().horizontalAdvance(list.item(0, 0)->text());
    EXPECT_GE(list.columnWidth(0), time);
    EXPECT_LT(list.columnWidth(0), list.columnWidth(1));
    EXPECT_EQ(list.columnWidth(2), list.horizontalHeader()->sectionSizeHint(2)) << "as its head needs";
    EXPECT_LT(list.columnWidth(2), list.columnWidth(1));
    EXPECT_NEAR(list.columnWidth(1), list.columnWidth(3), 1) << "names and files share what is left";
    EXPECT_EQ(list.item(0, 1)->textAlignment(), int(Qt::AlignLeft | Qt::AlignVCenter));
    EXPECT_EQ(list.item(0, 2)->textAlignment(), int(Qt::AlignRight | Qt::AlignVCenter));
    const auto labels = dialog_->findChildren<QLabel*>();
    ASSERT_EQ(labels.size(), 1);
    EXPECT_GT(labels[0]->y(), 0);
    EXPECT_LT(labels[0]->geometry().bottom(), list.y());
    EXPECT_GT(list.height(), dialog_->height() / 2) << "the list takes what room there is";
    int left = 0;
    for (const char* const name : {"btnOpen", "btnDelete", "btnClose"}) {
      EXPECT_GT(Button(name).y(), list.geometry().bottom()) << name;
      EXPECT_GE(Button(name).x(), left) << name;
      left = Button(name).geometry().right() + 1;
    }
    EXPECT_FALSE(Button("btnOpen").icon().isNull() || Button("btnDelete").icon().isNull());
    EXPECT_EQ(Button("btnClose").geometry().right(), list.geometry().right());
    EXPECT_GT(Button("btnClose").x(), Button("btnDelete").geometry().right() + 100);
  });
}

TEST_F(FrmDiscardedTest, LetsNobodyWriteInItsRows) {
  Discard("Jedna", 1);
  Choose([this] {
    for (int column = 0; column < List().columnCount(); ++column) {
      EXPECT_FALSE(List().item(0, column)->flags().testFlag(Qt::ItemIsEditable)) << column;
      EXPECT_TRUE(List().item(0, column)->flags().testFlag(Qt::ItemIsEnabled)) << column;
    }
  });
}

TEST_F(FrmDiscardedTest, ChoosesOneAtATime) {
  DiscardThree();
  const Chosen chosen = Choose([this] {
    Key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(List().selectedItems().size(), List().columnCount());
    Key(Qt::Key_Return);
  });
  ASSERT_TRUE(chosen);
  EXPECT_EQ(chosen->Name, "Druha");
}

// Opening

TEST_F(FrmDiscardedTest, OpensTheChosenOneByItsButtonAndByBothKeys) {
  DiscardThree();
  const std::vector<std::function<void()>> ways = {
      [this] { Key(Qt::Key_Return); },
      [this] { Key(Qt::Key_Enter); },
      [this] { QTest::mouseClick(&Button("btnOpen"), Qt::LeftButton); },
  };
  for (std::size_t way = 0; way < ways.size(); ++way) {
    const Chosen chosen = Choose([this, &ways, way] {
      Key(Qt::Key_Down);
      ways[way]();
      EXPECT_FALSE(dialog_->isVisible()) << way;
    });
    ASSERT_TRUE(chosen) << way;
    EXPECT_EQ(chosen->Name, "Druha");
  }
}

TEST_F(FrmDiscardedTest, OpensNothingWhenItIsShut) {
  DiscardThree();
  EXPECT_FALSE(Choose([this] {
    QTest::mouseClick(&Button("btnClose"), Qt::LeftButton);
    EXPECT_FALSE(dialog_->isVisible());
  }));
  EXPECT_FALSE(Choose([this] {
    Key(Qt::Key_Escape);
    EXPECT_FALSE(dialog_->isVisible());
  }));
}

TEST_F(FrmDiscardedTest, ActsOnTheRowsByTheKeysOfTheListOnly) {
  DiscardThree();
  EXPECT_FALSE(Choose([this] {
    for (const char* const next : {"btnOpen", "btnDelete", "btnClose"}) {
      Key(Qt::Key_Tab);
      ASSERT_EQ(dialog_->focusWidget(), &Button(next)) << "the rows are left by Tab";
      for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Return, Qt::Key_Enter}) Key(key);
      EXPECT_TRUE(dialog_->isVisible()) << next;
      EXPECT_FALSE(Button(next).isDefault()) << next;
    }
    EXPECT_EQ(List().rowCount(), 3);
  }));
}

TEST_F(FrmDiscardedTest, DoesNothingByOtherKeys) {
  DiscardThree();
  EXPECT_FALSE(Choose([this] {
    for (const Qt::Key key : {Qt::Key_F5, Qt::Key_Insert}) Key(key);
    EXPECT_TRUE(dialog_->isVisible());
    EXPECT_EQ(List().rowCount(), 3);
  }));
}

TEST_F(FrmDiscardedTest, HasNothingToActOnWhereNoRowIsChosen) {
  const auto nothing = [this] {
    for (const char* const name : {"btnOpen", "btnDelete"}) EXPECT_FALSE(Button(name).isEnabled()) << name;
    EXPECT_TRUE(Button("btnClose").isEnabled());
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) Key(key);
    EXPECT_TRUE(dialog_->isVisible());
  };
  EXPECT_FALSE(Choose([this, &nothing] {
    nothing();
    Key(Qt::Key_Delete);
  }));
  DiscardThree();
  EXPECT_FALSE(Choose([this, &nothing] {
    EXPECT_TRUE(Button("btnOpen").isEnabled() && Button("btnDelete").isEnabled());
    List().clearSelection();
    nothing();
  }));
}

// Deleting

TEST_F(FrmDiscardedTest, AsksBeforeItDeletesAndShowsWhatIsLeft) {
  DiscardThree();
  EXPECT_FALSE(Choose([this] {
    const auto press = [this] { QTest::mouseClick(&Button("btnDelete"), Qt::LeftButton); };
    const QString question = "Vymazat nadobro sadu „%1“ (5. 3. 2026 14.0%2)?";
    EXPECT_EQ(Answering({"no"}, press), QStringList(question.arg("Treti").arg(3)));
    EXPECT_EQ(Column(1), (QStringList{"Treti", "Druha", "Prvni"}));
    List().selectRow(2);
    EXPECT_EQ(Answering({"yes"}, press), QStringList(question.arg("Prvni").arg(1)));
    EXPECT_EQ(Column(1), (QStringList{"Treti", "Druha"}));
    EXPECT_EQ(List().currentRow(), 1) << "the one that is the last now";
    EXPECT_EQ(Answering({"yes"}, press), QStringList(question.arg("Druha").arg(2)));
    Activate();
    List().setFocus();
    const auto key = [this] { QTest::keyClick(&List(), Qt::Key_Delete); };
    EXPECT_EQ(Answering({"yes"}, key), QStringList(question.arg("Treti").arg(3)));
    EXPECT_EQ(List().rowCount(), 0);
    EXPECT_FALSE(Button("btnDelete").isEnabled());
  }));
  EXPECT_TRUE(store_.Discarded().empty());
}

// The window

TEST_F(FrmDiscardedTest, RemembersItsSize) {
  Choose([this] {
    EXPECT_EQ(dialog_->objectName(), "frmDiscarded") << "the name that its size is kept by";
    EXPECT_EQ(dialog_->size(), QSize(620, 360));
    dialog_->resize(701, 402);
  });
  Choose([this] { EXPECT_EQ(dialog_->size(), QSize(701, 402)); });
}

}  // namespace
}  // namespace zorik
