#include "editors/BoxText.h"

#include <QLineEdit>
#include <QRegularExpression>

#include "data/Cp1250.h"
#include "skin/ToQString.h"

namespace zorik {

QString ToBox(const std::string& bytes) {
  QString text = ToQString(bytes);
  return text.replace("\r\n", "\n").replace('\r', '\n');
}

std::string FromBox(const QString& text) {
  // A letter and its accent may come apart.
  QString whole = text.normalized(QString::NormalizationForm_C);
  return FromUtf8Lossy(whole.replace("\n", "\r\n").toStdString());
}

QString AsKept(const QString& text) {
  return ToBox(FromBox(text));
}

QString InOneLine(QString text) {
  static const QRegularExpression breaks("[\\r\\n\\x{2028}\\x{2029}]+");
  return text.replace(breaks, " ");
}

void SelectFromEnd(QLineEdit& box) {
  box.end(false);
  box.home(true);
}

}  // namespace zorik
