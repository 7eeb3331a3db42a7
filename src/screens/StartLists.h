#pragma once

#include <QStringList>
#include <QStringListModel>

#include "screens/ListView.h"

namespace zorik {

// The collections, or the players, of the start screen: labels of which one is selected. A press selects, a
// double click opens.
class LabelList : public ListView {
  Q_OBJECT

 public:
  LabelList(Qt::Orientation orientation, QWidget* parent);

  // Replaces all labels; none is selected then, and the first one shows.
  void SetLabels(const QStringList& labels);

  QStringList Labels() const { return labels_.stringList(); }
  int Selected() const { return Current(); }  // -1 for none

  // Selects a label and scrolls until it is seen whole. Places that do not exist are held to those that do.
  void Select(int place);

 protected:
  void Choose(int place) override { Select(place); }
  void Open(int place) override;

 private:
  QStringListModel labels_;
};

}  // namespace zorik
