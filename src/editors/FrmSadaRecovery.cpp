// What the collection editor does with collections that are kept: after a crash, and among the discarded
// ones.
#include "data/Result.h"
#include "editors/FaultWords.h"
#include "editors/FrmDiscarded.h"
#include "editors/FrmSada.h"
#include "editors/SadaBoxes.h"
#include "flow/KeptSada.h"
#include "platform/PathText.h"
#include "screens/MsgBox.h"
#include "screens/StartWords.h"
#include "skin/Skin.h"

namespace zorik {

void FrmSada::OpenLeft(const KeptEntry& left) {
  Open(QString());
  if (TakeUp(left)) keeper_.TookUp(left);
}

// The one that is opened stays in the list.
void FrmSada::mnuDiscarded_Click() {
  const std::optional<KeptEntry> chosen = FrmDiscarded(skin_, keeper_.Store(), this).Choose();
  if (!chosen || !AskToSave()) return;
  if (TakeUp(*chosen)) keeper_.Keep();
}

bool FrmSada::TakeUp(const KeptEntry& entry) {
  const Result<KeptSada> kept = RecoveryStore::Read(entry);
  const auto report = kept ? sada_.TakeUp(*kept) : Failure{kept.Message()};
  if (!report || report->Closed) {
    Tell(skin_, this, skin_.Text(TextId::Program),
         kNotOpenedWords.Before(skin_) + '\n' + ShownPath(entry.Path));
    return false;
  }
  boxes_->Load();
  AfterChange();
  if (!report->Faults.empty())
    Tell(skin_, this, skin_.Text(TextId::Program), FaultsInWords(skin_, report->Faults));
  return true;
}

}  // namespace zorik
