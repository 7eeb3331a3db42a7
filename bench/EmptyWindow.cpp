// The least that a program with a window can do.
#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QWidget window;
  window.show();
  return QApplication::exec();
}
