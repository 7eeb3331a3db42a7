#pragma once

#include <QColor>
#include <QImage>
#include <QString>
#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "skin/SkinData.h"
#include "skin/SkinPlaces.h"
#include "skin/Texts.h"

namespace zorik {

// The title of the game, where a window or a message has no other.
inline constexpr const char* kProgramTitle = "Zorík";

// What the game wears: where its skin lies, what its table says, its texts and its menu pictures. There is
// one for the whole program; every window keeps a reference to it. One that wears nothing yet is of use too:
// it has no texts and no pictures, and windows draw themselves without.
class Skin {
 public:
  using Question = std::function<bool(const std::string& question)>;
  using Fault = std::function<void(const std::string& key, const std::string& file)>;

  // Put to the player when a picture or a text file is in no skin; true looks again. Without one nothing is
  // asked, and nothing while an earlier question is open.
  void SetRetry(Question retry);

  // Told of a value of the table that does not parse.
  void SetFault(Fault fault);

  // Puts on a skin: reads its table and its texts, forgets the pictures of the last one. False when the
  // language file is missing or too short; the texts that it lacks are empty then.
  bool Wear(const SkinPlaces& places);

  const SkinPlaces& Places() const { return places_; }
  const SkinData& Data() const { return data_; }
  const Texts& Words() const { return texts_; }

  // The text at a place of the language table; its line breaks are CR LF.
  QString Text(int place) const;

  // The text of a key of the table, or the other one when the key is absent; its line breaks are CR.
  QString Caption(std::string_view key, const char* otherwise = "") const;

  // The colour of a key, or the other one when the key is absent.
  QColor Colour(std::string_view key, QColor otherwise = Qt::black) const;

  // The menu picture that a key names; empty when there is none. Kept until another skin is put on.
  QImage Picture(std::string_view key);

  // The menu picture with this name, which has no extension.
  QImage MenuPicture(const std::string& name);

 private:
  bool AskRetry(const std::string& question);

  SkinPlaces places_;
  SkinData data_;
  Texts texts_;
  std::map<std::string, QImage> pictures_;
  Question retry_;
  bool asking_ = false;
};

}  // namespace zorik
