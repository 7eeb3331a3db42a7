#pragma once

#include <QString>
#include <QWidget>
#include <optional>

#include "run/Outlook.h"

namespace zorik {

class Skin;

// The sign over the cave that the run is practice, and nothing of it is recorded; with a small light that
// says whether a way to win is known. The mouse does not notice it.
class PracticeBadge : public QWidget {
 public:
  explicit PracticeBadge(QWidget* parent);

  void SetText(const QString& text);

  // No light for a run that is won.
  void SetLight(std::optional<Prospect> light, const Skin& skin);

  // Lies at the lower left corner of this part of its parent.
  void PlaceIn(const QRect& frame);

  const QString& Text() const { return text_; }
  std::optional<Prospect> Light() const { return light_; }
  const QString& LightText() const { return lightText_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void Place();

  QString text_;
  std::optional<Prospect> light_;
  QString lightText_;
  QRect frame_;
};

}  // namespace zorik
