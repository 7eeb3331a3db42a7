#pragma once

#include <QFrame>

class QLabel;
class QPushButton;

namespace zorik {

class Skin;

// Asks above the picture whether a run that was won shall be the cave's proof, and stands in nobody's way
// meanwhile.
class ProofOffer : public QFrame {
  Q_OBJECT

 public:
  explicit ProofOffer(QWidget* parent = nullptr);

  void SetLW(const Skin& skin);
  void Ask(const QString& question);

 signals:
  // The answer was yes; it hides itself after any.
  void Taken();

 private:
  QLabel* lblOffer_;
  QPushButton* btnTake_;
  QPushButton* btnLeave_;
};

}  // namespace zorik
