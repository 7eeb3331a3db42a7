#include "editors/ToolWords.h"

#include <QHBoxLayout>
#include <QLabel>

#include "editors/DrawHand.h"
#include "screens/Hint.h"
#include "screens/PlainText.h"
#include "skin/Skin.h"

namespace zorik {

ToolWords::ToolWords(Skin& skin, DrawHand& hand, QWidget* parent)
    : QWidget(parent), skin_(skin), hand_(hand), label_(NewLabel(this)) {
  label_->setObjectName("lblTool");
  label_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(label_);
  connect(&hand, &DrawHand::ToolChanged, this, &ToolWords::Update);
  connect(&hand, &DrawHand::ShapeChanged, this, &ToolWords::Update);
}

void ToolWords::Update() {
  const DrawToolRow& row = RowOf(hand_.Tool());
  const bool holds = hand_.Selection().Holds();
  const QString use = skin_.Caption(holds ? "caption.main.held.use" : row.words);
  const qsizetype stroke = use.indexOf('|');
  const QString first = skin_.Caption(row.caption) + ": " + use.left(stroke);
  SetHint(*this, stroke < 0 ? first : first + "; " + use.mid(stroke + 1));
  const QSize size = hand_.Size();
  QString words = OneLine(first);
  if (!size.isEmpty()) words = QString("%1 × %2   ").arg(size.width()).arg(size.height()) + words;
  label_->setText(label_->fontMetrics().elidedText(words, Qt::ElideRight, width()));
}

void ToolWords::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Update();
}

}  // namespace zorik
