#pragma once

#include <QTimer>
#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/Hra.h"
#include "platform/JoyPad.h"
#include "platform/Keyboard.h"
#include "platform/Settings.h"
#include "screens/FlashCover.h"
#include "screens/GhostView.h"
#include "screens/HideAway.h"
#include "screens/MessageStrip.h"
#include "screens/MotionClock.h"
#include "screens/PictureBar.h"
#include "screens/Ram.h"
#include "screens/TopBar.h"
#include "skin/CavePainter.h"
#include "skin/Skin.h"
#include "skin/Sounds.h"

namespace zorik {

class RunControls;

// The game window: it plays one run at a time and is the machine's stage. Which run comes, and what becomes
// of one that is won, is decided elsewhere. Dialogs open only when a tick is over, and no tick runs while one
// is open.
class HraWindow : public QWidget, private Stage {
  Q_OBJECT

 public:
  // Settings are changed and stored by the window's own controls, too.
  HraWindow(Skin& skin, DSound& sound, Settings& settings);
  ~HraWindow() override;

  // Lets time go on in the run that has just been started on its machine; again: it was on before.
  void StartTicking(bool again = false);

  // Starts the run anew.
  void Restart();

  // The record of a win of the cave goes beside the run in play that has just been started, as its ghost. No
  // bytes: none does.
  void SetGhost(std::string record) { ghost_.SetRecord(std::move(record)); }

  // The run is over: it stands still and keeps silent.
  void Stop();

  // The player's own pause, until he ends it.
  void PauseRun();

  // Shows a dialog; the game stands still meanwhile and starts with no key held.
  void WithDialog(const std::function<void()>& dialog);

  // The machine has been brought to another moment: shows it as it is by now, with jump at once in the view.
  void ShowMoment(bool jump);

  // The run has become one of another kind.
  void KindChanged();

  // A message of the run; one that stays is there until the next, which may be empty, or another moment.
  void Say(const QString& text, bool stays);

  // Time goes on in a run that had come to its end.
  void GoOn();

  // Takes the pace that is wanted by now; Paced answers what the display makes of milliseconds that are.
  void PaceChanged();
  int Paced(int wanted) const;

  Sounds& RunSounds() { return sounds_; }
  RunControls& Controls() { return *controls_; }
  Hra& Machine() { return hra_; }
  const Hra& Machine() const { return hra_; }
  const Ram& PlayArea() const { return *ram_; }
  const TopBar& Bar() const { return *topBar_; }
  const MessageStrip& Message() const { return *strip_; }
  const CavePainter& Painter() const { return painter_; }
  bool Ticking() const { return tmrHra_.isActive(); }
  int Interval() const { return tmrHra_.interval(); }  // milliseconds between two ticks
  const HideAway& Hidden() const { return *hideAway_; }
  // Whether it is maximised, or will be when it fills the screen no more.
  bool Maximised() const { return isFullScreen() ? maximised_ : isMaximized(); }

 signals:
  // Sound cannot be opened at all, in the words for the player: the program has to end.
  void NoSound(const QString& why);
  void RunWon();
  void RecordOver();
  // Somebody wants to leave the run.
  void EndRequested();
  // A key that the game itself has no use for, as Qt numbers it.
  void OtherKey(int key);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void resizeEvent(QResizeEvent* /*event*/) override { Arrange(); }
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  bool focusNextPrevChild(bool /*next*/) override { return false; }  // Tab belongs to the game

 private:
  // The stage
  void CaveOpens() override;
  void CellChanged(int x, int y) override { painter_.CellChanged(hra_, x, y); }
  void Moved(Cell from, Cell to) override { painter_.Moved(hra_, from, to); }
  void PZvuk(SoundId sound) override { sounds_.PZvuk(sound); }
  void PZvukStop(SoundId sound) override { sounds_.PZvukStop(sound); }
  void StopSounds() override { sounds_.StopAll(); }
  void PZvukTime(int seconds) override { sounds_.PZvukTime(seconds); }
  void ShowMessage(TextId text, Colour colour, int dogs) override;
  void ShowRemark(std::string_view text, Colour colour) override;
  void Label(LabelId label, int value) override { topBar_->SetFigure(label, value); }
  void DrawDogN(int n, int state) override;
  void MoveView(bool jump) override;
  void Flash() override { flash_ = true; }
  void Post(Request request) override { requests_.push_back(request); }
  std::optional<std::uint64_t> Reseed() override;

  void OnTick();
  void AfterTick(TickEnd end);
  void RecordEnds();
  void ReleaseKeys();
  void UseKeys();
  void LookedAway();
  void LookedBack();
  void SetFullScreen(bool full);
  void PresentView();
  void PresentTick(TickEnd end);
  void Arrive();
  void StopTicks();
  void Arrange();
  void ScreenChanged();
  void Act(Request request);
  void ChangeSpeed(int delta);
  void ToggleView();
  void Hide();
  void ComeBack();
  void EditSettings();
  void RepaintHiddenThings();
  void Pause();
  void Resume();
  void ShowKind();
  void ShowDecoration();

  Skin& skin_;
  Settings& settings_;
  Sounds sounds_;
  CavePainter painter_;
  GhostView ghost_{settings_};
  Hra hra_;

  Keyboard keyboard_;
  std::optional<JoyPad> joyPad_;  // while the settings want it
  std::vector<Request> requests_;
  bool flash_ = false;
  bool paused_ = false;     // minimised or hidden, and the timer stopped for that
  bool away_ = false;       // paused because the player is in another window
  bool running_ = false;    // a run is on: the timer runs unless a dialog or a pause stops it
  int dialogs_ = 0;         // that are open
  bool maximised_ = false;  // before it filled the screen

  QImage bar_;  // around the play picture
  TopBar* topBar_;
  Ram* ram_;
  PictureBar* imOk2_;
  MessageStrip* strip_;
  FlashCover* pctBlesk_;
  std::unique_ptr<HideAway> hideAway_;
  std::unique_ptr<RunControls> controls_;
  QTimer tmrHra_;
  MotionClock motion_;
};

}  // namespace zorik
