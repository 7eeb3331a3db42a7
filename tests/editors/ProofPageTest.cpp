// The page about the proof, and the question whether a run shall be one: what they show of what they are
// told, how they lie, and what they ask for.
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSettings>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QTest>
#include <array>

#include "editors/Placing.h"
#include "editors/ProofOffer.h"
#include "editors/ProofPage.h"
#include "skin/Skin.h"

namespace zorik::test {
namespace {

constexpr std::array kButtons{"btnGo", "btnTry", "btnTryDog", "btnSolve", "btnRate", "btnStop"};

template <class Window>
class Shown : public ::testing::Test {
 protected:
  Shown() {
    QSettings(QSettings::IniFormat, QSettings::UserScope, "Ortvan", "Zorik2").clear();
    EXPECT_TRUE(skin.Apply(SkinPlaces{ZORIK_SKINS, "English"}));
    Make();
  }

  void Make() {
    window = std::make_unique<Window>();
    window->SetLW(skin);
  }
  template <class Widget>
  Widget& Part(const char* name) const {
    return *window->template findChild<Widget*>(name);
  }
  bool IsThere(const char* name) const { return Part<QWidget>(name).isVisibleTo(window.get()); }
  void Show(QSize size) const {
    window->resize(size);
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
  }

  Skin skin;
  std::unique_ptr<Window> window;
};

class ProofPageTest : public Shown<ProofPage> {
 protected:
  ProofPage& Page() const { return *window; }
  QScrollArea& ScrollArea() const { return *window->findChild<QScrollArea*>(); }
  QLabel& TickLabel() const {
    for (QLabel* const label : window->findChildren<QLabel*>()) {
      if (label->buddy() != nullptr) return *label;
    }
    ADD_FAILURE() << "no label leads to a box";
    return Part<QLabel>("lblVerdict");
  }
  bool Enabled(const char* name) const { return Part<QWidget>(name).isEnabled(); }
};

TEST_F(ProofPageTest, OffersNothingOfAProofThatIsNotThere) {
  EXPECT_EQ(Part<QLabel>("lblVerdict").text(), "");
  for (const char* const name : {"btnGo", "btnStop", "lblWork"}) EXPECT_FALSE(IsThere(name)) << name;
  for (const char* const name : {"btnTry", "btnTryDog", "btnSolve", "btnRate", "chkWay", "numTick"})
    EXPECT_TRUE(IsThere(name)) << name;
  for (const char* const name : {"btnTry", "btnRate", "numTick", "sldTick", "chkWay", "chkUntouched"})
    EXPECT_FALSE(Enabled(name)) << name;
  EXPECT_FALSE(TickLabel().isEnabled());
  EXPECT_TRUE(Enabled("btnSolve"));
}

TEST_F(ProofPageTest, StandsInOneColumnInTheOrderInWhichItIsUsed) {
  Page().SetVerdict("It breaks", true);
  Page().SetWork("At work", false, true);
  Show({320, 700});
  const auto part = [this](const char* name) { return &Part<QWidget>(name); };
  ExpectTidy(Page());
  ExpectColumn(Page(), {part("lblVerdict"), part("btnGo"), part("chkWay"), part("chkUntouched"),
                        part("numTick"), part("sldTick"), part("btnTry"), part("btnTryDog"), part("btnSolve"),
                        part("btnRate"), part("lblWork")});
  ExpectLine(Page(), {&TickLabel(), part("numTick")});
  EXPECT_LT(PlaceIn(Page(), *part("numTick")).left() - PlaceIn(Page(), TickLabel()).right(), 30);
  EXPECT_LT(PlaceIn(Page(), *part("lblVerdict")).top(), 30);
  EXPECT_GT(part("btnSolve")->width(), 250) << "as wide as the page";
  EXPECT_LT(part("numTick")->width(), 150) << "as wide as its number";
  Page().SetWork("At work", true, true);
  QCoreApplication::processEvents();
  ExpectTidy(Page());
  ExpectColumn(Page(), {part("btnTryDog"), part("btnStop"), part("lblWork")});
}

TEST_F(ProofPageTest, ScrollsUpAndDownOnlyAndBreaksItsLines) {
  const QString words = QString("many words ").repeated(20);
  Page().SetVerdict(words, true);
  Page().SetWork(words, false, true);
  Show({260, 240});
  EXPECT_EQ(ScrollArea().geometry(), Page().rect());
  EXPECT_FALSE(ScrollArea().horizontalScrollBar()->isVisible());
  EXPECT_GT(ScrollArea().verticalScrollBar()->maximum(), 0);
  EXPECT_EQ(ScrollArea().focusPolicy(), Qt::NoFocus) << "the keys are the picture's";
  for (const char* const name : {"lblVerdict", "lblWork"}) {
    const auto& label = Part<QLabel>(name);
    EXPECT_LE(label.width(), ScrollArea().viewport()->width()) << name;
    EXPECT_GT(label.height(), 3 * label.fontMetrics().height()) << name;
  }
}

TEST_F(ProofPageTest, LeavesTheKeysToThePictureWhenItIsClicked) {
  for (const char* const name : kButtons) EXPECT_EQ(Part<QWidget>(name).focusPolicy(), Qt::TabFocus) << name;
  for (const char* const name : {"chkWay", "chkUntouched", "sldTick"})
    EXPECT_EQ(Part<QWidget>(name).focusPolicy(), Qt::TabFocus) << name;
}

TEST_F(ProofPageTest, CallsEachThingByTheSkinsWords) {
  const auto named = [this](const char* name, const char* key) {
    EXPECT_EQ(Part<QAbstractButton>(name).text(), skin.Caption(key)) << name;
    EXPECT_FALSE(skin.Caption(key).isEmpty()) << key;
  };
  named("btnGo", "caption.proof.goto");
  named("chkWay", "caption.proof.way");
  named("chkUntouched", "caption.proof.untouched");
  named("btnTry", "caption.proof.try");
  named("btnTryDog", "caption.proof.trydog");
  named("btnSolve", "caption.proof.solve");
  named("btnRate", "caption.proof.rate");
  named("btnStop", "caption.proof.stop");
  EXPECT_EQ(TickLabel().text(), skin.Caption("caption.proof.from"));
  EXPECT_EQ(TickLabel().buddy(), &Part<QWidget>("numTick"));
  for (const char* const name : {"numTick", "sldTick"})
    EXPECT_EQ(Part<QWidget>(name).accessibleName(), TickLabel().text()) << name;
}

TEST_F(ProofPageTest, AsksForWhatIsPressedAndForNothingElse) {
  Page().SetVerdict("It breaks", true);
  Page().SetTicks(5);
  Page().SetDog(true);
  Page().SetWork({}, false, true);
  const std::array wanted{&ProofPage::GoWanted,    &ProofPage::TryWanted,  &ProofPage::TryWithDogWanted,
                          &ProofPage::SolveWanted, &ProofPage::RateWanted, &ProofPage::StopWanted};
  std::array<std::unique_ptr<QSignalSpy>, wanted.size()> spies;
  for (std::size_t i = 0; i < wanted.size(); ++i) spies[i] = std::make_unique<QSignalSpy>(&Page(), wanted[i]);
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    Part<QPushButton>(kButtons[i]).click();
    for (std::size_t k = 0; k < wanted.size(); ++k)
      EXPECT_EQ(spies[k]->count(), k <= i ? 1 : 0) << kButtons[i] << ", " << kButtons[k];
  }
}

TEST_F(ProofPageTest, LetsATickOfTheRunBeChosenInTheBoxAsOnTheSlider) {
  auto& number = Part<QSpinBox>("numTick");
  auto& slider = Part<QSlider>("sldTick");
  const QSignalSpy chosen(&Page(), &ProofPage::TickChosen);
  Page().SetTicks(12);
  for (const char* const name : {"btnTry", "numTick", "sldTick", "chkWay", "chkUntouched"})
    EXPECT_TRUE(Enabled(name)) << name;
  EXPECT_TRUE(TickLabel().isEnabled());
  EXPECT_EQ(number.minimum(), 0);
  EXPECT_EQ(number.maximum(), 12);
  EXPECT_EQ(slider.minimum(), 0);
  EXPECT_EQ(slider.maximum(), 12);
  number.setValue(4);
  EXPECT_EQ(slider.value(), 4);
  slider.setValue(9);
  EXPECT_EQ(number.value(), 9);
  EXPECT_EQ(Page().Tick(), 9);
  Page().SetTick(2);
  EXPECT_EQ(number.value(), 2);
  EXPECT_EQ(slider.value(), 2);
  ASSERT_EQ(chosen.count(), 3);
  EXPECT_EQ(chosen[0][0].toInt(), 4);
  EXPECT_EQ(chosen[1][0].toInt(), 9);
  EXPECT_EQ(chosen[2][0].toInt(), 2);
}

TEST_F(ProofPageTest, KnowsARunOfOneTickFromNone) {
  Page().SetTicks(0);
  EXPECT_TRUE(Enabled("btnTry")) << "its only tick";
  EXPECT_EQ(Part<QSpinBox>("numTick").maximum(), 0);
  Page().SetTicks(-1);
  EXPECT_FALSE(Enabled("btnTry"));
  EXPECT_EQ(Part<QSpinBox>("numTick").minimum(), 0);
  EXPECT_EQ(Part<QSpinBox>("numTick").maximum(), 0);
  EXPECT_EQ(Part<QSlider>("sldTick").minimum(), 0);
  EXPECT_EQ(Part<QSlider>("sldTick").maximum(), 0);
}

TEST_F(ProofPageTest, ShowsTheWayAtFirstAndWhatTheAuthorChoseTheNextTime) {
  EXPECT_TRUE(Page().WantsWay());
  EXPECT_FALSE(Page().WantsUntouched());
  QSignalSpy changed(&Page(), &ProofPage::ShownChanged);
  Part<QCheckBox>("chkWay").setChecked(false);
  EXPECT_EQ(changed.count(), 1);
  EXPECT_FALSE(Page().WantsWay());
  EXPECT_FALSE(Page().WantsUntouched());
  Part<QCheckBox>("chkUntouched").setChecked(true);
  EXPECT_EQ(changed.count(), 2);
  EXPECT_TRUE(Page().WantsUntouched());
  Make();
  EXPECT_FALSE(Page().WantsWay());
  EXPECT_TRUE(Page().WantsUntouched());
  EXPECT_FALSE(Part<QCheckBox>("chkWay").isChecked());
}

TEST_F(ProofPageTest, OffersToStopInsteadOfToBeginWhileItWorks) {
  Page().SetWork("Looking", true, true);
  EXPECT_EQ(Part<QLabel>("lblWork").text(), "Looking");
  EXPECT_TRUE(IsThere("lblWork"));
  EXPECT_TRUE(IsThere("btnStop"));
  EXPECT_FALSE(IsThere("btnSolve"));
  EXPECT_FALSE(IsThere("btnRate"));
  Page().SetWork({}, false, true);
  EXPECT_FALSE(IsThere("lblWork"));
  EXPECT_FALSE(IsThere("btnStop"));
  EXPECT_TRUE(IsThere("btnSolve"));
  EXPECT_TRUE(IsThere("btnRate"));
  EXPECT_TRUE(Enabled("btnRate"));
  Page().SetWork({}, false, false);
  EXPECT_FALSE(Enabled("btnRate"));
}

TEST_F(ProofPageTest, TellsTheVerdictAndLeadsToItsPlace) {
  Page().SetVerdict("It\nbreaks", true);
  EXPECT_EQ(Part<QLabel>("lblVerdict").text(), "It\nbreaks");
  EXPECT_TRUE(IsThere("btnGo"));
  Page().SetVerdict("It wins", false);
  EXPECT_EQ(Part<QLabel>("lblVerdict").text(), "It wins");
  EXPECT_FALSE(IsThere("btnGo"));
}

TEST_F(ProofPageTest, LetsTheDogBePutWhereThePointerIs) {
  Page().SetDog(false);
  EXPECT_FALSE(Enabled("btnTryDog"));
  Page().SetDog(true);
  EXPECT_TRUE(Enabled("btnTryDog"));
}

using ProofOfferTest = Shown<ProofOffer>;

TEST_F(ProofOfferTest, IsNotThereUntilItAsks) {
  QWidget around;
  auto* const offer = new ProofOffer(&around);
  around.show();
  EXPECT_FALSE(offer->isVisible());
  offer->Ask("Shall it be?");
  EXPECT_TRUE(offer->isVisible());
  EXPECT_EQ(offer->findChild<QLabel*>("lblOffer")->text(), "Shall it be?");
}

TEST_F(ProofOfferTest, GoesWithEitherAnswerAndTellsTheYesOnly) {
  const QSignalSpy taken(window.get(), &ProofOffer::Taken);
  window->Ask("Shall it be?");
  Part<QPushButton>("btnLeave").click();
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(taken.count(), 0);
  window->Ask("Shall it be?");
  Part<QPushButton>("btnTake").click();
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(taken.count(), 1);
  EXPECT_EQ(Part<QPushButton>("btnTake").text(), "Yes");
  EXPECT_EQ(Part<QPushButton>("btnLeave").text(), "No");
}

TEST_F(ProofOfferTest, HasTheQuestionBeforeTheAnswersAndAllTheRoomForIt) {
  window->Ask("Shall it be?");
  Show({700, 60});
  auto& question = Part<QLabel>("lblOffer");
  auto& yes = Part<QPushButton>("btnTake");
  auto& no = Part<QPushButton>("btnLeave");
  ExpectTidy(*window);
  ExpectLine(*window, {&question, &yes, &no});
  EXPECT_LE(yes.width(), yes.sizeHint().width());
  EXPECT_LE(no.width(), no.sizeHint().width());
  EXPECT_GT(question.width(), 700 / 2);
  EXPECT_EQ(yes.focusPolicy(), Qt::TabFocus) << "a click leaves the keys to the picture";
  EXPECT_EQ(no.focusPolicy(), Qt::TabFocus);
  EXPECT_GT(window->frameWidth(), 0) << "set off from the picture";
}

TEST_F(ProofOfferTest, BreaksALongQuestion) {
  window->Ask("short");
  const int narrow = window->minimumSizeHint().width();
  window->Ask(QString("many words ").repeated(30));
  EXPECT_LT(window->minimumSizeHint().width(), narrow + 200);
}

}  // namespace
}  // namespace zorik::test
