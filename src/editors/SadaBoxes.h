#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QWidget>
#include <array>

#include "core/TextId.h"
#include "flow/SadaModel.h"

class QLabel;

namespace zorik {

class BoxNote;
class Skin;

// Points at the start, five digits. The value is kept in memory only and goes into no file.
class BodyBox : public QLineEdit {
  Q_OBJECT

 public:
  explicit BodyBox(QWidget* parent);

 protected:
  void focusInEvent(QFocusEvent* event) override;

 private:
  void Format();
};

// The box of the description. It takes no more than so many characters as they are kept, a line break counts
// for two; a text that was longer when it was loaded stays whole, but does not grow.
class DescriptionBox : public QPlainTextEdit {
  Q_OBJECT

 public:
  explicit DescriptionBox(QWidget* parent);

  // Of a text that no box can hold the beginning is shown, and cannot be changed.
  void Load(const QString& text);

 signals:
  // Somebody has changed the text.
  void Edited(const QString& text);

 protected:
  bool event(QEvent* event) override;

 private:
  void Fit();
  void Replace(const QString& added, const QString& fitting);

  std::size_t most_ = SadaModel::kLongestDescription;
  int position_ = 0;  // of what was put in last
  int added_ = 0;
  bool loading_ = false;
};

// The texts of a collection in their boxes. What is typed goes into the collection at once; a text that
// nobody touches stays as it is, byte by byte.
class SadaBoxes : public QWidget {
  Q_OBJECT

 public:
  SadaBoxes(SadaModel& sada, QWidget* parent);

  // Puts the skin's texts on the controls.
  void SetLWEd(const Skin& skin);

  // Shows the texts of the collection.
  void Load();

  // Shows the same words in all four boxes instead.
  void Cover(const QString& words);

  // Gives the name the focus, ready to be typed over.
  void Begin();

  // The control that a text is typed into.
  QWidget* Box(SadaText text) const;

 signals:
  void Changed();

 private:
  QLineEdit* MakeBox(const char* name, SadaText text);
  QWidget* RowOf(QWidget* box, std::size_t place);
  void LayOut();

  SadaModel& sada_;
  QLineEdit* Text3_;
  QLineEdit* Text1_;
  QLineEdit* Text2_;
  DescriptionBox* Text4_;
  BodyBox* txtBody_;
  std::array<QLabel*, 5> labels_{};
  std::array<BoxNote*, 4> notes_{};
};

// The place in the language table of the label of a text.
TextId LabelOf(SadaText text);

}  // namespace zorik
