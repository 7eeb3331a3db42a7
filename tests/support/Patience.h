#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <QWidget>

namespace zorik::test {

// Waits for a condition, but not longer than so many milliseconds. A box that opens meanwhile, and that
// nobody answers, would hold the wait for ever: it is closed when the time is up, and is an error.
template <class Condition>
bool WaitFor(Condition condition, int patience) {
  QTimer late;
  late.callOnTimeout([] {
    QWidget* const box = QApplication::activeModalWidget();
    if (box == nullptr) return;
    ADD_FAILURE() << "a box that nobody answers: " << box->windowTitle().toStdString();
    box->close();
  });
  late.start(patience);
  return QTest::qWaitFor(condition, patience);
}

}  // namespace zorik::test
