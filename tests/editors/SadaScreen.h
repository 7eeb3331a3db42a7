#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QHelpEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSettings>
#include <QTest>
#include <QTextDocumentFragment>
#include <QToolTip>
#include <memory>
#include <string>
#include <vector>

#include "data/Cp1250.h"
#include "data/Files.h"
#include "data/Result.h"
#include "editors/Dialogs.h"
#include "editors/FrmSada.h"
#include "editors/SadaList.h"
#include "screens/Folder.h"
#include "skin/Skin.h"

namespace zorik::test {

// The collection editor in the default skin, with a folder of collections of its own.
class SadaScreen {
 public:
  SadaScreen() {
    QSettings(QSettings::IniFormat, QSettings::UserScope, "Ortvan", "Zorik2").clear();
    EXPECT_TRUE(skin.Apply(SkinPlaces{ZORIK_SKINS, "Default"}));
    MakeWindow();
  }

  void MakeWindow() {
    window = std::make_unique<FrmSada>(skin, folder.Paths(), sada);
    QObject::connect(window.get(), &FrmSada::EditCave, window.get(), [this](const std::string& text) {
      edited.push_back(text);
      changedWhileEdited = Sada().Chg();
    });
    QObject::connect(window.get(), &FrmSada::Closed, window.get(), [this] { ++closed; });
  }

  void Open(const std::string& path = {}) {
    window->Open(QString::fromStdString(path));
    Activate();
  }

  // Writes a collection of caves with these names and opens it; the open ones are marked by "*" in front.
  void OpenCaves(const std::vector<std::string>& names) {
    EditedCollection collection;
    collection.Name = "Sada";
    collection.Author = "Eva";
    collection.Mail = "eva@priklad.cz";
    collection.Description = "Popis";
    collection.CongratulationText = "Hura";
    for (std::size_t i = 0; i < names.size(); ++i) {
      const bool marked = names[i].front() == '*';
      collection.CaveList.push_back(OneStepCave(marked ? names[i].substr(1) : names[i]));
      collection.OpenFlags.set(i + 1, marked);
    }
    Chance chance;
    const auto bytes = BuildCollection(collection, chance);
    ASSERT_TRUE(bytes);
    folder.File("Caves/a.zk", *bytes);
    Open(Path("a.zk"));
  }
  void OpenMany(int count) {
    std::vector<std::string> names;
    for (int i = 1; i <= count; ++i) names.push_back("K" + std::to_string(i));
    OpenCaves(names);
  }

  // The hint of a place in the list, with the breaks of its lines.
  QString HintAt(QPoint place) const {
    QToolTip::hideText();
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
    QHelpEvent event(QEvent::ToolTip, place, List().viewport()->mapToGlobal(place));
    QApplication::sendEvent(List().viewport(), &event);
    return QToolTip::isVisible() ? QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText()
                                 : QString();
  }

  std::string Path(const std::string& file) const { return folder.Root() + "/Caves/" + file; }
  std::vector<std::string> Lines(const std::string& file) const {
    const auto bytes = ReadWhole(Path(file));
    EXPECT_TRUE(bytes) << file;
    return bytes ? PlainLines(*bytes) : std::vector<std::string>();
  }

  std::string Line(const std::string& file, std::size_t place) const {
    const std::vector<std::string> lines = Lines(file);
    return place < lines.size() ? lines[place] : std::string();
  }
  std::string Bytes(const std::string& file) const {
    const auto bytes = ReadWhole(Path(file));
    EXPECT_TRUE(bytes) << file;
    return bytes ? *bytes : std::string();
  }

  const SadaModel& Sada() const { return window->Sada(); }
  std::vector<std::string> Rows() const {
    std::vector<std::string> rows;
    for (int i = 1; i <= Sada().ListCount(); ++i) {
      rows.push_back((Sada().IsOpen(i) ? "*" : "") + ToUtf8(Sada().Name(i)));
    }
    return rows;
  }

  template <class Widget>
  Widget& Child(const char* name) const {
    Widget* const child = window->findChild<Widget*>(name);
    EXPECT_NE(child, nullptr) << name;
    return *child;
  }
  QAction& Action(const char* name) const { return Child<QAction>(name); }
  QLineEdit& Box(const char* name) const { return Child<QLineEdit>(name); }
  QPlainTextEdit& Text4() const { return Child<QPlainTextEdit>("Text4"); }
  SadaList& List() const { return Child<SadaList>("CaveList"); }
  QScrollBar& VScroll1() const { return Child<QScrollBar>("VScroll1"); }

  // Without a desktop nobody gives the focus back when the busy notice has gone, which swallows what the
  // author does until the event loop has run once more.
  void Activate() const {
    QCoreApplication::processEvents();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  }

  // Types any letters, also those that no key of a plain keyboard has.
  static void Type(QWidget& box, const QString& text) {
    for (const QChar letter : text) {
      for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, 0, Qt::NoModifier, QString(letter));
        QApplication::sendEvent(&box, &event);
      }
    }
  }

  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const {
    Activate();
    QWidget* const focus = window->focusWidget();
    QTest::keyClick(focus != nullptr ? focus : window.get(), key, modifiers);
  }
  void ClickCave(int number) const {
    QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, List().lblCave(number).center());
  }
  void ClickMark(int number) const {
    QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, List().lblPoc(number).center());
  }
  // Whether something is written or drawn in a part of the list.
  bool Seen(const QRect& part) const {
    const QImage row = List().viewport()->grab(part.adjusted(2, 2, -2, -2)).toImage();
    for (int x = 0; x < row.width(); ++x) {
      for (int y = 0; y < row.height(); ++y) {
        if (row.pixel(x, y) != row.pixel(0, 0)) return true;
      }
    }
    return false;
  }
  // Whether somebody would see a mark in the row of a cave.
  bool MarkSeen(int number) const { return Seen(List().lblPoc(number)); }

  Folder folder;
  Skin skin;
  Dialogs dialogs;
  std::vector<std::string> edited;
  bool changedWhileEdited = false;
  int closed = 0;
  SadaModel sada{SadaWords(), 1};
  std::unique_ptr<FrmSada> window;
};

using Names = std::vector<std::string>;

// A test of this window. At its end all dialogs that were foreseen have been there, and no others.
class SadaWindowTest : public testing::Test, protected SadaScreen {
 protected:
  void TearDown() override { EXPECT_TRUE(dialogs.Done()) << dialogs.said.join(" | ").toStdString(); }

  // Types something into a box in place of what it holds.
  void TypeInto(const char* box, const QString& text) const {
    Activate();
    Child<QWidget>(box).setFocus();
    Key(Qt::Key_A, Qt::ControlModifier);
    Type(Child<QWidget>(box), text);
  }
  void TypeName(const QString& name) const { TypeInto("Text3", name); }
};

}  // namespace zorik::test
