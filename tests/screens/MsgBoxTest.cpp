#include <gtest/gtest.h>

#include <QDialog>
#include <QLabel>
#include <QTest>
#include <optional>

#include "screens/MsgBox.h"
#include "screens/SkinButton.h"
#include "screens/TestSkin.h"
#include "screens/Tones.h"

namespace zorik {
namespace {

using test::InDialog;
using test::Strips;
using test::TestSkin;

constexpr QSize kButton(80, 32);
constexpr int kIconSize = 32;

// The colours of the icons in the test's skin.
const QColor kInformation = Qt::cyan, kQuestion = Qt::green, kExclamation = Qt::yellow, kCritical = Qt::red;

QLabel& Label(const QWidget& dialog, const char* name) {
  return *dialog.findChild<QLabel*>(name);
}

SkinButton& Button(const QWidget& dialog, const QString& name) {
  return *dialog.findChild<SkinButton*>(name);
}

// The buttons from left to right.
std::vector<const SkinButton*> Buttons(const QWidget& dialog) {
  std::vector<const SkinButton*> shown;
  for (const SkinButton* const button : dialog.findChildren<SkinButton*>()) {
    if (button->isVisible()) shown.push_back(button);
  }
  std::sort(shown.begin(), shown.end(), [](auto* one, auto* other) { return one->x() < other->x(); });
  return shown;
}

QStringList Names(const QWidget& dialog) {
  QStringList names;
  for (const SkinButton* const button : Buttons(dialog)) names.push_back(button->objectName());
  return names;
}

// The colour of the icon; none when no icon is in sight.
std::optional<QColor> Icon(const QWidget& dialog) {
  const QLabel& icon = Label(dialog, "imgIcon");
  if (!icon.isVisible()) return std::nullopt;
  return icon.pixmap(Qt::ReturnByValue).toImage().pixelColor(5, 5);
}

class MsgBoxTest : public testing::Test {
 protected:
  void SetUp() override {
    skin_.Data("dialog:\ncolor=28303C\nyes.image=yes\nno.image=no\nok.image=ok\nclose.image=cancel\n");
    for (const char* name : {"yes", "no", "ok", "cancel"}) skin_.Picture(name, Strips(test::kLooks, kButton));
    const QSize icon(kIconSize, kIconSize);
    skin_.Picture("iInformation", Strips({kInformation}, icon));
    skin_.Picture("iQuestion", Strips({kQuestion}, icon));
    skin_.Picture("iExclamation", Strips({kExclamation}, icon));
    skin_.Picture("iCritical", Strips({kCritical}, icon));
    skin_.Apply();
  }

  // Opens a box, does something to it, and closes it if it is still there.
  MsgResult Open(MsgButtons buttons, const std::function<void(QWidget&)>& act,
                 const QString& text = "Haf! Jsi tam ještě?", MsgIcon icon = MsgIcon::OfSet) {
    const InDialog inside(act);
    const MsgResult result = SkinMsgBox(skin_.Skin(), nullptr, text, buttons, icon, "Zorík se nudí");
    EXPECT_TRUE(inside.Opened());
    stayed_ = inside.Stayed();
    return result;
  }

  TestSkin skin_;
  bool stayed_ = false;
};

const MsgButtons kBeyond = static_cast<MsgButtons>(static_cast<int>(MsgButtons::NotStoredAtEnd) + 1);

TEST_F(MsgBoxTest, ShowsTheButtonsOfEachSet) {
  const std::vector<std::pair<MsgButtons, QStringList>> sets = {
      {MsgButtons::Ok, {"ok"}},
      {MsgButtons::OkCancel, {"ok", "close"}},
      {MsgButtons::YesNo, {"yes", "no"}},
      {MsgButtons::YesNoCancel, {"yes", "no", "close"}},
      {MsgButtons::RetryCancel, {"retry", "close"}},
      {MsgButtons::NotStored, {"retry", "elsewhere", "later"}},
      {MsgButtons::NotStoredAtEnd, {"retry", "elsewhere", "leave", "close"}},
      {kBeyond, {"ok"}},
  };
  for (const auto& [buttons, names] : sets) {
    Open(buttons, [&names = names](QWidget& dialog) { EXPECT_EQ(Names(dialog), names); });
  }
}

TEST_F(MsgBoxTest, HasTheIconOfItsSet) {
  const std::vector<std::pair<MsgButtons, std::optional<QColor>>> sets = {
      {MsgButtons::Ok, std::nullopt},
      {MsgButtons::OkCancel, kExclamation},
      {MsgButtons::YesNo, kQuestion},
      {MsgButtons::YesNoCancel, kQuestion},
      {MsgButtons::NotStored, kExclamation},
      {MsgButtons::NotStoredAtEnd, kExclamation},
      {kBeyond, std::nullopt},
  };
  for (const auto& [buttons, colour] : sets) {
    Open(buttons, [&colour = colour](QWidget& dialog) { EXPECT_EQ(Icon(dialog), colour); });
  }
}

TEST_F(MsgBoxTest, HasPicturesOrWordsOnAllItsButtons) {
  skin_.Data(
      "dialog:\nyes.image=yes\nno.image=no\nok.image=ok\nclose.image=cancel\nretry.image=ok\n"
      "plate.image=plate\nplateback.image=plate\n");
  const QColor ground(0x10, 0x40, 0x80);
  skin_.Picture("plate", Strips({ground, ground, ground}, kButton));
  skin_.Apply();
  const auto ends = [](const SkinButton& button) {
    const QImage image = const_cast<SkinButton&>(button).grab().toImage();
    const QColor left = image.pixelColor(2, 5);
    return left == image.pixelColor(image.width() - 3, 5) ? left : QColor();
  };
  for (const MsgButtons buttons : {MsgButtons::NotStored, MsgButtons::NotStoredAtEnd}) {
    Open(buttons, [&](QWidget& dialog) {
      for (const SkinButton* const button : Buttons(dialog)) {
        EXPECT_EQ(ends(*button), ground) << button->objectName().toStdString();
        EXPECT_GT(button->width(), button->fontMetrics().horizontalAdvance(button->text()));
      }
    });
  }
  Open(MsgButtons::YesNoCancel, [&](QWidget& dialog) {
    for (const SkinButton* const button : Buttons(dialog)) EXPECT_EQ(button->size(), kButton);
    EXPECT_EQ(ends(Button(dialog, "close")), test::kLooks[0]);
  });
}

TEST_F(MsgBoxTest, TellsAWayBackFromADeedByThePlateOfItsButton) {
  skin_.Data("dialog:\nplate.image=plate\nplateback.image=back\n");
  skin_.Picture("plate", Strips({Qt::green, Qt::green, Qt::green}, kButton));
  skin_.Picture("back", Strips({Qt::gray, Qt::gray, Qt::gray}, kButton));
  skin_.Apply();
  Open(MsgButtons::NotStoredAtEnd, [&](QWidget& dialog) {
    for (const char* const name : {"retry", "elsewhere", "leave", "close"}) {
      const bool deed = QString(name) == "retry" || QString(name) == "elsewhere";
      EXPECT_EQ(Button(dialog, name).grab().toImage().pixelColor(2, 5), QColor(deed ? Qt::green : Qt::gray))
          << name;
    }
  });
}

TEST_F(MsgBoxTest, AsksWhetherToTryAgain) {
  for (const auto& [key, again] :
       {std::pair(Qt::Key_Return, true), {Qt::Key_R, true}, {Qt::Key_Escape, false}}) {
    const InDialog dialog([&, pressed = key](QWidget& box) {
      EXPECT_EQ(Names(box), QStringList({"retry", "close"}));
      QTest::keyClick(&box, pressed);
    });
    EXPECT_EQ(AskRetry(skin_.Skin(), nullptr, "title", "text"), again) << key;
  }
}

TEST_F(MsgBoxTest, OfWhatIsNotStoredLosesNothingByEnterOrEsc) {
  const auto answer = [this](MsgButtons buttons, Qt::Key key) {
    return Open(buttons, [key](QWidget& dialog) { QTest::keyClick(&dialog, key); });
  };
  EXPECT_EQ(answer(MsgButtons::NotStored, Qt::Key_Return), MsgResult::Retry);
  EXPECT_EQ(answer(MsgButtons::NotStored, Qt::Key_Escape), MsgResult::Later);
  EXPECT_EQ(answer(MsgButtons::NotStored, Qt::Key_S), MsgResult::Elsewhere);
  EXPECT_EQ(answer(MsgButtons::NotStoredAtEnd, Qt::Key_Return), MsgResult::Retry);
  EXPECT_EQ(answer(MsgButtons::NotStoredAtEnd, Qt::Key_Escape), MsgResult::Cancel);
  EXPECT_EQ(answer(MsgButtons::NotStoredAtEnd, Qt::Key_Q), MsgResult::Leave);
}

TEST_F(MsgBoxTest, HasTheIconThatIsAskedFor) {
  const std::vector<std::pair<MsgIcon, std::optional<QColor>>> icons = {
      {MsgIcon::None, std::nullopt},  {MsgIcon::Information, kInformation},
      {MsgIcon::Question, kQuestion}, {MsgIcon::Exclamation, kExclamation},
      {MsgIcon::Critical, kCritical},
  };
  for (const auto& [icon, colour] : icons) {
    Open(
        MsgButtons::YesNo, [&colour = colour](QWidget& dialog) { EXPECT_EQ(Icon(dialog), colour); }, "Ano?",
        icon);
  }
}

TEST_F(MsgBoxTest, HasItsIconTwelveFromTheLeftAndBesideTheText) {
  Open(MsgButtons::YesNo, [](QWidget& dialog) {
    EXPECT_EQ(Label(dialog, "imgIcon").x(), 12);
    EXPECT_GT(Label(dialog, "lblText").x(), 12 + kIconSize);
  });
}

TEST_F(MsgBoxTest, ReturnsTheButtonThatWasPressed) {
  const std::vector<std::tuple<MsgButtons, const char*, int>> rows = {
      {MsgButtons::YesNoCancel, "yes", 6},
      {MsgButtons::YesNoCancel, "no", 7},
      {MsgButtons::OkCancel, "ok", 1},
      {MsgButtons::OkCancel, "close", 2},
  };
  for (const auto& [buttons, name, result] : rows) {
    const MsgResult given = Open(buttons, [name = name](QWidget& dialog) {
      QTest::mouseClick(&Button(dialog, name), Qt::LeftButton);
    });
    EXPECT_EQ(static_cast<int>(given), result);
    EXPECT_FALSE(stayed_);
  }
}

TEST_F(MsgBoxTest, StaysWhenThePointerSlidOffAButton) {
  Open(MsgButtons::Ok, [](QWidget& dialog) {
    QTest::mousePress(&Button(dialog, "ok"), Qt::LeftButton);
    QTest::mouseRelease(&Button(dialog, "ok"), Qt::LeftButton, {}, QPoint(-5, -5));
  });
  EXPECT_TRUE(stayed_);
}

struct KeyRow {
  MsgButtons buttons;
  Qt::Key key;
  std::optional<MsgResult> result;  // none: the key is ignored
};

class MsgBoxKeyTest : public MsgBoxTest, public testing::WithParamInterface<KeyRow> {};

TEST_P(MsgBoxKeyTest, PressesAButtonThatIsShown) {
  const KeyRow& row = GetParam();
  const MsgResult result = Open(row.buttons, [&](QWidget& dialog) { QTest::keyClick(&dialog, row.key); });
  EXPECT_EQ(stayed_, !row.result);
  EXPECT_EQ(result, row.result.value_or(result));
}

INSTANTIATE_TEST_SUITE_P(Letters, MsgBoxKeyTest,
                         testing::Values(KeyRow{MsgButtons::RetryCancel, Qt::Key_R, MsgResult::Retry},
                                         KeyRow{MsgButtons::RetryCancel, Qt::Key_C, MsgResult::Cancel},
                                         KeyRow{MsgButtons::YesNoCancel, Qt::Key_Y, MsgResult::Yes},
                                         KeyRow{MsgButtons::YesNoCancel, Qt::Key_N, MsgResult::No},
                                         KeyRow{MsgButtons::YesNoCancel, Qt::Key_C, MsgResult::Cancel},
                                         KeyRow{MsgButtons::YesNoCancel, Qt::Key_O, {}},
                                         KeyRow{MsgButtons::OkCancel, Qt::Key_O, MsgResult::Ok},
                                         KeyRow{MsgButtons::OkCancel, Qt::Key_C, MsgResult::Cancel},
                                         KeyRow{MsgButtons::OkCancel, Qt::Key_Y, {}},
                                         KeyRow{MsgButtons::OkCancel, Qt::Key_N, {}},
                                         KeyRow{MsgButtons::YesNo, Qt::Key_C, {}},
                                         KeyRow{MsgButtons::Ok, Qt::Key_C, {}},
                                         KeyRow{MsgButtons::Ok, Qt::Key_Space, {}}));

INSTANTIATE_TEST_SUITE_P(Enter, MsgBoxKeyTest,
                         testing::Values(KeyRow{MsgButtons::RetryCancel, Qt::Key_Return, MsgResult::Retry},
                                         KeyRow{MsgButtons::Ok, Qt::Key_Return, MsgResult::Ok},
                                         KeyRow{MsgButtons::OkCancel, Qt::Key_Enter, MsgResult::Ok},
                                         KeyRow{MsgButtons::YesNo, Qt::Key_Return, MsgResult::Yes},
                                         KeyRow{MsgButtons::YesNoCancel, Qt::Key_Enter, MsgResult::Yes}));

INSTANTIATE_TEST_SUITE_P(Esc, MsgBoxKeyTest,
                         testing::Values(KeyRow{MsgButtons::RetryCancel, Qt::Key_Escape, MsgResult::Cancel},
                                         KeyRow{MsgButtons::Ok, Qt::Key_Escape, {}},
                                         KeyRow{MsgButtons::OkCancel, Qt::Key_Escape, MsgResult::Cancel},
                                         KeyRow{MsgButtons::YesNo, Qt::Key_Escape, MsgResult::No},
                                         KeyRow{MsgButtons::YesNoCancel, Qt::Key_Escape, MsgResult::No}));

TEST_F(MsgBoxTest, TakesClosingTheWindowForEscAndForOkWhereEscDoesNothing) {
  const std::vector<std::pair<MsgButtons, MsgResult>> sets = {{MsgButtons::Ok, MsgResult::Ok},
                                                              {MsgButtons::OkCancel, MsgResult::Cancel},
                                                              {MsgButtons::YesNo, MsgResult::No},
                                                              {MsgButtons::YesNoCancel, MsgResult::No}};
  for (const auto& [buttons, result] : sets) {
    EXPECT_EQ(Open(buttons, [](QWidget& dialog) { dialog.close(); }), result);
    EXPECT_FALSE(stayed_);
  }
}

TEST_F(MsgBoxTest, IsNotAnsweredByAKeyThatIsStillHeldFromBefore) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_O}) {
    Open(MsgButtons::Ok, [key](QWidget& dialog) {
      QKeyEvent again(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
      QApplication::sendEvent(&dialog, &again);
    });
    EXPECT_TRUE(stayed_);
  }
}

TEST_F(MsgBoxTest, IsNotAnsweredByLettersWithCtrlOrAlt) {
  for (const Qt::KeyboardModifier modifier : {Qt::ControlModifier, Qt::AltModifier}) {
    Open(MsgButtons::YesNo, [modifier](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Y, modifier); });
    EXPECT_TRUE(stayed_);
  }
}

TEST_F(MsgBoxTest, HasItsTitleInTheTaskBarAndOverTheText) {
  Open(MsgButtons::Ok, [](QWidget& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Zorík se nudí");
    EXPECT_EQ(Label(dialog, "lblTitle").text(), "Zorík se nudí");
    EXPECT_LT(Label(dialog, "lblTitle").geometry().bottom(), Label(dialog, "lblText").y());
  });
}

TEST_F(MsgBoxTest, HasTheTitleOfTheGameWithoutOne) {
  const InDialog inside([](QWidget& dialog) { EXPECT_EQ(dialog.windowTitle(), "Zorík"); });
  SkinMsgBox(skin_.Skin(), nullptr, "Ano");
  EXPECT_TRUE(inside.Opened());
}

TEST_F(MsgBoxTest, BreaksItsTextIntoLines) {
  QString sentence;
  for (int i = 0; i < 30; ++i) sentence += "slovo ";
  Open(
      MsgButtons::Ok,
      [](QWidget& dialog) {
        const QLabel& text = Label(dialog, "lblText");
        const QStringList lines = text.text().split('\n');
        ASSERT_GT(lines.size(), 3);
        EXPECT_EQ(lines.front(), "První");
        EXPECT_EQ(text.height(), text.fontMetrics().size(0, text.text()).height());
        for (const QString& line : lines) EXPECT_LE(text.fontMetrics().horizontalAdvance(line), text.width());
      },
      "První\r\n" + sentence);
}

TEST_F(MsgBoxTest, IsNeverNarrowerThanItsButtons) {
  Open(
      MsgButtons::YesNoCancel, [](QWidget& dialog) { EXPECT_GT(dialog.width(), 3 * kButton.width()); }, "A");
}

TEST_F(MsgBoxTest, HasItsButtonsInTheMiddleOfOneRowBelowTheText) {
  for (const QString& text : {QString("A"), QString("Delší text, který je širší než tlačítka pod ním.")}) {
    Open(
        MsgButtons::YesNoCancel,
        [](QWidget& dialog) {
          const auto buttons = Buttons(dialog);
          ASSERT_EQ(buttons.size(), 3U);
          const int gap = buttons[1]->x() - buttons[0]->geometry().right();
          EXPECT_GT(gap, 1);
          EXPECT_EQ(buttons[2]->x() - buttons[1]->geometry().right(), gap);
          const int left = buttons[0]->x();
          const int right = dialog.width() - 1 - buttons[2]->geometry().right();
          EXPECT_LE(std::abs(left - right), 1);
          for (const SkinButton* const button : buttons) {
            EXPECT_EQ(button->y(), buttons[0]->y());
            EXPECT_GT(button->y(), Label(dialog, "lblText").geometry().bottom());
            EXPECT_LT(button->geometry().bottom(), dialog.height());
          }
        },
        text);
  }
}

TEST_F(MsgBoxTest, StandsInTheMiddleOfItsParent) {
  QWidget parent;
  parent.setGeometry(100, 80, 600, 500);
  parent.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&parent));
  const InDialog inside([&](QWidget& dialog) {
    const QPoint off = dialog.geometry().center() - parent.geometry().center();
    EXPECT_LE(off.manhattanLength(), 2);
  });
  SkinMsgBox(skin_.Skin(), &parent, "Ano");
  EXPECT_TRUE(inside.Opened());
}

TEST_F(MsgBoxTest, StaysOnTheScreenWhenItsParentDoesNot) {
  QWidget parent;
  parent.setGeometry(-500, -400, 520, 420);
  parent.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&parent));
  const InDialog inside(
      [](QWidget& dialog) { EXPECT_TRUE(dialog.screen()->availableGeometry().contains(dialog.geometry())); });
  SkinMsgBox(skin_.Skin(), &parent, "Ano");
  EXPECT_TRUE(inside.Opened());
}

TEST_F(MsgBoxTest, FitsTheScreenHoweverLongItsTextIs) {
  for (const QString& text :
       {QString("slovo ").repeated(3000), QString("#\r\n").repeated(500), QString(20000, 'x')}) {
    Open(
        MsgButtons::YesNo,
        [](QWidget& dialog) {
          EXPECT_TRUE(dialog.screen()->availableGeometry().contains(dialog.geometry()));
          EXPECT_LT(Button(dialog, "yes").geometry().bottom(), dialog.height());
        },
        text);
  }
}

TEST_F(MsgBoxTest, FitsTheScreenHoweverLongItsTitleIs) {
  const InDialog inside([](QWidget& dialog) {
    EXPECT_TRUE(dialog.screen()->availableGeometry().contains(dialog.geometry()));
    EXPECT_TRUE(Label(dialog, "lblTitle").text().endsWith(QChar(0x2026)));
  });
  SkinMsgBox(skin_.Skin(), nullptr, "Ano?", MsgButtons::Ok, MsgIcon::None, QString(10000, 'x'));
  EXPECT_TRUE(inside.Opened());
}

TEST_F(MsgBoxTest, ShowsNamesAsTheyAreWritten) {
  Open(
      MsgButtons::Ok,
      [](QWidget& dialog) {
        EXPECT_EQ(Label(dialog, "lblText").text(), "<b>R&D</b> %1 x y");
        EXPECT_EQ(Label(dialog, "lblText").textFormat(), Qt::PlainText);
      },
      "<b>R&D</b> %1\tx" + QString(QChar(0x202E)) + "y");
}

TEST_F(MsgBoxTest, IsPaintedInTheColourOfTheSkin) {
  for (const char* colour : {"28303C", "FFF8E0", "806040"}) {
    skin_.Data(std::string("dialog:\ncolor=") + colour + "\n");
    skin_.Apply();
    Open(MsgButtons::Ok, [&](QWidget& dialog) {
      const QColor ground(QString("#") + colour);
      const QImage grabbed = dialog.grab().toImage();
      EXPECT_EQ(grabbed.pixelColor(grabbed.width() / 2, 5), ground);
      const QColor text = Label(dialog, "lblText").palette().color(QPalette::WindowText);
      EXPECT_GE(Contrast(text, ground), 4.5) << colour;
    });
  }
}

TEST_F(MsgBoxTest, WorksWithoutAnySkin) {
  Skin none;
  const InDialog inside([](QWidget& dialog) {
    EXPECT_EQ(Button(dialog, "yes").text(), "Ano");
    EXPECT_EQ(Button(dialog, "no").text(), "Ne");
    QTest::mouseClick(&Button(dialog, "yes"), Qt::LeftButton);
  });
  EXPECT_EQ(SkinMsgBox(none, nullptr, "Ano?", MsgButtons::YesNo), MsgResult::Yes);
  EXPECT_FALSE(inside.Stayed());
}

TEST_F(MsgBoxTest, SpeaksOfItsButtonsInTheWordsOfTheSkin) {
  skin_.Data("caption:\ndialog.yes=Yes\ndialog.no=No\n");
  skin_.Apply();
  Open(MsgButtons::YesNo, [](QWidget& dialog) {
    EXPECT_EQ(Button(dialog, "yes").text(), "Yes");
    EXPECT_EQ(Button(dialog, "no").accessibleName(), "No");
  });
}

TEST_F(MsgBoxTest, AsksWithYesAndNo) {
  const InDialog yes([](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Y); });
  EXPECT_TRUE(Ask(skin_.Skin(), nullptr, "Dotaz", "Ano?"));
  const InDialog no([](QWidget& dialog) {
    EXPECT_EQ(Names(dialog), (QStringList{"yes", "no"}));
    EXPECT_EQ(dialog.windowTitle(), "Dotaz");
    QTest::keyClick(&dialog, Qt::Key_N);
  });
  EXPECT_FALSE(Ask(nullptr, "Dotaz", "Ano?"));
  EXPECT_FALSE(yes.Stayed() || no.Stayed());
}

TEST_F(MsgBoxTest, TellsWithOkAlone) {
  const auto act = [](QWidget& dialog) {
    EXPECT_EQ(Names(dialog), QStringList{"ok"});
    EXPECT_EQ(Label(dialog, "lblText").text(), "Pauza.");
    QTest::keyClick(&dialog, Qt::Key_Return);
  };
  const InDialog skinned(act);
  Tell(skin_.Skin(), nullptr, "Zorík", "Pauza.");
  const InDialog plain(act);
  Tell(nullptr, "Zorík", "Pauza.");
  EXPECT_TRUE(skinned.Opened() && plain.Opened());
  EXPECT_FALSE(skinned.Stayed() || plain.Stayed());
}

TEST_F(MsgBoxTest, OpensOverAnother) {
  const MsgResult below = Open(MsgButtons::YesNo, [&](QWidget& dialog) {
    const InDialog above([](QWidget& second) { QTest::keyClick(&second, Qt::Key_N); });
    EXPECT_FALSE(Ask(skin_.Skin(), &dialog, "Dotaz", "Ne?"));
    EXPECT_TRUE(above.Opened());
    QTest::keyClick(&dialog, Qt::Key_Y);
  });
  EXPECT_EQ(below, MsgResult::Yes);
}

}  // namespace
}  // namespace zorik
