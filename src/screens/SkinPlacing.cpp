#include "screens/SkinPlacing.h"

#include <QImage>
#include <QScreen>
#include <QWidget>
#include <algorithm>

#include "screens/SkinButton.h"
#include "screens/SkinWindow.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr int kAbsent = -1;
constexpr QSize kLeastScreen(800, 600);  // what skins may count upon

int NumberOr(const Skin& skin, const std::string& key, int otherwise) {
  const int number = skin.Data().SkinInt(key);
  return number == kAbsent ? otherwise : number;
}

}  // namespace

QRect BoxOf(const Skin& skin, const std::string& key, const QRect& otherwise) {
  return {NumberOr(skin, key + ".left", otherwise.left()), NumberOr(skin, key + ".top", otherwise.top()),
          NumberOr(skin, key + ".width", otherwise.width()),
          NumberOr(skin, key + ".height", otherwise.height())};
}

void PlaceButton(Skin& skin, SkinButton& button, const std::string& key, const QString& words) {
  const int left = skin.Data().SkinInt(key + ".left");
  const int top = skin.Data().SkinInt(key + ".top");
  button.SetPicture(skin.Picture(key + ".image"));
  button.SetWords(words);
  const QRect place(QPoint(left, top), button.size());
  const bool absent = left == kAbsent || top == kAbsent;
  const bool seen = absent || button.parentWidget()->rect().contains(place.center());
  button.move(seen ? place.topLeft() : HeldIn(button.parentWidget(), place).topLeft());
  button.setVisible(HasPlace(button));
}

QRect HeldIn(const QWidget* window, const QRect& box) {
  if (window == nullptr) return box;
  QRect held(box.topLeft(), box.size().boundedTo(window->size()).expandedTo(QSize(1, 1)));
  held.moveRight(std::min(held.right(), window->width() - 1));
  held.moveBottom(std::min(held.bottom(), window->height() - 1));
  held.moveLeft(std::max(held.left(), 0));
  held.moveTop(std::max(held.top(), 0));
  return held;
}

bool HasPlace(const SkinButton& button) {
  return button.x() != kAbsent && button.y() != kAbsent;
}

void SetWindowPicture(Skin& skin, SkinSurface& surface, QWidget& window, const std::string& key,
                      const QSize& otherwise) {
  const QImage picture = skin.Picture(key + ".image");
  const QSize own = picture.isNull() ? otherwise : picture.size();
  const QSize size = BoxOf(skin, key, QRect(QPoint(), own)).size();
  if (picture.isNull()) {
    surface.SetColour(kPlainGround);
  } else {
    surface.SetPicture(picture);
  }
  // What is too large for the screen is no larger than its picture either, beyond which nothing is seen.
  const QSize room = window.screen()->availableSize().expandedTo(kLeastScreen);
  const bool fits = size.boundedTo(room) == size;
  window.setFixedSize(fits ? size : size.boundedTo(room).boundedTo(own));
}

}  // namespace zorik
