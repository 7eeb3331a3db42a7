#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextEdit>

#include "screens/FrmDialog2.h"
#include "screens/PostScreen.h"
#include "screens/Tones.h"

namespace zorik {
namespace {

using test::InDialog;

class FrmDialog2Test : public testing::Test, public test::PostHome {
 protected:
  static QTextEdit& Reading(QWidget& dialog) { return *dialog.findChild<QTextEdit*>("picText"); }
  static QPlainTextEdit& Editing(QWidget& dialog) { return *dialog.findChild<QPlainTextEdit*>("Text1"); }
  static bool Shown(const QWidget& dialog, const char* name) {
    return dialog.findChild<QWidget*>(name)->isVisible();
  }
  static void Click(QWidget& dialog, const char* name) {
    QTest::mouseClick(dialog.findChild<SkinButton*>(name), Qt::LeftButton);
  }

  // What editing this text answers when a player does this.
  std::optional<QString> Edit(const QString& text, const std::function<void(QWidget&)>& act) {
    const InDialog dialog(act);
    const auto answer = FrmDialog2(skin, nullptr).SetG(text);
    EXPECT_TRUE(dialog.Opened());
    return answer;
  }
};

TEST_F(FrmDialog2Test, KeepsBlanksThatDoNotBreak) {
  const QString text = QString("100") + QChar(0xA0) + "bodů";
  const auto answer = Edit(text, [](QWidget& box) { Click(box, "ok"); });
  ASSERT_TRUE(answer);
  EXPECT_EQ(*answer, text);
}

TEST_F(FrmDialog2Test, ShowsATextToBeReadWithOneButton) {
  const InDialog dialog([](QWidget& box) {
    EXPECT_EQ(box.windowTitle(), "Gratulace");
    EXPECT_EQ(box.size(), QSize(520, 360));
    EXPECT_EQ(Reading(box).toPlainText(), "Skvělé!\nBody: 00042");
    EXPECT_EQ(Reading(box).geometry(), QRect(40, 60, 440, 220));
    EXPECT_TRUE(Reading(box).isVisible());
    EXPECT_FALSE(Editing(box).isVisible());
    EXPECT_TRUE(Shown(box, "ok"));
    EXPECT_FALSE(Shown(box, "close"));
    EXPECT_FALSE(Shown(box, "help"));
    EXPECT_FALSE(Reading(box).testAttribute(Qt::WA_InputMethodEnabled)) << "nobody is to write into it";
    QTest::keyClicks(&Reading(box), "x");
    EXPECT_EQ(Reading(box).toPlainText(), "Skvělé!\nBody: 00042");
    Click(box, "ok");
  });
  FrmDialog2(skin, nullptr).ShowG("Skvělé!\r\nBody: 00042");
  EXPECT_TRUE(dialog.Opened());
  EXPECT_FALSE(dialog.Stayed());
}

TEST_F(FrmDialog2Test, ClosesAfterReadingByEnterAndEsc) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
    const InDialog dialog([key](QWidget& box) { QTest::keyClick(&Reading(box), key); });
    FrmDialog2(skin, nullptr).ShowG("a");
    EXPECT_TRUE(dialog.Opened());
    EXPECT_FALSE(dialog.Stayed()) << key;
  }
}

TEST_F(FrmDialog2Test, ShowsMarkupAsItIsWritten) {
  const InDialog dialog([](QWidget& box) { EXPECT_EQ(Reading(box).toPlainText(), "<b>a</b> & b"); });
  FrmDialog2(skin, nullptr).ShowG("<b>a</b> & b");
  EXPECT_TRUE(dialog.Opened());
}

TEST_F(FrmDialog2Test, ScrollsALongTextFromItsStartByKeys) {
  const InDialog dialog([](QWidget& box) {
    EXPECT_EQ(Reading(box).verticalScrollBar()->value(), 0);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
    EXPECT_EQ(QApplication::focusWidget(), &Reading(box));
    QTest::keyClick(&Reading(box), Qt::Key_PageDown);
    EXPECT_GT(Reading(box).verticalScrollBar()->value(), 0);
  });
  FrmDialog2(skin, nullptr).ShowG(QString("Gratuluji! ").repeated(300));
  EXPECT_TRUE(dialog.Opened());
}

TEST_F(FrmDialog2Test, ShowsThreeButtonsForEditing) {
  Edit("a", [](QWidget& box) {
    EXPECT_TRUE(Editing(box).isVisible());
    EXPECT_FALSE(Reading(box).isVisible());
    ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
    EXPECT_EQ(QApplication::focusWidget(), &Editing(box)) << "it can be written into at once";
    for (const char* name : {"ok", "close", "help"}) EXPECT_TRUE(Shown(box, name)) << name;
  });
}

TEST_F(FrmDialog2Test, KeepsATextOfSeveralLines) {
  const auto answer = Edit("Skvělé!\r\n\r\nBody: $P", [](QWidget& box) {
    Editing(box).moveCursor(QTextCursor::End);
    QTest::keyClick(&Editing(box), Qt::Key_Return);
    QTest::keyClicks(&Editing(box), "Konec");
    Click(box, "ok");
  });
  EXPECT_EQ(answer, "Skvělé!\r\n\r\nBody: $P\r\nKonec");
}

TEST_F(FrmDialog2Test, TakesOverByCtrlEnter) {
  const auto answer =
      Edit("a", [](QWidget& box) { QTest::keyClick(&Editing(box), Qt::Key_Return, Qt::ControlModifier); });
  EXPECT_EQ(answer, "a");
}

TEST_F(FrmDialog2Test, DropsChangesByItsCloseButtonAndEsc) {
  EXPECT_EQ(Edit("a", [](QWidget& box) { Click(box, "close"); }), std::nullopt);
  EXPECT_EQ(Edit("a", [](QWidget& box) { QTest::keyClick(&Editing(box), Qt::Key_Escape); }), std::nullopt);
  EXPECT_EQ(Edit("a", [](QWidget& box) { box.close(); }), std::nullopt);
}

TEST_F(FrmDialog2Test, ShowsTheBeginningOfATextThatNoBoxCanHold) {
  const QString text(1000000, 'x');
  const InDialog dialog([](QWidget& box) {
    const QString shown = Reading(box).toPlainText();
    EXPECT_EQ(shown.size(), 20001);
    EXPECT_TRUE(shown.endsWith(QChar(0x2026)));
    Click(box, "ok");
  });
  FrmDialog2(skin, nullptr).ShowG(text);
  EXPECT_TRUE(dialog.Opened());
}

TEST_F(FrmDialog2Test, LeavesATextThatNoBoxCanHoldAsItIs) {
  const auto answer = Edit(QString(1000000, 'x'), [](QWidget& box) {
    EXPECT_EQ(Editing(box).toPlainText().size(), 20001);
    QTest::keyClicks(&Editing(box), "y");
    EXPECT_FALSE(Editing(box).toPlainText().contains('y'));
    Click(box, "ok");
  });
  EXPECT_EQ(answer, std::nullopt);
}

TEST_F(FrmDialog2Test, AsksForHelpAndStays) {
  FrmDialog2 dialog(skin, nullptr);
  QSignalSpy help(&dialog, &FrmDialog2::HelpWanted);
  const InDialog opened([](QWidget& box) { Click(box, "help"); });
  dialog.SetG("a");
  EXPECT_EQ(help.size(), 1);
  EXPECT_TRUE(opened.Stayed());
}

TEST_F(FrmDialog2Test, AsksForHelpByF1WhileItIsEdited) {
  FrmDialog2 dialog(skin, nullptr);
  QSignalSpy help(&dialog, &FrmDialog2::HelpWanted);
  const auto press = [](QWidget& box) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
    QTest::keyClick(box.windowHandle(), Qt::Key_F1);
    EXPECT_TRUE(box.isVisible());
    QTest::keyClick(&box, Qt::Key_Escape);
  };
  {
    const InDialog opened(press);
    dialog.SetG("Hura");
  }
  EXPECT_EQ(help.size(), 1);
  const InDialog opened(press);
  dialog.ShowG("Hura");
  EXPECT_EQ(help.size(), 1) << "there is no such button when it is read";
}

TEST_F(FrmDialog2Test, NamesLettersThatNoFileCanHoldBelowTheBox) {
  Edit("Hura", [](QWidget& box) {
    const QRect whole = Editing(box).geometry();
    EXPECT_FALSE(Shown(box, "lblNote.Text1"));
    Editing(box).insertPlainText("猫");
    const auto& note = *box.findChild<QLabel*>("lblNote.Text1");
    EXPECT_TRUE(note.isVisible());
    EXPECT_EQ(note.text(), "Z těchto znaků budou v souboru otazníky: 猫");
    const QColor ink = note.palette().color(QPalette::WindowText);
    EXPECT_GT(ink.red(), 2 * std::max(ink.green(), ink.blue())) << "it is red: something goes wrong";
    EXPECT_GE(Contrast(ink, note.palette().color(QPalette::Window)), 4.5);
    EXPECT_EQ(note.geometry().top(), Editing(box).geometry().bottom() + 1);
    EXPECT_EQ(note.geometry().united(Editing(box).geometry()), whole);
    QTest::keyClick(&Editing(box), Qt::Key_Backspace);
    EXPECT_FALSE(note.isVisible());
    EXPECT_EQ(Editing(box).geometry(), whole);
    Click(box, "ok");
  });
}

TEST_F(FrmDialog2Test, LeavesTheKeysOfItsParentAloneOnceItIsRead) {
  QLineEdit parent;
  parent.show();
  FrmDialog2 dialog(skin, &parent);
  const InDialog opened([](QWidget& box) { Click(box, "ok"); });
  dialog.ShowG("a");
  QSignalSpy entered(&parent, &QLineEdit::returnPressed);
  QTest::keyClick(&parent, Qt::Key_Return);
  EXPECT_EQ(entered.size(), 1);
}

TEST_F(FrmDialog2Test, HasTheLinesOfACongratulationInTheMiddle) {
  const InDialog dialog([](QWidget& box) {
    const QTextEdit& text = Reading(box);
    for (QTextBlock line = text.document()->firstBlock(); line.isValid(); line = line.next())
      EXPECT_TRUE(line.blockFormat().alignment().testFlag(Qt::AlignHCenter)) << line.text().toStdString();
    EXPECT_NEAR(text.cursorRect().x(), text.viewport()->width() / 2, text.viewport()->width() / 4)
        << "where its first short line begins";
    Click(box, "ok");
  });
  FrmDialog2(skin, nullptr).ShowG("Skvělé!\r\nBody: 00042");
  EXPECT_TRUE(dialog.Opened());
}

}  // namespace
}  // namespace zorik
