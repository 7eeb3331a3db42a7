#pragma once

#include <QTranslator>

namespace zorik {

class Skin;

// The words that the window toolkit itself puts on the screen, in the language of the present skin: the menus
// of text boxes and scroll bars, and what the box that asks for a file says. In force as long as it lives.
class ToolkitWords : public QTranslator {
  Q_OBJECT

 public:
  // The skin must outlive it.
  ToolkitWords(const Skin& skin, QObject* parent);

  bool isEmpty() const override { return false; }
  QString translate(const char* context, const char* source, const char* disambiguation,
                    int count) const override;

 private:
  const Skin& skin_;
};

}  // namespace zorik
