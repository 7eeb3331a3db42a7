#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <map>

#include "data/Result.h"
#include "screens/DialogScript.h"
#include "screens/FrmSLang.h"
#include "screens/TestSkin.h"
#include "skin/GameFont.h"

namespace zorik {
namespace {

using test::Box;
using test::DialogScript;

class FrmSLangTest : public testing::Test {
 protected:
  void SetUp() override {
    skin_.Data("skin.author.text=Autor:#Nikdo\n");
    skin_.File("cestina.txt", Language("Zorík"));
    skin_.File("../../English/Menu/cestina.txt", Language("Zorik in English"));
    skin_.File("../../English/Menu/skindata.txt",
               "caption.slang.about=About the skin...\r\ncaption.slang.close=Close\r\n");
    skin_.File("../../Prazdny/readme.txt", "nothing for the game");
    skin_.File("../../soubor.txt", "no folder");
    skin_.Apply();
    EXPECT_TRUE(StoreSett(settings_));
    window_ = std::make_unique<FrmSLang>(skin_.Skin(), settings_, nullptr);
    window_->show();
  }

  // 202 lines, of which only place 99 says something.
  static std::string Language(const std::string& title) {
    std::string lines = "\xEF\xBB\xBFjazyk\nautor\n";
    for (int place = 0; place < 200; ++place) lines += (place == 99 ? title : "") + "\n";
    return lines;
  }

  QComboBox& Combo1() const { return *window_->findChild<QComboBox*>("Combo1"); }
  QPushButton& Button(const char* name) const { return *window_->findChild<QPushButton*>(name); }

  test::TestSkin skin_;
  Settings settings_;
  std::unique_ptr<FrmSLang> window_;
};

TEST_F(FrmSLangTest, ListsEveryFolderOnceAndSelectsThePresentSkin) {
  QStringList names;
  for (int i = 0; i < Combo1().count(); ++i) names.push_back(Combo1().itemText(i));
  EXPECT_EQ(names, (QStringList{"Default", "English", "Prazdny"}));
  EXPECT_EQ(Combo1().currentText(), "Default");
}

TEST_F(FrmSLangTest, ListsTheDefaultSkinBeforeAllOthers) {
  skin_.File("../../Abeceda/Menu/readme.txt", "nothing for the game");
  const FrmSLang window(skin_.Skin(), settings_, nullptr);
  const auto* const names = window.findChild<QComboBox*>("Combo1");
  EXPECT_EQ(names->itemText(0), "Default");
  EXPECT_EQ(names->itemText(1), "Abeceda");
}

TEST_F(FrmSLangTest, StaysOnTheScreenHoweverLongTheNameOfASkinIs) {
  skin_.File("../../" + std::string(200, 'x') + "/Menu/readme.txt", "nothing for the game");
  FrmSLang window(skin_.Skin(), settings_, nullptr);
  EXPECT_LT(window.sizeHint().width(), 400);
}

TEST_F(FrmSLangTest, AChoiceCountsAtOnce) {
  const QSignalSpy changed(window_.get(), &FrmSLang::SkinChanged);
  EXPECT_EQ(Button("Command1").text(), "O skinu...");
  EXPECT_EQ(Button("Command2").text(), "Zavřít");
  Combo1().setCurrentText("English");
  EXPECT_EQ(skin_.Skin().Places().Skin, "English");
  EXPECT_EQ(skin_.Skin().Text(TextId::Program), "Zorik in English");
  EXPECT_EQ(Button("Command1").text(), "About the skin...");
  EXPECT_EQ(Button("Command2").text(), "Close");
  EXPECT_EQ(changed.count(), 1);
  EXPECT_EQ(settings_.Skin, "English");
  EXPECT_EQ(FindSett().Skin, "English");
}

TEST_F(FrmSLangTest, TheWayBackIsAsShort) {
  Combo1().setCurrentText("English");
  Combo1().setCurrentText("Default");
  EXPECT_EQ(Button("Command2").text(), "Zavřít");
  EXPECT_EQ(FindSett().Skin, "Default");
}

TEST_F(FrmSLangTest, ASkinWithoutFilesFallsBackWithoutAWord) {
  const DialogScript script = {};
  Combo1().setCurrentText("Prazdny");
  QTest::qWait(20);
  EXPECT_EQ(skin_.Skin().Text(TextId::Program), "Zorík");
  EXPECT_EQ(FindSett().Skin, "Prazdny");
}

TEST_F(FrmSLangTest, ALanguageThatIsTooShortIsTold) {
  skin_.File("../../Prazdny/Menu/cestina.txt", "jazyk\nautor\njen jeden text\n");
  const DialogScript script = {Box("Zorík", "Soubor s texty hry chybí nebo není celý.")};
  Combo1().setCurrentText("Prazdny");
  EXPECT_EQ(FindSett().Skin, "Prazdny");
}

TEST_F(FrmSLangTest, TheAuthorsWordsAreShownWithAnInformationIcon) {
  skin_.Picture("iInformation", test::Strips({Qt::cyan}, {32, 32}));
  const DialogScript script = {[](QWidget& dialog) {
    const QPixmap icon = dialog.findChild<QLabel*>("imgIcon")->pixmap();
    EXPECT_EQ(icon.toImage().pixelColor(16, 16), QColor(Qt::cyan));
    Box("Zorík", "Autor:\nNikdo")(dialog);
  }};
  Button("Command1").click();
}

TEST_F(FrmSLangTest, ASkinThatCannotBeWornIsToldAndChangesNothing) {
  skin_.File("../../Prazdny/Menu/skindata.txt", "start:\r\nclose.left=abc\r\n");
  const QSignalSpy changed(window_.get(), &FrmSLang::SkinChanged);
  Combo1().setCurrentText("English");
  ASSERT_EQ(changed.count(), 1);
  {
    const QString file = QString::fromStdString(skin_.Places().SkinsPath) + "/Prazdny/Menu/skindata.txt";
    const DialogScript script = {[&](QWidget& dialog) {
      const QString said = dialog.findChild<QLabel*>("lblText")->text().remove('\n').remove(' ');
      const QString all =
          "V údajích skinu je něco, čemu nelze rozumět.start.close.left" + file + "Skin zůstává, jaký byl.";
      EXPECT_EQ(said, QString(all).remove(' '));
      EXPECT_EQ(dialog.windowTitle(), "Zorik in English");
      QTest::keyClick(&dialog, Qt::Key_Return);
    }};
    QTest::keyClick(&Combo1(), Qt::Key_Down);
  }
  EXPECT_EQ(changed.count(), 1);
  EXPECT_EQ(Combo1().currentText(), "English");
  EXPECT_EQ(skin_.Skin().Text(TextId::Program), "Zorik in English");
  EXPECT_EQ(settings_.Skin, "English");
  EXPECT_EQ(FindSett().Skin, "English");
}

TEST_F(FrmSLangTest, ASkinIsStoredWhenAllWindowsHaveIt) {
  EXPECT_TRUE(StoreSkin("Default"));
  QString stored;
  QObject::connect(window_.get(), &FrmSLang::SkinChanged, window_.get(),
                   [&stored] { stored = FindSett().Skin; });
  Combo1().setCurrentText("English");
  EXPECT_EQ(stored, "Default");
  EXPECT_EQ(FindSett().Skin, "English");
}

TEST_F(FrmSLangTest, NumbersThatNoScreenShowsAreToldAndTheSkinIsWorn) {
  skin_.File("../../Prazdny/Menu/skindata.txt", "select.width=0\r\n");
  const DialogScript script = {[](QWidget& dialog) {
    const QString said = dialog.findChild<QLabel*>("lblText")->text();
    EXPECT_TRUE(said.contains("select.width")) << said.toStdString();
    QTest::keyClick(&dialog, Qt::Key_Return);
  }};
  Combo1().setCurrentText("Prazdny");
  EXPECT_EQ(FindSett().Skin, "Prazdny");
}

// The window as it opens with this skin stored.
TEST_F(FrmSLangTest, SelectsWhatIsStoredInAnyLetterCase) {
  for (const auto& [stored, selected] :
       std::map<QString, int>{{"ENGLISH", 1}, {"default", 0}, {"prazdny", 2}, {"Neni", -1}}) {
    settings_.Skin = stored;
    const FrmSLang window(skin_.Skin(), settings_, nullptr);
    EXPECT_EQ(window.findChild<QComboBox*>("Combo1")->currentIndex(), selected) << stored.toStdString();
  }
}

TEST_F(FrmSLangTest, TheDefaultSkinIsStoredWhenItIsChosenInPlaceOfOneThatIsGone) {
  settings_.Skin = "Neni";
  EXPECT_TRUE(StoreSkin(settings_.Skin));
  FrmSLang window(skin_.Skin(), settings_, nullptr);
  auto& combo = *window.findChild<QComboBox*>("Combo1");
  window.show();
  QTest::keyClick(&combo, Qt::Key_Down);
  EXPECT_EQ(combo.currentText(), "Default");
  EXPECT_EQ(FindSett().Skin, "Default");
}

TEST_F(FrmSLangTest, ASkinThatIsSelectedAlreadyIsStoredWhenItIsChosen) {
  settings_.Skin = "default";
  EXPECT_TRUE(StoreSkin(settings_.Skin));
  FrmSLang window(skin_.Skin(), settings_, nullptr);
  auto& combo = *window.findChild<QComboBox*>("Combo1");
  ASSERT_EQ(combo.currentText(), "Default");
  emit combo.textActivated("Default");
  EXPECT_EQ(FindSett().Skin, "Default");
}

TEST_F(FrmSLangTest, ListsTheSkinsOfThePlayerAndOfTheInstallation) {
  const test::Folder own;
  own.File("Skins/Moje/Menu/ok.bmp", "x");
  own.File("Skins/english/Menu/ok.bmp", "x");
  SkinPlaces places{own.Root() + "/Skins", "Default", skin_.Places().SkinsPath};
  skin_.Skin().Apply(places);
  const FrmSLang window(skin_.Skin(), settings_, nullptr);
  const auto& combo = *window.findChild<QComboBox*>("Combo1");
  QStringList names;
  for (int i = 0; i < combo.count(); ++i) names.push_back(combo.itemText(i));
  EXPECT_EQ(names, (QStringList{"Default", "english", "Moje", "Prazdny"}));
}

TEST_F(FrmSLangTest, HasItsButtonsAtTheTwoEndsBelowTheSkins) {
  const QRect author = Button("Command1").geometry();
  const QRect end = Button("Command2").geometry();
  EXPECT_EQ(author.left(), Combo1().geometry().left());
  EXPECT_EQ(end.right(), Combo1().geometry().right());
  EXPECT_EQ(author.top(), end.top());
  EXPECT_GT(author.top(), Combo1().geometry().bottom());
  EXPECT_EQ(author.width(), Button("Command1").sizeHint().width()) << "they are as wide as their words";
  EXPECT_EQ(end.width(), Button("Command2").sizeHint().width());
  EXPECT_GT(end.left(), author.right() + 1);
  for (const QWidget* const part :
       {static_cast<QWidget*>(&Combo1()), static_cast<QWidget*>(&Button("Command1"))})
    EXPECT_EQ(part->font().family(), GameFont(14).family()) << "in the letters of the game";
  EXPECT_EQ(Button("Command2").font().pixelSize(), 14);
}

TEST_F(FrmSLangTest, TheTabKeyGoesFromTheSkinsToTheAuthorAndToTheEnd) {
  ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
  const std::vector<QWidget*> order = {&Combo1(), &Button("Command1"), &Button("Command2"), &Combo1()};
  for (QWidget* const part : order) {
    EXPECT_EQ(QApplication::focusWidget(), part) << part->objectName().toStdString();
    QTest::keyClick(window_->windowHandle(), Qt::Key_Tab);
  }
}

TEST_F(FrmSLangTest, ArrowsChooseASkin) {
  QTest::keyClick(&Combo1(), Qt::Key_Down);
  EXPECT_EQ(FindSett().Skin, "English");
  QTest::keyClick(&Combo1(), Qt::Key_Up);
  EXPECT_EQ(FindSett().Skin, "Default");
}

TEST_F(FrmSLangTest, EnterAndSpacePressTheButtonThatHasTheFocus) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
    const DialogScript script = {Box("Zorík", "Autor:\nNikdo")};
    Button("Command1").setFocus();
    QTest::keyClick(&Button("Command1"), key);
  }
  EXPECT_TRUE(window_->isVisible());
  Combo1().setFocus();
  QTest::keyClick(&Combo1(), Qt::Key_Return);
  EXPECT_FALSE(window_->isVisible()) << "elsewhere it is the closing button's";
}

TEST_F(FrmSLangTest, TheLastButtonEnterAndEscCloseTheWindow) {
  const std::vector<std::function<void()>> ways = {
      [this] { Button("Command2").click(); },
      [this] { QTest::keyClick(window_.get(), Qt::Key_Return); },
      [this] { QTest::keyClick(window_.get(), Qt::Key_Escape); },
  };
  for (const auto& leave : ways) {
    window_->show();
    leave();
    EXPECT_FALSE(window_->isVisible());
  }
}

}  // namespace
}  // namespace zorik
