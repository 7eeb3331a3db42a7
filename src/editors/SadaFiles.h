#pragma once

#include <QString>
#include <functional>
#include <set>
#include <string>

#include "data/FileTrouble.h"
#include "flow/SadaModel.h"
#include "platform/Paths.h"

class QWidget;

namespace zorik {

class FrmLoading;
class Skin;

// The way of the edited collection to its file: what is asked and told on it, over the window of either
// editor.
class SadaFiles {
 public:
  // Leads the author to a text.
  using Lead = std::function<void(SadaText text)>;

  SadaFiles(Skin& skin, const Paths& paths, SadaModel& sada, FrmLoading& notice, Lead lead);

  // mnuSave, mnuSaveAs. False when the collection was not saved; a message has told why, unless the author
  // has cancelled.
  bool Save(QWidget& over);
  bool SaveAs(QWidget& over);

  // Whether a file has room for all texts; a message names the one that is too long, and leads to it.
  bool FitsFile(QWidget& over);

  // The file that is proposed for saving.
  QString ProposedPath() const;

  void TellNotOpened(QWidget& over, const QString& path, FileTrouble trouble);

 private:
  bool SaveColl(QWidget& over, const QString& path);
  Result<Done, FileFailure> Store(QWidget& over, const QString& path);
  void TellSaved(QWidget& over, const SadaModel::SaveReport& report);
  void OfferCopy(QWidget& over, const QString& path);
  // Where to save what could not be saved to this path: there again, or elsewhere; empty for nowhere.
  QString AskWhereElse(QWidget& over, const QString& path, FileTrouble trouble);
  QString AskForPath(QWidget& over);

  Skin& skin_;
  Paths paths_;
  SadaModel& sada_;
  FrmLoading& notice_;
  Lead lead_;
  std::set<std::string> offered_;  // files of which a copy was offered
};

}  // namespace zorik
