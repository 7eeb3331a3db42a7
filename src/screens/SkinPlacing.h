#pragma once

#include <QRect>
#include <QSize>
#include <QString>
#include <string>

class QWidget;

namespace zorik {

class Skin;
class SkinButton;
class SkinSurface;

// Where the skin's table wants things to be. A number that it lacks, or that is -1, is absent.

// KEY.left, .top, .width and .height; what is absent is taken from the other box.
QRect BoxOf(const Skin& skin, const std::string& key, const QRect& otherwise);

// Gives a button KEY.image and puts it at KEY.left and .top, or as near to that as it is seen. One
// without a place is hidden. words say what it does.
void PlaceButton(Skin& skin, SkinButton& button, const std::string& key, const QString& words);

// A box moved, and made smaller if need be, so that it lies within the window, if there is one.
QRect HeldIn(const QWidget* window, const QRect& box);

// Whether a button got a place.
bool HasPlace(const SkinButton& button);

// Makes a window look like KEY.image, as large as KEY.width and .height or, without these, as the picture.
// Without a picture it is plain, and of the other size if need be. It is never larger than its screen.
void SetWindowPicture(Skin& skin, SkinSurface& surface, QWidget& window, const std::string& key,
                      const QSize& otherwise);

}  // namespace zorik
