#include "editors/StepsMenu.h"

#include <QMenu>
#include <algorithm>
#include <utility>

#include "screens/PlainText.h"
#include "screens/StartWords.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr StartWords kBeginningWords{"caption.steps.start"};

constexpr std::size_t kMostBack = 16;
constexpr std::size_t kMostForward = 8;

QAction* AddMoment(QMenu& menu, const StepsOf& steps, std::size_t done, const QString& words) {
  QAction* const moment = menu.addAction(InMenu(words));
  moment->setObjectName(QString("mnuStep(%1)").arg(done));
  moment->setCheckable(true);
  QObject::connect(moment, &QAction::triggered, &menu, [goTo = steps.goTo, done] { goTo(done); });
  return moment;
}

void FillMenu(QMenu& menu, const Skin& skin, const StepsOf& steps) {
  menu.clear();
  const std::size_t done = steps.done();
  const std::size_t last = std::min(steps.steps(), done + kMostForward);
  const std::size_t first = done - std::min(done, kMostBack);
  for (std::size_t place = last; place > first; --place) {
    AddMoment(menu, steps, place, steps.words(place - 1))->setChecked(place == done);
  }
  if (last > first) menu.addSeparator();
  AddMoment(menu, steps, 0, kBeginningWords.In(skin))->setChecked(done == 0);
}

}  // namespace

void MakeStepsMenu(QMenu& menu, const Skin& skin, StepsOf steps) {
  QObject::connect(&menu, &QMenu::aboutToShow, &menu,
                   [&menu, &skin, steps = std::move(steps)] { FillMenu(menu, skin, steps); });
}

}  // namespace zorik
