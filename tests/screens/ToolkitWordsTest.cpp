#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFileDialog>
#include <QKeySequence>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <memory>

#include "screens/ToolkitWords.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

// The words of a menu without its keys, its lines left out.
QStringList WordsOf(const std::unique_ptr<QMenu>& menu) {
  QStringList words;
  for (const QAction* const action : menu->actions()) {
    if (!action->isSeparator()) words.push_back(action->text().section('\t', 0, 0));
  }
  return words;
}

class ToolkitWordsTest : public testing::Test {
 protected:
  void Wear(const char* name) { ASSERT_TRUE(skin_.Apply({ZORIK_BUILT_SKINS, name})); }

  static QString Said(const char* context, const char* source) {
    return QCoreApplication::translate(context, source);
  }

  Skin skin_;
  ToolkitWords words_{skin_, nullptr};
};

TEST_F(ToolkitWordsTest, MenusOfTextBoxesSpeakTheLanguageOfTheSkin) {
  QLineEdit line;
  QPlainTextEdit text;
  const auto menus = [&] {
    EXPECT_EQ(WordsOf(std::unique_ptr<QMenu>(line.createStandardContextMenu())),
              WordsOf(std::unique_ptr<QMenu>(text.createStandardContextMenu())));
    return WordsOf(std::unique_ptr<QMenu>(line.createStandardContextMenu()));
  };
  Wear("Default");
  EXPECT_EQ(menus(),
            (QStringList{"Zpět", "Znovu", "Vyjmout", "Kopírovat", "Vložit", "Vymazat", "Vybrat vše"}));
  Wear("English");
  EXPECT_EQ(menus(), (QStringList{"Undo", "Redo", "Cut", "Copy", "Paste", "Delete", "Select all"}));
}

TEST_F(ToolkitWordsTest, TheBoxForAFileSpeaksTheLanguageOfTheSkin) {
  const auto hidden = [] {
    QFileDialog box;
    box.setOption(QFileDialog::DontUseNativeDialog);
    return box.findChild<QAction*>("qt_show_hidden_action")->text();
  };
  const char* const noFolder =
      "%1\nDirectory not found.\nPlease verify the correct directory name was given.";
  Wear("Default");
  EXPECT_EQ(hidden(), "Ukázat skryté soubory");
  EXPECT_EQ(Said("QFileDialog", "Recent Places"), "Nedávné složky");
  EXPECT_EQ(Said("QFileDialog", noFolder), "%1\nTaková složka tu není.");
  Wear("English");
  EXPECT_EQ(hidden(), "Show hidden files");
  EXPECT_EQ(Said("QFileDialog", "Recent Places"), "Recent folders");
  EXPECT_EQ(Said("QFileDialog", noFolder), "%1\nFolder not found.");
}

TEST_F(ToolkitWordsTest, MenusOfScrollBarsSpeakTheLanguageOfTheSkin) {
  const std::vector<std::array<const char*, 3>> rows = {{"Scroll here", "Posunout sem", "Scroll here"},
                                                        {"Top", "Začátek", "Top"},
                                                        {"Bottom", "Konec", "Bottom"},
                                                        {"Left edge", "Levý okraj", "Left edge"},
                                                        {"Right edge", "Pravý okraj", "Right edge"},
                                                        {"Page up", "O stránku nahoru", "Page up"},
                                                        {"Page down", "O stránku dolů", "Page down"},
                                                        {"Page left", "O stránku vlevo", "Page left"},
                                                        {"Page right", "O stránku vpravo", "Page right"},
                                                        {"Scroll up", "Nahoru", "Up"},
                                                        {"Scroll down", "Dolů", "Down"},
                                                        {"Scroll left", "Vlevo", "Left"},
                                                        {"Scroll right", "Vpravo", "Right"}};
  for (const auto& [source, czech, english] : rows) {
    Wear("Default");
    EXPECT_EQ(Said("QScrollBar", source), czech);
    Wear("English");
    EXPECT_EQ(Said("QScrollBar", source), english);
  }
}

TEST_F(ToolkitWordsTest, KeysKeepTheirNames) {
  Wear("Default");
  EXPECT_EQ(Said("QShortcut", "Delete"), "Delete");
}

TEST_F(ToolkitWordsTest, ArrowsAreShownByTheirSignsAndStayTheKeysThatTheyAre) {
  for (const char* const name : {"Default", "English"}) {
    Wear(name);
    EXPECT_EQ(QKeySequence("Ctrl+Shift+Down").toString(QKeySequence::NativeText), "Ctrl+Shift+↓");
    EXPECT_EQ(QKeySequence("Alt+Up").toString(QKeySequence::NativeText), "Alt+↑");
    EXPECT_EQ(QKeySequence("Left").toString(QKeySequence::NativeText), "←");
    EXPECT_EQ(QKeySequence("Right").toString(QKeySequence::NativeText), "→");
    EXPECT_EQ(QKeySequence("Alt+Up"), QKeySequence(Qt::ALT | Qt::Key_Up));
    EXPECT_EQ(QKeySequence("Alt+Up").toString(), "Alt+Up") << "as settings hold it";
  }
}

TEST_F(ToolkitWordsTest, WhatIsNotInTheTableStaysAsItIs) {
  Wear("Default");
  EXPECT_EQ(Said("QFileDialog", "Anything else"), "Anything else");
}

}  // namespace
}  // namespace zorik
