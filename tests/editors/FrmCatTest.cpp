#include <algorithm>
#include <filesystem>

#include "editors/FrmCatScreen.h"

namespace zorik {
namespace {

class FrmCatTest : public test::FrmCatScreen {};

TEST_F(FrmCatTest, ShowsAnEmptyProgramAsHeadAndEnd) {
  const auto program = Edit("", [this] {
    EXPECT_EQ(dialog_->windowTitle(), "Program kočky");
    EXPECT_EQ(Lines(), (QStringList{kStart, kEnd}));
    EXPECT_EQ(Selected(), 1);
    Press("Command4");
  });
  EXPECT_EQ(program, "*A/Z");
}

TEST_F(FrmCatTest, ShowsEveryCommandOfTheSkin) {
  Edit("", [this] {
    EXPECT_EQ(List("lstCmds").count(), 30);
    EXPECT_EQ(List("lstCmds").currentRow(), 9);
    EXPECT_EQ(List("lstCmds").currentItem()->text(), "Jdio1Nahoru");
    EXPECT_EQ(Lines("lstCmds").mid(0, 2), (QStringList{kStart, "== Událost: cíl otevřen"}));
    EXPECT_FALSE(Lines("lstCmds").contains(QString()));
    Press("Command4");
  });
}

struct TokenRow {
  const char* token;
  const char* czech;
  const char* english;
};

// All that a cat understands, in the words of both skins.
const std::vector<TokenRow> kTokens = {
    {"*A", "== Událost: začátek", "== Event: start"},
    {"*B", "== Událost: cíl otevřen", "== Event: finish open"},
    {"*C", "== Událost: kouzelná zeď se probudila", "== Event: magic wall has woken up"},
    {"*D", "== Událost: kouzelná zeď dokouzlila", "== Event: magic wall is spent"},
    {"*E", "== Událost: améba příliš velká", "== Event: amoeba too big"},
    {"*F", "== Událost: améba udušena", "== Event: amoeba suffocated"},
    {"*I", "== Událost: sebrán kočičí klíč", "== Event: cat key taken"},
    {"-A", "Jdio1Doleva", "Go1Left"},
    {"-B", "Jdio1Doprava", "Go1Right"},
    {"-C", "Jdio1Nahoru", "Go1Up"},
    {"-D", "Jdio1Dolu", "Go1Down"},
    {"-E", "JdiMaxDoleva", "GoMaxLeft"},
    {"-F", "JdiMaxDoprava", "GoMaxRight"},
    {"-G", "JdiMaxNahoru", "GoMaxUp"},
    {"-H", "JdiMaxDolu", "GoMaxDown"},
    {"-I", "Krok: tlač doleva", "Step: push left"},
    {"-J", "Krok: tlač doprava", "Step: push right"},
    {"-K", "Krok: tlač nahoru", "Step: push up"},
    {"-L", "Krok: tlač dolů", "Step: push down"},
    {"-M", "Krok: stůj", "Step: stand"},
    {"-N", "Krok: čekej 10 tiků", "Step: wait 10 ticks"},
    {"-O", "Krok: čekej 100 tiků", "Step: wait 100 ticks"},
    {"-P", "Krok: náhodným směrem", "Step: in a random direction"},
    {"/D", "Napořád: poletuj jako moucha", "For good: flit like a fly"},
    {"/E", "Napořád: běž doleva", "For good: run left"},
    {"/F", "Napořád: běž doprava", "For good: run right"},
    {"/G", "Napořád: běž nahoru", "For good: run up"},
    {"/H", "Napořád: běž dolů", "For good: run down"},
    {"+A", "Sběr: seber drahokamy", "Collect: collect gems"},
    {"/Z", "Konec programu", "End of the program"},
};

QStringList Captions(const std::string& skin) {
  QStringList captions;
  for (const TokenRow& row : kTokens) captions << (skin == "English" ? row.english : row.czech);
  return captions;
}
std::string AllTokens() {
  std::string tokens;
  for (const TokenRow& row : kTokens) tokens += row.token;
  return tokens;
}

class FrmCatTokensTest : public FrmCatTest, public testing::WithParamInterface<const char*> {
 protected:
  void SetUp() override { ASSERT_TRUE(skin_.Apply(SkinPlaces{ZORIK_SKINS, GetParam()})); }
};

TEST_P(FrmCatTokensTest, ShowsTheCaptionOfEveryToken) {
  const auto program = Edit(AllTokens(), [this] {
    EXPECT_EQ(Lines().join('\n').toStdString(), Captions(GetParam()).join('\n').toStdString());
    Press("Command4");
  });
  EXPECT_EQ(program, AllTokens());
}

TEST_P(FrmCatTokensTest, InsertsTheTokenOfEveryCommand) {
  const auto program = Edit("", [this] {
    for (const QString& caption : Captions(GetParam())) {
      Command(caption);
      Press("Command3");
    }
    Press("Command4");
  });
  EXPECT_EQ(program, "*A" + AllTokens() + "/Z");
}

INSTANTIATE_TEST_SUITE_P(Skins, FrmCatTokensTest, testing::Values("Default", "English"));

TEST_F(FrmCatTest, SpeaksTheLanguageOfTheSkin) {
  ASSERT_TRUE(skin_.Apply(SkinPlaces{ZORIK_SKINS, "English"}));
  Edit("*A-E/Z", [this] {
    EXPECT_EQ(dialog_->windowTitle(), "Cat program");
    EXPECT_EQ(Lines(), (QStringList{"== Event: start", "GoMaxLeft", "End of the program"}));
    EXPECT_EQ(Button("Command1").text(), "Delete");
    EXPECT_EQ(Button("Command3").text(), "Insert");
    EXPECT_EQ(Button("Label1").text(), "Swap");
    EXPECT_EQ(Button("Command4").text(), "OK");
    test::Dialogs answer;
    answer.Press("no");
    dialog_->close();
    EXPECT_EQ(answer.said, QStringList("Save the changes in the cat's program?"));
    EXPECT_EQ(answer.titles, QStringList("Cat program"));
  });
}

TEST_F(FrmCatTest, AllowsNothingBeforeTheHeadAndKeepsBothEnds) {
  Edit("*A-A-B/Z", [this] {
    const std::vector<std::pair<bool, bool>> rows = {
        {false, false}, {true, true}, {true, true}, {false, true}};
    for (int line = 0; line < 4; ++line) {
      ClickLine("lstScript", line);
      EXPECT_EQ(Button("Command1").isEnabled(), rows[static_cast<std::size_t>(line)].first) << line;
      EXPECT_EQ(Button("Command3").isEnabled(), rows[static_cast<std::size_t>(line)].second) << line;
    }
    Press("Command4");
  });
}

TEST_F(FrmCatTest, InsertsTheChosenCommandBeforeTheLineWhichStaysSelected) {
  const auto program = Edit("*A-A/Z", [this] {
    Command("JdiMaxDolu");
    Press("Command3");
    EXPECT_EQ(Lines(), (QStringList{kStart, "JdiMaxDolu", "Jdio1Doleva", kEnd}));
    EXPECT_EQ(Selected(), 2);
    ClickLine("lstScript", 3);
    Command("Napořád: poletuj jako moucha");
    Press("Command3");
    EXPECT_EQ(Lines().mid(3), (QStringList{"Napořád: poletuj jako moucha", kEnd}));
    Press("Command4");
  });
  EXPECT_EQ(program, "*A-H-A/D/Z");
}

TEST_F(FrmCatTest, InsertsByDoubleClickAndByEnter) {
  const auto program = Edit("", [this] {
    Command("Jdio1Doprava");
    QListWidget& list = List("lstCmds");
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.currentItem()).center());
    QTest::keyClick(&list, Qt::Key_Return);
    ClickLine("lstScript", 0);
    QTest::keyClick(&list, Qt::Key_Return);
    Press("Command4");
  });
  EXPECT_EQ(program, "*A-B-B/Z");
}

TEST_F(FrmCatTest, DeletesTheSelectedLineAndSelectsTheOneBefore) {
  const auto program = Edit("*A-A-B-C/Z", [this] {
    ClickLine("lstScript", 2);
    Press("Command1");
    EXPECT_EQ(Lines(), (QStringList{kStart, "Jdio1Doleva", "Jdio1Nahoru", kEnd}));
    EXPECT_EQ(Selected(), 1);
    QTest::keyClick(&List("lstScript"), Qt::Key_Delete);
    EXPECT_EQ(Selected(), 0);
    EXPECT_FALSE(Button("Command1").isEnabled());
    QTest::keyClick(&List("lstScript"), Qt::Key_Delete);
    Press("Command4");
  });
  EXPECT_EQ(program, "*A-C/Z");
}

TEST_F(FrmCatTest, ExchangesTheDisplayOfTwoLinesOnly) {
  const auto program = Edit("*A-A-B-C/Z", [this] {
    ClickLine("lstScript", 2);
    Press("Label1");
    EXPECT_EQ(Lines(), (QStringList{kStart, "Jdio1Doleva", "Jdio1Nahoru", "Jdio1Doprava", kEnd}));
    EXPECT_EQ(Selected(), 1);
    for (const int end : {0, 4}) {
      ClickLine("lstScript", end);
      Press("Label1");
      EXPECT_EQ(Selected(), end);
    }
    EXPECT_EQ(Lines(), (QStringList{kStart, "Jdio1Doleva", "Jdio1Nahoru", "Jdio1Doprava", kEnd}));
    Press("Command4");
  });
  EXPECT_EQ(program, "*A-A-B-C/Z");
}

TEST_F(FrmCatTest, DeletesTheTokenOfThePlaceWhateverTheExchangedListShows) {
  const auto program = Edit("*A-A-B-C/Z", [this] {
    ClickLine("lstScript", 2);
    Press("Label1");
    ClickLine("lstScript", 2);
    EXPECT_EQ(List("lstScript").currentItem()->text(), "Jdio1Nahoru");
    Press("Command1");
    EXPECT_EQ(Lines(), (QStringList{kStart, "Jdio1Doleva", "Jdio1Doprava", kEnd}));
    Press("Command4");
  });
  EXPECT_EQ(program, "*A-A-C/Z");
}

TEST_F(FrmCatTest, RefreshesItsButtonsAfterEveryChange) {
  Edit("*A-A/Z", [this] {
    const auto enabled = [this] {
      return std::pair(Button("Command1").isEnabled(), Button("Command3").isEnabled());
    };
    EXPECT_EQ(enabled(), std::pair(true, true));
    Press("Command1");
    EXPECT_EQ(enabled(), std::pair(false, false)) << "the head is selected now";
    ClickLine("lstScript", 1);
    EXPECT_EQ(enabled(), std::pair(false, true));
    Press("Command3");
    EXPECT_EQ(enabled(), std::pair(false, true)) << "the end is still selected";
    ClickLine("lstScript", 1);
    EXPECT_EQ(enabled(), std::pair(true, true));
    Press("Label1");
    EXPECT_EQ(enabled(), std::pair(false, false)) << "the head is selected now";
    Press("Command4");
  });
}

TEST_F(FrmCatTest, IsWorkedByKeysAlone) {
  const auto program = Edit("*A-A-B/Z", [this] {
    const auto key = [this](Qt::Key pressed) { QTest::keyClick(dialog_->windowHandle(), pressed); };
    EXPECT_EQ(dialog_->focusWidget(), &List("lstScript"));
    key(Qt::Key_Return);
    EXPECT_TRUE(dialog_->isVisible());
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    EXPECT_EQ(Selected(), 3);
    EXPECT_TRUE(Button("Command3").isEnabled() && !Button("Command1").isEnabled());
    key(Qt::Key_Up);
    key(Qt::Key_Delete);
    EXPECT_EQ(Lines(), (QStringList{kStart, "Jdio1Doleva", kEnd}));
    key(Qt::Key_Tab);
    key(Qt::Key_Insert);
    key(Qt::Key_Home);
    key(Qt::Key_Enter);
    EXPECT_EQ(Lines(), (QStringList{kStart, "Jdio1Nahoru", kStart, "Jdio1Doleva", kEnd}));
    for (int i = 0; i < 4; ++i) key(Qt::Key_Tab);
    key(Qt::Key_Space);
  });
  EXPECT_EQ(program, "*A-C*A-A/Z");
}

TEST_F(FrmCatTest, MakesProgramsWholeWhenTheyAreShown) {
  const QString open = "== Událost: cíl otevřen";
  struct Row {
    const char* program;
    QStringList lines;
    const char* whole;
  };
  const std::vector<Row> rows = {
      {"*A-A*B", {kStart, "Jdio1Doleva", open, kEnd}, "*A-A*B/Z"},  // a plain label is no end
      {"-A", {kStart, "Jdio1Doleva", kEnd}, "*A-A/Z"},
      {"*B-A", {open, "Jdio1Doleva", kEnd}, "*B-A/Z"},    // any label is a head
      {"*A/E", {kStart, "Napořád: běž doleva"}, "*A/E"},  // and any token with a slash an end
  };
  for (const Row& row : rows) {
    EXPECT_EQ(Edit(row.program,
                   [&] {
                     EXPECT_EQ(Lines(), row.lines) << row.program;
                     EXPECT_EQ(Selected(), 1);
                     Press("Command4");
                   }),
              row.whole);
  }
}

// Closing

TEST_F(FrmCatTest, AsksWhetherToStoreWhenItIsClosed) {
  for (const bool esc : {true, false}) {
    const auto leave = [this, esc] {
      esc ? QTest::keyClick(dialog_, Qt::Key_Escape) : static_cast<void>(dialog_->close());
    };
    const auto change = [this] { Press("Command3"); };
    const auto answered = [&](const QString& button) {
      test::Dialogs answer;
      answer.Press(button);
      change();
      leave();
      EXPECT_TRUE(answer.Done());
      EXPECT_EQ(answer.said, QStringList("Uložit změny v programu kočky?"));
      EXPECT_EQ(answer.titles, QStringList("Program kočky"));
      EXPECT_FALSE(dialog_->isVisible());
    };
    EXPECT_EQ(Edit("*A/Z", [&] { answered("yes"); }), "*A-C/Z");
    EXPECT_EQ(Edit("*A/Z", [&] { answered("no"); }), std::nullopt);
  }
}

TEST_F(FrmCatTest, ShowsTheNextProgramFromItsBeginning) {
  FrmCat window(skin_, nullptr);
  dialogs_.Then([this](QWidget& dialog) {
    dialog_ = &dialog;
    Press("Command3");
    Press("Command4");
  });
  EXPECT_EQ(window.Edit(""), "*A-C/Z");
  dialogs_.Then([this](QWidget& dialog) {
    dialog_ = &dialog;
    EXPECT_EQ(Lines(), (QStringList{kStart, "Jdio1Doprava", kEnd}));
    EXPECT_EQ(Selected(), 1);
    EXPECT_EQ(List("lstCmds").currentRow(), 9);
    Press("Command4");
  });
  EXPECT_EQ(window.Edit("*A-B/Z"), "*A-B/Z");
}

// Files that are not whole

TEST_F(FrmCatTest, HitsAnotherTokenWhenTheFileLacksOne) {
  test::TestSkin skin;
  skin.File("catdata.txt", "Okno\r\nUlozit?\r\n*A start\r\n-A vlevo\r\n-B vpravo\r\n/Z konec\r\n");
  skin.Apply();
  const auto program = EditIn(skin.Skin(), "*A-C-A-B/Z", [this] {
    EXPECT_EQ(Lines(), (QStringList{"start", "vlevo", "vpravo", "konec"}));
    EXPECT_EQ(List("lstCmds").currentRow(), 3) << "there is no tenth command";
    ClickLine("lstScript", 1);
    Press("Command1");
    Press("Command4");
  });
  EXPECT_EQ(program, "*A-A-B/Z");
}

TEST_F(FrmCatTest, InsertsInAnotherPlaceWhenTheFileLacksAToken) {
  test::TestSkin skin;
  skin.File("catdata.txt", "Okno\r\nUlozit?\r\n*A start\r\n-A vlevo\r\n-B vpravo\r\n/Z konec\r\n");
  skin.Apply();
  const auto program = EditIn(skin.Skin(), "*A-C-A-B/Z", [this] {
    ClickLine("lstScript", 2);
    EXPECT_EQ(List("lstScript").currentItem()->text(), "vpravo");
    Command("vpravo");
    Press("Command3");
    EXPECT_EQ(Lines(), (QStringList{"start", "vlevo", "vpravo", "vpravo", "konec"}));
    EXPECT_EQ(Selected(), 3);
    Press("Command4");
  });
  EXPECT_EQ(program, "*A-C-B-A-B/Z");
}

TEST_F(FrmCatTest, ShowsATokenTwiceThatTheFileHasTwice) {
  test::TestSkin skin;
  skin.File("catdata.txt", "Okno\r\nUlozit?\r\n*A start\r\n-A jedna\r\n/Z konec\r\n-A dva\r\n");
  skin.Apply();
  const auto program = EditIn(skin.Skin(), "*A-A/Z", [this] {
    EXPECT_EQ(dialog_->windowTitle(), "Okno");
    EXPECT_EQ(Lines(), (QStringList{"start", "jedna", "dva", "konec"}));
    Press("Command4");
  });
  EXPECT_EQ(program, "*A-A/Z");
}

TEST_F(FrmCatTest, AsksAgainForAFileThatIsInNoSkin) {
  test::TestSkin skin;
  skin.Apply();
  dialogs_.Press("close");
  const auto program = EditIn(skin.Skin(), "*A-A/Z", [this] {
    EXPECT_EQ(Lines(), QStringList());
    EXPECT_FALSE(Button("Command1").isEnabled() || Button("Command3").isEnabled());
    Press("Label1");
    Press("Command4");
  });
  EXPECT_EQ(program, "*A-A/Z");
  EXPECT_TRUE(dialogs_.said[0].contains("catdata")) << dialogs_.said[0].toStdString();
}

TEST_F(FrmCatTest, TellsOfAFileThatCannotBeRead) {
  test::TestSkin skin;
  skin.Data("");
  // It opens, but nothing can be read at its beginning.
  std::filesystem::create_symlink("/proc/self/mem", skin.Places().SkinsPath + "/Default/Menu/catdata.txt");
  skin.Apply();
  dialogs_.Press("ok");
  EditIn(skin.Skin(), "*A/Z", [this] {
    EXPECT_EQ(List("lstCmds").count(), 0);
    Press("Command4");
  });
  EXPECT_TRUE(dialogs_.said[0].startsWith("Soubor nelze otevřít:")) << dialogs_.said[0].toStdString();
  EXPECT_TRUE(dialogs_.said[0].contains("catdata.txt")) << dialogs_.said[0].toStdString();
}

// The window

TEST_F(FrmCatTest, ExplainsItsListsAndButtons) {
  Edit("", [this] {
    for (const char* list : {"lstScript", "lstCmds"}) {
      const auto labels = dialog_->findChildren<QLabel*>();
      EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [&](const QLabel* label) {
        return label->buddy() == &List(list) && !label->text().isEmpty();
      }));
    }
    for (const char* button : {"Command1", "Command3", "Label1"})
      EXPECT_FALSE(Button(button).toolTip().isEmpty());
    Press("Command4");
  });
}

TEST_F(FrmCatTest, IsWalkedThroughWithTheTabKey) {
  Edit("*A-A/Z", [this] {
    List("lstScript").setFocus();
    for (const char* next : {"lstCmds", "Command3", "Command1", "Label1", "Command4"}) {
      QTest::keyClick(dialog_->windowHandle(), Qt::Key_Tab);
      EXPECT_EQ(dialog_->focusWidget()->objectName(), next);
    }
    Press("Command4");
  });
}

TEST_F(FrmCatTest, RemembersItsSize) {
  Edit("", [this] {
    dialog_->resize(701, 502);
    Press("Command4");
  });
  Edit("", [this] {
    EXPECT_EQ(dialog_->size(), QSize(701, 502));
    Press("Command4");
  });
}

}  // namespace
}  // namespace zorik
