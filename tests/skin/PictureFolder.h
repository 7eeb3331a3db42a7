#pragma once

#include <QImage>
#include <QString>

#include "SkinFolder.h"

namespace zorik::test {

inline QImage Plain(QRgb colour, QSize size = {80, 80}) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(colour);
  return image;
}

// A folder of skins that hold pictures.
class PictureFolder : public SkinFolder {
 protected:
  void Save(const std::string& path, const QImage& image) const {
    std::filesystem::create_directories(std::filesystem::path(At(path)).parent_path());
    ASSERT_TRUE(image.save(QString::fromStdString(At(path))));
  }

  void Paint(const std::string& path, QRgb colour, QSize size = {80, 80}) const {
    Save(path, Plain(colour, size));
  }

  // Makes the file look changed, however fast the test goes.
  void Age(const std::string& path, int seconds) const {
    const auto time = std::filesystem::last_write_time(At(path));
    std::filesystem::last_write_time(At(path), time - std::chrono::seconds(seconds));
  }
};

}  // namespace zorik::test
