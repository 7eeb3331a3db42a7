#pragma once

#include <QWidget>

class QAbstractButton;
class QCheckBox;
class QLabel;
class QPushButton;
class QSlider;
class QSpinBox;

namespace zorik {

class Skin;

// The page about the author's proof: what became of it, what of it is shown on the picture, where a try
// begins, and how to get a proof or weigh it. It shows what it is told, and tells what is
// wanted.
class ProofPage : public QWidget {
  Q_OBJECT

 public:
  explicit ProofPage(QWidget* parent = nullptr);

  void SetLW(const Skin& skin);

  // flaw: whether there is a place to go to.
  void SetVerdict(const QString& text, bool flaw);
  // The ticks from which a try can begin, up to this one; below 0 for none.
  void SetTicks(int most);
  int Tick() const;
  void SetTick(int tick);
  // Whether a try can begin with the dog at the pointer.
  void SetDog(bool may);
  // What is being worked at, or has come of it.
  void SetWork(const QString& text, bool busy, bool mayRate);
  bool WantsWay() const;
  bool WantsUntouched() const;

 signals:
  void GoWanted();
  void ShownChanged();
  void TickChosen(int tick);
  void TryWanted();
  void TryWithDogWanted();
  void SolveWanted();
  void RateWanted();
  void StopWanted();

 private:
  QPushButton* Button(const char* name, void (ProofPage::*wanted)());
  QCheckBox* Box(const char* name, const char* store, bool first);
  QWidget* MakeTry();

  QLabel* lblVerdict_;
  QLabel* lblTick_;
  QLabel* lblWork_;
  QPushButton* btnGo_;
  QCheckBox* chkWay_;
  QCheckBox* chkUntouched_;
  QSlider* sldTick_;
  QSpinBox* numTick_;
  QPushButton* btnTry_;
  QPushButton* btnTryDog_;
  QPushButton* btnSolve_;
  QPushButton* btnRate_;
  QPushButton* btnStop_;
};

}  // namespace zorik
