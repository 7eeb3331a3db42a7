#pragma once

#include <QString>
#include <optional>

class QWidget;

namespace zorik {

class Skin;

// The set of buttons of a message box. The last two are for what could not be stored: try again, save it
// elsewhere, or leave it for later; when the game is about to end, stay in it or leave without.
enum class MsgButtons {
  Ok = 0,
  OkCancel = 1,
  YesNo = 2,
  YesNoCancel = 3,
  RetryCancel = 5,
  NotStored,
  NotStoredAtEnd
};

// The picture beside the text. OfSet is the one that belongs to the set of buttons: none for OK alone,
// Exclamation with cancel, Question for yes and no.
enum class MsgIcon { OfSet = 0, None = 1, Information = 2, Question = 3, Exclamation = 4, Critical = 5 };

enum class MsgResult { Ok = 1, Cancel = 2, Retry = 4, Yes = 6, No = 7, Elsewhere, Later, Leave };

// The game's message box; it returns when the player has answered. Its text is wrapped, and breaks at CR, LF
// and CR LF. Esc is no, else cancel, else nothing; closing the window is Esc, or OK where there is no other
// button. Without a title it has the game's. A skin that wears nothing gives a plain box.
MsgResult SkinMsgBox(Skin& skin, QWidget* parent, const QString& prompt, MsgButtons buttons = MsgButtons::Ok,
                     MsgIcon icon = MsgIcon::OfSet, const QString& title = QString());

// A message with OK. The key, if there is one, presses OK, too.
void Tell(Skin& skin, QWidget* parent, const QString& title, const QString& text,
          Qt::Key key = Qt::Key_unknown);

// A question with yes and no; true for yes.
bool Ask(Skin& skin, QWidget* parent, const QString& title, const QString& text);

// The same; nothing where it went unanswered, as the program ends.
std::optional<bool> AnswerTo(Skin& skin, QWidget* parent, const QString& title, const QString& text);

// A question whether to try something again, with retry and cancel; true for retry.
bool AskRetry(Skin& skin, QWidget* parent, const QString& title, const QString& text);

// A message and a question for the time before there is a skin.
void Tell(QWidget* parent, const QString& title, const QString& text);
bool Ask(QWidget* parent, const QString& title, const QString& text);

}  // namespace zorik
