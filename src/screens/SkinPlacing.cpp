#include "screens/SkinPlacing.h"

#include <QImage>
#include <QWidget>

#include "screens/SkinButton.h"
#include "screens/SkinWindow.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr int kAbsent = -1;

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
  button.move(left, top);
  button.setVisible(HasPlace(button));
}

bool HasPlace(const SkinButton& button) {
  return button.x() != kAbsent && button.y() != kAbsent;
}

void SetWindowPicture(Skin& skin, SkinSurface& surface, QWidget& window, const std::string& key,
                      const QSize& otherwise) {
  const QImage picture = skin.Picture(key + ".image");
  const QSize size = BoxOf(skin, key, QRect(QPoint(), picture.isNull() ? otherwise : picture.size())).size();
  if (picture.isNull()) {
    surface.SetColour(kPlainGround);
  } else {
    surface.SetPicture(picture);
  }
  window.setFixedSize(size);
}

}  // namespace zorik
