#pragma once

#include <QObject>
#include <QString>
#include <QTimer>
#include <deque>
#include <functional>

#include "flow/Welcome.h"
#include "screens/Toast.h"

namespace zorik {

class Skin;

// What the files from outside need of the screens.
struct OutsideScreens {
  std::function<OnScreen()> look;
  // Questions, true for yes: whether a run may end for the file, and whether one that has waited for the end
  // of a run is to be opened now.
  std::function<bool(const QString& path)> askToEndRun;
  std::function<bool(const QString& path)> askToOpen;
  std::function<void(const QString& path)> open;  // ends the run, if one is on
};

// The files from outside, one after the other: each is opened as soon as nothing stands in its way. One that
// a run was not to be ended for is offered again when the run is over, on the screen that the player came
// back to; who says no to that has done with it.
class OutsideFiles : public QObject {
 public:
  OutsideFiles(Skin& skin, OutsideScreens screens);

  void Add(const QString& path);

 private:
  struct File {
    QString path;
    bool told = false;      // the player knows that it waits
    bool afterRun = false;  // it waits for the end of a run
  };

  void Next();
  void Welcomed(const File& file, Welcome welcome);
  void Offer();
  QString TakeFirst();
  void LetAllWait();
  void SayThatTheyWait();

  Skin& skin_;
  OutsideScreens screens_;
  std::deque<File> waiting_;
  bool busy_ = false;  // with one of them
  QTimer timer_;
  Toast sign_;
};

}  // namespace zorik
