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
#include "screens/HideAway.h"
#include "screens/MessageStrip.h"
#include "screens/PictureBar.h"
#include "screens/Ram.h"
#include "screens/TopBar.h"
#include "skin/CavePainter.h"
#include "skin/Skin.h"
#include "skin/Sounds.h"

namespace zorik {

// The game window: it plays one run at a time and is the machine's stage. Which run comes, and what becomes
// of one that is won, is decided elsewhere. Dialogs open only when a tick is over, and no tick runs while one
// is open.
class HraWindow : public QWidget, private Stage {
  Q_OBJECT

 public:
  // Settings are changed and stored by the window's own controls, too.
  HraWindow(Skin& skin, DSound& sound, Settings& settings);

  // Lets time go on in the run that has just been started on its machine.
  void StartTicking();

  // The run is over: it stands still and keeps silent.
  void Stop();

  // The player's own pause, until he ends it.
  void PauseRun();

  // Shows a dialog; the game stands still meanwhile and starts with no key held.
  void WithDialog(const std::function<void()>& dialog);

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
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  bool focusNextPrevChild(bool /*next*/) override { return false; }  // Tab belongs to the game

 private:
  // The stage
  void CaveOpens() override;
  void CellChanged(int x, int y) override;
  void PZvuk(SoundId sound) override { sounds_.PZvuk(sound); }
  void PZvukStop(SoundId sound) override { sounds_.PZvukStop(sound); }
  void StopSounds() override { sounds_.StopAll(); }
  void PZvukTime(int seconds) override { sounds_.PZvukTime(seconds); }
  void ShowMessage(TextId text, Colour colour, int dogs) override;
  void ShowRemark(std::string_view text, Colour colour) override;
  void Label(LabelId label, int value) override;
  void DrawDogN(int n, int state) override;
  void MoveView(bool jump) override;
  void Flash() override { flash_ = true; }
  void Post(Request request) override { requests_.push_back(request); }
  std::optional<std::uint64_t> Reseed() override;

  void OnTick();
  void AfterTick(TickEnd end);
  bool NothingHelps() const;
  void RecordEnds();
  void ReleaseKeys();
  void UseKeys();
  void LookedAway();
  void LookedBack();
  void SetFullScreen(bool full);
  void PresentView();
  void Arrange();
  void ScreenChanged();
  void ShowFlash();
  void Act(Request request);
  void ChangeSpeed(int delta);
  void ToggleView();
  void Hide();
  void ComeBack();
  void EditSettings();
  void RepaintHiddenThings();
  void RestartClicked();
  void SetInterval();
  void Pause();
  void Resume();
  void UpdateCaption();
  void ShowDecoration();

  Skin& skin_;
  Settings& settings_;
  Sounds sounds_;
  CavePainter painter_;
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
  QWidget* pctBlesk_;
  std::unique_ptr<HideAway> hideAway_;
  QTimer tmrHra_;
};

}  // namespace zorik
