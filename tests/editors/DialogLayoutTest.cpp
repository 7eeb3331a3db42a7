// How the dialogs of the cave editor lie: what stands beside what, and what takes the room when they grow.
#include <QComboBox>
#include <QHeaderView>
#include <QMenuBar>
#include <QSpinBox>
#include <QTableWidget>
#include <QTreeWidget>

#include "editors/Formality.h"
#include "editors/FormalityScreen.h"
#include "editors/FrmShortcuts.h"
#include "editors/Placing.h"
#include "editors/ResizeBox.h"

namespace zorik {
namespace {

using test::ExpectColumn;
using test::ExpectLine;
using test::ExpectTidy;
using test::PlaceIn;

class DialogLayoutTest : public test::FormalityWindowTest {
 protected:
  static QWidget& Part(const QWidget& dialog, const char* name) {
    QWidget* const part = dialog.findChild<QWidget*>(name);
    EXPECT_NE(part, nullptr) << name;
    return *part;
  }
  static QLabel& LabelOf(const QWidget& dialog, const char* name) {
    for (QLabel* const label : dialog.findChildren<QLabel*>()) {
      if (label->buddy() != nullptr && label->buddy()->objectName() == name) return *label;
    }
    ADD_FAILURE() << "no label of " << name;
    return *dialog.findChild<QLabel*>();
  }
  void In(const char* dialog, const char* action, const std::function<void(QWidget&)>& act) const {
    test::InDialogNamed box(dialog, act);
    Action(action).trigger();
    EXPECT_TRUE(box.opened);
  }
  void Grow(QWidget& dialog, int width, int height) const {
    dialog.resize(dialog.width() + width, dialog.height() + height);
    QCoreApplication::processEvents();
  }
  static int Right(const QWidget& dialog, const char* name) {
    return PlaceIn(dialog, Part(dialog, name)).right();
  }
};

// The properties

TEST_F(DialogLayoutTest, ThePropertiesStandRowByRowWithTheirLabelsBefore) {
  Dialog([](QWidget& it) {
    EXPECT_TRUE(it.isModal());
    ExpectTidy(it);
    std::vector<const char*> boxes{"Text3", "Text4"};
    for (const NumberRow& row : kNumberRows) boxes.push_back(row.control);
    boxes.push_back("Combo1");
    std::vector<const QWidget*> column;
    for (const char* const name : boxes) {
      const QWidget& box = Part(it, name);
      const QLabel& label = LabelOf(it, name);
      column.push_back(&box);
      ExpectLine(it, {&label, &box});
      EXPECT_EQ(PlaceIn(it, box).left(), PlaceIn(it, *column.front()).left()) << name;
      EXPECT_EQ(PlaceIn(it, label).left(), PlaceIn(it, LabelOf(it, "Text3")).left()) << name;
    }
    ExpectColumn(it, column);
    const QRect text = PlaceIn(it, Part(it, "Text4"));
    EXPECT_LT(PlaceIn(it, LabelOf(it, "Text4")).bottom(), text.center().y()) << "at its first line";
    EXPECT_GT(text.height(), 4 * it.fontMetrics().lineSpacing());
  });
}

TEST_F(DialogLayoutTest, TheQuestionsStandBesideTheNumbersThatTheyAreAbout) {
  Dialog([](QWidget& it) {
    const auto beside = [&it](const char* box, const std::vector<const char*>& buttons) {
      std::vector<const QWidget*> line{&Part(it, box)};
      for (const char* const name : buttons) line.push_back(&Part(it, name));
      ExpectLine(it, line);
    };
    beside("Text3", {"Command3"});
    beside("Text5", {"Command5"});
    beside("Text6", {"Command4"});
    beside("Text8", {"Command6", "Command8"});
    beside("Text11", {"Command7"});
    const QRect ok = PlaceIn(it, Part(it, "Command1")), cancel = PlaceIn(it, Part(it, "Command2"));
    ExpectLine(it, {&Part(it, "Command1"), &Part(it, "Command2")});
    EXPECT_GT(ok.top(), PlaceIn(it, Part(it, "Combo1")).bottom());
    EXPECT_GT(ok.left(), it.width() / 2) << "at the right end";
    EXPECT_LT(it.width() - cancel.right(), 30);
    EXPECT_GT(Right(it, "Text4"), Right(it, "Command5") - 2) << "as wide as all that is beside the labels";
    EXPECT_GT(Right(it, "Text3"), Right(it, "Text5"));
  });
}

TEST_F(DialogLayoutTest, TheDescriptionTakesTheRoomOfLargerProperties) {
  Dialog([](QWidget& it) {
    const auto size = [&it](const char* name) { return Part(it, name).size(); };
    const QSize text = size("Text4"), name = size("Text3"), number = size("Text1"), list = size("Combo1");
    const QSize short_ = size("Command6");
    it.resize(it.width() + 150, it.height() + 120);
    QCoreApplication::processEvents();
    EXPECT_EQ(size("Text4"), text + QSize(150, 120));
    EXPECT_EQ(size("Text3").height(), name.height());
    EXPECT_EQ(size("Text1"), number);
    EXPECT_EQ(size("Combo1").height(), list.height());
    EXPECT_EQ(size("Command6"), short_);
    ExpectTidy(it);
  });
}

TEST_F(DialogLayoutTest, ANoteStandsUnderTheBoxThatItIsAbout) {
  Dialog([](QWidget& it) {
    const QString foreign = QString::fromUtf8("\u0434");
    Box(it, "Text3").setText(foreign);
    Description(it).setPlainText(foreign);
    QCoreApplication::processEvents();
    ExpectTidy(it);
    for (const char* const name : {"Text3", "Text4"}) {
      const QWidget& note = Part(it, (std::string("lblNote.") + name).c_str());
      ASSERT_TRUE(note.isVisible()) << name;
      ExpectColumn(it, {&Part(it, name), &note});
      EXPECT_EQ(PlaceIn(it, note).left(), PlaceIn(it, Part(it, name)).left()) << name;
      EXPECT_EQ(PlaceIn(it, note).right(), Right(it, "Text4")) << "it has room for its words";
    }
    EXPECT_LT(PlaceIn(it, Part(it, "lblNote.Text3")).bottom(), PlaceIn(it, Part(it, "Text4")).top());
    EXPECT_LT(PlaceIn(it, Part(it, "lblNote.Text4")).bottom(), PlaceIn(it, Part(it, "Text1")).top());
  });
}

TEST_F(DialogLayoutTest, ThePropertiesAreLeftWithTheTabKeyRowByRow) {
  Dialog([](QWidget& it) {
    it.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&it));
    QStringList order;
    for (int i = 0; i < 20; ++i) {
      order << it.focusWidget()->objectName();
      QTest::keyClick(it.focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(order,
              QStringList({"Text3",    "Command3", "Text4",    "Text1",  "Text2",    "Text5",   "Command5",
                           "Text6",    "Command4", "Text9",    "Text10", "Text7",    "Text8",   "Command6",
                           "Command8", "Text11",   "Command7", "Combo1", "Command1", "Command2"}));
    EXPECT_EQ(it.focusWidget()->objectName(), "Text3") << "and round again";
  });
}

// The sides of the cave

TEST_F(DialogLayoutTest, TheSidesLieAroundThePictureAsInTheCave) {
  In("frmResize", "mnuResize", [this](QWidget& it) {
    EXPECT_EQ(it.windowTitle(), skin.Caption("caption.main.resize"));
    ExpectTidy(it);
    const QRect picture = PlaceIn(it, Part(it, "imgResized"));
    const auto place = [&it](const char* name) { return PlaceIn(it, Part(it, name)); };
    EXPECT_LT(place("spnLeft").right(), picture.left());
    EXPECT_GT(place("spnRight").left(), picture.right());
    EXPECT_LT(place("spnTop").bottom(), picture.top());
    EXPECT_GT(place("spnBottom").top(), picture.bottom());
    for (const char* const name : {"spnTop", "spnBottom"})
      EXPECT_NEAR(place(name).center().x(), picture.center().x(), 2) << name;
    EXPECT_GT(place("lblNewSize").top(), place("spnBottom").bottom());
    const auto* const ok = it.findChild<QPushButton*>();
    EXPECT_TRUE(ok->isDefault());
    EXPECT_GT(PlaceIn(it, *ok).top(), place("lblNewSize").bottom());
    EXPECT_EQ(it.focusWidget(), &Part(it, "spnLeft"));
  });
}

TEST_F(DialogLayoutTest, EachSideIsCalledByItsNameCloseAboveItsNumber) {
  In("frmResize", "mnuResize", [this](QWidget& it) {
    const auto named = [&](const char* name, const char* key) {
      const QWidget& side = Part(it, name);
      EXPECT_EQ(side.accessibleName(), skin.Caption(key));
      const QLabel* label = nullptr;
      for (const QLabel* const one : it.findChildren<QLabel*>()) {
        if (one->text() == skin.Caption(key)) label = one;
      }
      ASSERT_NE(label, nullptr) << name;
      ExpectColumn(it, {label, &side});
      EXPECT_NEAR(PlaceIn(it, *label).center().x(), PlaceIn(it, side).center().x(), 2) << name;
      EXPECT_TRUE(label->alignment().testFlag(Qt::AlignHCenter)) << name;
    };
    named("spnLeft", "caption.main.side.left");
    named("spnTop", "caption.main.side.top");
    named("spnRight", "caption.main.side.right");
    named("spnBottom", "caption.main.side.bottom");
    EXPECT_TRUE(it.findChild<QLabel*>("lblNewSize")->alignment().testFlag(Qt::AlignHCenter));
    // In the middle of the picture's height.
    const QRect picture = PlaceIn(it, Part(it, "imgResized"));
    for (const char* const name : {"spnLeft", "spnRight"}) {
      const QRect side = PlaceIn(it, Part(it, name));
      EXPECT_LT(std::abs(side.top() - picture.center().y()), 3 * side.height()) << name;
    }
  });
}

TEST_F(DialogLayoutTest, ThePictureTakesTheRoomOfALargerBoxOfSides) {
  In("frmResize", "mnuResize", [this](QWidget& it) {
    const QLabel* how = nullptr;
    for (const QLabel* const label : it.findChildren<QLabel*>()) {
      if (label->text() == skin.Caption("caption.main.side.how")) how = label;
    }
    ASSERT_NE(how, nullptr);
    EXPECT_LT(PlaceIn(it, *how).bottom(), PlaceIn(it, Part(it, "spnTop")).top());
    EXPECT_TRUE(how->wordWrap());
    const QSize least = Part(it, "imgResized").minimumSize();
    EXPECT_GT(least.width(), 100) << "something can be made out";
    EXPECT_GT(least.height(), 60);
    const QSize picture = Part(it, "imgResized").size(), side = Part(it, "spnLeft").size();
    Grow(it, 160, 120);
    EXPECT_EQ(Part(it, "imgResized").size(), picture + QSize(160, 120));
    EXPECT_EQ(Part(it, "spnLeft").size(), side);
    ExpectTidy(it);
  });
}

// The sheet of shortcuts

TEST_F(DialogLayoutTest, TheSheetIsAListAboveTheButtonThatShutsIt) {
  In("frmShortcuts", "mnuShortcuts", [this](QWidget& it) {
    ExpectTidy(it);
    auto& list = static_cast<QTreeWidget&>(Part(it, "lstShortcuts"));
    auto* const shut = it.findChild<QPushButton*>();
    ExpectColumn(it, {&list, shut});
    EXPECT_EQ(shut->text(), skin.Caption("caption.sada.close"));
    EXPECT_EQ(it.focusWidget(), &list) << "the arrows scroll it";
    const QSize before = list.size();
    Grow(it, 40, -60);
    EXPECT_EQ(list.size(), before + QSize(40, -60));
    shut->click();
    EXPECT_FALSE(it.isVisible());
  });
}

TEST_F(DialogLayoutTest, TheSheetShowsItsPartsOpenUnderBoldHeads) {
  In("frmShortcuts", "mnuShortcuts", [](QWidget& it) {
    auto& list = static_cast<QTreeWidget&>(Part(it, "lstShortcuts"));
    EXPECT_EQ(list.columnCount(), 2);
    EXPECT_TRUE(list.header()->isHidden());
    EXPECT_FALSE(list.rootIsDecorated());
    EXPECT_FALSE(list.itemsExpandable());
    EXPECT_TRUE(list.wordWrap());
    EXPECT_EQ(list.horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    int keys = 0;
    for (int i = 0; i < list.topLevelItemCount(); ++i) {
      const QTreeWidgetItem& part = *list.topLevelItem(i);
      EXPECT_TRUE(part.isExpanded()) << i;
      EXPECT_TRUE(part.isFirstColumnSpanned()) << i;
      EXPECT_TRUE(part.font(0).bold()) << i;
      for (int k = 0; k < part.childCount(); ++k) {
        EXPECT_FALSE(part.child(k)->font(0).bold());
        keys = std::max(keys, list.fontMetrics().horizontalAdvance(part.child(k)->text(0)));
      }
    }
    EXPECT_GT(list.columnWidth(0), keys + list.indentation()) << "the keys are seen as a whole";
    EXPECT_LT(list.columnWidth(0), list.viewport()->width()) << "and so is what they do";
  });
}

// The statistics

TEST_F(DialogLayoutTest, TheStatisticsStandAboveTheGemsAndTheButton) {
  In("frmStats", "mnuStats", [this](QWidget& it) {
    ExpectTidy(it);
    auto* const shut = it.findChild<QPushButton*>();
    ExpectColumn(it, {&Part(it, "lstStats"), &Part(it, "lblGems"), shut});
    EXPECT_EQ(shut->text(), skin.Caption("caption.sada.close"));
    EXPECT_TRUE(static_cast<QLabel&>(Part(it, "lblGems")).wordWrap());
    const int names = static_cast<QTableWidget&>(Part(it, "lstStats")).columnWidth(1);
    Grow(it, 80, 0);
    EXPECT_EQ(static_cast<QTableWidget&>(Part(it, "lstStats")).columnWidth(1), names + 80)
        << "the names take the room";
    shut->click();
    EXPECT_FALSE(it.isVisible());
  });
}

TEST_F(DialogLayoutTest, TheStatisticsAreRowsThatCanBeReadButNotChanged) {
  In("frmStats", "mnuStats", [](QWidget& it) {
    const auto& table = static_cast<QTableWidget&>(Part(it, "lstStats"));
    EXPECT_TRUE(table.horizontalHeader()->isHidden());
    EXPECT_TRUE(table.verticalHeader()->isHidden());
    EXPECT_FALSE(table.showGrid());
    EXPECT_EQ(table.selectionBehavior(), QAbstractItemView::SelectRows);
    EXPECT_EQ(table.iconSize(), QSize(26, 26));
    ASSERT_GT(table.rowCount(), 2);
    for (int row = 0; row < table.rowCount(); ++row) {
      EXPECT_GE(table.rowHeight(row), table.iconSize().height()) << "the tile has room";
      EXPECT_LT(table.rowHeight(row), 2 * table.iconSize().height());
      for (int column = 0; column < 3; ++column)
        EXPECT_EQ(table.item(row, column)->flags(), Qt::ItemIsEnabled | Qt::ItemIsSelectable);
      EXPECT_TRUE((Qt::Alignment(table.item(row, 2)->textAlignment())).testFlag(Qt::AlignRight));
      EXPECT_EQ(table.item(row, 0)->icon().actualSize(QSize(26, 26)), QSize(26, 26));
    }
    EXPECT_GE(table.columnWidth(0), 26);
    EXPECT_LT(table.columnWidth(0), 100);
    EXPECT_LT(table.columnWidth(2), 100);
  });
}

}  // namespace
}  // namespace zorik
