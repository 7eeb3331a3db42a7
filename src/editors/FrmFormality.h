#pragma once

#include <QDialog>
#include <array>
#include <string>
#include <vector>

#include "editors/CaveModel.h"
#include "editors/Formality.h"

class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace zorik {

class BoxNote;
class Skin;

// The cave's properties. What is out of its limits is put right when the dialog is confirmed, and told. Some
// buttons answer questions about the cave as it is and the numbers as they stand in the boxes.
class FrmFormality : public QDialog {
  Q_OBJECT

 public:
  // Characters that can be typed into the description; a line break counts for two.
  static constexpr int kLongestDescription = 280;

  FrmFormality(Skin& skin, const CaveModel& cave, QWidget* parent);

  // Puts the skin's texts on the controls.
  void SetLWEd();

  // Loads the dialog from the cave.
  void SetProps();

  // What the dialog holds.
  Formality Values() const;

  // The message that tells what was put right.
  static void Warn(Skin& skin, QWidget* parent, const std::vector<Correction>& report);

  // The same before a cave is edited, with old and new; true when the author agrees.
  static bool AskToOpen(Skin& skin, QWidget* parent, const std::vector<Correction>& report);

 signals:
  // The values within their limits, after a confirmation.
  void VlOK(const zorik::Formality& values);
  // A page of the help is wanted, or the sheet of the editor's shortcuts.
  void HelpWanted(const QString& page);
  void ShortcutsWanted();

 public slots:
  void done(int result) override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void AddButtons();
  void AddKeys();
  void LayOut();
  void OrderTabs();
  std::vector<QPushButton*> Beside(CaveNumber number) const;
  void AddRow(QGridLayout& grid, QLabel* label, QWidget* control, int columns,
              const std::vector<QPushButton*>& beside);
  void LimitDescription(int position, int added);
  void Confirm();
  int Number(CaveNumber number) const;
  QLineEdit& Box(CaveNumber number) const { return *numbers_[static_cast<std::size_t>(number)]; }
  void Answer(TextId title, const QString& text);

  void AskBonus();
  void AskGems();
  void AskSlime();
  void AskPetrifying();

  Skin& skin_;
  const CaveModel& cave_;
  QLineEdit* name_;
  QPlainTextEdit* description_;
  std::array<QLineEdit*, kCaveNumbers> numbers_{};
  QComboBox* colouring_;
  BoxNote* noteName_;
  BoxNote* noteDescription_;
  QLabel* lblName_;
  QLabel* lblDescription_;
  std::array<QLabel*, kCaveNumbers> lblNumbers_{};
  QLabel* lblColouring_;
  QWidget* texts_ = nullptr;  // all but the buttons at the end
  bool sized_ = false;
  std::array<QPushButton*, 8> commands_{};
  std::string loadedDescription_;  // as the cave holds it; its line ends may be of any kind
  QString shownDescription_;
};

}  // namespace zorik
