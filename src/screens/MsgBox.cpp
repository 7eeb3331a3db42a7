#include "screens/MsgBox.h"

#include <QMessageBox>
#include <QPushButton>

#include "screens/MessageStrip.h"
#include "screens/Wording.h"

namespace zorik {
namespace {

constexpr const char* kLook = R"(
  QMessageBox { background: #28303C; }
  QLabel { color: #E8E8E0; }
  QPushButton { color: #101010; background: #C08020; border: 2px solid #806040; border-radius: 8px;
                min-width: 80px; padding: 6px 12px; }
  QPushButton:hover, QPushButton:focus { background: #E0A840; border-color: #FFE0A0; }
  QPushButton:pressed { background: #A06810; }
)";

constexpr int kLetters = 16;

void Dress(QMessageBox& box) {
  box.setTextFormat(Qt::PlainText);
  box.setFont(GameFont(kLetters));
  box.setStyleSheet(kLook);
}

}  // namespace

void Tell(QWidget* parent, const QString& title, const QString& text) {
  QMessageBox box(QMessageBox::NoIcon, title, text, QMessageBox::NoButton, parent);
  Dress(box);
  box.addButton(wording::kOk, QMessageBox::AcceptRole);
  box.exec();
}

bool Ask(QWidget* parent, const QString& title, const QString& text) {
  QMessageBox box(QMessageBox::Question, title, text, QMessageBox::NoButton, parent);
  Dress(box);
  const QPushButton* const yes = box.addButton(wording::kYes, QMessageBox::YesRole);
  QPushButton* const no = box.addButton(wording::kNo, QMessageBox::NoRole);
  box.setEscapeButton(no);
  box.exec();
  return box.clickedButton() == yes;
}

}  // namespace zorik
