#pragma once

#include <QImage>
#include <QTimer>
#include <QWidget>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "data/Collection.h"
#include "skin/Pictures.h"

namespace zorik {

class CavePainter;
class Skin;
class SkinLabel;

// A cave as it begins, small, and in a line below it its size, gems and time, and the time of its record. It
// is for skins that give it a place. What takes a while, the picture and the record, waits until the same
// cave has been shown for a moment, so that going through a list stays quick, and is kept.
class CavePreview : public QWidget {
  Q_OBJECT

 public:
  CavePreview(Skin& skin, QWidget* parent);
  ~CavePreview() override;

  // Takes the place and the looks of the skin that is worn by now; shown only if that wants it.
  void SkinIt();

  // Shows a cave, and the time of the player's record in this file; an empty path for none.
  void ShowCave(const PlayedCave& cave, const std::string& record);

  // Shows a lock: the cave is closed.
  void ShowLock();

  // Nothing is left to be drawn.
  bool IsDrawn() const { return !pause_.isActive(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  struct Best {
    FileStamp stamp;
    std::optional<int> ticks;  // nothing where the file is no record of a win
  };

  QRect Room() const;
  const QImage* Known() const;
  const Best* KnownBest() const;
  void Catch();
  QImage Drawn();
  void ShowFacts();

  Skin& skin_;
  SkinLabel* facts_;
  QTimer pause_;
  bool wanted_ = false;
  std::optional<PlayedCave> cave_;  // none: it is closed
  std::string record_;
  std::unique_ptr<CavePainter> painter_;
  std::map<std::string, QImage> pictures_;  // by the cave's text
  std::map<std::string, Best> bests_;       // by the record's path
};

}  // namespace zorik
