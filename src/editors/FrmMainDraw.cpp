// How the cave editor goes along with what the author's hand draws.
#include <QStatusBar>

#include "editors/CaveView.h"
#include "editors/DoubtPage.h"
#include "editors/DrawHand.h"
#include "editors/FrmMain.h"
#include "editors/Palette.h"
#include "editors/ProofDesk.h"
#include "editors/ResizeBox.h"
#include "screens/Marks.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr int kRefusal = 6000;  // milliseconds

}  // namespace

void FrmMain::ConnectHand() {
  hand_ = std::make_unique<DrawHand>(model_, *palette_, *view_, nullptr);
  connect(hand_.get(), &DrawHand::CellDrawn, this, &FrmMain::UpdateStatus);
  connect(hand_.get(), &DrawHand::StrokeDone, this, [this] {
    proof_->CaveChanged();
    doubts_->Look(model_.Cave());
    UpdateMenus();
  });
  connect(hand_.get(), &DrawHand::Changed, this, &FrmMain::AfterChange);
  connect(hand_.get(), &DrawHand::PickedDog, this, &FrmMain::Dog);
  connect(hand_.get(), &DrawHand::Refused, this, &FrmMain::Refuse);
}

void FrmMain::Refuse(const char* caption, int line) {
  statusBar()->showMessage(FillMarks(skin_.Caption(caption), QString::number(line), QString()), kRefusal);
}

void FrmMain::Resize() {
  view_->Picture().EndStroke();
  ResizeBox box(skin_, model_, tiles_, this);
  const bool wanted = box.exec() == QDialog::Accepted;
  activateWindow();
  if (wanted && model_.Resize(box.Sides())) AfterChange();
}

}  // namespace zorik
