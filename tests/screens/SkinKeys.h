#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLabel>
#include <QPainter>
#include <QTest>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "data/Result.h"
#include "screens/PostScreen.h"
#include "screens/SkinLabel.h"

namespace zorik::test {

// What somebody sees who looks at one thing of a window, in words.
using Sight = std::function<QString(QWidget& window)>;

// A key of the skin's table, the value that another skin gives it, and what is seen in the window then.
struct SkinKey {
  std::string key;
  std::string value;
  Sight sight;
  QString seen;
  std::vector<std::string> besides{};  // lines "key=value" that this skin has anyway
};
using SkinKeys = std::vector<SkinKey>;

// Opens the window in the skin as it is by now, and lets somebody look at it.
using Stage = std::function<void(const std::function<void(QWidget& window)>& look)>;

// The tables of all windows, for the test of their completeness.
SkinKeys KeysOfStart();
SkinKeys KeysOfSelection();
SkinKeys KeysOfPlainAuthor();
SkinKeys KeysOfSettings();
SkinKeys KeysOfQuestion();
SkinKeys KeysOfNotice();
SkinKeys KeysOfRetry();
SkinKeys KeysOfPlates();
SkinKeys KeysOfCongratulation(const QString& box);
SkinKeys KeysOfNewPlayer();
SkinKeys KeysOfScore();
SkinKeys KeysOfSkinWindow();

// A part of a window by its name or, where it has none, by its class.
inline QWidget& Part(const QWidget& window, const QString& name) {
  if (auto* const part = window.findChild<QWidget*>(name)) return *part;
  for (QWidget* const part : window.findChildren<QWidget*>()) {
    if (part->inherits(("zorik::" + name).toLatin1())) return *part;
  }
  ADD_FAILURE() << "no part " << name.toStdString();
  static QWidget none;
  return none;
}

// A part as a desktop shows it that magnifies four times: the lines of its letters are whole pixels then.
inline constexpr int kMagnified = 4;
inline QImage Magnified(QWidget& part) {
  QImage image(part.size() * kMagnified, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.scale(kMagnified, kMagnified);
  part.render(&painter, QPoint(), QRegion(), QWidget::DrawWindowBackground | QWidget::DrawChildren);
  return image;
}

// Whether a place of a part, in its own pixels, holds a colour.
inline bool Holds(QWidget& part, const QRect& place, QColor colour) {
  const QRect magnified(place.topLeft() * kMagnified, place.size() * kMagnified);
  const QImage image = Magnified(part).copy(magnified);
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixelColor(x, y) == colour) return true;
    }
  }
  return false;
}

inline QString YesNo(bool yes) {
  return yes ? "yes" : "no";
}

// Where a part lies, and how large it is.
inline Sight Left(const QString& name) {
  return [name](QWidget& window) { return QString::number(Part(window, name).x()); };
}
inline Sight Top(const QString& name) {
  return [name](QWidget& window) { return QString::number(Part(window, name).y()); };
}
inline Sight Width(const QString& name) {
  return [name](QWidget& window) { return QString::number(Part(window, name).width()); };
}
inline Sight Height(const QString& name) {
  return [name](QWidget& window) { return QString::number(Part(window, name).height()); };
}

inline QString WindowWidth(QWidget& window) {
  return QString::number(window.width());
}
inline QString WindowHeight(QWidget& window) {
  return QString::number(window.height());
}
inline QString Title(QWidget& window) {
  return window.windowTitle();
}

// The words on a part, and those that are shown while the pointer rests on it.
inline Sight WordsOn(const QString& name) {
  return [name](QWidget& window) {
    const QWidget& part = Part(window, name);
    if (const auto* const label = dynamic_cast<const QLabel*>(&part)) return label->text();
    if (const auto* const label = dynamic_cast<const SkinLabel*>(&part)) return label->Text();
    if (const auto* const button = dynamic_cast<const QAbstractButton*>(&part)) return button->text();
    return QString("no words");
  };
}
inline Sight HintOf(const QString& name) {
  return [name](QWidget& window) { return Part(window, name).toolTip(); };
}

// The colour of a pixel of the window, or of a part of it.
inline Sight Pixel(QPoint place) {
  return [place](QWidget& window) { return window.grab().toImage().pixelColor(place).name(); };
}
inline Sight PixelOf(const QString& name, QPoint place) {
  return [=](QWidget& window) { return Part(window, name).grab().toImage().pixelColor(place).name(); };
}

// Whether a part holds a colour, as that of its letters.
inline Sight Ink(const QString& name, QColor colour) {
  return [=](QWidget& window) {
    QWidget& part = Part(window, name);
    return YesNo(Holds(part, part.rect(), colour));
  };
}

// How wide the frame of a part is: the pixels of one colour from its left edge on.
inline Sight FrameOf(const QString& name) {
  return [name](QWidget& window) {
    const QImage image = Part(window, name).grab().toImage();
    const int y = image.height() / 2;
    int width = 0;
    while (width < image.width() && image.pixel(width, y) == image.pixel(0, y)) ++width;
    return QString::number(width);
  };
}

// On which side of its part a line of text stands.
inline Sight SideOf(const QString& name) {
  return [name](QWidget& window) {
    const QImage image = Magnified(Part(window, name));
    int first = image.width();
    int last = -1;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        if (image.pixel(x, y) == image.pixel(image.width() - 1, image.height() - 1)) continue;
        first = std::min(first, x);
        last = std::max(last, x);
      }
    }
    const int before = first;
    const int behind = image.width() - 1 - last;
    if (std::abs(before - behind) <= 3 * kMagnified) return QString("centre");
    return QString(before < behind ? "left" : "right");
  };
}

// The look of a button that is left alone, in its middle.
inline Sight LookOf(const QString& name) {
  return [name](QWidget& window) {
    QWidget& part = Part(window, name);
    return PixelOf(name, part.rect().center())(window);
  };
}

// What a button's image, left and top do; all buttons of the game have them.
inline SkinKeys KeysOfButton(const std::string& key, const QString& name) {
  return {{key + ".image", "looks", LookOf(name), QColor(Qt::red).name()},
          {key + ".image", "looks", Width(name), "26"},
          {key + ".left", "61", Left(name), "61"},
          {key + ".top", "73", Top(name), "73"}};
}

inline SkinKeys operator+(SkinKeys keys, const SkinKeys& more) {
  keys.insert(keys.end(), more.begin(), more.end());
  return keys;
}

inline constexpr QSize kWindow(720, 520);

// The shipped skin, and beside it another one that overrides a few keys of it and has pictures of its own.
class KeyHome : public PostHome {
 public:
  KeyHome() {
    const std::string shipped = folder.Root() + "/Skins/Default";
    std::filesystem::remove_all(shipped);
    std::filesystem::create_directory_symlink(ZORIK_BUILT_SKINS "/Default", shipped);
    Picture("looks", Strips(kLooks, {26, 18}));
    Picture("boxes", Strips({Qt::red, Qt::green, Qt::blue, Qt::cyan, Qt::magenta, Qt::yellow}, {22, 22}));
    Picture("ground", Ground(kWindow));
    Picture("small", Ground({300, 200}));
    Picture("finger", Finger());
    Wear({});
  }

  // The colour of the pictures of whole windows; their first pixel is outside of the window.
  static QColor GroundColour() { return QColor(0x20, 0x60, 0xA0); }
  static QRect FingerBox() { return {300, 20, 44, 60}; }

  void Wear(const std::vector<std::string>& lines) {
    std::string text = "\xEF\xBB\xBF";
    for (const std::string& line : lines) {
      const std::size_t dot = line.find('.');
      text += line.substr(0, dot) + ":\n" + line.substr(dot + 1) + "\n";
    }
    folder.File("Skins/Other/Menu/skindata.txt", text);
    ASSERT_TRUE(skin.Apply({folder.Root() + "/Skins", "Other"}));
  }

 private:
  static QImage Ground(QSize size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(GroundColour());
    image.setPixelColor(0, 0, Qt::white);
    return image;
  }
  static QImage Finger() {
    QImage image(kWindow, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.fillRect(FingerBox(), Qt::yellow);
    return image;
  }

  void Picture(const std::string& name, const QImage& image) const {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    ASSERT_TRUE(image.save(&buffer, "BMP"));
    folder.File("Skins/Other/Menu/" + name + ".bmp", bytes.toStdString());
  }
};

// Looks at each key's effect in the window, without the key and with it.
inline void CheckKeys(KeyHome& home, const SkinKeys& keys, const Stage& stage) {
  for (const SkinKey& row : keys) {
    SCOPED_TRACE(row.key + " = " + row.value);
    const auto look = [&] {
      QString seen;
      stage([&](QWidget& window) { seen = row.sight(window); });
      return seen.toStdString();
    };
    home.Wear(row.besides);
    EXPECT_NE(look(), row.seen.toStdString()) << "without the key";
    std::vector<std::string> lines = row.besides;
    lines.push_back(row.key + "=" + row.value);
    home.Wear(lines);
    EXPECT_EQ(look(), row.seen.toStdString());
  }
}

}  // namespace zorik::test
