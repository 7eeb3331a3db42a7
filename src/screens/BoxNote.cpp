#include "screens/BoxNote.h"

#include <QLineEdit>
#include <QPlainTextEdit>

#include "screens/Marks.h"
#include "screens/PlainText.h"
#include "screens/StartWords.h"
#include "screens/StrangeLetters.h"
#include "screens/WholeText.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr StartWords kStrangeWords{"caption.box.letters"};

constexpr QColor kRedOnLight(0xB0, 0x10, 0x10);
constexpr QColor kRedOnDark(0xFF, 0x80, 0x70);
constexpr int kMiddle = 128;  // between light and dark

}  // namespace

BoxNote::BoxNote(QLineEdit& box, std::optional<std::size_t> most)
    : QLabel(box.parentWidget()), text_([&box] { return box.text(); }), most_(most) {
  from_ = most.value_or(0) * 3 / 4;
  MarkStrangeLetters(box);
  connect(&box, &QLineEdit::textChanged, this, &BoxNote::Tell);
  Prepare(qPrintable(box.objectName()));
}

BoxNote::BoxNote(QPlainTextEdit& box, std::optional<std::size_t> most)
    : QLabel(box.parentWidget()), text_([&box] { return WholeText(*box.document()); }), most_(most) {
  MarkStrangeLetters(box);
  connect(&box, &QPlainTextEdit::textChanged, this, &BoxNote::Tell);
  Prepare(qPrintable(box.objectName()));
}

void BoxNote::Prepare(const char* box) {
  setObjectName(QString("lblNote.") + box);
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  Tell();
}

void BoxNote::SetWords(const Skin& skin) {
  strangeWords_ = kStrangeWords.In(skin);
  Tell();
}

QString BoxNote::LengthOf(const QString& text) const {
  if (!most_) return {};
  const std::size_t length = KeptLength(text);
  return length < from_ ? QString() : QString("%1 / %2").arg(length).arg(*most_);
}

void BoxNote::Tell() {
  const QString text = text_();
  const QString strange = StrangeLettersInWords(text);
  QStringList parts;
  const QString length = LengthOf(text);
  if (!length.isEmpty()) parts << length;
  if (!strange.isEmpty()) parts << FillMarks(strangeWords_, strange, QString());
  const bool wrong = !strange.isEmpty() || (most_ && KeptLength(text) > *most_);
  QPalette colours;
  const bool dark = colours.color(QPalette::Window).lightness() < kMiddle;
  if (wrong) colours.setColor(QPalette::WindowText, dark ? kRedOnDark : kRedOnLight);
  setPalette(colours);
  setText(OneLine(parts.join("   ")));
  setVisible(!parts.isEmpty());
  emit Changed();
}

}  // namespace zorik
