#include "app/OutsideFiles.h"

#include <QFileInfo>
#include <utility>

#include "platform/PathText.h"
#include "screens/StartWords.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr int kPatience = 200;  // milliseconds between looks whether something is still in the way

}  // namespace

OutsideFiles::OutsideFiles(Skin& skin, OutsideScreens screens) : skin_(skin), screens_(std::move(screens)) {
  timer_.setSingleShot(true);
  timer_.setInterval(kPatience);
  timer_.callOnTimeout(this, &OutsideFiles::Next);
}

void OutsideFiles::Add(const QString& path) {
  waiting_.push_back({path});
  Next();
}

// Opening one may take many boxes, in which others come.
void OutsideFiles::Next() {
  const Welcome welcome = WelcomeOf(screens_.look());
  if (welcome == Welcome::WaitsAndSays) SayThatTheyWait();
  if (!busy_ && !waiting_.empty()) {
    busy_ = true;
    Welcomed(waiting_.front(), welcome);
    busy_ = false;
  }
  if (!waiting_.empty()) timer_.start();
}

void OutsideFiles::Welcomed(const File& file, Welcome welcome) {
  if (welcome == Welcome::Opens && file.afterRun) return Offer();
  if (welcome == Welcome::Opens) return screens_.open(TakeFirst());
  if (welcome != Welcome::AsksToEndTheRun) return;
  if (!file.afterRun && screens_.askToEndRun(file.path)) return screens_.open(TakeFirst());
  LetAllWait();
}

void OutsideFiles::Offer() {
  const QString path = TakeFirst();
  if (screens_.askToOpen(path)) screens_.open(path);
}

QString OutsideFiles::TakeFirst() {
  const QString path = waiting_.front().path;
  waiting_.pop_front();
  return path;
}

// One question in a run is enough. The file that it was about needs no sign.
void OutsideFiles::LetAllWait() {
  waiting_.front().told = true;
  for (File& file : waiting_) file.afterRun = true;
  SayThatTheyWait();
}

void OutsideFiles::SayThatTheyWait() {
  for (File& file : waiting_) {
    if (std::exchange(file.told, true)) continue;
    sign_.Say(ShownPath(QFileInfo(file.path).fileName()) + '\n' + kWaitsWords.In(skin_));
  }
}

}  // namespace zorik
