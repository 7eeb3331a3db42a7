#pragma once

#include <QObject>
#include <atomic>

#include "run/Rescue.h"
#include "screens/Background.h"

namespace zorik {

// Looks in the background for the moment at which a lost run could still have been saved.
class WhatKilled : public QObject {
  Q_OBJECT

 public:
  // Asks for a run whose last unit has died; an earlier question is forgotten.
  void Ask(const Timeline& run);
  void Forget() { background_.Drop(); }

 signals:
  void Found(int tick);
  // It has looked as far as it may, which does not mean that there was nothing.
  void NotFound();

 private:
  static void Look(Rescue& rescue, const std::atomic<bool>& dropped);
  void Take(const Rescue& rescue);

  Background background_;
};

}  // namespace zorik
