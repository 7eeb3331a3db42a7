#pragma once

#include <QString>
#include <QTimer>
#include <QWidget>

namespace zorik {

// The sign over the cave that the run is practice, and nothing of it is recorded. At first it names the keys,
// too. The mouse does not notice it.
class PracticeBadge : public QWidget {
 public:
  explicit PracticeBadge(QWidget* parent);

  // What it says, and what below that for some seconds.
  void Open(const QString& text, const QString& keys);
  void SetText(const QString& text);

  // Lies at the lower left corner of this part of its parent.
  void PlaceIn(const QRect& frame);

  const QString& Text() const { return text_; }
  bool KeysShown() const { return keysLeave_.isActive(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void Place();

  QString text_;
  QString keys_;
  QRect frame_;
  QTimer keysLeave_;
};

}  // namespace zorik
