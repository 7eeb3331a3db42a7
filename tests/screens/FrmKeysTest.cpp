#include <QLabel>
#include <QScrollBar>
#include <QTest>
#include <algorithm>
#include <optional>
#include <set>

#include "data/Result.h"
#include "platform/Settings.h"
#include "screens/FittingArea.h"
#include "screens/FrmKeys.h"
#include "screens/FrmSettings.h"
#include "screens/KeyBox.h"
#include "screens/SkinButton.h"
#include "screens/TestSkin.h"
#include "support/VirtualPad.h"

namespace zorik {
namespace {

using test::InDialog;
using test::VirtualPad;

// The window of keys in a skin that is older than it: its words are those of the default skin.
class FrmKeysTest : public testing::Test {
 protected:
  bool Edit(const std::function<void(QWidget&)>& act) {
    const InDialog inside(act);
    const bool confirmed = FrmKeys(skin_.Skin(), nullptr, room_).Edit(keys_, pad_);
    EXPECT_TRUE(inside.Opened());
    return confirmed;
  }

  // Changes something, looks at it, and confirms it.
  void Confirm(const std::function<void(QWidget&)>& act) {
    EXPECT_TRUE(Edit([&act](QWidget& window) {
      act(window);
      QTest::mouseClick(window.findChild<SkinButton*>("ok"), Qt::LeftButton);
    }));
  }

  static KeyBox& Box(const QWidget& window, KeyUse use) {
    return *window.findChild<KeyBox*>("key" + QString::number(static_cast<int>(use)));
  }
  static KeyBox& Box(const QWidget& window, PadUse use) {
    return *window.findChild<KeyBox*>("pad" + QString::number(static_cast<int>(use)));
  }
  static QString Said(const QWidget& window) { return window.findChild<QLabel*>("lblSays")->text(); }

  template <class Use>
  static void Choose(const QWidget& window, Use use, int key, Qt::KeyboardModifiers modifiers = {}) {
    KeyBox& box = Box(window, use);
    QTest::mouseClick(&box, Qt::LeftButton);
    EXPECT_TRUE(box.Asks());
    QTest::keyClick(&box, static_cast<Qt::Key>(key), modifiers);
    EXPECT_FALSE(box.Asks());
  }

  test::TestSkin skin_;
  KeyMap keys_;
  PadMap pad_;
  QSize room_;  // for the window; none: the screen's
};

TEST_F(FrmKeysTest, ShowsTheKeysThatThereAre) {
  Edit([](QWidget& window) {
    EXPECT_EQ(window.windowTitle(), "Klávesy a ovladač");
    EXPECT_EQ(Box(window, KeyUse::Left).text(), "←");
    EXPECT_EQ(Box(window, KeyUse::Action).text(), "Shift, Ctrl, mezerník");
    EXPECT_EQ(Box(window, KeyUse::Restart).text(), "Ctrl+R");
    EXPECT_EQ(Box(window, KeyUse::Pause).text(), "P");
    EXPECT_EQ(Box(window, KeyUse::NextUnit).text(), "Tab");
    EXPECT_EQ(Box(window, KeyUse::Rewind).text(), "Backspace");
    EXPECT_EQ(Box(window, KeyUse::SetMark).text(), "F5");
    EXPECT_EQ(Box(window, KeyUse::BackToMark).text(), "F8");
    EXPECT_EQ(Box(window, PadUse::Action).text(), "1");
    EXPECT_EQ(Box(window, PadUse::NextUnit).text(), "2");
    EXPECT_EQ(Box(window, PadUse::Pause).text(), "–");
    EXPECT_EQ(Box(window, KeyUse::Pause).accessibleName(), "Pauza: P");
  });
}

TEST_F(FrmKeysTest, TakesTheKeyThatIsPressedNext) {
  Confirm([](QWidget& window) {
    Choose(window, KeyUse::Up, Qt::Key_W);
    EXPECT_EQ(Box(window, KeyUse::Up).text(), "W");
    EXPECT_EQ(Said(window), "") << "nobody had that key";
    Choose(window, KeyUse::Rewind, Qt::Key_4, Qt::KeypadModifier);
    EXPECT_EQ(Box(window, KeyUse::Rewind).text(), "num. 4");
  });
  KeyMap expected;
  expected.Choose(KeyUse::Up, {Qt::Key_W});
  expected.Choose(KeyUse::Rewind, {Qt::Key_4, true});
  EXPECT_EQ(keys_, expected);
}

TEST_F(FrmKeysTest, TakesKeysThatOtherwiseMeanSomethingInAWindow) {
  Confirm([](QWidget& window) {
    Choose(window, KeyUse::Pause, Qt::Key_Return);
    Choose(window, KeyUse::Up, Qt::Key_Tab);
    Choose(window, KeyUse::Left, Qt::Key_Down);
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(Box(window, KeyUse::Pause).text(), "Enter");
    EXPECT_EQ(Box(window, KeyUse::Up).text(), "Tab");
    EXPECT_EQ(Box(window, KeyUse::Left).text(), "↓");
  });
}

TEST_F(FrmKeysTest, TakesCtrlAsAKeyAndWithTheKeyOfTheRestart) {
  Confirm([](QWidget& window) {
    Choose(window, KeyUse::Down, Qt::Key_Control);
    EXPECT_EQ(Box(window, KeyUse::Down).text(), "Ctrl");
    EXPECT_EQ(Box(window, KeyUse::Action).text(), "Shift, mezerník");
    Choose(window, KeyUse::Restart, Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(Box(window, KeyUse::Restart).text(), "Ctrl+N");
    Choose(window, KeyUse::Restart, Qt::Key_F9);
    EXPECT_EQ(Box(window, KeyUse::Restart).text(), "F9");
    Choose(window, KeyUse::Pause, Qt::Key_K, Qt::ControlModifier);
    EXPECT_EQ(Box(window, KeyUse::Pause).text(), "K") << "Ctrl may be held for action";
  });
}

TEST_F(FrmKeysTest, TellsWhoseKeyItWas) {
  Confirm([](QWidget& window) {
    Choose(window, KeyUse::Left, Qt::Key_P);
    EXPECT_EQ(Said(window), "Klávesa P dosud patřila k volbě „Pauza“. Ta se tím změnila.");
    EXPECT_EQ(Box(window, KeyUse::Pause).text(), "←");
    Choose(window, KeyUse::Pause, Qt::Key_F9);
    EXPECT_EQ(Said(window), "");
    Choose(window, KeyUse::Down, Qt::Key_S);
    EXPECT_EQ(Said(window), "Klávesa S dosud dělala ve hře něco jiného. To teď nepůjde.");
    Choose(window, KeyUse::Down, Qt::Key_S);
    EXPECT_EQ(Said(window), "") << "it has it by now";
  });
}

TEST_F(FrmKeysTest, RefusesTheKeysThatLeadOut) {
  Confirm([](QWidget& window) {
    for (const Qt::Key key : {Qt::Key_F1, Qt::Key_F2, Qt::Key_F11, Qt::Key_F12, Qt::Key_VolumeUp}) {
      Choose(window, KeyUse::Left, key);
      EXPECT_EQ(Said(window), "Tuhle klávesu zvolit nejde, vyber jinou.");
    }
  });
  EXPECT_EQ(keys_, KeyMap());
}

TEST_F(FrmKeysTest, LeavesAKeyAloneForEscAndForAClickElsewhere) {
  Confirm([](QWidget& window) {
    Choose(window, KeyUse::Left, Qt::Key_Escape);
    EXPECT_TRUE(window.isVisible());
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::mouseClick(&Box(window, KeyUse::Left), Qt::LeftButton);
    QTest::mouseClick(&Box(window, KeyUse::Up), Qt::LeftButton);
    EXPECT_FALSE(Box(window, KeyUse::Left).Asks());
    EXPECT_TRUE(Box(window, KeyUse::Up).Asks());
    QTest::keyClick(&Box(window, KeyUse::Up), Qt::Key_I);
  });
  KeyMap expected;
  expected.Choose(KeyUse::Up, {Qt::Key_I});
  EXPECT_EQ(keys_, expected);
}

TEST_F(FrmKeysTest, DropsWhatIsNotConfirmed) {
  EXPECT_FALSE(Edit([](QWidget& window) {
    Choose(window, KeyUse::Left, Qt::Key_J);
    QTest::keyClick(&window, Qt::Key_Escape);
  }));
  EXPECT_EQ(keys_, KeyMap());
}

TEST_F(FrmKeysTest, GoesBackToTheKeysOfTheBeginning) {
  keys_.Choose(KeyUse::Left, {Qt::Key_J});
  pad_.Choose(PadUse::Pause, 7);
  Confirm([](QWidget& window) {
    EXPECT_EQ(Box(window, KeyUse::Left).text(), "J");
    EXPECT_EQ(Box(window, PadUse::Pause).text(), "8");
    QTest::mouseClick(window.findChild<SkinButton*>("reset"), Qt::LeftButton);
    EXPECT_EQ(Box(window, KeyUse::Left).text(), "←");
    EXPECT_EQ(Box(window, PadUse::Pause).text(), "–");
  });
  EXPECT_EQ(keys_, KeyMap());
  EXPECT_EQ(pad_, PadMap());
}

TEST_F(FrmKeysTest, TakesTheButtonThatIsPressedNext) {
  VirtualPad pad;
  Confirm([&pad](QWidget& window) {
    const auto press = [&](PadUse use, int button) {
      QTest::mouseClick(&Box(window, use), Qt::LeftButton);
      EXPECT_EQ(Said(window), "Stiskni tlačítko ovladače. Esc nechá to staré, Delete nedá žádné.");
      pad.Button(button, true);
      pad.Button(button, false);
      EXPECT_TRUE(QTest::qWaitFor([&] { return !Box(window, use).Asks(); }));
    };
    press(PadUse::Pause, 3);
    EXPECT_EQ(Box(window, PadUse::Pause).text(), "4");
    EXPECT_EQ(Said(window), "");
    press(PadUse::Restart, 1);
    EXPECT_EQ(Box(window, PadUse::Restart).text(), "2");
    EXPECT_EQ(Said(window), "Tlačítko 2 dosud patřilo k volbě „Další Zorík“. Ta se tím změnila.");
    Choose(window, PadUse::Action, Qt::Key_Delete);
    EXPECT_EQ(Box(window, PadUse::Action).text(), "–");
    Choose(window, PadUse::Pause, Qt::Key_Escape);
    Choose(window, PadUse::Pause, Qt::Key_X);
  });
  EXPECT_EQ(pad_.Of(PadUse::Action), kNoButton);
  EXPECT_EQ(pad_.Of(PadUse::NextUnit), kNoButton);
  EXPECT_EQ(pad_.Of(PadUse::Restart), 1);
  EXPECT_EQ(pad_.Of(PadUse::Pause), 3);
}

TEST_F(FrmKeysTest, TakesNoButtonForABoxThatDoesNotAskAnyMore) {
  VirtualPad pad;
  Confirm([&pad](QWidget& window) {
    QTest::mouseClick(&Box(window, PadUse::Pause), Qt::LeftButton);
    ASSERT_TRUE(Box(window, PadUse::Pause).Asks());
    QTest::mouseClick(window.findChild<SkinButton*>("reset"), Qt::LeftButton);
    EXPECT_FALSE(Box(window, PadUse::Pause).Asks());
    pad.Button(3, true);
    QTest::qWait(100);  // five times as long as it takes to look at the pad
    pad.Button(3, false);
    EXPECT_EQ(Box(window, PadUse::Pause).text(), "–");
    EXPECT_EQ(Said(window), "");
  });
  EXPECT_EQ(pad_, PadMap());
}

TEST_F(FrmKeysTest, SaysThatThereIsNoPad) {
  Edit([](QWidget& window) {
    QTest::mouseClick(&Box(window, PadUse::Pause), Qt::LeftButton);
    EXPECT_EQ(Said(window), "Žádný ovladač tu není. Připoj ho, nebo stiskni Esc.");
    QTest::qWait(100);  // five looks at the pad
    EXPECT_TRUE(Box(window, PadUse::Pause).Asks()) << "it waits for a button";
    EXPECT_EQ(Said(window), "Žádný ovladač tu není. Připoj ho, nebo stiskni Esc.");
    QTest::keyClick(&Box(window, PadUse::Pause), Qt::Key_Escape);
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(Said(window), "") << "nothing is asked any more";
  });
}

TEST_F(FrmKeysTest, FitsTheSmallestScreenAtDoubleSizeAndCutsNothing) {
  Edit([](QWidget& window) {
    EXPECT_LE(window.width(), 1366 / 2);
    EXPECT_LE(window.height(), 768 / 2);
    const auto parts = window.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget* const part : parts) {
      EXPECT_TRUE(window.rect().contains(part->geometry())) << part->objectName().toStdString();
      if (qobject_cast<const QLabel*>(part) != nullptr && part->objectName() != "lblSays") {
        EXPECT_GE(part->width(), part->sizeHint().width());
      }
      EXPECT_TRUE(std::none_of(parts.begin(), parts.end(), [part](const QWidget* other) {
        return other != part && other->geometry().intersects(part->geometry());
      }));
    }
    for (const KeyBox* const box : window.findChildren<KeyBox*>())
      EXPECT_LE(box->fontMetrics().horizontalAdvance(box->text()), box->width() - 12)
          << box->text().toStdString();
  });
}

TEST_F(FrmKeysTest, IsWalkedThroughAndChangedWithTheKeyboardAlone) {
  Confirm([](QWidget& window) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_EQ(QApplication::focusWidget(), &Box(window, KeyUse::Left));
    QTest::keyClick(window.windowHandle(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &Box(window, KeyUse::Up));
    QTest::keyClick(window.windowHandle(), Qt::Key_Space);
    EXPECT_TRUE(Box(window, KeyUse::Up).Asks());
    QTest::keyClick(window.windowHandle(), Qt::Key_I);
    EXPECT_EQ(Box(window, KeyUse::Up).text(), "I");
  });
}

TEST_F(FrmKeysTest, OpensFromTheSettingsWhichKeepAndStoreWhatIsConfirmedInBoth) {
  Settings settings;
  ASSERT_TRUE(StoreSett(settings));
  for (const bool confirmed : {false, true}) {
    const InDialog inside([&](QWidget& window) {
      const InDialog keys([](QWidget& open) {
        Choose(open, KeyUse::Left, Qt::Key_J);
        QTest::keyClick(&open, Qt::Key_Return);
      });
      if (confirmed) {
        QTest::keyClick(&window, Qt::Key_F2);
      } else {
        QTest::mouseClick(window.findChild<SkinButton*>("keys"), Qt::LeftButton);
      }
      EXPECT_TRUE(keys.Opened());
      QTest::keyClick(&window, confirmed ? Qt::Key_Return : Qt::Key_Escape);
    });
    EXPECT_EQ(FrmSettings(skin_.Skin(), nullptr).Edit(settings), confirmed);
    EXPECT_EQ(settings.Keys.UseOf(Qt::Key_J).has_value(), confirmed);
    EXPECT_EQ(FindSett(), settings);
  }
}

// On a small screen that is magnified.
TEST_F(FrmKeysTest, FindsRoomAndShowsTheBoxThatHasTheFocus) {
  room_ = {512, 290};
  Edit([this](QWidget& window) {
    EXPECT_LE(window.height(), room_.height());
    EXPECT_LE(window.width(), room_.width());
    std::set<QWidget*> seen;
    for (auto* box = qobject_cast<KeyBox*>(window.focusWidget()); box != nullptr && seen.insert(box).second;
         box = qobject_cast<KeyBox*>(window.focusWidget())) {
      EXPECT_EQ(box->visibleRegion(), QRegion(box->rect())) << box->objectName().toStdString();
      QTest::keyClick(box, Qt::Key_Tab);
    }
    EXPECT_EQ(seen.size(), kKeyUses + kPadUses);
    EXPECT_FALSE(window.findChild<FittingArea*>()->horizontalScrollBar()->isVisible());
    EXPECT_TRUE(window.rect().contains(window.findChild<SkinButton*>("ok")->geometry()));
    QTest::keyClick(&window, Qt::Key_Escape);
  });
}

// A box beside its words each, in two columns as far as there is room for them.
TEST_F(FrmKeysTest, HasABoxBesideEachOfItsWordsInRowsAndColumns) {
  for (const bool narrow : {false, true}) {
    room_ = narrow ? QSize(512, 290) : QSize();
    Edit([narrow](QWidget& window) {
      const std::vector<KeyUse> order{KeyUse::Left,    KeyUse::Up,         KeyUse::Right,
                                      KeyUse::Down,    KeyUse::Action,     KeyUse::NextUnit,
                                      KeyUse::Pause,   KeyUse::Restart,    KeyUse::Rewind,
                                      KeyUse::SetMark, KeyUse::BackToMark, KeyUse::SlowMotion};
      const std::size_t rows = narrow ? 12 : 6;
      for (std::size_t i = 0; i < order.size(); ++i) {
        const QRect box = Box(window, order[i]).geometry();
        if (i % rows > 0) {
          const QRect above = Box(window, order[i - 1]).geometry();
          EXPECT_EQ(box.left(), above.left()) << i;
          EXPECT_EQ(box.top() - above.bottom() - 1, 4) << i;
        } else if (i > 0) {
          EXPECT_EQ(box.top(), Box(window, order[0]).y());
          EXPECT_GT(box.left(), Box(window, order[0]).geometry().right() + 24);
        }
        EXPECT_EQ(box.size(), QSize(158, 24));
        EXPECT_FALSE(Box(window, order[i]).text().isEmpty());
        EXPECT_TRUE(Box(window, order[i]).accessibleName().endsWith(": " + Box(window, order[i]).text()));
      }
      const std::size_t inALine = narrow ? 2 : 4;
      const QWidget& part = *Box(window, KeyUse::Left).parentWidget();
      EXPECT_EQ(Box(window, order.back()).geometry().right(), part.width() - 1) << "nothing stands beside it";
      for (std::size_t i = 0; i < kPadUses; ++i) {
        const KeyBox& box = Box(window, static_cast<PadUse>(i));
        EXPECT_GT(box.y(), Box(window, KeyUse::SlowMotion).geometry().bottom());
        EXPECT_EQ(box.y(), Box(window, static_cast<PadUse>(i / inALine * inALine)).y()) << i;
        if (i % inALine > 0) {
          EXPECT_GT(box.x(), Box(window, static_cast<PadUse>(i - 1)).geometry().right());
        }
        EXPECT_TRUE(box.accessibleName().endsWith(": " + box.text()));
      }
    });
  }
}

TEST_F(FrmKeysTest, HasItsButtonsInTheMiddleOfItsLowerEdge) {
  Edit([](QWidget& window) {
    int right = -1, first = -1;
    for (const char* name : {"reset", "ok", "close"}) {
      const QRect button = window.findChild<SkinButton*>(name)->geometry();
      if (first < 0) first = button.left();
      if (right >= 0) {
        EXPECT_EQ(button.left() - right - 1, 12) << name;
      }
      right = button.right();
      EXPECT_LT(button.bottom(), window.height() - 8);
    }
    EXPECT_LE(std::abs(first - (window.width() - 1 - right)), 2);
    const QLabel& says = *window.findChild<QLabel*>("lblSays");
    EXPECT_EQ(says.alignment(), Qt::AlignCenter);
    EXPECT_TRUE(says.wordWrap());
    EXPECT_EQ(says.height(), 2 * says.fontMetrics().lineSpacing()) << "room for two lines";
    EXPECT_NE(says.palette().color(QPalette::WindowText), window.palette().color(QPalette::WindowText));
  });
}

}  // namespace
}  // namespace zorik
