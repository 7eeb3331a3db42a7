#pragma once

#include <QString>

class QFileDialog;

namespace zorik {

class Skin;

// A file box of the toolkit leaves out names that are no UTF-8, as old archives leave them. Below it such
// collections and records are listed, as soon as there are any: those in the folder that it shows, and those
// in folders of such a name, which it cannot enter. Choosing one closes the box.
class OldNames {
 public:
  OldNames(QFileDialog& box, const Skin& skin);

  // What was chosen, as PathText writes it; empty if nothing was.
  const QString& Chosen() const { return chosen_; }

 private:
  QString chosen_;
};

// The folder itself, or the nearest above it that a file box can show.
QString FolderForBox(const QString& folder);

}  // namespace zorik
