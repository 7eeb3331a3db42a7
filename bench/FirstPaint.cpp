// A plugin that ends the program in which it is, as soon as a window of the class that $ZORIK_FIRST_PAINT
// names has been painted. Thus any program's way to its first window can be timed as it is.
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
    QTimer::singleShot(0, this, [] { _exit(0); });
    return false;
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
