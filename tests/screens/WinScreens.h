#pragma once

#include <gtest/gtest.h>

#include <QLabel>

#include "core/Hra.h"
#include "screens/DialogScript.h"
#include "screens/FrmAnalyze.h"
#include "screens/PostScreen.h"
#include "screens/RecordKeeper.h"
#include "screens/WinFlow.h"
#include "support/Scene.h"

namespace zorik::test {

// What a win is worth: a cave with one step, 50 seconds and one dog.
inline constexpr int kPoints = 50;

// The screens that follow a win.
class WinScreens : public testing::Test, public PostScreen {
 protected:
  void Start(const std::vector<QString>& names) {
    Collection(names);
    Begin();
  }

  // With the collection and the records that are there by now.
  void Begin() {
    windows_.reset();
    analyze_.reset();
    Open();
    analyze_ = std::make_unique<FrmAnalyze>(skin, window.get());
    windows_ = std::make_unique<WinFlow>(flow, *window, *analyze_, keeper_);
    for (const auto& [name, signal] :
         std::initializer_list<std::pair<const char*, void (WinFlow::*)()>>{{"hide", &WinFlow::HideGame},
                                                                            {"start", &WinFlow::ShowStart},
                                                                            {"editor", &WinFlow::ShowEditor},
                                                                            {"again", &WinFlow::PlayAgain}}) {
      QObject::connect(windows_.get(), signal, [this, name = name] { events_ << name; });
    }
    window->hide();
  }

  // Plays a cave and wins it.
  void Win(int cave) {
    flow.Choose(cave);
    ASSERT_TRUE(flow.Start());
    EndTheRun();
  }

  // The run that has been started is won.
  void EndTheRun() {
    StepToWin(hra);
    windows_->RunWon();
  }

  // The record of a run of a cave that was won.
  std::string RecordOf(int cave, const QString& player) const {
    Hra run(1);
    run.CollectionName = "Sada";
    run.PlayerName = Bytes(player);
    EXPECT_TRUE(PaintCave(run, caves[static_cast<std::size_t>(cave - 1)] + "---00", RunKind::Play));
    while (!run.Win) Tick(run, Keys("R"));
    return SaveRecord(run, run.Win->Score);
  }

  // Tries the cave out for the player, as the cave editor does.
  void WinTest(int cave) {
    flow.BeginEditing("Žofie");
    ASSERT_TRUE(flow.TestRun(caves[static_cast<std::size_t>(cave - 1)]));
    EndTheRun();
  }

  QString Seconds() const { return analyze_->findChild<QLabel*>("Label4")->text(); }
  void CloseScore() { QTest::keyClick(analyze_.get(), Qt::Key_Return); }
  bool Stored(int cave) const { return std::filesystem::exists(RecordPath(cave)); }
  RecordHead Head(const std::string& path) const {
    RecordLines lines(*ReadWhole(path));
    return ReadRecordHead(lines);
  }

  RecordKeeper keeper_{skin, flow};
  std::unique_ptr<FrmAnalyze> analyze_;
  std::unique_ptr<WinFlow> windows_;
  QStringList events_;
};

}  // namespace zorik::test
