#include "skin/Skin.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "data/Result.h"
#include "platform/PathText.h"
#include "skin/SkinCheck.h"

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

bool Skin::AskRetry(const std::string& question) {
  if (!retry_ || asking_) return false;
  asking_ = true;
  const bool again = retry_(question);
  asking_ = false;
  return again;
}

ApplyOutcome Skin::Apply(const SkinPlaces& places) {
  SkinData data;
  SkinFlaws flaws = data.LoadSkinData(places);
  const auto isFault = [](const SkinFlaw& flaw) { return flaw.kind == SkinFlaw::Kind::NotUnderstood; };
  if (std::any_of(flaws.begin(), flaws.end(), isFault)) {
    std::erase_if(flaws, std::not_fn(isFault));
    return {false, std::move(flaws)};
  }
  places_ = places;
  data_ = std::move(data);
  pictures_ = {};
  givenUp_.clear();
  const auto retry = [this](const std::string& name) { return AskRetry(QuestionOfFile(name)); };
  if (!LoadLanguage(places_, texts_, retry)) flaws.push_back({SkinFlaw::Kind::ShortLanguage, {}, {}});
  AddFileFlaws(places_, flaws);
  return {true, std::move(flaws)};
}

QString Skin::Text(TextId text) const {
  return QString::fromStdString(texts_.At(text));
}

QString Skin::Caption(std::string_view key) const {
  return QString::fromStdString(data_.SkinWords(key)).replace('\r', '\n');
}

QString Skin::Said(std::string_view key) const {
  return QString::fromStdString(data_.SkinText(key)).replace('\r', '\n');
}

std::string Skin::QuestionOfPicture(const std::string& searched) const {
  return WithText(data_.SkinWords("caption.error.nopicture"), "?1?",
                  ShownPath(std::string_view(searched)).toStdString());
}

std::string Skin::QuestionOfFile(const std::string& name) const {
  return WithText(data_.SkinWords("caption.error.nofile"), "?1?", name);
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
  QImage picture;
  const auto usable = [&](const std::string& path) {
    picture = pictures_.Keep(path, ReadPicture);
    return !picture.isNull();
  };
  const auto retry = [&](const std::string& searched) {
    if (asking_ || givenUp_.contains(name)) return false;
    if (AskRetry(QuestionOfPicture(searched))) return true;
    givenUp_.insert(name);
    return false;
  };
  SkinPicPath(places_, "menu\\" + name, retry, usable);
  return picture;
}

}  // namespace zorik
