#pragma once

#include <QWidget>
#include <array>
#include <cstddef>

namespace zorik {

// The way back to a hidden game: the dog's name, letter by letter. Any other key starts it anew; the arrow
// keys count for nothing.
class HideAwaySequence {
 public:
  // A key went down, by its game code (a letter's is that of its capital); true at the end of the sequence.
  bool Press(int key);

 private:
  std::size_t next_ = 0;
};

// What stands in the place of a hidden game: a dull little table in which nothing happens. Closing it brings
// the game back as well.
class HideAway : public QWidget {
  Q_OBJECT

 public:
  HideAway();

 signals:
  void Found();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  HideAwaySequence sequence_;
};

}  // namespace zorik
