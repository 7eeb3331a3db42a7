#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <string>
#include <vector>

#include "core/Hra.h"
#include "platform/JoyPad.h"
#include "platform/Keyboard.h"
#include "platform/Settings.h"
#include "screens/MessageStrip.h"
#include "screens/Ram.h"
#include "screens/Session.h"
#include "skin/CavePainter.h"
#include "skin/Texts.h"

namespace zorik {

// The game window: it plays the caves of a session one after another, and the records of the player. It is
// the machine's stage. Dialogs open only when a tick is over, and no tick runs while one is open.
class HraWindow : public QWidget, private Stage {
  Q_OBJECT

 public:
  HraWindow(Session session, Texts texts, const SkinPlaces& places, const Settings& settings);

  // Starts a cave; a message tells when it cannot be read.
  void OpenCave(int number);

  // Plays the player's record of the present cave.
  void PlayRecord();

  const Hra& Machine() const { return hra_; }
  int CaveNumber() const { return cave_; }
  const Ram& PlayArea() const { return *ram_; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  bool focusNextPrevChild(bool /*next*/) override { return false; }  // Tab belongs to the game

 private:
  // The stage
  void CaveOpens() override;
  void CellChanged(int x, int y) override;
  void ShowMessage(int text, Colour colour, int dogs) override;
  void ShowRemark(std::string_view text, Colour colour) override;
  void Label(LabelId label, int value) override;
  void View(bool jump) override;
  void Flash() override { flash_ = true; }
  void Post(Request request) override { requests_.push_back(request); }
  std::optional<std::uint64_t> Reseed() override;

  void OnTick();
  void AfterTick(TickEnd end);
  void DrawView();
  void ShowFlash();
  void Act(Request request);
  void ChangeSpeed(int delta);
  void SetInterval();
  void StartTicking();

  void Finished();
  QString StoreWin();
  void NextCave();
  void ReplayFinished(bool won);
  void ReplayOver();
  void LeaveReplay();
  void StepCave(int delta);

  // Shows a dialog; the game stands still meanwhile and starts with no key held.
  void WithDialog(const std::function<void()>& dialog);
  void Say(const QString& text);

  QString Text(int place) const;
  QString Breakdown() const;
  void UpdateCaption();

  Session session_;
  Texts texts_;
  Settings settings_;
  CavePainter painter_;
  Hra hra_;
  int cave_ = 1;

  Keyboard keyboard_;
  JoyPad joyPad_;
  std::vector<Request> requests_;
  bool flash_ = false;
  bool minimised_ = false;  // and the timer stopped for that
  bool running_ = false;    // a run is on: the timer runs unless a dialog or minimising stops it

  Ram* ram_;
  MessageStrip* strip_;
  QWidget* pctBlesk_;
  QTimer tmrHra_;
};

}  // namespace zorik
