#pragma once

#include <QMainWindow>
#include <functional>
#include <vector>

class QAction;
class QMenu;
class QMenuBar;

namespace zorik {

class Skin;

// Makes the menus of an editor. Each menu and item has a name, and a key of the skin for its caption; one
// without a key gets its caption from the window, which knows more than the skin does. All of them can be
// chosen by a letter.
class MenuBuilder {
 public:
  explicit MenuBuilder(QMainWindow& window);
  // For a window that has its bar made for it.
  MenuBuilder(QWidget& window, QMenuBar& bar) : window_(window), bar_(bar) {}

  QMenuBar& Bar() const { return bar_; }

  // A menu of the window's bar.
  QMenu* AddMenu(const char* name, const char* key);
  // A menu in another one.
  QMenu* AddMenu(QMenu& menu, const char* name, const char* key = nullptr);
  // An item. The shortcuts stand as "Ctrl+Y; Ctrl+Shift+Z"; the first one is shown.
  QAction* Add(QMenu& menu, const char* name, const char* key, const char* shortcuts,
               std::function<void()> act);

  // Gives all of them the captions of a skin.
  void SetCaptions(const Skin& skin) const;

  // Gives them hints besides: their captions, with the shortcuts behind.
  void SetHints(const Skin& skin) const;

 private:
  struct Caption {
    QAction* action;
    const char* key;
  };
  QMenu* Keep(QMenu* menu, const char* name, const char* key);
  void Keep(QAction* action, const char* name, const char* key);

  QWidget& window_;
  QMenuBar& bar_;
  std::vector<Caption> captions_;
};

}  // namespace zorik
