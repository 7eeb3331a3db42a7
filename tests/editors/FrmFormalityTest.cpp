#include <QComboBox>

#include "data/Cp1250.h"
#include "data/Result.h"
#include "editors/FormalityScreen.h"
#include "editors/FrmFormality.h"
#include "editors/ShortcutRows.h"

namespace zorik {
namespace {

using test::Heads;

using test::Boxes;
using test::InDialogNamed;

class FrmFormalityTest : public test::FormalityWindowTest {};

// What it shows

TEST_F(FrmFormalityTest, HasItsCaptions) {
  Dialog([](QWidget& it) {
    EXPECT_EQ(it.windowTitle(), "Vlastnosti komnaty");
    const std::pair<const char*, const char*> kButtons[] = {
        {"Command1", "OK"},
        {"Command2", "Zrušit"},
        {"Command3", "Bonus?"},
        {"Command4", "Spočítat drahokamy"},
        {"Command5", "Jak se přepočítává čas na body?"},
        {"Command6", "Co pak?"},
        {"Command7", "Co to v praxi znamená?"},
        {"Command8", "Vypočítat zkamenění"},
    };
    for (const auto& [name, caption] : kButtons) EXPECT_EQ(it.findChild<QPushButton*>(name)->text(), caption);
    QMap<QString, QString> labels;
    for (const QLabel* const label : it.findChildren<QLabel*>()) {
      if (label->buddy() != nullptr) labels[label->buddy()->objectName()] = label->text();
    }
    const QMap<QString, QString> kLabels = {
        {"Text3", "- Název"},
        {"Text4", "- Popis"},
        {"Text1", "- Šířka komnaty"},
        {"Text2", "- Výška komnaty"},
        {"Text5", "- Celkový čas"},
        {"Text6", "- Potřeba sebrat"},
        {"Text9", "- Bodů za drahokam před otevřením cíle"},
        {"Text10", "- Bodů za drahokam po otevření cíle"},
        {"Text7", "- Jak dlouho bude kouzelná zeď kouzlit"},
        {"Text8", "- Čas améby"},
        {"Text11", "- Propustnost bláta"},
        {"Combo1", "- Zabarvení komnaty"},
    };
    EXPECT_EQ(labels, kLabels);
    const auto& list = *it.findChild<QComboBox*>("Combo1");
    QStringList entries;
    for (int i = 0; i < list.count(); ++i) entries << list.itemText(i);
    EXPECT_EQ(entries, QStringList({"Klasická", "Chladná", "Teplá", "Přírodní", "Tajemná"}));
  });
}

TEST_F(FrmFormalityTest, ShowsTheCavesProperties) {
  test::Numbers numbers;
  numbers = {.time = 123,
             .needed = 45,
             .before = 6,
             .after = 7,
             .magicTime = 8,
             .amoebaTime = 9,
             .permeability = 5,
             .colouring = 12};
  numbers.name = "\x8Ei\x9Eka";
  Open(kRoom, numbers);
  Dialog([](QWidget& it) {
    const std::pair<const char*, const char*> kValues[] = {
        {"Text3", "Žižka"}, {"Text1", "6"},  {"Text2", "5"}, {"Text5", "123"}, {"Text6", "45"},
        {"Text9", "6"},     {"Text10", "7"}, {"Text7", "8"}, {"Text8", "9"},   {"Text11", "5"},
    };
    for (const auto& [name, value] : kValues) EXPECT_EQ(Box(it, name).text(), value) << name;
    EXPECT_EQ(it.findChild<QComboBox*>("Combo1")->currentIndex(), 3);
  });
}

TEST_F(FrmFormalityTest, ShowsNumbersThatAreLongerThanWhatCanBeTyped) {
  test::Numbers numbers;
  numbers.time = 1500;
  numbers.before = 150;
  Open(kRoom, numbers);
  Dialog([](QWidget& it) {
    EXPECT_EQ(Box(it, "Text5").text(), "1500");
    EXPECT_EQ(Box(it, "Text9").text(), "150");
    Press(it, "Command1");
  });
  EXPECT_EQ(Cave().Time, 1500);
  EXPECT_EQ(Cave().PointsBefore, 150);
}

TEST_F(FrmFormalityTest, ShowsEachColouringByItsEntryAndWritesTheNumberOfTheEntry) {
  constexpr int kNumbers[] = {4, 10, 11, 12, 13};
  for (int entry = 0; entry < 5; ++entry) {
    Dialog([entry](QWidget& it) {
      it.findChild<QComboBox*>("Combo1")->setCurrentIndex(entry);
      Press(it, "Command1");
    });
    EXPECT_EQ(Cave().Colouring, kNumbers[entry]);
    Dialog([entry](QWidget& it) { EXPECT_EQ(it.findChild<QComboBox*>("Combo1")->currentIndex(), entry); });
  }
}

TEST_F(FrmFormalityTest, SpeaksTheLanguageOfTheSkin) {
  test::Numbers numbers;
  numbers.colouring = 12;
  Open(kRoom, numbers);
  Wear("English");
  window->SetLW();
  Dialog([](QWidget& it) {
    EXPECT_EQ(it.windowTitle(), "Cave properties");
    EXPECT_EQ(it.findChild<QPushButton*>("Command2")->text(), "Cancel");
    EXPECT_EQ(it.findChild<QPushButton*>("Command8")->text(), "When does it turn to stone?");
    EXPECT_EQ(it.findChild<QComboBox*>("Combo1")->currentText(), "Natural");
  });
  const Boxes boxes;
  Dialog([](QWidget& it) {
    Type(Box(it, "Text1"), "3");
    Press(it, "Command1");
  });
  EXPECT_EQ(boxes.titles, QStringList("Warning"));
  EXPECT_EQ(boxes.said, QStringList("These values were corrected: Cave width = 5"));
}

// What can be typed

TEST_F(FrmFormalityTest, TakesDigitsOnlyAndNotTooMany) {
  const std::pair<const char*, const char*> kLongest[] = {
      {"Text1", "12"},  {"Text2", "12"},  {"Text5", "123"}, {"Text6", "123"}, {"Text9", "12"},
      {"Text10", "12"}, {"Text7", "123"}, {"Text8", "123"}, {"Text11", "1"},
  };
  Dialog([&](QWidget& it) {
    for (const auto& [name, longest] : kLongest) {
      Type(Box(it, name), "a-1x 2.3,4");
      EXPECT_EQ(Box(it, name).text(), longest) << name;
    }
  });
}

TEST_F(FrmFormalityTest, SetsNoLimitToAName) {
  Dialog([](QWidget& it) {
    Type(Box(it, "Text3"), QString(300, 'X'));
    Press(it, "Command1");
  });
  EXPECT_EQ(Cave().Name, std::string(300, 'X'));
}

TEST_F(FrmFormalityTest, ShowsTheBeginningOfALongName) {
  CaveRecord cave = *ParseCaveText(test::CaveTextOf(kRoom));
  cave.Name = std::string(120, 'D') + "konec";
  OpenText(*BuildCaveText(cave));
  Dialog([&cave](QWidget& it) {
    EXPECT_EQ(Box(it, "Text3").selectedText().toStdString(), cave.Name);
    EXPECT_EQ(Box(it, "Text3").cursorPosition(), 0);
  });
}

TEST_F(FrmFormalityTest, MakesANameOneLineOfWholeLetters) {
  const Boxes boxes;
  Dialog([](QWidget& it) {
    Box(it, "Text3").setText(QString("Prvni\nC\u030Capka"));
    Press(it, "Command1");
  });
  EXPECT_EQ(ToUtf8(Cave().Name), "Prvni Čapka");
  EXPECT_TRUE(boxes.said.isEmpty());
}

TEST_F(FrmFormalityTest, TakesADescriptionOf280Characters) {
  Dialog([](QWidget& it) {
    QPlainTextEdit& box = Description(it);
    box.setPlainText(QString(279, 'x'));
    box.setFocus();
    box.moveCursor(QTextCursor::End);
    QTest::keyClicks(&box, "yz");
    QApplication::processEvents();
    EXPECT_EQ(box.toPlainText(), QString(279, 'x') + "y");
    box.setPlainText(QString(278, 'x'));
    box.moveCursor(QTextCursor::Start);
    box.insertPlainText("abcd");
    QApplication::processEvents();
    EXPECT_EQ(box.toPlainText(), "ab" + QString(278, 'x')) << "what was put in is cut, not what was there";
    box.setPlainText(QString(279, 'x'));
    box.moveCursor(QTextCursor::End);
    QTest::keyClick(&box, Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(box.toPlainText(), QString(279, 'x')) << "a line break takes two characters";
  });
}

// Confirming

TEST_F(FrmFormalityTest, TakesAllValues) {
  EXPECT_TRUE(Dialog([](QWidget& it) {
    Type(Box(it, "Text3"), "Žluťoučký kůň");
    Description(it).setPlainText("Dvě\nřádky");
    const std::pair<const char*, const char*> kValues[] = {
        {"Text1", "30"},  {"Text2", "20"}, {"Text5", "345"}, {"Text6", "12"}, {"Text9", "13"},
        {"Text10", "14"}, {"Text7", "15"}, {"Text8", "16"},  {"Text11", "7"},
    };
    for (const auto& [name, value] : kValues) Type(Box(it, name), value);
    it.findChild<QComboBox*>("Combo1")->setCurrentIndex(4);
    Press(it, "Command1");
  }));
  EXPECT_EQ(ToUtf8(Cave().Name), "Žluťoučký kůň");
  EXPECT_EQ(ToUtf8(Cave().Description), "Dvě\r\nřádky");
  EXPECT_EQ(Cave().Width, 30);
  EXPECT_EQ(Cave().Height, 20);
  EXPECT_EQ(Cave().Time, 345);
  EXPECT_EQ(Cave().GemsNeeded, 12);
  EXPECT_EQ(Cave().PointsBefore, 13);
  EXPECT_EQ(Cave().PointsAfter, 14);
  EXPECT_EQ(Cave().MagicWallTime, 15);
  EXPECT_EQ(Cave().AmoebaTime, 16);
  EXPECT_EQ(Cave().SlimePermeability, 7);
  EXPECT_EQ(Cave().Colouring, 13);
}

TEST_F(FrmFormalityTest, PutsASizeWithinItsLimitsAndTells) {
  const Boxes boxes;
  EXPECT_TRUE(Dialog([](QWidget& it) {
    Type(Box(it, "Text1"), "3");
    Type(Box(it, "Text2"), "99");
    Press(it, "Command1");
  }));
  EXPECT_EQ(boxes.titles, QStringList("Upozornění"));
  EXPECT_EQ(boxes.said, QStringList("Tyto údaje byly opraveny: Šířka komnaty = 5 Výška komnaty = 60"));
  EXPECT_EQ(window->Model().Width(), 5);
  EXPECT_EQ(window->Model().Height(), 50) << "the editor's own limit";
}

TEST_F(FrmFormalityTest, WarnsInLinesOfTheirOwn) {
  QString said;
  {
    InDialogNamed box("", [&said](QWidget& it) {
      if (auto* const text = it.findChild<QLabel*>("lblText")) said = text->text();
    });
    FrmFormality::Warn(skin, window.get(),
                       {{.label = TextId::CaveWidth, .limit = 5}, {.label = TextId::Name}});
  }
  EXPECT_EQ(said, "\nTyto údaje byly opraveny:\nŠířka komnaty = 5\nNázev");
}

TEST_F(FrmFormalityTest, TakesAnEmptyBoxFor0) {
  const Boxes boxes;
  Dialog([](QWidget& it) {
    for (const char* const name : {"Text5", "Text6", "Text9", "Text10", "Text11"}) Type(Box(it, name), "");
    Press(it, "Command1");
  });
  EXPECT_EQ(boxes.said, QStringList("Tyto údaje byly opraveny: Celkový čas = 5"));
  EXPECT_EQ(Cave().Time, 5);
  EXPECT_EQ(Cave().GemsNeeded, 0);
  EXPECT_EQ(Cave().PointsBefore, 0);
  EXPECT_EQ(Cave().PointsAfter, 0);
  EXPECT_EQ(Cave().SlimePermeability, 0);
}

TEST_F(FrmFormalityTest, SaysNothingOfNoGems) {
  const Boxes boxes;
  Dialog([](QWidget& it) {
    Type(Box(it, "Text6"), "0");
    Press(it, "Command1");
  });
  EXPECT_TRUE(boxes.said.isEmpty());
}

TEST_F(FrmFormalityTest, LimitsEachNumberWithItsLabel) {
  struct Row {
    const char* box;
    const char* typed;
    const char* line;
  };
  constexpr Row kRows[] = {
      {"Text1", "4", "Šířka komnaty = 5"},
      {"Text2", "4", "Výška komnaty = 5"},
      {"Text2", "61", "Výška komnaty = 60"},
      {"Text5", "4", "Celkový čas = 5"},
      {"Text7", "0", "Jak dlouho bude kouzelná zeď kouzlit = 1"},
      {"Text7", "151", "Jak dlouho bude kouzelná zeď kouzlit = 150"},
      {"Text8", "0", "Čas améby = 1"},
      {"Text8", "999", "Čas améby = 150"},
      {"Text11", "9", "Propustnost bláta = 8"},
  };
  for (const Row& row : kRows) {
    const Boxes boxes;
    Dialog([&row](QWidget& it) {
      Type(Box(it, row.box), row.typed);
      Press(it, "Command1");
    });
    EXPECT_EQ(boxes.said, QStringList(QString("Tyto údaje byly opraveny: ") + row.line));
  }
}

TEST_F(FrmFormalityTest, CleansNameAndDescription) {
  const Boxes boxes;
  Dialog([](QWidget& it) {
    Type(Box(it, "Text3"), " zorik a diamant");
    Description(it).setPlainText("hmiz");
    Press(it, "Command1");
  });
  EXPECT_EQ(boxes.said, QStringList("Tyto údaje byly opraveny: Název Popis"));
  EXPECT_EQ(ToUtf8(Cave().Name), "Zorík a drahokam");
  EXPECT_EQ(Cave().Description, "Hmyz");
}

TEST_F(FrmFormalityTest, TellsOfLettersThatNoCaveCanHold) {
  const Boxes boxes;
  Dialog([](QWidget& it) {
    Box(it, "Text3").setText("Řeka Ω");
    Press(it, "Command1");
  });
  EXPECT_EQ(boxes.said, QStringList("Tyto údaje byly opraveny: Název"));
  EXPECT_EQ(ToUtf8(Cave().Name), "Řeka ?");
}

TEST_F(FrmFormalityTest, TellsOfLettersAndLengthsAsTheyAreTyped) {
  Dialog([](QWidget& dialog) {
    const auto note = [&dialog](const char* box) {
      const auto& label = *dialog.findChild<QLabel*>(QString("lblNote.") + box);
      return label.isVisible() ? label.text() : QString();
    };
    const auto red = [&dialog](const char* box) {
      const auto& label = *dialog.findChild<QLabel*>(QString("lblNote.") + box);
      const QColor colour = label.palette().color(QPalette::WindowText);
      return colour.red() > 2 * colour.green();
    };
    Type(Box(dialog, "Text3"), "Bludiště");
    EXPECT_EQ(note("Text3"), "");
    Type(Box(dialog, "Text3"), "Bluдiště");
    EXPECT_EQ(note("Text3"), "Z těchto znaků budou v souboru otazníky: д");
    Type(Box(dialog, "Text3"), QString(191, 'x'));
    EXPECT_EQ(note("Text3"), "191 / 190");
    EXPECT_TRUE(red("Text3"));
    Description(dialog).setPlainText(QString(190, 'x'));
    EXPECT_EQ(note("Text4"), "190 / 190");
    EXPECT_FALSE(red("Text4"));
    Description(dialog).moveCursor(QTextCursor::End);
    Description(dialog).insertPlainText("猫");
    EXPECT_EQ(note("Text4"), "191 / 190   Z těchto znaků budou v souboru otazníky: 猫");
    EXPECT_TRUE(red("Text4"));
    Description(dialog).setPlainText(QString(300, 'x'));
    QCoreApplication::processEvents();
    EXPECT_EQ(note("Text4"), "280 / 190") << "more cannot be typed";
  });
}

TEST_F(FrmFormalityTest, AsksForItsPageAndForTheSheetOfShortcuts) {
  QStringList pages;
  QObject::connect(window.get(), &FrmMain::HelpWanted, [&pages](const QString& page) { pages << page; });
  QStringList heads;
  Dialog([&](QWidget& dialog) {
    // The window behind it may just have been made active.
    dialog.activateWindow();
    Box(dialog, "Text3").setFocus();
    ASSERT_TRUE(QTest::qWaitFor([&] { return Box(dialog, "Text3").hasFocus(); }));
    QTest::keyClick(dialog.windowHandle(), Qt::Key_F1);
    EXPECT_EQ(pages, QStringList("vlastnosti.html"));
    const test::InDialogNamed sheet("frmShortcuts", [&heads](QWidget& it) { heads = Heads(it); });
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Question, Qt::ControlModifier);
    EXPECT_TRUE(sheet.opened);
  });
  EXPECT_EQ(heads.value(0), "Editace");
}

TEST_F(FrmFormalityTest, LeavesTheLineEndsOfADescriptionThatNobodyTouched) {
  CaveRecord cave = *ParseCaveText(test::CaveTextOf(kRoom));
  cave.Description = "Jedna\nDva\rTri\r\nCtyri";
  OpenText(*BuildCaveText(cave));
  Dialog([](QWidget& it) {
    EXPECT_EQ(Description(it).toPlainText(), "Jedna\nDva\nTri\nCtyri");
    Press(it, "Command1");
  });
  EXPECT_EQ(Cave().Description, cave.Description);
  EXPECT_FALSE(window->Model().CanUndo());
}

TEST_F(FrmFormalityTest, KeepsBlanksThatDoNotBreakWhileOtherLettersChange) {
  CaveRecord cave = *ParseCaveText(test::CaveTextOf(kRoom));
  cave.Description =
      "V\xA0jeskyni\r\nje 5\xA0"
      "drahokamu";
  OpenText(*BuildCaveText(cave));
  Dialog([](QWidget& it) {
    Description(it).moveCursor(QTextCursor::End);
    QTest::keyClicks(&Description(it), ".");
    Press(it, "Command1");
  });
  EXPECT_EQ(Cave().Description, cave.Description + ".");
}

TEST_F(FrmFormalityTest, AcceptsADescriptionThatIsTooLongForAFile) {
  const Boxes boxes;
  Dialog([](QWidget& it) {
    Description(it).setPlainText(QString(250, 'X'));
    Press(it, "Command1");
  });
  EXPECT_TRUE(boxes.said.isEmpty());
  EXPECT_EQ(Cave().Description.size(), 250U);
}

// Leaving

TEST_F(FrmFormalityTest, TakesNothingWhenCancelled) {
  const CaveRecord before = Cave();
  const auto change = [](QWidget& it) {
    Type(Box(it, "Text3"), "zorik");
    Type(Box(it, "Text1"), "1");
  };
  EXPECT_TRUE(Dialog([&](QWidget& it) {
    change(it);
    Press(it, "Command2");
  }));
  EXPECT_TRUE(Dialog([&](QWidget& it) {
    change(it);
    QTest::keyClick(&Box(it, "Text1"), Qt::Key_Escape);
  }));
  EXPECT_EQ(Cave(), before);
  Dialog([](QWidget& it) { EXPECT_EQ(Box(it, "Text3").text(), "Test"); });
}

TEST_F(FrmFormalityTest, IsConfirmedWithEnterInABoxOfOneLine) {
  for (const char* const name : {"Text3", "Text1", "Text11"}) {
    EXPECT_TRUE(Dialog([name](QWidget& it) {
      Type(Box(it, "Text6"), "77");
      Box(it, name).setFocus();
      QTest::keyClick(&Box(it, name), Qt::Key_Return);
    })) << name;
    EXPECT_EQ(Cave().GemsNeeded, 77);
  }
}

TEST_F(FrmFormalityTest, IsConfirmedWithEnterInABoxWhoseNumberIsLongerThanWhatCanBeTyped) {
  test::Numbers numbers;
  numbers.time = 1500;
  Open(kRoom, numbers);
  EXPECT_TRUE(Dialog([](QWidget& it) {
    Type(Box(it, "Text6"), "77");
    Box(it, "Text5").setFocus();
    QTest::keyClick(&Box(it, "Text5"), Qt::Key_Return);
  }));
  EXPECT_EQ(Cave().GemsNeeded, 77);
  EXPECT_EQ(Cave().Time, 1500);
}

TEST_F(FrmFormalityTest, PressesTheButtonThatHasTheFocusWithEnter) {
  EXPECT_TRUE(Dialog([](QWidget& it) {
    Type(Box(it, "Text6"), "77");
    auto* const cancel = it.findChild<QPushButton*>("Command2");
    cancel->setFocus();
    QTest::keyClick(cancel, Qt::Key_Return);
  }));
  EXPECT_EQ(Cave().GemsNeeded, 99);
}

TEST_F(FrmFormalityTest, IsNotConfirmedWithEnterInTheDescription) {
  EXPECT_FALSE(Dialog([](QWidget& it) {
    Description(it).setFocus();
    QTest::keyClick(&Description(it), Qt::Key_Return);
  }));
}

TEST_F(FrmFormalityTest, IsWalkedThroughWithTab) {
  QStringList way;
  Dialog([&way](QWidget& it) {
    for (int i = 0; i < 20; ++i) {
      way << it.focusWidget()->objectName();
      QTest::keyClick(it.focusWidget(), Qt::Key_Tab);
    }
  });
  EXPECT_EQ(way, QStringList({"Text3",    "Command3", "Text4",    "Text1",  "Text2",    "Text5",   "Command5",
                              "Text6",    "Command4", "Text9",    "Text10", "Text7",    "Text8",   "Command6",
                              "Command8", "Text11",   "Command7", "Combo1", "Command1", "Command2"}));
}

TEST_F(FrmFormalityTest, RemembersItsSize) {
  Dialog([](QWidget& it) {
    it.resize(790, 600);
    Press(it, "Command2");
  });
  MakeWindow();
  Open(kRoom);
  Dialog([](QWidget& it) { EXPECT_EQ(it.size(), QSize(790, 600)); });
}

}  // namespace
}  // namespace zorik
