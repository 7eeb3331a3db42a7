#include "screens/PauseBox.h"

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include "platform/JoyPad.h"
#include "platform/Settings.h"
#include "screens/MsgBox.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr int kListenEvery = 20;  // milliseconds

}  // namespace

void ShowPause(Skin& skin, QWidget* parent, const Settings& settings, JoyPad* pad) {
  QTimer listening;
  QObject::connect(&listening, &QTimer::timeout, parent, [pad] {
    QWidget* const box = QApplication::activeModalWidget();
    if (pad->PausePressed() && box != nullptr && QApplication::activeWindow() != nullptr) box->close();
  });
  if (pad != nullptr) {
    pad->Forget();
    listening.start(kListenEvery);
  }
  const auto key = static_cast<Qt::Key>(settings.Keys.Of(KeyUse::Pause).front().key);
  Tell(skin, parent, skin.Text(TextId::Program), skin.Text(TextId::Paused), key);
}

}  // namespace zorik
