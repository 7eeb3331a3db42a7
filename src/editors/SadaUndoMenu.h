#pragma once

#include <QObject>

#include "editors/StepsMenu.h"
#include "flow/SadaModel.h"

class QAction;
class QMenu;

namespace zorik {

class MenuBuilder;
class Skin;

// The menu of the collection editor that takes steps back: the last one by its name, or goes to any of their
// list.
class SadaUndoMenu : public QObject {
  Q_OBJECT

 public:
  SadaUndoMenu(MenuBuilder& menus, const Skin& skin, SadaModel& sada, QObject* parent);

  // The steps may be others, or called otherwise.
  void Update();

 signals:
  // The collection may look different in any respect.
  void Changed();

 private:
  StepsOf Steps();
  void GoTo(std::size_t wanted);
  QString NameOf(const SadaStep& step) const;
  QString Named(const char* key, const std::vector<SadaStep>& steps) const;

  const Skin& skin_;
  SadaModel& sada_;
  QAction* mnuUndo_;
  QAction* mnuRedo_;
  QMenu* mnuSteps_;
};

}  // namespace zorik
