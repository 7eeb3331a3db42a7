#include "editors/ProofPage.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QSlider>
#include <QSpinBox>
#include <QVBoxLayout>

#include "platform/UserStore.h"
#include "screens/PlainText.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr const char* kWay = "Editors/ProofWay";
constexpr const char* kUntouched = "Editors/ProofUntouched";

QLabel* Text(QWidget* parent, const char* name) {
  QLabel* const label = NewLabel(parent);
  label->setObjectName(name);
  label->setWordWrap(true);
  return label;
}

}  // namespace

ProofPage::ProofPage(QWidget* parent) : QWidget(parent) {
  setObjectName("proofPage");
  auto* const area = new QScrollArea(this);
  auto* const inner = new QWidget;
  auto* const outer = new QVBoxLayout(this);
  auto* const rows = new QVBoxLayout(inner);
  outer->setContentsMargins(0, 0, 0, 0);
  outer->addWidget(area);
  area->setFrameShape(QFrame::NoFrame);
  area->setWidgetResizable(true);
  area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  area->setFocusPolicy(Qt::NoFocus);
  area->setWidget(inner);
  rows->addWidget(lblVerdict_ = Text(inner, "lblVerdict"));
  rows->addWidget(btnGo_ = Button("btnGo", &ProofPage::GoWanted));
  rows->addWidget(chkWay_ = Box("chkWay", kWay, true));
  rows->addWidget(chkUntouched_ = Box("chkUntouched", kUntouched, false));
  rows->addWidget(MakeTry());
  rows->addWidget(btnTryDog_ = Button("btnTryDog", &ProofPage::TryWithDogWanted));
  rows->addWidget(btnSolve_ = Button("btnSolve", &ProofPage::SolveWanted));
  rows->addWidget(btnRate_ = Button("btnRate", &ProofPage::RateWanted));
  rows->addWidget(btnStop_ = Button("btnStop", &ProofPage::StopWanted));
  rows->addWidget(lblWork_ = Text(inner, "lblWork"));
  rows->addStretch();
  SetVerdict({}, false);
  SetTicks(-1);
  SetWork({}, false, false);
}

QPushButton* ProofPage::Button(const char* name, void (ProofPage::*wanted)()) {
  auto* const button = new QPushButton(this);
  button->setObjectName(name);
  button->setFocusPolicy(Qt::TabFocus);
  connect(button, &QPushButton::clicked, this, wanted);
  return button;
}

// What the author has chosen stays so for the next cave.
QCheckBox* ProofPage::Box(const char* name, const char* store, bool first) {
  auto* const box = new QCheckBox(this);
  box->setObjectName(name);
  box->setFocusPolicy(Qt::TabFocus);
  box->setChecked(ZorikStore().value(store, first).toBool());
  connect(box, &QCheckBox::toggled, this, [this, store](bool checked) {
    ZorikStore().setValue(store, checked);
    emit ShownChanged();
  });
  return box;
}

QWidget* ProofPage::MakeTry() {
  auto* const part = new QWidget(this);
  auto* const rows = new QVBoxLayout(part);
  auto* const row = new QHBoxLayout;
  rows->setContentsMargins(0, 0, 0, 0);
  row->addWidget(lblTick_ = NewLabel(part));
  row->addWidget(numTick_ = new QSpinBox(part));
  row->addStretch();
  rows->addLayout(row);
  rows->addWidget(sldTick_ = new QSlider(Qt::Horizontal, part));
  rows->addWidget(btnTry_ = Button("btnTry", &ProofPage::TryWanted));
  numTick_->setObjectName("numTick");
  sldTick_->setObjectName("sldTick");
  sldTick_->setFocusPolicy(Qt::TabFocus);
  lblTick_->setBuddy(numTick_);
  connect(sldTick_, &QSlider::valueChanged, numTick_, &QSpinBox::setValue);
  connect(numTick_, &QSpinBox::valueChanged, this, [this](int tick) {
    sldTick_->setValue(tick);
    emit TickChosen(tick);
  });
  return part;
}

void ProofPage::SetLW(const Skin& skin) {
  const auto name = [&skin](QAbstractButton* button, const char* key) {
    button->setText(InMenu(skin.Caption(key)));
  };
  name(btnGo_, "caption.proof.goto");
  name(chkWay_, "caption.proof.way");
  name(chkUntouched_, "caption.proof.untouched");
  name(btnTry_, "caption.proof.try");
  name(btnTryDog_, "caption.proof.trydog");
  name(btnSolve_, "caption.proof.solve");
  name(btnRate_, "caption.proof.rate");
  name(btnStop_, "caption.proof.stop");
  lblTick_->setText(skin.Caption("caption.proof.from"));
  numTick_->setAccessibleName(lblTick_->text());
  sldTick_->setAccessibleName(lblTick_->text());
}

void ProofPage::SetVerdict(const QString& text, bool flaw) {
  lblVerdict_->setText(InLines(text));
  btnGo_->setVisible(flaw);
}

void ProofPage::SetTicks(int most) {
  const bool any = most >= 0;
  for (QWidget* const part : {static_cast<QWidget*>(lblTick_), static_cast<QWidget*>(numTick_),
                              static_cast<QWidget*>(sldTick_), static_cast<QWidget*>(btnTry_)})
    part->setEnabled(any);
  numTick_->setRange(0, std::max(0, most));
  sldTick_->setRange(0, std::max(0, most));
  chkWay_->setEnabled(any);
  chkUntouched_->setEnabled(any);
}

int ProofPage::Tick() const {
  return numTick_->value();
}

void ProofPage::SetTick(int tick) {
  numTick_->setValue(tick);
}

void ProofPage::SetDog(bool may) {
  btnTryDog_->setEnabled(may);
}

void ProofPage::SetWork(const QString& text, bool busy, bool mayRate) {
  lblWork_->setText(InLines(text));
  lblWork_->setVisible(!text.isEmpty());
  btnSolve_->setVisible(!busy);
  btnRate_->setVisible(!busy);
  btnRate_->setEnabled(mayRate);
  btnStop_->setVisible(busy);
}

bool ProofPage::WantsWay() const {
  return chkWay_->isChecked();
}

bool ProofPage::WantsUntouched() const {
  return chkUntouched_->isChecked();
}

}  // namespace zorik
