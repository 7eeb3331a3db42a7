#include "editors/SadaUndoMenu.h"

#include <QAction>
#include <QMenu>
#include <array>

#include "editors/BoxText.h"
#include "editors/MenuBuilder.h"
#include "editors/SadaBoxes.h"
#include "screens/Marks.h"
#include "screens/PlainText.h"
#include "screens/StartWords.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr StartWords kUndoWords{"caption.main.undo"};
constexpr StartWords kRedoWords{"caption.main.redo"};
constexpr StartWords kStepWords{"caption.sada.step"};

// The steps beside those that change a text, which are called as its box is.
struct ActRow {
  SadaAct act;
  StartWords words;
};
constexpr std::array<ActRow, 12> kActs{{
    {SadaAct::Congratulation, {"caption.sada.congrat"}},
    {SadaAct::Add, {"caption.sada.menu.add"}},
    {SadaAct::Paste, {"caption.sada.paste"}},
    {SadaAct::Cut, {"caption.sada.cut"}},
    {SadaAct::Delete, {"caption.sada.delete"}},
    {SadaAct::Up, {"caption.sada.up"}},
    {SadaAct::Down, {"caption.sada.down"}},
    {SadaAct::Mark, {"caption.sada.mark"}},
    {SadaAct::Edit, {"caption.sada.edit"}},
    {SadaAct::Import, {"caption.sada.import"}},
    {SadaAct::New, {"caption.sada.new"}},
    {SadaAct::Open, {"caption.sada.open"}},
}};

constexpr bool Same(SadaAct act, SadaText text) {
  return static_cast<int>(act) == static_cast<int>(text);
}

QString WordsOf(SadaAct act, const Skin& skin) {
  for (const ActRow& row : kActs) {
    if (row.act == act) return row.words.In(skin);
  }
  static_assert(Same(SadaAct::Name, SadaText::Name) && Same(SadaAct::Author, SadaText::Author) &&
                Same(SadaAct::Mail, SadaText::Mail) && Same(SadaAct::Description, SadaText::Description));
  return skin.Text(LabelOf(static_cast<SadaText>(act)));
}

}  // namespace

SadaUndoMenu::SadaUndoMenu(MenuBuilder& menus, const Skin& skin, SadaModel& sada, QObject* parent)
    : QObject(parent), skin_(skin), sada_(sada) {
  QMenu& menu = *menus.AddMenu("mnuUndoSteps", "caption.main.menu.edit");
  mnuUndo_ = menus.Add(menu, "mnuUndo", nullptr, "Ctrl+Z", [this] {
    sada_.Undo();
    emit Changed();
  });
  mnuRedo_ = menus.Add(menu, "mnuRedo", nullptr, "Ctrl+Y; Ctrl+Shift+Z", [this] {
    sada_.Redo();
    emit Changed();
  });
  mnuSteps_ = menus.AddMenu(menu, "mnuSteps", "caption.steps.menu");
  MakeStepsMenu(*mnuSteps_, skin_, Steps());
}

void SadaUndoMenu::Update() {
  const std::vector<SadaStep> undo = sada_.UndoSteps(1);
  const std::vector<SadaStep> redo = sada_.RedoSteps(1);
  mnuUndo_->setText(Named(kUndoWords.key, undo));
  mnuUndo_->setEnabled(!undo.empty());
  mnuRedo_->setText(Named(kRedoWords.key, redo));
  mnuRedo_->setEnabled(!redo.empty());
  mnuSteps_->setEnabled(!undo.empty() || !redo.empty());
}

QString SadaUndoMenu::Named(const char* key, const std::vector<SadaStep>& steps) const {
  const QString words = skin_.Caption(key);
  return InMenu(steps.empty() ? words : words + ": " + NameOf(steps.front()));
}

QString SadaUndoMenu::NameOf(const SadaStep& step) const {
  QString words = WordsOf(step.Act, skin_).trimmed();
  if (words.endsWith(':')) words.chop(1);
  if (step.Cave.empty()) return words;
  constexpr qsizetype kMostOfName = 40;
  return FillMarks(kStepWords.In(skin_), words, OneLine(ToBox(step.Cave), kMostOfName));
}

StepsOf SadaUndoMenu::Steps() {
  const auto done = [this] { return sada_.UndoSteps().size(); };
  return {.steps = [this, done] { return done() + sada_.RedoSteps().size(); },
          .done = done,
          .words =
              [this, done](std::size_t place) {
                const std::size_t count = done();
                return NameOf(place < count ? sada_.UndoSteps(count - place).back()
                                            : sada_.RedoSteps(place - count + 1).back());
              },
          .goTo = [this](std::size_t wanted) { GoTo(wanted); }};
}

void SadaUndoMenu::GoTo(std::size_t wanted) {
  const int back = static_cast<int>(sada_.UndoSteps().size()) - static_cast<int>(wanted);
  if (back > 0) sada_.Undo(back);
  if (back < 0) sada_.Redo(-back);
  emit Changed();
}

}  // namespace zorik
