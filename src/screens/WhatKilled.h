#pragma once

#include <QObject>
#include <QTimer>
#include <memory>

#include "run/Rescue.h"

namespace zorik {

// Looks for the moment at which a lost run could still have been saved, piece by piece, so that the windows
// go on meanwhile.
class WhatKilled : public QObject {
  Q_OBJECT

 public:
  WhatKilled();

  // Asks for a run whose last unit has died; an earlier question is forgotten.
  void Ask(const Timeline& run);
  void Forget();

 signals:
  void Found(int tick);
  // It has looked as far as it may, which does not mean that there was nothing.
  void NotFound();

 private:
  void Look();

  std::unique_ptr<Rescue> rescue_;
  int pieces_ = 0;  // that it has looked through
  QTimer next_;
};

}  // namespace zorik
