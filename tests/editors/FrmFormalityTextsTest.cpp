// The texts of the dialog of properties: what is cut of them, and how they are told.
#include "editors/FormalityScreen.h"
#include "editors/FrmFormality.h"

namespace zorik {
namespace {

class FrmFormalityTextsTest : public test::FormalityWindowTest {};

TEST_F(FrmFormalityTextsTest, CutsNoMoreLineBreaksThanAreTooMany) {
  Dialog([](QWidget& it) {
    QPlainTextEdit& box = Description(it);
    box.setPlainText(QString(276, 'x'));
    box.moveCursor(QTextCursor::End);
    box.insertPlainText("\n\n\n\n");
    QApplication::processEvents();
    EXPECT_EQ(box.toPlainText(), QString(276, 'x') + "\n\n") << "each counts for two";
  });
}

TEST_F(FrmFormalityTextsTest, ShowsInItsBoxesWhatItHasPutRight) {
  QString shown;
  QTimer look;
  look.callOnTimeout([&shown] {
    QWidget* const box = QApplication::activeModalWidget();
    if (box == nullptr || box->findChild<QLabel*>("lblText") == nullptr) return;
    const auto& dialog = *box->parentWidget();
    shown =
        dialog.findChild<QLineEdit*>("Text1")->text() + ' ' + dialog.findChild<QLineEdit*>("Text3")->text();
    box->findChildren<SkinButton*>().front()->click();
  });
  look.start(2);
  EXPECT_TRUE(Dialog([](QWidget& it) {
    Type(Box(it, "Text1"), "3");
    Type(Box(it, "Text3"), "zori");
    Press(it, "Command1");
  }));
  EXPECT_EQ(shown, "5 Zorí");
}

TEST_F(FrmFormalityTextsTest, TellsAShortTextAsAWholeHoweverLateItDiffers) {
  const test::Boxes boxes;
  CaveRecord cave = Cave();
  cave.Description = std::string(40, 'X') + " zorik";
  OpenText(*BuildCaveText(cave));
  ASSERT_EQ(boxes.said.size(), 1);
  QString said = boxes.said[0];
  const QString before(40, 'X');
  EXPECT_TRUE(said.remove(' ').contains('"' + before + "Zorík\"(bylo\"" + before + "zorik\")"))
      << said.toStdString();
}

TEST_F(FrmFormalityTextsTest, NamesATextOnceWhateverIsWrongWithIt) {
  const test::Boxes boxes;
  Dialog([](QWidget& it) {
    Box(it, "Text3").setText("zorik Ω");  // a small letter at the beginning, and one that no cave holds
    Description(it).setPlainText("hmiz Ω");
    Press(it, "Command1");
  });
  EXPECT_EQ(boxes.said, QStringList("Tyto údaje byly opraveny: Název Popis"));
}

}  // namespace
}  // namespace zorik
