#include <gtest/gtest.h>

#include <QLineEdit>
#include <QTest>

#include "screens/FrmDialog3.h"
#include "screens/TestSkin.h"

namespace zorik {
namespace {

using test::InDialog;

// As a keyboard with Czech letters does.
void TypeInto(QWidget& field, const QString& text) {
  for (const QChar letter : text) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, letter);
    QApplication::sendEvent(&field, &press);
  }
}

class FrmDialog3Test : public testing::Test {
 protected:
  void SetUp() override {
    skin_.Picture("newplayer", test::Strips({Qt::darkBlue}, {360, 160}));
    for (const char* name : {"ok", "cancel"}) skin_.Picture(name, test::Strips(test::kLooks, {80, 32}));
    skin_.Data(
        "addplayer:\ntext=Nový hráč\nimage=newplayer\nwidth=360\nheight=160\n"
        "name.left=40\nname.top=60\nname.width=280\nname.height=24\nname.color=FFF8E0\nname.textcolor="
        "402000\n"
        "ok.image=ok\nok.left=95\nok.top=104\nclose.image=cancel\nclose.left=185\nclose.top=104\n");
    skin_.Apply();
  }

  QString AskName(const std::function<void(QWidget&)>& act) {
    const InDialog inside(act);
    const QString name = FrmDialog3(skin_.Skin(), nullptr).AskName();
    EXPECT_TRUE(inside.Opened());
    EXPECT_FALSE(inside.Stayed());
    return name;
  }

  static QLineEdit& Text1(const QWidget& window) { return *window.findChild<QLineEdit*>("Text1"); }
  static QWidget& Part(const QWidget& window, const char* name) { return *window.findChild<QWidget*>(name); }

  test::TestSkin skin_;
};

TEST_F(FrmDialog3Test, HandsBackWhatWasTyped) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
    EXPECT_EQ(AskName([key](QWidget& window) {
                TypeInto(Text1(window), "Žofie Ď");
                QTest::keyClick(&Text1(window), key);
              }),
              "Žofie Ď");
  }
}

TEST_F(FrmDialog3Test, HandsBackNothingWhenItIsLeft) {
  const std::vector<std::function<void(QWidget&)>> ways = {
      [](QWidget& window) { QTest::keyClick(&Text1(window), Qt::Key_Escape); },
      [](QWidget& window) { QTest::mouseClick(&Part(window, "close"), Qt::LeftButton); },
      [](QWidget& window) { window.close(); },
  };
  for (const auto& leave : ways) {
    EXPECT_EQ(AskName([&](QWidget& window) {
                QTest::keyClicks(&Text1(window), "Adam");
                leave(window);
              }),
              "");
  }
}

TEST_F(FrmDialog3Test, TheOkButtonConfirms) {
  EXPECT_EQ(AskName([](QWidget& window) {
              QTest::keyClicks(&Text1(window), "Adam");
              QTest::mouseClick(&Part(window, "ok"), Qt::LeftButton);
            }),
            "Adam");
}

TEST_F(FrmDialog3Test, TheCaretIsInTheBoxAtOnce) {
  AskName([](QWidget& window) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_EQ(QApplication::focusWidget(), &Text1(window));
    window.close();
  });
}

TEST_F(FrmDialog3Test, TakesUpToSixtyCharacters) {
  EXPECT_EQ(AskName([](QWidget& window) {
              QTest::keyClicks(&Text1(window), QString(70, 'x'));
              QTest::keyClick(&window, Qt::Key_Return);
            }).size(),
            60);
}

TEST_F(FrmDialog3Test, ForgetsTheNameOfLastTime) {
  FrmDialog3 window(skin_.Skin(), nullptr);
  const InDialog first([](QWidget& open) {
    QTest::keyClicks(&Text1(open), "Adam");
    QTest::keyClick(&open, Qt::Key_Return);
  });
  window.AskName();
  const InDialog second([](QWidget& open) {
    EXPECT_EQ(Text1(open).text(), "");
    open.close();
  });
  window.AskName();
  EXPECT_TRUE(first.Opened() && second.Opened());
}

TEST_F(FrmDialog3Test, LiesWhereTheSkinSays) {
  const FrmDialog3 window(skin_.Skin(), nullptr);
  EXPECT_EQ(window.size(), QSize(360, 160));
  EXPECT_EQ(window.windowTitle(), "Nový hráč");
  EXPECT_EQ(Text1(window).geometry(), QRect(40, 60, 280, 24));
  EXPECT_EQ(Part(window, "ok").geometry(), QRect(95, 104, 80, 32));
  EXPECT_EQ(Part(window, "close").geometry(), QRect(185, 104, 80, 32));
}

// What is to be typed stands there until something is, paler than what is typed.
TEST_F(FrmDialog3Test, WritesInTheColoursOfTheSkin) {
  const FrmDialog3 window(skin_.Skin(), nullptr);
  const QPalette colours = Text1(window).palette();
  const QColor paper(0xFF, 0xF8, 0xE0);
  const QColor ink(0x40, 0x20, 0x00);
  EXPECT_EQ(colours.color(QPalette::Base), paper);
  EXPECT_EQ(colours.color(QPalette::Text), ink);
  EXPECT_EQ(colours.color(QPalette::Highlight), ink) << "what is selected is the other way round";
  EXPECT_EQ(colours.color(QPalette::HighlightedText), paper);
  const QColor pale = colours.color(QPalette::PlaceholderText);
  EXPECT_EQ(pale.rgb(), ink.rgb());
  EXPECT_GT(pale.alphaF(), 0.4F);
  EXPECT_LT(pale.alphaF(), 0.7F);
  EXPECT_EQ(Text1(window).placeholderText(), "Nový hráč");
  EXPECT_EQ(Text1(window).accessibleName(), "Nový hráč");
  EXPECT_FALSE(Text1(window).hasFrame());
  const int letters = Text1(window).font().pixelSize();
  EXPECT_GT(letters, 24 / 2) << "as large as its box allows";
  EXPECT_LT(letters, 24);
}

// Those of the game's own skin are those of skins that tell no others.
TEST(FrmDialog3Plain, HasTheSizeAndTheFieldOfTheGamesOwnSkin) {
  test::TestSkin none;
  const FrmDialog3 window(none.Skin(), nullptr);
  EXPECT_EQ(window.size(), QSize(360, 160));
  const QLineEdit& field = *window.findChild<QLineEdit*>("Text1");
  EXPECT_EQ(field.geometry(), QRect(40, 60, 280, 24));
  EXPECT_EQ(field.palette().color(QPalette::Base), QColor("#FFF8E0"));
  EXPECT_EQ(field.palette().color(QPalette::Text), QColor("#402000"));
}

}  // namespace
}  // namespace zorik
