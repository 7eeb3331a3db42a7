#pragma once

#include <QDialog>
#include <QString>
#include <QStringList>
#include <optional>

class QHBoxLayout;

namespace zorik {

class Skin;

// The first window of a first start: asks for the language, which is that of a skin. Each is offered by its
// own name for itself, so that everybody finds his.
class FrmLanguage : public QDialog {
  Q_OBJECT

 public:
  explicit FrmLanguage(Skin& skin);

  // Waits until one is chosen: the folder of its skin. Who closes the window stays with the skin that is
  // worn. Nothing, and no window, when there are no two to choose from.
  std::optional<QString> AskSkin();

 private:
  void Offer(const char* folder);

  Skin& skin_;
  QString chosen_;
  QStringList languages_;  // that are offered
  QHBoxLayout* row_;       // of the buttons
};

}  // namespace zorik
