#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QList>
#include <QRegularExpression>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QXmlStreamReader>
#include <utility>

#include "core/Objects.h"

namespace zorik {
namespace {

const QString kHelp = ZORIK_HELP;
const QStringList kPages{"help.html",    "pravidla.html",  "editovat.html",
                         "prispet.html", "oprogramu.html", "vzhledy.html"};

// A page by its path below the folder of the help, and what it says.
struct Page {
  QString Path;
  QString Error;       // why it cannot be read, empty if it can
  QString Language;    // as the page tells
  QString Charset;     // likewise
  QString LeadsTo;     // by itself, with the time that it takes
  int Styles = 0;      // style sheets inside
  QStringList Levels;  // of its headings, in their order
  QStringList Links;   // href and src
  QSet<QString> Ids;
  int PicturesWithoutWords = 0;
  QStringList Keys;   // that are to be pressed, in their order
  QStringList Codes;  // what is to be written as it stands, likewise
  QString Text;
};

void ReadElement(const QXmlStreamReader& xml, Page& page) {
  const QString name = xml.name().toString();
  const QXmlStreamAttributes all = xml.attributes();
  if (name == "html") page.Language = all.value("lang").toString();
  if (all.hasAttribute("charset")) page.Charset = all.value("charset").toString();
  if (all.value("http-equiv") == QString("refresh")) page.LeadsTo = all.value("content").toString();
  if (name == "style") ++page.Styles;
  if (name == "h1" || name == "h2" || name == "h3") page.Levels << name;
  if (all.hasAttribute("id")) page.Ids << all.value("id").toString();
  for (const auto* attribute : {"href", "src"}) {
    if (all.hasAttribute(attribute)) page.Links << all.value(attribute).toString();
  }
  if (name == "img" && all.value("alt").trimmed().isEmpty()) ++page.PicturesWithoutWords;
  page.Text += all.value("alt").toString() + ' ';
}

Page Read(const QString& path) {
  Page page;
  page.Path = path;
  QFile file(kHelp + '/' + path);
  if (!file.open(QIODevice::ReadOnly)) {
    page.Error = file.errorString();
    return page;
  }
  QXmlStreamReader xml(&file);
  QString element;
  while (!xml.atEnd()) {
    const auto token = xml.readNext();
    if (token == QXmlStreamReader::StartElement) ReadElement(xml, page);
    if (token == QXmlStreamReader::StartElement || token == QXmlStreamReader::EndElement)
      element = token == QXmlStreamReader::StartElement ? xml.name().toString() : QString();
    if (token == QXmlStreamReader::Characters) page.Text += xml.text();
    if (token == QXmlStreamReader::Characters && element == "kbd") page.Keys << xml.text().toString();
    if (token == QXmlStreamReader::Characters && element == "code") page.Codes << xml.text().toString();
  }
  if (xml.hasError()) page.Error = QString("line %1: %2").arg(xml.lineNumber()).arg(xml.errorString());
  page.Text = page.Text.simplified();
  return page;
}

QList<Page> AllPages() {
  QList<Page> pages;
  for (const QString& name : kPages) pages << Read(name) << Read("en/" + name);
  return pages;
}

// The path of what a link leads to, below the folder of the help, without the place within it.
QString Target(const Page& page, const QString& link) {
  const QString file = link.section('#', 0, 0);
  if (file.isEmpty()) return page.Path;
  return QDir::cleanPath(QFileInfo(page.Path).path() + '/' + file);
}

QStringList Lines(const QString& path) {
  QFile file(QString(ZORIK_SKIN_SOURCES) + '/' + path);
  if (!file.open(QIODevice::ReadOnly)) return {};
  return QString::fromUtf8(file.readAll()).split('\n');
}

// The commands of the cat as its editor shows them: "#" stands for the words of the command's group.
QStringList CatCommands(const QString& skin) {
  QStringList commands;
  QHash<QChar, QString> groups;
  for (const QString& line : Lines(skin + "/Menu/catdata.txt").mid(2)) {
    if (line.size() < 3) continue;
    if (line[1] == ' ') {
      groups[line[0]] = line.mid(2);
    } else {
      commands << line.mid(3).replace("#", groups[line[0]]);
    }
  }
  return commands;
}

// The captions that the English skin gives to the windows of the editors; not those of messages, of hints and
// of the window of sides, and of what is only shown when a skin tells where its makers are to be found.
QStringList EditorCaptions() {
  const QStringList elsewhere{
      "main.noroom",      "main.step.move",     "main.step.random",  "main.amoeba",      "main.pencil.use",
      "main.line.use",    "main.rectangle.use", "main.box.use",      "main.fill.use",    "main.select.use",
      "main.held.use",    "main.side.how",      "main.side.left",    "main.side.top",    "main.side.right",
      "main.side.bottom", "main.noblock",       "main.noblock.line", "main.noturn",      "main.noline",
      "main.stored",      "main.fine",          "main.fault",        "main.hint",        "main.manymore",
      "main.gems",        "sada.import",        "sada.addedopen",    "sada.addedclosed", "sada.step",
      "sada.doubt",       "sada.doubts",        "sada.outside",      "sada.copied",      "sada.edited",
      "sada.replace",     "sada.help.web",      "sada.help.mail"};
  QStringList captions;
  QString section;
  for (const QString& line : Lines("English/Menu/skindata.txt")) {
    if (line.endsWith(':')) section = line;
    const QString key = line.section('=', 0, 0);
    const bool ofEditors = key.startsWith("main.") || key.startsWith("sada.");
    if (section == "caption:" && ofEditors && !elsewhere.contains(key)) captions << line.section('=', 1);
  }
  return captions;
}

// The pages in which players read of words of a skin, and that skin.
const QList<std::pair<QString, QString>> kLanguages{{"Default", ""}, {"English", "en/"}};

TEST(Help, EveryPageIsUtf8AndHasItsStyleSheetInside) {
  for (const Page& page : AllPages()) {
    SCOPED_TRACE(page.Path.toStdString());
    EXPECT_EQ(page.Error.toStdString(), "");
    EXPECT_EQ(page.Charset.toStdString(), "utf-8");
    EXPECT_EQ(page.Styles, 1);
    EXPECT_FALSE(page.Text.contains("@STYLE@"));
  }
}

TEST(Help, EveryPageSaysItsLanguage) {
  for (const Page& page : AllPages()) {
    EXPECT_EQ(page.Language.toStdString(), page.Path.startsWith("en/") ? "en" : "cs")
        << page.Path.toStdString();
  }
}

TEST(Help, EveryLinkAndPictureLeadsSomewhere) {
  for (const Page& page : AllPages()) {
    EXPECT_FALSE(page.Links.isEmpty()) << page.Path.toStdString();
    for (const QString& link : page.Links) {
      const QString target = Target(page, link);
      SCOPED_TRACE((page.Path + " -> " + link).toStdString());
      EXPECT_FALSE(link.contains(':')) << "help needs no network";
      EXPECT_TRUE(QFileInfo(kHelp + '/' + target).isFile());
      const QString place = link.section('#', 1);
      EXPECT_TRUE(place.isEmpty() || Read(target).Ids.contains(place));
    }
  }
}

// Programs that open a file lose the place within it, so a window that has a section of its own opens a page
// that leads there.
TEST(Help, PagesThatLeadToASectionLeadThereInBothLanguages) {
  const QHash<QString, QString> sections{{"kocka.html", "editovat.html#kocka"},
                                         {"vlastnosti.html", "editovat.html#vlastnosti"},
                                         {"en/kocka.html", "editovat.html#cat"},
                                         {"en/vlastnosti.html", "editovat.html#properties"}};
  for (auto it = sections.begin(); it != sections.end(); ++it) {
    const Page page = Read(it.key());
    EXPECT_EQ(page.Error, "") << it.key().toStdString();
    EXPECT_EQ(page.LeadsTo, "0; url=" + it.value());
    EXPECT_EQ(page.Links, QStringList{it.value()}) << "for who is not led by itself";
    const Page target = Read(Target(page, it.value()));
    EXPECT_TRUE(target.Ids.contains(it.value().section('#', 1))) << it.key().toStdString();
    EXPECT_EQ(page.Language, target.Language);
  }
}

TEST(Help, EveryPictureIsShownInBothLanguages) {
  QSet<QString> czech;
  QSet<QString> english;
  for (const Page& page : AllPages()) {
    for (const QString& link : page.Links)
      (page.Path.startsWith("en/") ? english : czech) << Target(page, link);
  }
  const QStringList pictures = QDir(kHelp + "/pictures").entryList({"*.png"}, QDir::Files);
  EXPECT_FALSE(pictures.isEmpty());
  for (const QString& name : pictures) {
    EXPECT_TRUE(czech.contains("pictures/" + name)) << name.toStdString();
    EXPECT_TRUE(english.contains("pictures/" + name)) << name.toStdString();
  }
}

TEST(Help, EveryPictureIsToldInWordsToo) {
  for (const Page& page : AllPages()) EXPECT_EQ(page.PicturesWithoutWords, 0) << page.Path.toStdString();
}

// A window that shows words is pictured in each language; all pictures that there are are shown.
TEST(Help, BothLanguagesShowTheSameWindows) {
  QStringList czech;
  QStringList english;
  for (const Page& page : AllPages()) {
    const bool inEnglish = page.Path.startsWith("en/");
    for (const QString& link : page.Links) {
      const QString target = Target(page, link);
      if (target.contains("windows/")) (inEnglish ? english : czech) << target;
    }
  }
  EXPECT_GE(czech.size(), 9);
  EXPECT_FALSE(czech.join(' ').contains("en/"));
  QStringList expected = czech;
  for (QString& target : expected) {
    if (QFileInfo(kHelp + "/en/" + target).isFile()) target.prepend("en/");
  }
  EXPECT_EQ(english.join(' ').toStdString(), expected.join(' ').toStdString());
  const auto count = [](const char* folder) { return QDir(kHelp + folder).entryList(QDir::Files).size(); };
  EXPECT_EQ(count("/windows"), QSet<QString>(czech.begin(), czech.end()).size());
  EXPECT_EQ(count("/en/windows"), english.filter("en/").size());
}

TEST(Help, BothLanguagesHaveTheSameHeadings) {
  for (const QString& name : kPages) {
    const Page czech = Read(name);
    EXPECT_FALSE(czech.Levels.isEmpty());
    EXPECT_EQ(czech.Levels.join(' ').toStdString(), Read("en/" + name).Levels.join(' ').toStdString())
        << name.toStdString();
  }
}

TEST(Help, BothLanguagesShowTheSamePictures) {
  for (const QString& name : kPages) {
    const auto pictures = [](const Page& page) {
      QStringList found;
      for (const QString& link : page.Links) {
        if (link.endsWith(".png")) found << Target(page, link);
      }
      return found.join(' ').toStdString();
    };
    EXPECT_EQ(pictures(Read(name)), pictures(Read("en/" + name))) << name.toStdString();
  }
}

TEST(Help, BothLanguagesNameTheSameKeysInTheSameOrder) {
  const QRegularExpression space("^mezerník\\w*$");
  for (const QString& name : kPages) {
    QStringList czech = Read(name).Keys;
    czech.replaceInStrings(space, "Space");
    EXPECT_EQ(czech.join(' ').toStdString(), Read("en/" + name).Keys.join(' ').toStdString())
        << name.toStdString();
  }
  EXPECT_FALSE(Read("help.html").Keys.isEmpty());
  EXPECT_FALSE(Read("editovat.html").Keys.isEmpty());
}

TEST(Help, EnglishPagesHoldNoCzechLettersButInTheNameOfTheDog) {
  const QRegularExpression czech("[áčďéěíňóřšťúůýžÁČĎÉĚÍŇÓŘŠŤÚŮÝŽ„]");
  for (const QString& name : kPages) {
    const QString text = Read("en/" + name).Text.remove("Zorík");
    const auto found = czech.match(text);
    EXPECT_FALSE(found.hasMatch()) << text.mid(found.capturedStart() - 20, 40).toStdString();
  }
}

TEST(Help, EditingTellsOfEveryItemOfTheEditors) {
  const QString text = Read("en/editovat.html").Text.replace("’", "'");
  const QStringList captions = EditorCaptions();
  EXPECT_GT(captions.size(), 40);
  for (const QString& caption : captions) {
    const QRegularExpression words("(?<!\\w)" + QRegularExpression::escape(caption) + "(?!\\w)");
    EXPECT_TRUE(text.contains(words)) << caption.toStdString();
  }
}

TEST(Help, EditingTellsOfEveryCommandOfTheCat) {
  for (const auto& [skin, folder] : kLanguages) {
    const QString text = Read(folder + "editovat.html").Text;
    const QStringList commands = CatCommands(skin);
    EXPECT_EQ(commands.size(), 30);
    for (const QString& command : commands) {
      EXPECT_TRUE(text.contains(command.simplified())) << command.toStdString();
    }
  }
}

TEST(Help, EditingCallsObjectsAndPropertiesAsTheEditorDoes) {
  constexpr int kHead = 2;
  constexpr int kFirstProperty = 117, kLastProperty = 128;
  for (const auto& [skin, folder] : kLanguages) {
    const QString text = Read(folder + "editovat.html").Text;
    const QStringList lines = Lines(skin + "/Menu/cestina.txt").mid(kHead);
    ASSERT_GT(lines.size(), kLastProperty);
    const auto expectWord = [&text](const QString& word, int place) {
      EXPECT_FALSE(word.isEmpty()) << place;
      EXPECT_TRUE(text.contains(word)) << word.toStdString();
    };
    for (const ObjectLetter& object : kObjectLetters) {
      if (!object.name || object.code == kDog) continue;  // a dog's name is told with its number
      const int place = static_cast<int>(*object.name);
      const bool hasWay = object.mark != 0;  // monsters that start in a direction
      expectWord(hasWay ? lines[place].section(QRegularExpression("[ ,]"), 0, 0) : lines[place], place);
    }
    for (int place = kFirstProperty; place <= kLastProperty; ++place) expectWord(lines[place], place);
  }
}

TEST(Help, EditingTellsTheLetterOfEveryObject) {
  for (const auto& [skin, folder] : kLanguages) {
    const QStringList codes = Read(folder + "editovat.html").Codes;
    for (const ObjectLetter& object : kObjectLetters) {
      if (object.code == kDog) continue;  // by its number, 1 to 9
      EXPECT_TRUE(codes.contains(QString(QChar(object.letter)))) << folder.toStdString() << object.letter;
    }
  }
}

// The rows of the table in a page for makers of caves whose head begins so.
QStringList RowsBelow(const QString& page, const QString& head) {
  QFile file(QString(ZORIK_DOCS) + '/' + page);
  if (!file.open(QIODevice::ReadOnly)) return {};
  return QString::fromUtf8(file.readAll()).section(head, 1).section("\n\n", 0, 0).split('\n');
}

// What stands in them to be written as it stands, a letter each.
QSet<QString> LettersIn(const QString& text) {
  static const QRegularExpression letter("`(.)`");
  QSet<QString> letters;
  for (auto found = letter.globalMatch(text); found.hasNext();) letters << found.next().captured(1);
  return letters;
}

TEST(TheReadMe, TellsTheLetterOfEveryObject) {
  const QSet<QString> letters = LettersIn(RowsBelow("../README.md", "| Letter | Object |").join('\n'));
  for (const ObjectLetter& object : kObjectLetters) {
    if (object.code == kDog) continue;
    EXPECT_TRUE(letters.contains(QString(QChar(object.letter)))) << object.letter;
  }
}

TEST(TheReadMe, TellsHowAFileGetsIntoTheGameAndHowACollectionIsClosed) {
  QFile file(QString(ZORIK_DOCS) + "/../README.md");
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QString text = QString::fromUtf8(file.readAll()).simplified();
  EXPECT_TRUE(text.contains("``` ./play FILE ``` opens a collection (`.zk`) or a record (`.zkr`)"));
  EXPECT_TRUE(text.contains("`flag: Q` in `collection.txt`, in place of `flag: 0`, closes a collection"));
}

TEST(ThePageOfFormats, TellsEveryLetterWithItsCode) {
  QHash<QString, QString> codes;
  for (const QString& row : RowsBelow("formats.md", "| Letter | Object |")) {
    for (const QString& letter : LettersIn(row.section('|', 1, 1))) codes[letter] = row.section('|', 3, 3);
  }
  for (const ObjectLetter& object : kObjectLetters) {
    if (object.code == kDog) continue;
    const QString code = QString("%1").arg(object.code, 2, 16, QChar('0'));
    EXPECT_TRUE(codes[QString(QChar(object.letter))].contains(code)) << object.letter;
  }
}

TEST(Help, SaysInBothLanguagesThatAnExplosionSparesSteelAlone) {
  EXPECT_TRUE(Read("pravidla.html").Text.contains("Zničí všechno kromě oceli, tedy i cíl"));
  EXPECT_TRUE(
      Read("en/pravidla.html").Text.contains("destroys everything in it except steel; the finish, keys"));
}

TEST(Help, TellsHowAFileGetsIntoTheGame) {
  EXPECT_TRUE(Read("help.html").Text.contains("./play SOUBOR"));
  EXPECT_TRUE(Read("en/help.html").Text.contains("./play FILE"));
}

TEST(Help, TellsHowACollectionIsClosed) {
  for (const auto& [skin, folder] : kLanguages)
    EXPECT_TRUE(Read(folder + "editovat.html").Text.contains("flag: Q")) << skin.toStdString();
}

TEST(Help, TellsWhereADeletedFileIsFound) {
  EXPECT_TRUE(Read("help.html").Text.contains("Vymazaný soubor najdeš v koši."));
  EXPECT_TRUE(Read("en/help.html").Text.contains("You find the deleted file in the trash."));
}

TEST(Help, TellsWithTheFirstWordsOfASkinThatItBringsTheLanguage) {
  const std::pair<const char*, const char*> said[] = {
      {"help.html", "změní skin, tedy obrázky, zvuky i jazyk hry"},
      {"en/help.html", "changes the skin, that is the pictures, the sounds and the language of the game"},
      {"prispet.html", "Skiny Skin určuje, jak hra vypadá, jak zní a jakým jazykem mluví."},
      {"en/prispet.html",
       "Skins A skin says how the game looks, how it sounds and which language it speaks."},
      {"vzhledy.html", "ostatní si hra vezme ze skinu Default. Skin nese i jazyk hry."},
      {"en/vzhledy.html", "the rest from the skin Default. A skin also brings the language of the game."}};
  for (const auto& [page, words] : said) EXPECT_TRUE(Read(page).Text.contains(words)) << page;
}

TEST(Help, CallsASkinAsTheWindowsDo) {
  for (const QString& name : kPages)
    EXPECT_FALSE(Read(name).Text.contains("vzhled", Qt::CaseInsensitive)) << name.toStdString();
  for (const char* const table : {"skindata.txt", "cestina.txt"}) {
    const QStringList lines = Lines(QString("Default/Menu/") + table);
    EXPECT_FALSE(lines.isEmpty());
    EXPECT_TRUE(lines.filter("vzhled", Qt::CaseInsensitive).isEmpty()) << table;
  }
  EXPECT_TRUE(Lines("Default/Menu/skindata.txt").contains("slang.title=Skin"));
}

TEST(Help, CallsACaveByOneWordInCzech) {
  for (const QString& name : kPages)
    EXPECT_FALSE(Read(name).Text.contains("jeskyn", Qt::CaseInsensitive)) << name.toStdString();
}

// What a reader sees of a page besides its pictures.
QString Body(const QString& path) {
  QFile file(kHelp + '/' + path);
  if (!file.open(QIODevice::ReadOnly)) return {};
  return QString::fromUtf8(file.readAll()).section("<body>", 1).replace(QRegularExpression("<[^>]*>"), " ");
}

TEST(Help, QuotesAsItsLanguageDoes) {
  const QRegularExpression notCzech("[\"'‘”]|“\\w");
  const QRegularExpression notEnglish("[\"'„‚]|”\\w");
  for (const QString& name : kPages) {
    EXPECT_FALSE(Body(name).isEmpty());
    EXPECT_FALSE(Body(name).contains(notCzech)) << name.toStdString();
    EXPECT_FALSE(Body("en/" + name).contains(notEnglish)) << name.toStdString();
  }
}

// What stands in marks of code in a part of the page for skin makers, up to the next heading.
QSet<QString> ToldToSkinMakers(const QString& heading) {
  QFile file(QString(ZORIK_DOCS) + "/skins.md");
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  const QString part =
      QString::fromUtf8(file.readAll()).section('\n' + heading + '\n', 1).section("\n#", 0, 0);
  QSet<QString> words;
  const QRegularExpression code("`([^`]+)`");
  for (const QString& line : part.split('\n')) {
    if (!line.startsWith("| `")) continue;
    for (auto found = code.globalMatch(line); found.hasNext();) words << found.next().captured(1);
  }
  return words;
}

TEST(Help, TellsSkinMakersOfEveryKeyAndTile) {
  const QSet<QString> words = ToldToSkinMakers("### Keys") + ToldToSkinMakers("## Tiles");
  EXPECT_GT(words.size(), 80);
  for (const char* const path : {"vzhledy.html", "en/vzhledy.html"}) {
    const QString text = ' ' + Read(path).Text + ' ';
    for (const QString& word : words) {
      const QRegularExpression whole("(?<![\\w.])" + QRegularExpression::escape(word) + "(?![\\w.])");
      EXPECT_TRUE(text.contains(whole)) << path << ": " << word.toStdString();
    }
  }
}

}  // namespace
}  // namespace zorik
