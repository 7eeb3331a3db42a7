// What the window of the cave editor shows around the cave: its buttons with their pictures, its tools, its
// place.
#include <QMenu>
#include <QScreen>
#include <QStatusBar>

#include "editors/EditorScreen.h"
#include "editors/Formality.h"
#include "editors/ToolHint.h"
#include "screens/PlainText.h"

namespace zorik {
namespace {

using test::Picture;

const Picture kRoom = {"WWWWWW", "W1...W", "W....W", "W..A.W", "WWWWWW"};

class FrmMainLooksTest : public testing::Test, public test::EditorScreen {
 protected:
  FrmMainLooksTest() { Open(kRoom); }

  static QImage Look(const QIcon& icon) { return icon.pixmap(20).toImage(); }
  QImage Look(const char* name) const { return Look(Child<QToolButton>(name).icon()); }

  bool IsChecked(const char* tool) const { return Action(tool).isChecked(); }
};

// Counts what is painted of some widgets.
class Painted : public QObject {
 public:
  explicit Painted(const std::vector<QWidget*>& widgets) {
    QApplication::processEvents();
    for (QWidget* const widget : widgets) widget->installEventFilter(this);
  }
  bool Has(QWidget* widget) const {
    return QTest::qWaitFor([this, widget] { return painted_.contains(widget); });
  }
  void Clear() { painted_.clear(); }
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::Paint) painted_ << object;
    return false;
  }

 private:
  QList<QObject*> painted_;
};

TEST_F(FrmMainLooksTest, GivesEachButtonAPictureAndWords) {
  std::vector<QImage> pictures;
  for (const char* const name : {"Label7", "Label3", "Label8", "Command1", "Command2"}) {
    const auto& button = Child<QToolButton>(name);
    EXPECT_FALSE(button.icon().isNull()) << name;
    EXPECT_EQ(button.iconSize(), QSize(20, 20)) << name;
    EXPECT_EQ(button.focusPolicy(), Qt::TabFocus) << name << ": a click leaves the keys with the cave";
    pictures.push_back(Look(name));
  }
  for (std::size_t i = 0; i < pictures.size(); ++i) {
    for (std::size_t j = i + 1; j < pictures.size(); ++j)
      EXPECT_NE(pictures[i], pictures[j]) << i << ' ' << j;
  }
  const std::pair<const char*, const char*> kWords[] = {
      {"Label7", "caption.main.edit"}, {"Label3", "caption.main.props"}, {"Label8", "caption.main.test"}};
  for (const auto& [name, key] : kWords) {
    EXPECT_EQ(Child<QToolButton>(name).text().trimmed(), InMenu(skin.Caption(key))) << name;
    EXPECT_EQ(Child<QToolButton>(name).toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
  }
  const std::pair<const char*, const char*> kSpoken[] = {{"Command1", "caption.main.cat"},
                                                         {"Command2", "caption.main.dogs"}};
  for (const auto& [name, key] : kSpoken) {
    EXPECT_EQ(Child<QToolButton>(name).accessibleName(), skin.Caption(key));
    EXPECT_FALSE(Child<QToolButton>(name).toolTip().isEmpty());
  }
}

TEST_F(FrmMainLooksTest, ShowsTheTilesOfTheCaveOnItsButtonsAndInTheMenuOfTheDogs) {
  EditTiles tiles;
  tiles.Load(skin.Places(), kColourings[EntryOfColouring(window->Model().Cave().Colouring)].scheme);
  const auto same = [](const QImage& one, const QImage& other) {
    return one.convertToFormat(QImage::Format_RGB32) == other.convertToFormat(QImage::Format_RGB32);
  };
  EXPECT_TRUE(same(Look("Command1"), tiles.Tile(ToolOfLetter('J'), 1, 20)));
  EXPECT_TRUE(same(Look("Command2"), tiles.Tile(kDogTool, 1, 20)));
  for (int n = 1; n <= kDogs; ++n) {
    const QAction& dog = Action(qPrintable(QString("Dog(%1)").arg(n)));
    EXPECT_TRUE(same(Look(dog.icon()), tiles.Tile(kDogTool, n, 20))) << n;
  }
  bool found = false;
  for (const QLabel* const label : window->findChildren<QLabel*>()) {
    if (label->pixmap().isNull()) continue;
    found = found || same(label->pixmap().toImage(), tiles.Tile(ToolOfLetter('A'), 1, 20));
  }
  EXPECT_TRUE(found) << "an amoeba stands beside its number";
}

TEST_F(FrmMainLooksTest, PaintsItsTilesAnewInAnotherSkin) {
  auto& hint = Child<ToolHint>("ToolHint");
  const std::vector<QWidget*> widgets{&Tiles(), &hint, &Area()};
  Painted painted(widgets);
  window->SetLW();
  for (QWidget* const widget : widgets)
    EXPECT_TRUE(painted.Has(widget)) << widget->objectName().toStdString();
}

TEST_F(FrmMainLooksTest, ShowsTheToolInUseInItsMenuAndBesideTheCave) {
  const char* const kTools[] = {"mnuLine", "mnuRectangle", "mnuBox", "mnuFill", "mnuSelect", "mnuPencil"};
  EXPECT_TRUE(IsChecked("mnuPencil"));
  for (const char* const chosen : kTools) {
    auto& button = Child<QToolButton>(qPrintable(QString("btn%1").arg(QString(chosen).mid(3))));
    QTest::mouseClick(&button, Qt::LeftButton);
    for (const char* const tool : kTools) EXPECT_EQ(IsChecked(tool), tool == chosen) << chosen << ' ' << tool;
    EXPECT_TRUE(button.isChecked()) << chosen;
    EXPECT_FALSE(button.icon().isNull()) << chosen;
  }
  for (const char* const other : {"btnGrid", "btnWhole"})
    EXPECT_FALSE(Child<QToolButton>(other).icon().isNull());
}

TEST_F(FrmMainLooksTest, OffersWhatIsDoneWithAPartOnlyWhereThereIsOne) {
  const char* const kOfSelection[] = {"mnuCut", "mnuCopy"};
  const char* const kOfPart[] = {"mnuClear", "mnuMirrorAside", "mnuMirrorUpright", "mnuTurnRight",
                                 "mnuTurnLeft"};
  const auto expect = [&](bool selection, bool part, const char* when) {
    for (const char* const name : kOfSelection)
      EXPECT_EQ(Action(name).isEnabled(), selection) << name << when;
    for (const char* const name : kOfPart) EXPECT_EQ(Action(name).isEnabled(), part) << name << when;
    EXPECT_TRUE(Action("mnuPaste").isEnabled()) << when;
    EXPECT_TRUE(Action("mnuSelectAll").isEnabled()) << when;
  };
  expect(false, false, " at first");
  Action("mnuSelectAll").trigger();
  expect(true, true, " with a selection");
  Action("mnuCopy").trigger();
  Action("mnuPaste").trigger();
  expect(false, true, " with a part in the hand");
  QTest::keyClick(&Area(), Qt::Key_Return);
  expect(true, true, " put down");
  QTest::keyClick(&Area(), Qt::Key_Escape);
  expect(false, false, " given up");
  Action("mnuPaste").trigger();
  expect(false, true, " with a part in the hand and no selection");
}

TEST_F(FrmMainLooksTest, StandsInTheMiddleOfTheScreenWithTheSizeOfItsPartsAtFirst) {
  MakeWindow();
  const QRect screen = window->screen()->availableGeometry();
  const QSize most = screen.size();
  EXPECT_LE(window->width(), most.width());
  EXPECT_LE(window->height(), most.height());
  const QSize wanted = window->sizeHint().boundedTo(most);
  EXPECT_GE(window->width(), wanted.width() - 40);
  EXPECT_LE(window->width(), wanted.width());
  const QPoint off = QRect(window->pos(), window->size()).center() - screen.center();
  EXPECT_LE(std::abs(off.x()), 40);
  EXPECT_LE(std::abs(off.y()), 60);
}

TEST_F(FrmMainLooksTest, GoesFromTheDogsToTheTilesToTheCaveWithTab) {
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  auto& dogs = Child<QToolButton>("Command2");
  dogs.setFocus();
  QTest::keyClick(&dogs, Qt::Key_Tab);
  EXPECT_TRUE(Tiles().hasFocus());
  QTest::keyClick(&Tiles(), Qt::Key_Tab);
  EXPECT_TRUE(Area().hasFocus());
}

TEST_F(FrmMainLooksTest, KeepsTheToolOfItsStatusBarAtTheEdgeAndItsWordsBetween) {
  const auto left = [](const QWidget& widget) { return widget.mapToGlobal(QPoint(0, 0)).x(); };
  const auto& cell = Child<QLabel>("lblCell");
  const auto& size = Child<QLabel>("lblSize");
  const auto& hint = Child<ToolHint>("ToolHint");
  EXPECT_LT(left(cell), left(hint));
  EXPECT_LT(left(hint), left(size));
  EXPECT_EQ(size.text(), "6 × 5   100 %");
  window->statusBar()->showMessage("x");
  EXPECT_FALSE(cell.isVisible());
  EXPECT_TRUE(size.isVisible()) << "a message leaves it";
  EXPECT_TRUE(hint.isVisible());
}

TEST_F(FrmMainLooksTest, TellsAsMuchOfTheToolsUseAsThereIsRoomFor) {
  auto& words = *Child<QLabel>("lblTool").parentWidget();
  auto& label = Child<QLabel>("lblTool");
  words.resize(2000, words.height());
  const QString whole = label.text();
  EXPECT_FALSE(whole.endsWith(QChar(0x2026)));
  words.resize(100, words.height());
  EXPECT_TRUE(label.text().endsWith(QChar(0x2026))) << label.text().toStdString();
  EXPECT_LE(label.fontMetrics().horizontalAdvance(label.text()), 100);
  words.resize(2000, words.height());
  EXPECT_EQ(label.text(), whole);
  Action("mnuSelectAll").trigger();
  EXPECT_TRUE(label.text().startsWith("6 × 5   ")) << "the size of what is selected";
  EXPECT_TRUE(label.text().endsWith(whole));
}

TEST_F(FrmMainLooksTest, KeepsItsSizeUnderItsName) {
  window->close();
  const QSettings store(QSettings::IniFormat, QSettings::UserScope, "Ortvan", "Zorik2");
  EXPECT_TRUE(store.contains("Editors/frmMain"));
}

TEST_F(FrmMainLooksTest, PartsTheToolsFromWhatTheViewShows) {
  window->resize(window->width(), window->height() + 200);
  QApplication::processEvents();
  const auto at = [this](const char* name) { return Child<QToolButton>(name).geometry(); };
  const int between = at("btnLine").top() - at("btnPencil").bottom();
  EXPECT_EQ(at("btnSelect").top() - at("btnFill").bottom(), between);
  EXPECT_EQ(at("btnWhole").top() - at("btnGrid").bottom(), between);
  EXPECT_GT(at("btnGrid").top() - at("btnSelect").bottom(), between);
}

}  // namespace
}  // namespace zorik
