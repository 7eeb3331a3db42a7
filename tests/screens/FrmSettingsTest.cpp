#include <gtest/gtest.h>

#include <QFileInfo>
#include <QLabel>
#include <QScrollBar>
#include <QSettings>
#include <QTest>
#include <algorithm>
#include <optional>

#include "data/Result.h"
#include "screens/FittingArea.h"
#include "screens/FrmSettings.h"
#include "screens/SkinButton.h"
#include "screens/SkinScale.h"
#include "screens/TestSkin.h"
#include "screens/Tones.h"

namespace zorik {
namespace {

using test::InDialog;

class FrmSettingsTest : public testing::Test {
 protected:
  void SetUp() override {
    skin_.Data(
        "settings:\ntext=Nastavení\ncolor=28303C\nok.image=ok\nclose.image=cancel\nchecks.image=checks\n"
        "check1.text=Ukázat skryté věci\ncheck2.text=Zvuky\ncheck3.text=Joystick\n"
        "speed.text=Rychlost hry\nspeedreplay.text=Rychlost záznamu\n");
    for (const char* name : {"ok", "cancel"}) skin_.Picture(name, test::Strips(test::kLooks, {80, 32}));
    skin_.Picture("checks",
                  test::Strips({Qt::red, Qt::green, Qt::blue, Qt::cyan, Qt::magenta, Qt::yellow}, {20, 20}));
    skin_.Apply();
  }

  bool Edit(const std::function<void(QWidget&)>& act) {
    const InDialog inside(act);
    const bool confirmed = FrmSettings(skin_.Skin(), nullptr, room_).Edit(settings_);
    EXPECT_TRUE(inside.Opened());
    stayed_ = inside.Stayed();
    return confirmed;
  }

  static SkinScale& Scale(const QWidget& window, int number) {
    return *window.findChildren<SkinScale*>().at(number);
  }
  static SkinCheck& Check(const QWidget& window, int number) {
    return *window.findChildren<SkinCheck*>().at(number);
  }
  static SkinButton& Ok(const QWidget& window) { return *window.findChild<SkinButton*>("ok"); }
  static SkinButton& Close(const QWidget& window) { return *window.findChild<SkinButton*>("close"); }

  // Changes everything there is.
  static void ChangeAll(QWidget& window) {
    Scale(window, 0).setValue(7);
    Scale(window, 1).setValue(2);
    Scale(window, 2).setValue(6);
    for (int i = 0; i < 8; ++i) Check(window, i).click();
  }

  test::TestSkin skin_;
  Settings settings_;
  bool stayed_ = false;
  QSize room_;  // for the window; none: the screen's
};

const Settings kChanged{.Speed = 4,
                        .SpeedR = 9,
                        .Sound = false,
                        .Joystick = true,
                        .NoSurprise = true,
                        .Volume = 6,
                        .Loops = false,
                        .Ghost = true,
                        .SmoothMotion = true,
                        .LessFlashing = true,
                        .PauseOnFocusLoss = true};

TEST_F(FrmSettingsTest, ShowsElevenMinusTheSpeed) {
  for (int speed = 1; speed <= 10; ++speed) {
    settings_.Speed = speed;
    settings_.SpeedR = 11 - speed;
    Edit([speed](QWidget& window) {
      EXPECT_EQ(Scale(window, 0).value(), 11 - speed);
      EXPECT_EQ(Scale(window, 1).value(), speed);
    });
  }
}

TEST_F(FrmSettingsTest, ShowsTheDefaults) {
  Edit([](QWidget& window) {
    EXPECT_EQ(Scale(window, 0).value(), 3);
    EXPECT_EQ(Scale(window, 1).value(), 10);
    EXPECT_EQ(Scale(window, 2).value(), 10);
    EXPECT_FALSE(Check(window, 0).isChecked());
    EXPECT_TRUE(Check(window, 1).isChecked());
    EXPECT_FALSE(Check(window, 2).isChecked());
    EXPECT_TRUE(Check(window, 3).isChecked());
    for (int i = 4; i < 8; ++i) EXPECT_FALSE(Check(window, i).isChecked()) << i;
  });
}

TEST_F(FrmSettingsTest, ShowsAndTakesEachOptionByItsOwnCheck) {
  const std::vector<bool Settings::*> options = {
      &Settings::NoSurprise, &Settings::Sound,        &Settings::Joystick,     &Settings::Loops,
      &Settings::Ghost,      &Settings::SmoothMotion, &Settings::LessFlashing, &Settings::PauseOnFocusLoss};
  for (int on = 0; on < 8; ++on) {
    for (int i = 0; i < 8; ++i) settings_.*options.at(static_cast<std::size_t>(i)) = i == on;
    const Settings before = settings_;
    EXPECT_TRUE(Edit([on](QWidget& window) {
      for (int i = 0; i < 8; ++i) EXPECT_EQ(Check(window, i).isChecked(), i == on);
      Check(window, on).click();
      Check(window, (on + 1) % 8).click();
      QTest::keyClick(&window, Qt::Key_Return);
    }));
    for (int i = 0; i < 8; ++i)
      EXPECT_EQ(settings_.*options.at(static_cast<std::size_t>(i)), i == (on + 1) % 8) << i;
    EXPECT_NE(settings_, before);
    EXPECT_EQ(FindSett(), settings_);
  }
}

TEST_F(FrmSettingsTest, TakesAndStoresWhatIsConfirmed) {
  EXPECT_TRUE(StoreSett(Settings()));
  EXPECT_TRUE(Edit([](QWidget& window) {
    ChangeAll(window);
    QTest::mouseClick(&Ok(window), Qt::LeftButton);
  }));
  EXPECT_EQ(settings_, kChanged);
  EXPECT_EQ(FindSett(), kChanged);
}

TEST_F(FrmSettingsTest, SaysSoWhenWhatIsConfirmedCannotBeStored) {
  const QString file = QSettings(QSettings::IniFormat, QSettings::UserScope, "Ortvan", "Zorik2").fileName();
  const QString place = QFileInfo(QFileInfo(file).path()).path();
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, "/dev/null");
  QString said;
  std::optional<InDialog> box;
  EXPECT_TRUE(Edit([&](QWidget& window) {
    box.emplace([&said](QWidget& told) { said = told.findChild<QLabel*>("lblText")->text(); });
    ChangeAll(window);
    QTest::mouseClick(&Ok(window), Qt::LeftButton);
  }));
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, place);
  EXPECT_EQ(said, "Soubor se nepodařilo uložit.");
  EXPECT_EQ(settings_, kChanged) << "they hold as long as the game runs";
}

TEST_F(FrmSettingsTest, IsConfirmedByEnterWhereverTheFocusIs) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
    EXPECT_TRUE(Edit([key](QWidget& window) { QTest::keyClick(&window, key); }));
    EXPECT_TRUE(Edit([key](QWidget& window) { QTest::keyClick(&Scale(window, 0), key); }));
    EXPECT_TRUE(Edit([key](QWidget& window) { QTest::keyClick(&Check(window, 2), key); }));
    EXPECT_FALSE(stayed_);
  }
}

TEST_F(FrmSettingsTest, DropsWhatIsNotConfirmed) {
  EXPECT_TRUE(StoreSett(Settings()));
  const std::vector<std::function<void(QWidget&)>> ways = {
      [](QWidget& window) { QTest::mouseClick(&Close(window), Qt::LeftButton); },
      [](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); },
      [](QWidget& window) { QTest::keyClick(&Check(window, 0), Qt::Key_Escape); },
      [](QWidget& window) { window.close(); },
  };
  for (const auto& leave : ways) {
    EXPECT_FALSE(Edit([&](QWidget& window) {
      ChangeAll(window);
      leave(window);
    }));
    EXPECT_FALSE(stayed_);
    EXPECT_EQ(settings_, Settings());
    EXPECT_EQ(FindSett(), Settings());
  }
}

TEST_F(FrmSettingsTest, ShowsTheOldValuesAfterACancel) {
  FrmSettings window(skin_.Skin(), nullptr);
  const InDialog first([](QWidget& open) {
    ChangeAll(open);
    QTest::keyClick(&open, Qt::Key_Escape);
  });
  window.Edit(settings_);
  const InDialog second([](QWidget& open) {
    EXPECT_EQ(Scale(open, 0).value(), 3);
    EXPECT_TRUE(Check(open, 1).isChecked());
    EXPECT_FALSE(Check(open, 0).isChecked());
  });
  window.Edit(settings_);
  EXPECT_TRUE(first.Opened() && second.Opened());
}

TEST_F(FrmSettingsTest, LeavesTheSkinAsItIs) {
  settings_.Skin = "English";
  EXPECT_TRUE(Edit([](QWidget& window) { QTest::keyClick(&window, Qt::Key_Return); }));
  EXPECT_EQ(settings_.Skin, "English");
}

TEST_F(FrmSettingsTest, KeepsTheSpeedsFromOneToTen) {
  EXPECT_TRUE(Edit([](QWidget& window) {
    QTest::keyClick(&Scale(window, 0), Qt::Key_End);
    QTest::keyClick(&Scale(window, 0), Qt::Key_Right);
    QTest::keyClick(&Scale(window, 1), Qt::Key_Home);
    QTest::keyClick(&Scale(window, 1), Qt::Key_Left);
    QTest::keyClick(&window, Qt::Key_Return);
  }));
  EXPECT_EQ(settings_.Speed, 1);
  EXPECT_EQ(settings_.SpeedR, 10);
}

TEST_F(FrmSettingsTest, LimitsASpeedThatIsOutOfRange) {
  settings_.Speed = 200;
  settings_.SpeedR = 0;
  EXPECT_TRUE(Edit([](QWidget& window) { QTest::keyClick(&window, Qt::Key_Return); }));
  EXPECT_EQ(settings_.Speed, 10);
  EXPECT_EQ(settings_.SpeedR, 1);
}

TEST_F(FrmSettingsTest, KeepsTheVolumeFromNoneToFull) {
  EXPECT_TRUE(Edit([](QWidget& window) {
    QTest::keyClick(&Scale(window, 2), Qt::Key_Home);
    QTest::keyClick(&Scale(window, 2), Qt::Key_Left);
    QTest::keyClick(&window, Qt::Key_Return);
  }));
  EXPECT_EQ(settings_.Volume, 0);
  settings_.Volume = 99;
  EXPECT_TRUE(Edit([](QWidget& window) { QTest::keyClick(&window, Qt::Key_Return); }));
  EXPECT_EQ(settings_.Volume, 10);
}

TEST_F(FrmSettingsTest, MovesAScaleByAStepForAnArrow) {
  EXPECT_TRUE(Edit([](QWidget& window) {
    QTest::keyClick(&Scale(window, 0), Qt::Key_Right);
    QTest::keyClick(&window, Qt::Key_Return);
  }));
  EXPECT_EQ(settings_.Speed, 7) << "to the right is faster";
}

TEST_F(FrmSettingsTest, MovesAKnobToThePointerAndLetsItFollow) {
  EXPECT_TRUE(Edit([](QWidget& window) {
    SkinScale& scale = Scale(window, 1);
    const int low = scale.height() - 2;
    const auto pull = [&](int x) {
      const QPointF place(x, low);
      QMouseEvent move(QEvent::MouseMove, place, scale.mapToGlobal(place), Qt::NoButton, Qt::LeftButton,
                       Qt::NoModifier);
      QApplication::sendEvent(&scale, &move);
    };
    QTest::mousePress(&scale, Qt::LeftButton, {}, QPoint(scale.width() / 2 - 5, low));
    EXPECT_EQ(scale.value(), 5);
    pull(scale.width() + 50);
    EXPECT_EQ(scale.value(), 10);
    pull(-50);
    EXPECT_EQ(scale.value(), 1);
    pull(scale.width() / 2 + 5);
    QTest::mouseRelease(&scale, Qt::LeftButton, {}, QPoint(scale.width() / 2 + 5, low));
    EXPECT_EQ(scale.value(), 6);
    pull(-50);
    EXPECT_EQ(scale.value(), 6) << "it was let go";
    QTest::keyClick(&window, Qt::Key_Return);
  }));
  EXPECT_EQ(settings_.SpeedR, 5);
}

TEST_F(FrmSettingsTest, LeavesAKnobAloneForTheOtherMouseButtons) {
  Edit([](QWidget& window) {
    QTest::mouseClick(&Scale(window, 0), Qt::RightButton, {}, QPoint(15, 10));
    EXPECT_EQ(Scale(window, 0).value(), 3);
  });
}

TEST_F(FrmSettingsTest, HasTheWordsOfTheSkin) {
  Edit([](QWidget& window) {
    EXPECT_EQ(window.windowTitle(), "Nastavení");
    QStringList labels;
    for (const QLabel* const label : window.findChildren<QLabel*>()) labels.push_back(label->text());
    EXPECT_EQ(labels, (QStringList{"Nastavení", "Rychlost hry :", "Rychlost záznamu :", "Hlasitost :"}));
    EXPECT_EQ(Check(window, 0).text(), "Ukázat skryté věci");
    EXPECT_EQ(Check(window, 1).text(), "Zvuky");
    EXPECT_EQ(Check(window, 2).text(), "Joystick");
    EXPECT_EQ(Check(window, 3).text(), "Trvalé zvuky: améba, kouzelná zeď") << "the skin is older than these";
    EXPECT_EQ(Check(window, 4).text(), "Duch nejlepšího záznamu");
    EXPECT_EQ(Check(window, 5).text(), "Plynulý pohyb");
    EXPECT_EQ(Check(window, 6).text(), "Méně blikání");
    EXPECT_EQ(Check(window, 7).text(), "Pauza při přepnutí jinam");
  });
}

TEST_F(FrmSettingsTest, TakesTheWordsAndColoursOfAnotherSkin) {
  FrmSettings window(skin_.Skin(), nullptr);
  const InDialog first([](QWidget& open) { open.close(); });
  window.Edit(settings_);
  skin_.Data("settings:\ntext=Settings\ncolor=FFF8E0\nspeed.text=Game speed\ncheck2.text=Sounds\n");
  skin_.Apply();
  const InDialog second([](QWidget& open) {
    EXPECT_EQ(open.windowTitle(), "Settings");
    EXPECT_EQ(open.findChildren<QLabel*>().at(1)->text(), "Game speed :");
    EXPECT_EQ(Check(open, 1).text(), "Sounds");
    const QImage grabbed = open.grab().toImage();
    EXPECT_EQ(grabbed.pixelColor(grabbed.width() / 2, 6), QColor("#FFF8E0"));
    const Tones tones = TonesOf("#FFF8E0");
    EXPECT_NE(tones.line, tones.quiet);
    for (int i = 0; i < 3; ++i)
      EXPECT_EQ(Scale(open, i).palette().color(QPalette::Mid), tones.line) << "the groove of scale " << i;
  });
  window.Edit(settings_);
  EXPECT_TRUE(first.Opened() && second.Opened());
}

TEST_F(FrmSettingsTest, FitsTheSmallestScreenAtDoubleSize) {
  Edit([](QWidget& window) {
    EXPECT_LE(window.width(), 1366 / 2);
    EXPECT_LE(window.height(), 768 / 2);
  });
}

TEST_F(FrmSettingsTest, CutsAndCoversNothing) {
  Edit([](QWidget& window) {
    const auto parts = window.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget* const part : parts) {
      EXPECT_TRUE(window.rect().contains(part->geometry()));
      EXPECT_GE(part->width(), part->sizeHint().width());
      EXPECT_TRUE(std::none_of(parts.begin(), parts.end(), [part](const QWidget* other) {
        return other != part && other->geometry().intersects(part->geometry());
      }));
    }
  });
}

TEST_F(FrmSettingsTest, IsWalkedThroughWithTheTabKey) {
  Edit([](QWidget& window) {
    const std::vector<QWidget*> order = {&Scale(window, 0), &Scale(window, 1), &Scale(window, 2),
                                         &Check(window, 0), &Check(window, 1), &Check(window, 3),
                                         &Check(window, 2), &Check(window, 4), &Check(window, 5),
                                         &Check(window, 6), &Check(window, 7), &Scale(window, 0)};
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    for (QWidget* const part : order) {
      EXPECT_EQ(QApplication::focusWidget(), part);
      QTest::keyClick(window.windowHandle(), Qt::Key_Tab);
    }
  });
}

// On a small screen that is magnified. With the Tab key each of its parts comes into sight.
TEST_F(FrmSettingsTest, FindsRoomInOneColumn) {
  room_ = {512, 290};
  Edit([this](QWidget& window) {
    EXPECT_LE(window.width(), room_.width());
    EXPECT_LE(window.height(), room_.height());
    EXPECT_FALSE(window.findChild<FittingArea*>()->horizontalScrollBar()->isVisible());
    EXPECT_EQ(Check(window, 0).x(), Check(window, 5).x());
    EXPECT_TRUE(window.rect().contains(Ok(window).geometry()));
    Scale(window, 2).setFocus();
    for (int i = 0; i < 8; ++i) {
      QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
      const QWidget* const check = window.focusWidget();
      EXPECT_NE(qobject_cast<const SkinCheck*>(check), nullptr);
      EXPECT_EQ(check->visibleRegion(), QRegion(check->rect())) << i;
    }
    QTest::keyClick(&window, Qt::Key_Escape);
  });
}

TEST_F(FrmSettingsTest, HasItsScalesBesideTheirWordsAndItsChecksInColumns) {
  const std::vector<int> order{0, 1, 3, 2, 4, 5, 6, 7};  // down the columns
  for (const bool narrow : {false, true}) {
    room_ = narrow ? QSize(512, 290) : QSize();
    Edit([&](QWidget& window) {
      const auto at = [&order, &window](std::size_t place) { return Check(window, order[place]).geometry(); };
      for (int i = 0; i < 3; ++i) {
        const QRect words = window.findChildren<QLabel*>().at(1 + i)->geometry();
        const QRect scale = Scale(window, i).geometry();
        EXPECT_EQ(words.center().y(), scale.center().y()) << i;
        EXPECT_GE(scale.left() - words.right() - 1, 12) << i;
        EXPECT_EQ(scale.left(), Scale(window, 0).x()) << i;
        EXPECT_EQ(words.left(), at(0).left()) << i;
        EXPECT_LT(scale.bottom(), i < 2 ? Scale(window, i + 1).y() : at(0).top());
      }
      const std::size_t rows = narrow ? 8 : 4;
      for (std::size_t place = 1; place < order.size(); ++place) {
        if (place % rows > 0) {
          EXPECT_EQ(at(place).left(), at(place - 1).left()) << place;
          EXPECT_EQ(at(place).top() - at(place - 1).bottom() - 1, 8) << place;
        } else {
          EXPECT_EQ(at(place).top(), at(0).top());
        }
        if (place >= rows) {
          EXPECT_GE(at(place).left() - at(place - rows).right() - 1, 24) << place;
        }
      }
    });
  }
}

TEST_F(FrmSettingsTest, HasTheKeysAtTheLeftAndTheTwoEndsAtTheRightOfItsLowerEdge) {
  Edit([](QWidget& window) {
    const QRect keys = window.findChild<SkinButton*>("keys")->geometry();
    const QRect ok = Ok(window).geometry();
    const QRect close = Close(window).geometry();
    const QRect area = window.findChild<FittingArea*>()->geometry();
    EXPECT_EQ(keys.left(), area.left());
    EXPECT_EQ(close.right(), area.right());
    EXPECT_EQ(close.left() - ok.right() - 1, 12);
    EXPECT_GT(ok.left(), keys.right() + 12);
    EXPECT_EQ(ok.top(), close.top());
    EXPECT_GE(std::min(keys.top(), ok.top()) - area.bottom() - 1, 12);
    EXPECT_EQ(window.height() - 1 - std::max(keys.bottom(), ok.bottom()), 20);
    const QRect caption = window.findChild<QLabel*>("lblCaption")->geometry();
    EXPECT_NEAR(caption.center().x(), window.rect().center().x(), 1);
    EXPECT_EQ(caption.top(), 20);
    EXPECT_LT(caption.bottom(), area.top());
  });
}

}  // namespace
}  // namespace zorik
