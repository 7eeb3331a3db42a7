// A game that is edited in without end, for who kills it meanwhile. Its home is in ZORIK_HOME; the file there
// that is named "edits" has a line for each edit: its number, and the time when it began, in milliseconds.
// usage: zorik_editing MILLISECONDS collection|cave    how often it keeps what is edited, and what that is
#include <fcntl.h>
#include <unistd.h>

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <chrono>
#include <cstdlib>
#include <string>

#include "app/Game.h"
#include "data/Result.h"
#include "editors/EditKom.h"
#include "editors/FrmMain.h"
#include "editors/FrmSada.h"
#include "platform/EndSignals.h"
#include "platform/Inbox.h"
#include "platform/Paths.h"
#include "platform/Settings.h"

namespace zorik {
namespace {

constexpr int kBits = 12;   // cells in which a number is drawn
constexpr int kEach = 150;  // milliseconds

template <class Window>
Window* Screen() {
  for (QWidget* const widget : QApplication::topLevelWidgets()) {
    if (auto* const window = dynamic_cast<Window*>(widget)) return window;
  }
  return nullptr;
}

class Editing : public QObject {
 public:
  Editing(int every, bool cave, int log) : every_(every), cave_(cave), log_(log) { startTimer(kEach); }

 protected:
  void timerEvent(QTimerEvent* /*event*/) override {
    if (auto* const box = QApplication::activeModalWidget()) {
      QTest::keyClick(box, Qt::Key_Y);
    } else if (auto* const sada = Screen<FrmSada>(); sada == nullptr) {
      emit Screen<FrmStart2>()->EditCollection(QString(), QString());
      Screen<FrmSada>()->Keeper().SetInterval(every_);
    } else if (!cave_) {
      Edit([this, sada] { Rename(*sada); });
    } else if (auto* const main = Screen<FrmMain>(); main == nullptr) {
      sada->mnuEdit_Click();
    } else {
      Edit([this, main] { Draw(*main); });
    }
  }

 private:
  template <class Act>
  void Edit(const Act& act) {
    ++edits_;
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    const auto time = std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
    const std::string line = std::to_string(edits_) + ' ' + std::to_string(time) + '\n';
    if (write(log_, line.data(), line.size()) < 0) std::abort();
    act();
  }

  void Rename(FrmSada& sada) const {
    auto* const box = sada.findChild<QLineEdit*>("Text3");
    box->selectAll();
    QTest::keyClicks(box, "Sada " + QString::number(edits_));
  }

  // The left tool is a boulder, the right one earth.
  void Draw(FrmMain& main) const {
    auto* const picture = main.findChild<EditKom*>("EditKom");
    const int cell = picture->CellSize();
    for (int bit = 0; bit < kBits; ++bit) {
      const bool set = ((edits_ >> bit) & 1) != 0;
      if (set == (((edits_ - 1) >> bit) & 1)) continue;
      const QPoint place((bit + 3) * cell + cell / 2, 2 * cell + cell / 2);
      QTest::mouseClick(picture, set ? Qt::LeftButton : Qt::RightButton, {}, place);
    }
  }

  std::chrono::milliseconds every_;
  bool cave_;
  int log_;
  int edits_ = 0;
};

}  // namespace
}  // namespace zorik

int main(int argc, char** argv) {
  using namespace zorik;
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  if (argc != 3) return EXIT_FAILURE;
  Paths paths = *FindPaths(ReadEnvironment({}));
  paths.ShippedSkins = ZORIK_BUILT_SKINS;
  Inbox inbox(InboxPlace(paths.AppPath));
  Settings settings;
  settings.Sound = false;
  Game game(paths, settings, inbox);
  const EndSignals ending([&game] { game.EndByDesktop(); });
  const std::string log = paths.AppPath + "/edits";
  const Editing editing(std::atoi(argv[1]), std::string(argv[2]) == "cave",
                        open(log.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_APPEND | O_CLOEXEC, 0666));
  game.Begin();
  return QApplication::exec();
}
