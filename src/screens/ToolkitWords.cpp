#include "screens/ToolkitWords.h"

#include <QCoreApplication>
#include <array>
#include <string_view>

#include "screens/StartWords.h"

namespace zorik {
namespace {

// What the toolkit would say, and what is said instead.
struct WordRow {
  std::string_view source;
  StartWords words;
};

constexpr std::array kWords = {
    WordRow{"&Undo", {"caption.text.undo"}},
    WordRow{"&Redo", {"caption.text.redo"}},
    WordRow{"Cu&t", {"caption.text.cut"}},
    WordRow{"&Copy", {"caption.text.copy"}},
    WordRow{"&Paste", {"caption.text.paste"}},
    WordRow{"Delete", {"caption.text.delete"}},
    WordRow{"Select All", {"caption.text.all"}},
    WordRow{"Show &hidden files", {"caption.file.hidden"}},
    WordRow{"&Rename", {"caption.file.rename"}},
    WordRow{"&Delete", {"caption.file.delete"}},
    WordRow{"&New Folder", {"caption.file.new"}},
    WordRow{"Recent Places", {"caption.file.recent"}},
    WordRow{"Computer", {"caption.file.computer"}},
    WordRow{"Remove", {"caption.file.remove"}},
    WordRow{"&Open", kOpenWords},
    WordRow{"%1\nDirectory not found.\nPlease verify the correct directory name was given.",
            {"caption.file.nofolder"}},
    WordRow{"OK", kOkWords},
    WordRow{"Cancel", kCancelWords},
    WordRow{"&Yes", kYesWords},
    WordRow{"&No", kNoWords},
    WordRow{"Scroll here", {"caption.scroll.here"}},
    WordRow{"Top", {"caption.scroll.top"}},
    WordRow{"Bottom", {"caption.scroll.bottom"}},
    WordRow{"Left edge", {"caption.scroll.leftedge"}},
    WordRow{"Right edge", {"caption.scroll.rightedge"}},
    WordRow{"Page up", {"caption.scroll.pageup"}},
    WordRow{"Page down", {"caption.scroll.pagedown"}},
    WordRow{"Page left", {"caption.scroll.pageleft"}},
    WordRow{"Page right", {"caption.scroll.pageright"}},
    WordRow{"Scroll up", {"caption.scroll.up"}},
    WordRow{"Scroll down", {"caption.scroll.down"}},
    WordRow{"Scroll left", {"caption.scroll.left"}},
    WordRow{"Scroll right", {"caption.scroll.right"}},
};

// Keys bear their own names on any keyboard, and arrows a sign.
constexpr std::string_view kKeyNames = "QShortcut";

struct ArrowRow {
  std::string_view source;
  char16_t sign;
};
constexpr std::array kArrows = {ArrowRow{"Left", u'←'}, ArrowRow{"Up", u'↑'}, ArrowRow{"Right", u'→'},
                                ArrowRow{"Down", u'↓'}};

QString NameOfKey(std::string_view source) {
  for (const ArrowRow& row : kArrows) {
    if (row.source == source) return QChar(row.sign);
  }
  return {};
}

}  // namespace

ToolkitWords::ToolkitWords(const Skin& skin, QObject* parent) : QTranslator(parent), skin_(skin) {
  QCoreApplication::installTranslator(this);
}

QString ToolkitWords::translate(const char* context, const char* source, const char* /*disambiguation*/,
                                int /*count*/) const {
  if (context == nullptr || source == nullptr) return QString();
  if (context == kKeyNames) return NameOfKey(source);
  for (const WordRow& row : kWords) {
    if (row.source == source) return row.words.In(skin_).replace('\r', '\n');
  }
  return QString();
}

}  // namespace zorik
