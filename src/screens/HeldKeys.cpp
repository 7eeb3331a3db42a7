#include "screens/HeldKeys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>
#include <QWindow>
#include <algorithm>
#include <array>

#include "platform/Keyboard.h"

namespace zorik {
namespace {

constexpr std::uint64_t kLongestPause = 250;  // milliseconds between two repeats of a held key

// These belong to other keys and do nothing in any window.
bool IsModifierKey(int key) {
  constexpr std::array kKeys{Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_AltGr, Qt::Key_Meta};
  return std::find(kKeys.begin(), kKeys.end(), key) != kKeys.end();
}

// Events come to the desktop's window first, and then to what lies in it. With a menu they come to the first
// one that is open, and from there to the last: all that are open are one.
const QObject* WindowOf(const QObject* object) {
  if (const auto* const window = qobject_cast<const QWindow*>(object))
    return window->type() == Qt::Popup ? static_cast<const QObject*>(qApp) : window;
  const auto* const widget = qobject_cast<const QWidget*>(object);
  if (widget == nullptr) return nullptr;
  const QWidget* const window = widget->window();
  return window->windowType() == Qt::Popup ? static_cast<const QObject*>(qApp) : window->windowHandle();
}

}  // namespace

HeldKeys::HeldKeys() {
  qApp->installEventFilter(this);
  // What is let go while another program has the keys is not heard of here.
  connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
    if (state == Qt::ApplicationActive) return;
    for (auto& [place, hold] : held_) hold.sure = false;
  });
}

// A repeat of a key that is not known to be held is one of a key that was held before; and some desktops send
// the repeats as if the key had been let go and pressed anew in the same moment.
HeldKeys::Hold HeldKeys::Found(const QKeyEvent& event, const QObject* window) const {
  if (event.isAutoRepeat()) return Hold{nullptr};
  const bool goesOn = event.timestamp() != 0 && released_ && released_->place == PlaceOfKey(event) &&
                      released_->time == event.timestamp();
  return goesOn ? released_->hold : Hold{window};
}

// The release of a key can get lost between two windows, one that goes and one that comes. What does not call
// itself a repeat, and comes when none has come for a while, is a press of its own.
bool HeldKeys::IsPressAnew(const QKeyEvent& event, const Hold& hold) {
  if (event.isAutoRepeat()) return false;
  const bool timed = event.timestamp() != 0 && hold.last != 0;
  return !hold.sure || (timed && event.timestamp() > hold.last + kLongestPause);
}

bool HeldKeys::Stale(const QKeyEvent& event, const QObject* window) {
  const auto [found, fresh] = held_.try_emplace(PlaceOfKey(event));
  Hold& hold = found->second;
  if (fresh) {
    hold = Found(event, window);
  } else if (IsPressAnew(event, hold)) {
    hold = Hold{window};
  }
  hold.last = event.timestamp();
  return hold.window != window;
}

void HeldKeys::LetGo(const QKeyEvent& event) {
  const auto found = held_.find(PlaceOfKey(event));
  if (event.isAutoRepeat() || found == held_.end()) return;
  released_ = Released{found->first, found->second, event.timestamp()};
  held_.erase(found);
}

void HeldKeys::Forget(const QObject* window) {
  for (auto& [place, hold] : held_) {
    if (hold.window == window) hold.window = nullptr;
  }
  if (released_ && released_->hold.window == window) released_->hold.window = nullptr;
}

bool HeldKeys::eventFilter(QObject* object, QEvent* event) {
  const QEvent::Type type = event->type();
  if (type == QEvent::Hide) {
    const auto* const widget = qobject_cast<QWidget*>(object);
    if (widget == nullptr || widget->isWindow()) Forget(WindowOf(object));
    return false;
  }
  if (type != QEvent::KeyPress && type != QEvent::ShortcutOverride && type != QEvent::KeyRelease)
    return false;
  const auto& key = static_cast<const QKeyEvent&>(*event);
  if (IsModifierKey(key.key())) return false;
  if (type == QEvent::KeyRelease) {
    LetGo(key);
    return false;
  }
  const QObject* const window = WindowOf(object);
  if (window == nullptr || !Stale(key, window)) return false;
  event->accept();  // so that it is no shortcut either
  return true;
}

}  // namespace zorik
