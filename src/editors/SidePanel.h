#pragma once

#include <QSplitter>
#include <vector>

class QTabWidget;

namespace zorik {

class Skin;

// The cave's picture, and right of it pages that tell about the cave. The author chooses whether they are
// shown and how wide they are; both are kept for the next time. Without a page the picture is alone.
class SidePanel : public QSplitter {
  Q_OBJECT

 public:
  SidePanel(QWidget& picture, QWidget* parent);

  // One more page, behind those that are there; its caption is a key of the skin.
  void AddPage(QWidget& page, const char* key);
  void SetLW(const Skin& skin);
  // Turns to a page.
  void TurnTo(QWidget& page);

  bool IsWanted() const { return wanted_; }
  void SetWanted(bool wanted);

 protected:
  void hideEvent(QHideEvent* event) override;

 private:
  void ShowPages();

  QTabWidget* pages_;
  std::vector<const char*> keys_;
  bool wanted_ = true;
};

}  // namespace zorik
