#pragma once

#include <QLabel>
#include <cstddef>
#include <functional>
#include <optional>

class QLineEdit;
class QPlainTextEdit;

namespace zorik {

class Skin;

// A line below a text box that tells what becomes of the text while it is typed: how long it is and how long
// it may be, in red when it is too long; and which of its letters no file can hold, which are marked in
// the box. Below a box of several lines the length always stands there, else from three quarters of the most
// on.
class BoxNote : public QLabel {
  Q_OBJECT

 public:
  // Without a limit the length is not told.
  BoxNote(QLineEdit& box, std::optional<std::size_t> most);
  BoxNote(QPlainTextEdit& box, std::optional<std::size_t> most);

  // Puts the skin's words on it.
  void SetWords(const Skin& skin);

 signals:
  // It has something to tell, or nothing any more.
  void Changed();

 private:
  void Prepare(const char* box);
  void Tell();
  QString LengthOf(const QString& text) const;

  std::function<QString()> text_;
  std::optional<std::size_t> most_;
  std::size_t from_ = 0;  // the first length that is told
  QString strangeWords_;
};

}  // namespace zorik
