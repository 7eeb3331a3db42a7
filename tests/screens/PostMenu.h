#pragma once

#include <QMenu>

#include "screens/PostList.h"

namespace zorik::test {

// The selection screen and the menus that open from it.
class PostMenu : public PostList {
 protected:
  static constexpr int kNone = 99;

  // Does something that opens a menu, notes what that offers, the marked line with a star, and clicks on a
  // line, if it has that.
  QStringList Offered(int clicked, const std::function<void()>& open) {
    QStringList offered;
    QTimer::singleShot(0, [&] {
      auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      if (menu == nullptr) return;
      for (const QAction* const action : menu->actions())
        offered += (action->isChecked() ? "*" : "") + action->text();
      if (clicked < menu->actions().size()) {
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(menu->actions()[clicked]).center());
      }
      menu->close();
    });
    open();
    return offered;
  }
};

}  // namespace zorik::test
