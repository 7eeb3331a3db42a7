#include <gtest/gtest.h>

#include <QApplication>
#include <QBuffer>
#include <QComboBox>
#include <QLabel>
#include <QRegularExpression>
#include <QTest>
#include <cstdlib>

#include "app/Game.h"
#include "data/Result.h"
#include "screens/DialogScript.h"
#include "screens/Folder.h"
#include "screens/SkinButton.h"

namespace zorik {
namespace {

using test::DialogScript;

constexpr int kPatience = 10000;  // milliseconds

FrmStart2* Start() {
  for (QWidget* const widget : QApplication::topLevelWidgets()) {
    if (auto* const window = dynamic_cast<FrmStart2*>(widget)) return window;
  }
  return nullptr;
}

// A skin of the player's own is stored that cannot be worn.
class GameFaultySkin : public testing::Test {
 protected:
  void SetUp() override {
    std::filesystem::create_directories(folder.Root() + "/Players/Ada");
    folder.File("Skins/Vadny/Menu/skindata.txt", "start:\r\nclose.left=abc\r\n");
    EXPECT_TRUE(StoreSkin("Vadny"));
    settings.Skin = "Vadny";
  }
  void TearDown() override { EXPECT_TRUE(StoreSkin("Default")); }

  void Begin() {
    Paths paths = folder.Paths();
    paths.ShippedSkins = ZORIK_BUILT_SKINS;
    inbox = std::make_unique<Inbox>(InboxPlace(folder.Root()));
    game = std::make_unique<Game>(paths, settings, *inbox);
    game->Begin();
    ASSERT_TRUE(QTest::qWaitFor([] { return Start() != nullptr && Start()->isVisible(); }, kPatience));
    QTest::qWait(1);  // the busy notice is gone
  }

  // The message about a value, by the end of the start.
  static QString Told(const std::string& file, const QString& outcome) {
    return "V údajích skinu je něco, čemu nelze rozumět.\nstart.close.left\n" + QString::fromStdString(file) +
           outcome;
  }
  static DialogScript::Act Read(const QString& text) {
    return [text](QWidget& dialog) {
      const auto blanks = QRegularExpression("\\s");
      const QString said = dialog.findChild<QLabel*>("lblText")->text();
      EXPECT_EQ(QString(said).remove(blanks), QString(text).remove(blanks));
      QTest::keyClick(&dialog, Qt::Key_Return);
    };
  }

  test::Folder folder;
  Settings settings{.Sound = false};
  std::unique_ptr<Inbox> inbox;
  std::unique_ptr<Game> game;
};

TEST_F(GameFaultySkin, GivesWayToTheDefaultSkinForThisStartAndThePaletteIsAtHand) {
  {
    const DialogScript script = {Read(
        Told(folder.Root() + "/Skins/Vadny/Menu/skindata.txt", "\nHra má proto tentokrát výchozí skin."))};
    Begin();
  }
  EXPECT_EQ(FindSett().Skin, "Vadny") << "it may be mended by the next start";
  const auto* const finger = Start()->findChild<QWidget*>("fingerPlay");
  EXPECT_TRUE(QTest::qWaitFor([&] { return finger->toolTip() == "Hrát"; }, kPatience));
  const DialogScript script = {[](QWidget& dialog) {
    auto& combo = *dialog.findChild<QComboBox*>("Combo1");
    EXPECT_EQ(combo.currentText(), "Vadny");
    combo.setCurrentText("Default");
    QTest::keyClick(&dialog, Qt::Key_Escape);
  }};
  Start()->findChild<SkinButton*>("changeskin")->click();
  EXPECT_EQ(FindSett().Skin, "Default");
}

TEST_F(GameFaultySkin, EndsTheProgramIfItIsTheDefaultSkin) {
  folder.File("Skins/Default/Menu/skindata.txt", "start:\r\nclose.left=abc\r\n");
  const auto start = [this] {
    const DialogScript script = {Read(Told(folder.Root() + "/Skins/Default/Menu/skindata.txt", QString()))};
    Begin();
  };
  EXPECT_EXIT(start(), testing::ExitedWithCode(EXIT_FAILURE), "");
}

TEST_F(GameFaultySkin, ShowsItsBusyPictureFromTheFirstStartOn) {
  folder.File("Skins/Vadny/Menu/skindata.txt", "");
  struct Watch : QObject {
    QColor colour;
    bool eventFilter(QObject* object, QEvent* event) override {
      auto* const notice = dynamic_cast<FrmLoading*>(object);
      if (notice != nullptr && event->type() == QEvent::Show)
        colour = notice->grab().toImage().pixelColor(150, 5);
      return false;
    }
  } watch;
  QImage picture(200, 38, QImage::Format_RGB32);
  picture.fill(Qt::magenta);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  ASSERT_TRUE(picture.save(&buffer, "BMP"));
  folder.File("Skins/Vadny/Menu/working.bmp", bytes.toStdString());
  qApp->installEventFilter(&watch);
  Begin();
  EXPECT_EQ(watch.colour, QColor(Qt::magenta));
}

TEST_F(GameFaultySkin, TellsOfPicturesThatItCannotRead) {
  folder.File("Skins/Vadny/Menu/skindata.txt", "");
  folder.File("Skins/Vadny/Menu/palm.bmp", "nothing of use");
  const DialogScript script = {Read("Obrázky skinu, které nelze přečíst, byly vynechány.\n" +
                                    QString::fromStdString(folder.Root()) + "/Skins/Vadny/Menu/palm.bmp")};
  Begin();
  EXPECT_GT(Start()->width(), 700) << "the default skin's palm";
}

// It is there when the skin asks for the second time.
TEST_F(GameFaultySkin, AsksForAPictureThatIsMissingUntilItIsThere) {
  folder.File("Skins/Vadny/Menu/skindata.txt", "start:\r\npalmPlay.image=nowhere\r\n");
  const auto asked = [](QWidget& dialog) {
    EXPECT_TRUE(dialog.findChild<QLabel*>("lblText")->text().contains("nowhere"));
    QTest::keyClick(&dialog, Qt::Key_R);
  };
  const DialogScript script = {asked, [&](QWidget& dialog) {
                                 QImage picture(640, 400, QImage::Format_RGB32);
                                 picture.fill(Qt::magenta);
                                 QByteArray bytes;
                                 QBuffer buffer(&bytes);
                                 EXPECT_TRUE(picture.save(&buffer, "BMP"));
                                 folder.File("Skins/Vadny/Menu/nowhere.bmp", bytes.toStdString());
                                 asked(dialog);
                               }};
  Begin();
  const QImage start = Start()->grab().toImage();
  int shown = 0;
  for (int y = 0; y < start.height(); ++y)
    shown += start.pixelColor(start.width() / 2, y) == QColor(Qt::magenta);
  EXPECT_GT(shown, 0) << "beside the lists";
}

TEST_F(GameFaultySkin, BeginsWithoutAPictureThatThePlayerCannotGive) {
  folder.File("Skins/Vadny/Menu/skindata.txt", "start:\r\npalmPlay.image=nowhere\r\n");
  const DialogScript script = {[](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }};
  Begin();
  EXPECT_TRUE(Start()->isVisible());
}

}  // namespace
}  // namespace zorik
