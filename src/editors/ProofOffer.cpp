#include "editors/ProofOffer.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "screens/PlainText.h"
#include "screens/StartWords.h"

namespace zorik {

ProofOffer::ProofOffer(QWidget* parent)
    : QFrame(parent),
      lblOffer_(NewLabel(this)),
      btnTake_(new QPushButton(this)),
      btnLeave_(new QPushButton(this)) {
  setObjectName("proofOffer");
  setFrameShape(QFrame::StyledPanel);
  lblOffer_->setObjectName("lblOffer");
  lblOffer_->setWordWrap(true);
  btnTake_->setObjectName("btnTake");
  btnLeave_->setObjectName("btnLeave");
  auto* const row = new QHBoxLayout(this);
  row->addWidget(lblOffer_, 1);
  for (QPushButton* const button : {btnTake_, btnLeave_}) {
    button->setFocusPolicy(Qt::TabFocus);
    row->addWidget(button);
    connect(button, &QPushButton::clicked, this, &QWidget::hide);
  }
  connect(btnTake_, &QPushButton::clicked, this, &ProofOffer::Taken);
  hide();
}

void ProofOffer::SetLW(const Skin& skin) {
  btnTake_->setText(InMenu(kYesWords.In(skin)));
  btnLeave_->setText(InMenu(kNoWords.In(skin)));
}

void ProofOffer::Ask(const QString& question) {
  lblOffer_->setText(OneLine(question));
  show();
}

}  // namespace zorik
