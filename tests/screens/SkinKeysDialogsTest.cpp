#include <QPushButton>

#include "data/Result.h"
#include "screens/FrmAnalyze.h"
#include "screens/FrmDialog2.h"
#include "screens/FrmDialog3.h"
#include "screens/FrmSLang.h"
#include "screens/FrmSettings.h"
#include "screens/MsgBox.h"
#include "screens/SkinKeys.h"

namespace zorik {
namespace test {
namespace {

const QColor kInk("#FF00A0");

// A place of a window that is drawn in one colour, above all of its parts.
QString PlainGround(QWidget& window) {
  return Pixel({window.width() / 2, 6})(window);
}

SkinKeys KeyOfImage(const std::string& key, const QString& name) {
  return {{key, "looks", LookOf(name), QColor(Qt::red).name()}, {key, "looks", Width(name), "26"}};
}

// A window that is a picture.
SkinKeys KeysOfPicture(const std::string& key) {
  return {{key + ".image", "ground", Pixel({6, 6}), KeyHome::GroundColour().name()},
          {key + ".width", "333", WindowWidth, "333"},
          {key + ".height", "222", WindowHeight, "222"}};
}

// A label of the score window.
SkinKeys KeysOfScoreLabel(const std::string& key, const QString& name) {
  return {{key + ".left", "31", Left(name), "31"},
          {key + ".top", "43", Top(name), "43"},
          {key + ".width", "111", Width(name), "111"},
          {key + ".height", "57", Height(name), "57"}};
}

// A field of text.
SkinKeys KeysOfField(const std::string& key, const QString& name) {
  return {{key + ".left", "31", Left(name), "31"},
          {key + ".top", "43", Top(name), "43"},
          {key + ".width", "111", Width(name), "111"},
          {key + ".height", "57", Height(name), "57"},
          {key + ".color", "104080", PixelOf(name, {1, 1}), "#104080"},
          {key + ".textcolor", "FF00A0", Ink(name, kInk), "yes"}};
}

}  // namespace

SkinKeys KeysOfRetry() {
  return KeyOfImage("dialog.retry.image", "retry");
}

SkinKeys KeysOfPlates() {
  return {{"dialog.plate.image", "looks", PixelOf("retry", {2, 2}), QColor(Qt::red).name()},
          {"dialog.plateback.image", "looks", PixelOf("later", {2, 2}), QColor(Qt::red).name()}};
}

SkinKeys KeysOfSettings() {
  return KeyOfImage("settings.ok.image", "ok") + KeyOfImage("settings.close.image", "close") +
         SkinKeys{
             {"settings.text", "Volby", Title, "Volby"},
             {"settings.text", "Volby", WordsOn("lblCaption"), "Volby"},
             {"settings.color", "104080", PlainGround, "#104080"},
             {"settings.checks.image", "boxes", PixelOf("check1", {3, 14}), QColor(Qt::red).name()},
             {"settings.checks.image", "boxes", PixelOf("check2", {3, 14}), QColor(Qt::cyan).name()},
             {"settings.checks.image", "boxes", PixelOf("check3", {3, 14}), QColor(Qt::red).name()},
             {"settings.check1.text", "Jinak", WordsOn("check1"), "Jinak"},
             {"settings.check2.text", "Jinak", WordsOn("check2"), "Jinak"},
             {"settings.check3.text", "Jinak", WordsOn("check3"), "Jinak"},
             {"settings.check4.text", "Jinak", WordsOn("check4"), "Jinak"},
             {"settings.check5.text", "Jinak", WordsOn("check5"), "Jinak"},
             {"settings.check6.text", "Jinak", WordsOn("check6"), "Jinak"},
             {"settings.check7.text", "Jinak", WordsOn("check7"), "Jinak"},
             {"settings.check8.text", "Jinak", WordsOn("check8"), "Jinak"},
             {"settings.volume.text", "Jinak", WordsOn("lblVolume"), "Jinak :"},
             {"settings.speed.text", "Jinak", WordsOn("lblSpeed"), "Jinak :"},
             {"settings.speedreplay.text", "Jinak", WordsOn("lblSpeedR"), "Jinak :"},
         };
}

SkinKeys KeysOfQuestion() {
  return SkinKeys{{"dialog.color", "104080", PlainGround, "#104080"}} +
         KeyOfImage("dialog.yes.image", "yes") + KeyOfImage("dialog.no.image", "no") +
         KeyOfImage("dialog.close.image", "close");
}

SkinKeys KeysOfNotice() {
  return KeyOfImage("dialog.ok.image", "ok");
}

SkinKeys KeysOfCongratulation(const QString& box) {
  return SkinKeys{{"congratulation.text", "Hurá", Title, "Hurá"}} + KeysOfPicture("congratulation") +
         KeysOfField("congratulation.congrat", box) + KeysOfButton("congratulation.ok", "ok") +
         KeysOfButton("congratulation.close", "close") + KeysOfButton("congratulation.help", "help");
}

SkinKeys KeysOfNewPlayer() {
  return SkinKeys{{"addplayer.text", "Kdo jsi?", Title, "Kdo jsi?"}} + KeysOfPicture("addplayer") +
         KeysOfField("addplayer.name", "Text1") + KeysOfButton("addplayer.ok", "ok") +
         KeysOfButton("addplayer.close", "close");
}

SkinKeys KeysOfScore() {
  return SkinKeys{{"score.image", "small", WindowWidth, "300"},
                  {"score.image", "ground", Pixel({6, 6}), KeyHome::GroundColour().name()}} +
         KeysOfButton("score.ok", "ok") + KeysOfScoreLabel("score.line", "Label2") +
         KeysOfScoreLabel("score.total", "Label3") + KeysOfScoreLabel("score.seconds", "Label4") +
         KeysOfScoreLabel("score.again", "again") +
         SkinKeys{{"score.bonus.left", "61", Left("Image1"), "61"},
                  {"score.bonus.top", "73", Top("Image1"), "73"}};
}

SkinKeys KeysOfSkinWindow() {
  return {{"skin.author.text", "Jára#Petr", WordsOn("lblText"), "Jára\nPetr"}};
}

}  // namespace test

namespace {

using test::InDialog;
using test::KeyHome;

// A dialog that opens when somebody calls for it.
test::Stage Modal(const std::function<void()>& open) {
  return [open](const auto& look) {
    const InDialog inside(look);
    open();
    EXPECT_TRUE(inside.Opened());
  };
}

TEST(SkinKeysOfTheSettings, HaveTheirEffect) {
  KeyHome home;
  test::CheckKeys(home, test::KeysOfSettings(), Modal([&] {
                    Settings settings;
                    FrmSettings(home.skin, nullptr).Edit(settings);
                  }));
}

TEST(SkinKeysOfTheMessageBox, HaveTheirEffect) {
  KeyHome home;
  const auto box = [&](MsgButtons buttons) {
    return Modal([&home, buttons] { SkinMsgBox(home.skin, nullptr, "Ano?", buttons); });
  };
  test::CheckKeys(home, test::KeysOfQuestion(), box(MsgButtons::YesNoCancel));
  test::CheckKeys(home, test::KeysOfNotice(), box(MsgButtons::Ok));
  test::CheckKeys(home, test::KeysOfRetry(), box(MsgButtons::RetryCancel));
  test::CheckKeys(home, test::KeysOfPlates(), box(MsgButtons::NotStored));
}

TEST(SkinKeysOfTheCongratulation, HaveTheirEffectOnWhoReadsIt) {
  KeyHome home;
  test::CheckKeys(home, test::KeysOfCongratulation("picText"),
                  Modal([&] { FrmDialog2(home.skin, nullptr).ShowG("Hotovo"); }));
}

TEST(SkinKeysOfTheCongratulation, HaveTheirEffectOnWhoEditsIt) {
  KeyHome home;
  test::CheckKeys(home, test::KeysOfCongratulation("Text1"),
                  Modal([&] { FrmDialog2(home.skin, nullptr).SetG("Hotovo"); }));
}

TEST(SkinKeysOfTheNewPlayer, HaveTheirEffect) {
  KeyHome home;
  test::CheckKeys(home, test::KeysOfNewPlayer(), [&](const auto& look) {
    const InDialog inside([&](QWidget& window) {
      QTest::keyClicks(&test::Part(window, "Text1"), "Adam");
      look(window);
    });
    FrmDialog3(home.skin, nullptr).AskName();
    EXPECT_TRUE(inside.Opened());
  });
}

TEST(SkinKeysOfTheScore, HaveTheirEffect) {
  KeyHome home;
  FrmAnalyze window(home.skin);
  window.SetScore("1", 1, true);
  window.ClearCountdown();
  test::CheckKeys(home, test::KeysOfScore(), [&](const auto& look) {
    window.Open();
    look(window);
    window.hide();
  });
}

TEST(SkinKeysOfTheSkinWindow, HaveTheirEffect) {
  KeyHome home;
  Settings settings;
  FrmSLang window(home.skin, settings, nullptr);
  window.show();
  test::CheckKeys(home, test::KeysOfSkinWindow(),
                  Modal([&] { window.findChild<QPushButton*>("Command1")->click(); }));
}

}  // namespace
}  // namespace zorik
