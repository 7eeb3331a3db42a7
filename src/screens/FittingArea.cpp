#include "screens/FittingArea.h"

#include <QLayout>
#include <QScrollBar>

namespace zorik {

FittingArea::FittingArea(QWidget* parent, QWidget* content) : QScrollArea(parent) {
  setWidget(content);
  setWidgetResizable(true);
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  for (QWidget* const part : {content, viewport()}) part->setAutoFillBackground(false);
}

// What stands in it may have changed since it was laid out.
void FittingArea::Fit(QSize room) {
  most_ = QSize();
  widget()->layout()->activate();
  updateGeometry();
  const QSize others = window()->sizeHint() - sizeHint();
  most_ = room - others;
  updateGeometry();
}

bool FittingArea::IsCut() const {
  return most_.isValid() && Whole().width() > most_.width();
}

// With the bar that it has when it is too high.
QSize FittingArea::Whole() const {
  const QSize content = widget()->sizeHint();
  const bool high = most_.isValid() && content.height() > most_.height();
  return content + QSize(high ? verticalScrollBar()->sizeHint().width() : 0, 0);
}

QSize FittingArea::sizeHint() const {
  if (!most_.isValid()) return Whole();
  return Whole().boundedTo(most_);
}

}  // namespace zorik
