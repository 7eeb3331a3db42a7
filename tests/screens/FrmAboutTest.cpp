#include <gtest/gtest.h>

#include <QLabel>
#include <QTextDocument>

#include "screens/DesktopServices.h"
#include "screens/DialogScript.h"
#include "screens/FrmAbout.h"
#include "screens/TestSkin.h"
#include "support/DesktopStandIn.h"

namespace zorik {
namespace {

using test::Box;
using test::DialogScript;

class FrmAboutTest : public testing::Test {
 protected:
  // The window with this credits text.
  FrmAbout& Open(const std::string& credits) {
    std::string lines = "\xEF\xBB\xBFjazyk\nautor\n";
    for (int place = 0; place < 200; ++place) {
      lines += (place == 99 ? "Zorík" : place == 199 ? credits : "") + "\n";
    }
    skin_.File("cestina.txt", lines);
    skin_.Apply();
    window_ = std::make_unique<FrmAbout>(skin_.Skin(), folder_.Paths(), nullptr);
    return *window_;
  }

  QLabel& Words() const { return *window_->findChild<QLabel*>("lblText"); }

  QString PlainWords() const {
    QTextDocument document;
    document.setHtml(Words().text());
    return document.toPlainText();
  }

  QString Page(const char* name) const {
    return QString::fromStdString(folder_.Paths().HelpPath + "/" + name);
  }

  test::TestSkin skin_;
  test::Folder folder_;
  std::unique_ptr<FrmAbout> window_;
};

TEST_F(FrmAboutTest, BreaksTheCreditsAtTheirMarks) {
  Open("Zorík##Hra <o> psu & \"kočce\".");
  EXPECT_EQ(PlainWords(), "Zorík\n\nHra <o> psu & \"kočce\".\n\nO programu");
}

TEST_F(FrmAboutTest, MakesLinksOfPagesAndAddresses) {
  Open("Viz https://example.org/a?b=1. Piš na jan.novak@example.org!");
  const QString text = Words().text();
  EXPECT_TRUE(text.contains("<a href=\"https://example.org/a?b=1\"")) << text.toStdString();
  EXPECT_TRUE(text.contains("<a href=\"mailto:jan.novak@example.org\"")) << text.toStdString();
  EXPECT_EQ(PlainWords(), "Viz https://example.org/a?b=1. Piš na jan.novak@example.org!\n\nO programu");
}

TEST_F(FrmAboutTest, OpensALinkWithTheDesktop) {
  Open("x");
  const test::DesktopStandIn desktop(0);
  emit Words().linkActivated("mailto:jan@example.org");
  EXPECT_EQ(desktop.Opened(), "mailto:jan@example.org");
}

TEST_F(FrmAboutTest, OpensThePageAboutTheProgram) {
  Open("x");
  folder_.File("Help/oprogramu.html", "<html>");
  const test::DesktopStandIn desktop(0);
  const QString words = Words().text();
  ASSERT_TRUE(words.contains("href=\"page\""));
  emit Words().linkActivated("page");
  EXPECT_EQ(desktop.Opened(), Page("oprogramu.html"));
}

TEST_F(FrmAboutTest, TellsThatNothingOpensALink) {
  Open("x");
  window_->show();
  const test::DesktopStandIn desktop(4);
  const DialogScript script = {Box("Zorík", "Program pro tento soubor nebyl nalezen:\nhttps://example.org/")};
  emit Words().linkActivated("https://example.org/");
  EXPECT_NE(desktop.Opened(), "");
  EXPECT_TRUE(QTest::qWaitFor([&] { return script.Done(); }));
}

TEST_F(FrmAboutTest, IsWalkedThroughWithTheKeysAlone) {
  Open("Viz https://example.org/a nebo jan@example.org.");
  const test::DesktopStandIn desktop(0);
  const DialogScript script = {[&](QWidget& dialog) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    for (int i = 0; i < 2; ++i) QTest::keyClick(dialog.windowHandle(), Qt::Key_Tab);
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Return);
    EXPECT_EQ(desktop.Opened(), "mailto:jan@example.org") << "the second link";
    EXPECT_TRUE(dialog.isVisible());
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Escape);
  }};
  window_->exec();
}

TEST_F(FrmAboutTest, OkEnterAndEscCloseIt) {
  Open("x");
  const DialogScript script = {test::Press(Qt::Key_Return), test::Press(Qt::Key_Escape), [](QWidget& dialog) {
                                 QTest::mouseClick(dialog.findChild<QWidget*>("ok"), Qt::LeftButton);
                               }};
  for (int i = 0; i < 3; ++i) {
    window_->exec();
    EXPECT_FALSE(window_->isVisible());
  }
}

TEST_F(FrmAboutTest, APageIsThePlayersOwnOrElseTheInstallations) {
  const test::Folder shipped;
  Paths paths = folder_.Paths();
  paths.ShippedHelp = shipped.Root() + "/Help";
  const auto page = [&] {
    return HelpPage(paths, skin_.Skin(), "help.html").remove(QString::fromStdString(folder_.Root()));
  };
  skin_.Data("help.folder=en\n");
  skin_.Apply();
  const QString other = QString::fromStdString(paths.ShippedHelp);
  EXPECT_EQ(page(), other + "/help.html") << "the one that is missed";
  shipped.File("Help/help.html", "");
  EXPECT_EQ(page(), other + "/help.html");
  folder_.File("Help/help.html", "");
  EXPECT_EQ(page(), "/Help/help.html");
  shipped.File("Help/en/help.html", "");
  EXPECT_EQ(page(), other + "/en/help.html") << "the language counts more";
  folder_.File("Help/en/help.html", "");
  EXPECT_EQ(page(), "/Help/en/help.html");
}

TEST_F(FrmAboutTest, NoSkinLeadsTheHelpOutOfItsFolder) {
  folder_.File("help.html", "");
  folder_.File("Help/help.html", "");
  for (const char* const folder : {"..", "../.", "en/../.."}) {
    skin_.Data("help.folder=" + std::string(folder) + "\n");
    skin_.Apply();
    EXPECT_EQ(HelpPage(folder_.Paths(), skin_.Skin(), "help.html"), Page("help.html")) << folder;
  }
}

}  // namespace
}  // namespace zorik
