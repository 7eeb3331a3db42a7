#pragma once

#include <QString>
#include <optional>

#include "screens/SkinWindow.h"

class QPlainTextEdit;
class QTextEdit;

namespace zorik {

class BoxNote;
class Skin;
class SkinButton;

// The congratulation of a collection, to be read or to be edited.
class FrmDialog2 : public SkinDialog {
  Q_OBJECT

 public:
  FrmDialog2(Skin& skin, QWidget* parent);

  // Shows the text until the player has read it.
  void ShowG(const QString& text);

  // Lets the text be edited. The answer has CR LF at its line breaks; nothing when the player has dropped his
  // changes. Of a text that no box can hold the beginning is shown, and nothing changes.
  std::optional<QString> SetG(const QString& text);

 signals:
  void HelpWanted();

 protected:
  void OnEnter() override { accept(); }
  void OnEsc() override { done(Rejected); }
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void SkinIt();
  void SetMode(bool editing);
  void PlaceNote();

  Skin& skin_;
  QTextEdit* picText_;     // for reading
  QPlainTextEdit* Text1_;  // for editing
  BoxNote* note_;          // at the bottom of that, when there is something to tell
  SkinButton* ok_;
  SkinButton* close_;
  SkinButton* help_;
};

}  // namespace zorik
