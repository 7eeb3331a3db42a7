// A plugin that ends the program in which it is, as soon as a window of the class that $ZORIK_FIRST_PAINT
// names has been painted, and tells of the picture by a byte to the open file $ZORIK_FIRST_PAINT_TO, if there
// is one. Thus any program's way to its first window can be timed as it is, without its end: the system
// takes milliseconds for that where a program has watched a folder.
#include <unistd.h>

#include <QCoreApplication>
#include <QEvent>
#include <QGenericPlugin>
#include <QTimer>
#include <QWidget>

namespace zorik {

class FirstPaint : public QObject {
  Q_OBJECT

 public:
  FirstPaint() { QCoreApplication::instance()->installEventFilter(this); }

  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() != QEvent::Paint) return false;
    if (qgetenv("ZORIK_FIRST_PAINT") != object->metaObject()->className()) return false;
    // Behind this event the picture goes to the display.
    QTimer::singleShot(0, this, &FirstPaint::TellAndEnd);
    return false;
  }

 private:
  static void TellAndEnd() {
    bool told = false;
    const int to = qEnvironmentVariableIntValue("ZORIK_FIRST_PAINT_TO", &told);
    const char word = 'p';
    _exit(told && write(to, &word, 1) != 1 ? 1 : 0);
  }
};

class FirstPaintPlugin : public QGenericPlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "FirstPaint.json")

 public:
  QObject* create(const QString& /*name*/, const QString& /*words*/) override { return new FirstPaint; }
};

}  // namespace zorik

#include "FirstPaint.moc"
