#pragma once

#include <QTimer>

#include "screens/SkinWindow.h"

class QLabel;

namespace zorik {

class Skin;
class SkinButton;
class SkinLabel;
class SkinPicture;

// The breakdown of a won run's score. It stands over the other windows, and closes by itself when its seconds
// are over. A record can be had again from here, by a click or the keys R and Z.
class FrmAnalyze : public SkinDialog {
  Q_OBJECT

 public:
  explicit FrmAnalyze(Skin& skin, QWidget* parent = nullptr);

  // What it shows: the line, the total without a bonus, and whether there is one.
  void SetScore(const QString& line, int total, bool bonus);

  // Whether it is that of a record, which can be had again.
  void OfferAgain(bool offered);

  // Lets it close by itself after so many seconds.
  void NastavCas(int seconds);

  // Lets it stay until the player closes it.
  void ClearCountdown();

  // Shows it in the skin of now; Closed tells of its end.
  void Open();

 signals:
  void Closed();
  // It has closed for the record to be played again.
  void AgainWanted();

 protected:
  void OnEnter() override { Close(); }
  void OnEsc() override { Close(); }
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void SkinIt();
  void CountDown();
  void Close();
  void Again();

  Skin& skin_;
  int Countdown_ = 0;  // seconds left
  QTimer Timer1_{this};

  QLabel* line_;         // the line
  QLabel* total_;        // the total
  QLabel* seconds_;      // the seconds
  SkinPicture* Image1_;  // the bonus sign
  SkinButton* ok_;
  SkinLabel* again_;
};

}  // namespace zorik
