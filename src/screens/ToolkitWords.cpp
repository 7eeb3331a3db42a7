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
    WordRow{"&Undo", {"caption.text.undo", "Zpět"}},
    WordRow{"&Redo", {"caption.text.redo", "Znovu"}},
    WordRow{"Cu&t", {"caption.text.cut", "Vyjmout"}},
    WordRow{"&Copy", {"caption.text.copy", "Kopírovat"}},
    WordRow{"&Paste", {"caption.text.paste", "Vložit"}},
    WordRow{"Delete", {"caption.text.delete", "Vymazat"}},
    WordRow{"Select All", {"caption.text.all", "Vybrat vše"}},
    WordRow{"Show &hidden files", {"caption.file.hidden", "Ukázat skryté soubory"}},
    WordRow{"&Rename", {"caption.file.rename", "Přejmenovat"}},
    WordRow{"&Delete", {"caption.file.delete", "Vymazat"}},
    WordRow{"&New Folder", {"caption.file.new", "Nová složka"}},
    WordRow{"Recent Places", {"caption.file.recent", "Nedávné složky"}},
    WordRow{"Computer", {"caption.file.computer", "Počítač"}},
    WordRow{"Remove", {"caption.file.remove", "Odebrat"}},
    WordRow{"&Open", kOpenWords},
    WordRow{"%1\nDirectory not found.\nPlease verify the correct directory name was given.",
            {"caption.file.nofolder", "%1\nTaková složka tu není."}},
    WordRow{"OK", kOkWords},
    WordRow{"Cancel", kCancelWords},
    WordRow{"&Yes", kYesWords},
    WordRow{"&No", kNoWords},
    WordRow{"Scroll here", {"caption.scroll.here", "Posunout sem"}},
    WordRow{"Top", {"caption.scroll.top", "Začátek"}},
    WordRow{"Bottom", {"caption.scroll.bottom", "Konec"}},
    WordRow{"Left edge", {"caption.scroll.leftedge", "Levý okraj"}},
    WordRow{"Right edge", {"caption.scroll.rightedge", "Pravý okraj"}},
    WordRow{"Page up", {"caption.scroll.pageup", "O stránku nahoru"}},
    WordRow{"Page down", {"caption.scroll.pagedown", "O stránku dolů"}},
    WordRow{"Page left", {"caption.scroll.pageleft", "O stránku vlevo"}},
    WordRow{"Page right", {"caption.scroll.pageright", "O stránku vpravo"}},
    WordRow{"Scroll up", {"caption.scroll.up", "Nahoru"}},
    WordRow{"Scroll down", {"caption.scroll.down", "Dolů"}},
    WordRow{"Scroll left", {"caption.scroll.left", "Vlevo"}},
    WordRow{"Scroll right", {"caption.scroll.right", "Vpravo"}},
};

// Keys bear their own names on any keyboard.
constexpr std::string_view kKeyNames = "QShortcut";

}  // namespace

ToolkitWords::ToolkitWords(const Skin& skin, QObject* parent) : QTranslator(parent), skin_(skin) {
  QCoreApplication::installTranslator(this);
}

QString ToolkitWords::translate(const char* context, const char* source, const char* /*disambiguation*/,
                                int /*count*/) const {
  if (context == nullptr || source == nullptr || context == kKeyNames) return QString();
  for (const WordRow& row : kWords) {
    if (row.source == source) return row.words.In(skin_).replace('\r', '\n');
  }
  return QString();
}

}  // namespace zorik
