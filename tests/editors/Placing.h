#pragma once

#include <gtest/gtest.h>

#include <QLayout>
#include <QWidget>
#include <vector>

namespace zorik::test {

inline QRect PlaceIn(const QWidget& window, const QWidget& part) {
  return {part.mapTo(&window, QPoint()), part.size()};
}

// Wherever parts of a window are laid out, they stand within what holds them, and none upon another.
inline void ExpectTidy(const QWidget& window) {
  QList<const QWidget*> holders{&window};
  for (const QWidget* const part : window.findChildren<QWidget*>()) holders << part;
  for (const QWidget* const holder : holders) {
    if (holder->layout() == nullptr || !holder->isVisible()) continue;
    std::vector<const QWidget*> parts;
    for (const QWidget* const part : holder->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
      if (!part->isVisible() || part->isWindow()) continue;
      const std::string name = part->objectName().toStdString() + " " + part->metaObject()->className();
      EXPECT_TRUE(holder->rect().contains(part->geometry())) << name;
      for (const QWidget* const other : parts)
        EXPECT_FALSE(other->geometry().intersects(part->geometry()))
            << name << " upon " << other->objectName().toStdString();
      parts.push_back(part);
    }
  }
}

// These stand below one another, as they are named, with no wide gaps between them.
inline void ExpectColumn(const QWidget& window, const std::vector<const QWidget*>& parts) {
  constexpr int kWideGap = 30;
  for (std::size_t i = 1; i < parts.size(); ++i) {
    const int gap = PlaceIn(window, *parts[i]).top() - PlaceIn(window, *parts[i - 1]).bottom();
    EXPECT_GT(gap, 0) << parts[i]->objectName().toStdString();
    EXPECT_LT(gap, kWideGap) << parts[i]->objectName().toStdString();
  }
}

// These stand right of one another, as they are named, on one line.
inline void ExpectLine(const QWidget& window, const std::vector<const QWidget*>& parts) {
  for (std::size_t i = 1; i < parts.size(); ++i) {
    const QRect before = PlaceIn(window, *parts[i - 1]), here = PlaceIn(window, *parts[i]);
    EXPECT_GT(here.left(), before.right()) << parts[i]->objectName().toStdString();
    EXPECT_TRUE(here.top() <= before.bottom() && before.top() <= here.bottom())
        << parts[i]->objectName().toStdString();
  }
}

}  // namespace zorik::test
