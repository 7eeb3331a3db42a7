#include "skin/Skin.h"

#include <utility>

#include "skin/Pictures.h"

namespace zorik {
namespace {

// A picture whose first pixel is black is no rectangle: all of its black is clear.
QImage ReadPicture(const std::string& path) {
  QImage image = ReadImage(path).convertToFormat(QImage::Format_ARGB32);
  if (image.isNull() || image.pixel(0, 0) != qRgba(0, 0, 0, 255)) return image;
  return WithoutBlack(std::move(image));
}

}  // namespace

void Skin::SetRetry(Question retry) {
  retry_ = std::move(retry);
}

void Skin::SetFault(Fault fault) {
  data_.SetFault(std::move(fault));
}

bool Skin::AskRetry(const std::string& question) {
  if (!retry_ || asking_) return false;
  asking_ = true;
  const bool again = retry_(question);
  asking_ = false;
  return again;
}

bool Skin::Wear(const SkinPlaces& places) {
  places_ = places;
  pictures_.clear();
  data_.LoadSkinData(places_);
  return LoadLanguage(places_, texts_, [this](const std::string& question) { return AskRetry(question); });
}

QString Skin::Text(int place) const {
  return QString::fromStdString(texts_.At(place));
}

QString Skin::Caption(std::string_view key, const char* otherwise) const {
  const std::string text = data_.SkinText(key);
  return text.empty() ? QString::fromUtf8(otherwise) : QString::fromStdString(text);
}

QColor Skin::Colour(std::string_view key, QColor otherwise) const {
  if (data_.SkinText(key).empty()) return otherwise;
  const std::uint32_t colour = data_.SkinColor(key);
  return QColor(static_cast<int>(colour & 255U), static_cast<int>(colour >> 8U & 255U),
                static_cast<int>(colour >> 16U & 255U));
}

QImage Skin::Picture(std::string_view key) {
  const std::string name = data_.SkinText(key);
  return name.empty() ? QImage() : MenuPicture(name);
}

QImage Skin::MenuPicture(const std::string& name) {
  if (places_.SkinsPath.empty()) return QImage();
  const auto kept = pictures_.find(name);
  if (kept != pictures_.end()) return kept->second;
  const auto retry = [this](const std::string& question) { return AskRetry(question); };
  const std::string path = SkinPicPath(places_, "menu\\" + name, retry);
  const QImage picture = path.empty() ? QImage() : ReadPicture(path);
  return pictures_.insert_or_assign(name, picture).first->second;
}

}  // namespace zorik
