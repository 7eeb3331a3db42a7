#pragma once

#include <QColor>
#include <QImage>
#include <QString>
#include <functional>
#include <set>
#include <string>
#include <string_view>

#include "skin/Pictures.h"
#include "skin/SkinData.h"
#include "skin/SkinFlaw.h"
#include "skin/SkinPlaces.h"
#include "skin/Texts.h"

namespace zorik {

// The title of the game, where a window or a message has no other.
inline constexpr const char* kProgramTitle = "Zorík";

// What came of putting on a skin.
struct ApplyOutcome {
  bool applied = true;  // otherwise nothing has changed
  SkinFlaws flaws;

  // Whether all is as it should be.
  explicit operator bool() const { return applied && flaws.empty(); }
};

// What the game wears: where its skin lies, what its table says, its texts and its menu pictures. There is
// one for the whole program; every window keeps a reference to it. One that wears nothing yet is of use too:
// it has no texts and no pictures, and windows draw themselves without.
class Skin {
 public:
  using Question = std::function<bool(const std::string& question)>;

  // Put to the player when a picture or a text file is in no skin; true looks again. Without one nothing is
  // asked, and nothing while an earlier question is open.
  void SetRetry(Question retry);

  // Puts on a skin: reads its table and its texts, forgets the pictures of the last one, and looks through
  // its pictures and sounds. When its table says what cannot be understood, the skin is not worn, and
  // everything stays as it was. Where the language file is missing or too short, the texts that it lacks are
  // empty.
  ApplyOutcome Apply(const SkinPlaces& places);

  // Has pictures at hand before a skin is worn.
  void LookInto(const SkinPlaces& places) { places_ = places; }

  const SkinPlaces& Places() const { return places_; }
  const SkinData& Data() const { return data_; }
  const Texts& Words() const { return texts_; }

  // A text of the language table; its line breaks are CR LF.
  QString Text(TextId text) const;

  // The text of a key of the table, or that of the default skin when the key is absent; its line breaks are
  // those of a control, LF.
  QString Caption(std::string_view key) const;

  // The same for what a skin may leave out: empty when the key is absent.
  QString Said(std::string_view key) const;

  // The questions about a picture and about a text file that are in no skin.
  std::string QuestionOfPicture(const std::string& searched) const;
  std::string QuestionOfFile(const std::string& name) const;

  // The colour of a key, or the other one when the key is absent.
  QColor Colour(std::string_view key, QColor otherwise = Qt::black) const;

  // The menu picture that a key names; empty when there is none. It is kept as long as its file stays as it
  // is. One that cannot be read, or has more pixels than are read, is passed over like one that is missing.
  QImage Picture(std::string_view key);

  // The menu picture with this name, which has no extension.
  QImage MenuPicture(const std::string& name);

 private:
  bool AskRetry(const std::string& question);

  SkinPlaces places_;
  SkinData data_;
  Texts texts_;
  PictureCache pictures_;
  std::set<std::string> givenUp_;  // names that the player was asked for in vain
  Question retry_;
  bool asking_ = false;
};

}  // namespace zorik
