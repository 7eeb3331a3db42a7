#pragma once

#include <QImage>
#include <QString>
#include <QWidget>

namespace zorik {

class Skin;

// The busy notice. It stands above everything, takes no focus, and what the player clicks or types while it
// is there is lost. It gives way to a dialog that opens meanwhile.
class FrmLoading : public QWidget {
 public:
  explicit FrmLoading(Skin& skin);
  ~FrmLoading() override;

  // In the middle of the screen, painted when this returns.
  void Appear();
  void Disappear();

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void Paint();

  Skin& skin_;
  QImage picture_;
  QString words_;
};

// Shows the notice as long as it lives, so that no way out of a long work leaves it on the screen.
class BusyNotice {
 public:
  explicit BusyNotice(FrmLoading& notice) : notice_(notice) {
    ++living_;
    notice_.Appear();
  }
  ~BusyNotice() {
    notice_.Disappear();
    --living_;
  }
  BusyNotice(const BusyNotice&) = delete;
  BusyNotice& operator=(const BusyNotice&) = delete;

  // Whether some long work is going on: timers and messages get through to it, and are to wait.
  static bool Lives() { return living_ > 0; }

 private:
  static inline int living_ = 0;
  FrmLoading& notice_;
};

}  // namespace zorik
