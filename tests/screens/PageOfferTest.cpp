#include <gtest/gtest.h>

#include "data/WebPage.h"
#include "screens/DialogScript.h"
#include "screens/PageOffer.h"
#include "screens/PostScreen.h"
#include "support/OneStepCave.h"

namespace zorik::test {
namespace {

constexpr const char* kTemplate = "<p><!--given--></p>";

// The offer of a page of a won record, with a template beside the program.
class PageOffer : public testing::Test, public PostHome {
 protected:
  PageOffer() {
    folder.File("page.html", kTemplate);
    Hra run(3);
    EXPECT_TRUE(PaintCave(run, OneStepCave("Jama"), RunKind::Play));
    StepToWin(run);
    record = SaveRecord(run, run.Win->Score);
  }

  // Answers what name was proposed.
  QString Offer(const std::string& caveName) {
    QString proposed;
    const DialogScript script({[&](QWidget& dialog) {
      auto* const name = dialog.findChild<QLineEdit*>("fileNameEdit");
      ASSERT_NE(name, nullptr) << dialog.windowTitle().toStdString();
      proposed = name->text();
      name->setText(QString::fromStdString(folder.Root() + "/out.html"));
      static_cast<QDialog&>(dialog).accept();
    }});
    OfferPage(skin, nullptr, record, caveName, folder.Root());
    return proposed;
  }

  std::string record;
};

TEST_F(PageOffer, WritesThePageWhereThePlayerWantsIt) {
  EXPECT_EQ(Offer("Jama: \"1/2\""), "Jama 12.html");
  const auto page = ReadWhole(folder.Root() + "/out.html");
  ASSERT_TRUE(page);
  EXPECT_EQ(*page, *BuildWebPage(kTemplate, record));
}

TEST_F(PageOffer, ProposesANameThatADiskHasRoomFor) {
  const QString proposed = Offer(std::string(190, '\xE1') + "\x07");
  EXPECT_TRUE(proposed.endsWith(".html"));
  EXPECT_LE(proposed.toUtf8().size(), 255);
  EXPECT_GT(proposed.size(), 60);
}

}  // namespace
}  // namespace zorik::test
