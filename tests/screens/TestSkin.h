#pragma once

#include <QApplication>
#include <QBuffer>
#include <QImage>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <string>
#include <vector>

#include "screens/Folder.h"
#include "skin/Skin.h"

namespace zorik::test {

// A picture of strips of one colour each, side by side.
inline QImage Strips(const std::vector<QColor>& colours, QSize strip) {
  QImage image(strip.width() * static_cast<int>(colours.size()), strip.height(), QImage::Format_RGB32);
  for (int x = 0; x < image.width(); ++x) {
    for (int y = 0; y < image.height(); ++y) {
      image.setPixelColor(x, y, colours[static_cast<std::size_t>(x / strip.width())]);
    }
  }
  return image;
}

// The looks of the test's buttons.
inline const std::vector<QColor> kLooks = {Qt::red, Qt::green, Qt::blue};

// A skin for one test.
class TestSkin {
 public:
  // Writes files into the skin's folder of menus; the picture's name has no extension.
  void File(const std::string& name, const std::string& bytes) const {
    folder_.File("Skins/Default/Menu/" + name, bytes);
  }
  void Data(const std::string& lines) const { File("skindata.txt", "\xEF\xBB\xBF" + lines); }
  void Picture(const std::string& name, const QImage& image) const {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    ASSERT_TRUE(image.save(&buffer, "BMP"));
    File(name + ".bmp", bytes.toStdString());
  }

  SkinPlaces Places() const { return {folder_.Root() + "/Skins"}; }

  // Puts the skin on as it is by now.
  void Apply() { skin_.Apply(Places()); }

  zorik::Skin& Skin() { return skin_; }

 private:
  Folder folder_;
  zorik::Skin skin_;
};

// Does something to the dialog that opens next. A dialog that is still open afterwards is closed; true is
// kept for that.
class InDialog {
 public:
  explicit InDialog(std::function<void(QWidget& dialog)> act) : act_(std::move(act)) {
    timer_.setSingleShot(true);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Act(); });
    timer_.start(0);
  }

  bool Opened() const { return opened_; }
  bool Stayed() const { return stayed_; }

 private:
  void Act() {
    QWidget* const dialog = QApplication::activeModalWidget();
    if (dialog == nullptr) return;
    opened_ = true;
    act_(*dialog);
    stayed_ = dialog->isVisible();
    if (stayed_) dialog->close();
  }

  std::function<void(QWidget&)> act_;
  QTimer timer_;
  bool opened_ = false;
  bool stayed_ = false;
};

}  // namespace zorik::test
