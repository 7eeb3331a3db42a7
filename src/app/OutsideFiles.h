#pragma once

#include <QObject>
#include <QString>
#include <QTimer>
#include <deque>
#include <functional>

#include "flow/Welcome.h"
#include "screens/WaitSign.h"

namespace zorik {

class Skin;

// What the files from outside need of the screens.
struct OutsideScreens {
  std::function<OnScreen()> look;
  std::function<bool(const QString& path)> askToEndRun;  // true for yes
  std::function<void(const QString& path)> open;         // ends the run, if one is on
};

// The files from outside, one after the other: each is opened as soon as nothing stands in its way.
class OutsideFiles : public QObject {
 public:
  OutsideFiles(Skin& skin, OutsideScreens screens);

  void Add(const QString& path);

 private:
  struct File {
    QString path;
    bool told = false;     // the player knows that it waits
    bool refused = false;  // the run was not to be ended for it
  };

  void Next();
  void Welcomed(File& file, Welcome welcome);
  void Open();
  void SayThatTheyWait();

  Skin& skin_;
  OutsideScreens screens_;
  std::deque<File> waiting_;
  bool busy_ = false;  // with one of them
  QTimer timer_;
  WaitSign sign_;
};

}  // namespace zorik
