#pragma once

#include <QString>

#include "skin/Skin.h"

namespace zorik {

// What the windows say though it has no place in the language table: the key of a caption in the skin. The
// words for a skin that has none stand in the table of the default skin.
struct StartWords {
  const char* key;

  QString In(const Skin& skin) const { return skin.Caption(key); }

  // The same in front of what is named there, with a colon: no line of a skin's table may end in one, it
  // would begin a section.
  QString Before(const Skin& skin) const {
    const QString words = In(skin);
    return words.endsWith(':') ? words : words + ':';
  }
};

// The language that a skin speaks, two letters.
inline QString LanguageOf(const Skin& skin) {
  return skin.Said("language.code");
}

inline constexpr StartWords kLoadingWords{"caption.loading"};
inline constexpr StartWords kHelpWords{"caption.sada.menu.help"};
inline constexpr StartWords kCloseWords{"caption.slang.close"};
inline constexpr StartWords kAboutSkinWords{"caption.slang.about"};
inline constexpr StartWords kSkinWords{"caption.slang.title"};
inline constexpr StartWords kChangeSkinWords{"caption.start.skin"};
inline constexpr StartWords kProgramWords{"caption.sada.help.program"};
inline constexpr StartWords kYesWords{"caption.dialog.yes"};
inline constexpr StartWords kNoWords{"caption.dialog.no"};
inline constexpr StartWords kOkWords{"caption.dialog.ok"};
inline constexpr StartWords kCancelWords{"caption.dialog.close"};
inline constexpr StartWords kRetryWords{"caption.dialog.retry"};
inline constexpr StartWords kElsewhereWords{"caption.dialog.elsewhere"};
inline constexpr StartWords kLaterWords{"caption.dialog.later"};
inline constexpr StartWords kLeaveWithoutWords{"caption.dialog.leave"};

// Of the buttons above the play picture.
inline constexpr StartWords kRestartWords{"caption.game.restart"};
inline constexpr StartWords kSettingsWords{"settings.text"};
inline constexpr StartWords kViewWords{"caption.game.view"};
inline constexpr StartWords kLeaveWords{"caption.game.leave"};

// Of the ghost that goes beside a run.
inline constexpr StartWords kGhostWords{"caption.ghost.choose"};
inline constexpr StartWords kNoGhostWords{"caption.ghost.none"};
inline constexpr StartWords kOwnGhostWords{"caption.ghost.own"};
inline constexpr StartWords kRivalGhostWords{"caption.ghost.rival"};

// Of the cave that is chosen, below its small picture.
inline constexpr StartWords kPreviewWords{"caption.preview.facts"};
inline constexpr StartWords kPreviewWonWords{"caption.preview.won"};

// Of the statistics of a player.
inline constexpr StartWords kStatisticsWords{"caption.statistics.title"};
inline constexpr StartWords kStatisticsOfWords{"caption.statistics.of"};
inline constexpr StartWords kCavesWonWords{"caption.statistics.caves"};
inline constexpr StartWords kTimePlayedWords{"caption.statistics.time"};
inline constexpr StartWords kTicksWords{"caption.statistics.ticks"};
inline constexpr StartWords kGemsTakenWords{"caption.statistics.gems"};
inline constexpr StartWords kPointsWords{"caption.statistics.points"};
inline constexpr StartWords kCaveColumn{"caption.statistics.cave"};
inline constexpr StartWords kBestTimeColumn{"caption.statistics.best"};
inline constexpr StartWords kReadingWords{"caption.statistics.reading"};
inline constexpr StartWords kNothingWonWords{"caption.statistics.nothing"};
inline constexpr StartWords kOfOthersWords{"caption.statistics.others"};
inline constexpr StartWords kFaultyWords{"caption.statistics.faulty"};

// What else the game window says.
inline constexpr StartWords kRecordEndWords{"caption.game.recordend"};
inline constexpr StartWords kTableWords{"caption.game.table"};
inline constexpr StartWords kPauseWords{"caption.keys.pause"};

// Of two records side by side.
inline constexpr StartWords kPairWords{"caption.pair.title"};
inline constexpr StartWords kDifferenceWords{"caption.pair.difference"};
inline constexpr StartWords kSameWords{"caption.pair.same"};
inline constexpr StartWords kPairTimeWords{"caption.pair.time"};
inline constexpr StartWords kPairGemsWords{"caption.pair.gems"};
inline constexpr StartWords kPairScoreWords{"caption.pair.score"};
inline constexpr StartWords kPairTicksWords{"caption.pair.ticks"};
inline constexpr StartWords kToStartWords{"caption.pair.start"};
inline constexpr StartWords kToEndWords{"caption.pair.end"};
inline constexpr StartWords kOpenPairWords{"caption.pair.open"};
inline constexpr StartWords kRivalRecordWords{"caption.pair.rival"};
inline constexpr StartWords kRecordFileWords{"caption.pair.file"};
inline constexpr StartWords kNoRivalWords{"caption.pair.norival"};
inline constexpr StartWords kNoOwnRecordWords{"caption.pair.noown"};
inline constexpr StartWords kNoPairWords{"caption.pair.cannot"};

// Of the bar of a record that plays.
inline constexpr StartWords kPlayOrStopWords{"caption.theatre.play"};
inline constexpr StartWords kStepBackWords{"caption.theatre.back"};
inline constexpr StartWords kStepForwardWords{"caption.theatre.forward"};
inline constexpr StartWords kSlowerWords{"caption.theatre.slower"};
inline constexpr StartWords kFasterWords{"caption.theatre.faster"};
inline constexpr StartWords kSeekWords{"caption.theatre.seek"};
inline constexpr StartWords kPlayAgainWords{"caption.theatre.again"};
inline constexpr StartWords kTakeOverWords{"caption.theatre.takeover"};
inline constexpr StartWords kTakeOverHint{"caption.theatre.takeoverhint"};

// Of a record as a page for a browser.
inline constexpr StartWords kAsPageWords{"caption.page.offer"};
inline constexpr StartWords kPageKindWords{"caption.page.kind"};
inline constexpr StartWords kNoPageWords{"caption.page.lacking"};

// Of a run in practice.
inline constexpr StartWords kPracticeWords{"caption.practice.badge"};
inline constexpr StartWords kWayKnownWords{"caption.practice.known"};
inline constexpr StartWords kNoWayYetWords{"caption.practice.noneyet"};
inline constexpr StartWords kLostForGoodWords{"caption.practice.gone"};
inline constexpr StartWords kSeekingWayWords{"caption.practice.seeking"};
inline constexpr StartWords kWayShownWords{"caption.practice.shown"};
inline constexpr StartWords kNoWayFoundWords{"caption.practice.notfound"};
inline constexpr StartWords kPractisedByWords{"caption.practice.by"};
inline constexpr StartWords kWaitsForKeyWords{"caption.practice.waits"};
inline constexpr StartWords kPracticeLostWords{"caption.practice.lost"};
inline constexpr StartWords kTimeIsUpWords{"caption.practice.timeup"};
inline constexpr StartWords kPracticeWonWords{"caption.practice.won"};
inline constexpr StartWords kEarnestWords{"caption.practice.earnest"};
inline constexpr StartWords kMarkedWords{"caption.practice.marked"};
inline constexpr StartWords kNoMarkWords{"caption.practice.nomark"};
inline constexpr StartWords kSearchingWords{"caption.practice.searching"};
inline constexpr StartWords kCouldBeSavedWords{"caption.practice.saved"};
inline constexpr StartWords kNotSavedWords{"caption.practice.notsaved"};
inline constexpr StartWords kStillAliveWords{"caption.practice.alive"};
inline constexpr StartWords kSeekingLossWords{"caption.practice.seekingloss"};
inline constexpr StartWords kNeverAWayWords{"caption.practice.never"};
inline constexpr StartWords kLostFromWords{"caption.practice.lostfrom"};
inline constexpr StartWords kLostFromAtLastWords{"caption.practice.lostatlast"};
inline constexpr StartWords kLastWayWords{"caption.practice.lastway"};
inline constexpr StartWords kTryPracticeWords{"caption.practice.try"};
inline constexpr StartWords kPracticeButtonWords{"caption.practice.begin"};

// Messages; what is meant stands behind those that end in a colon.
inline constexpr StartWords kNoCollectionWords{"caption.error.nocollection"};
inline constexpr StartWords kNoCaveWords{"caption.error.cave"};
inline constexpr StartWords kNoRecordWords{"caption.error.record"};
inline constexpr StartWords kNotOpenedWords{"caption.error.open"};
inline constexpr StartWords kNotStoredWords{"caption.error.store"};
inline constexpr StartWords kFolderWords{"caption.error.folder"};
inline constexpr StartWords kNotDeletedWords{"caption.error.delete"};
inline constexpr StartWords kUnknownFileWords{"caption.error.kind"};
inline constexpr StartWords kNoProgramWords{"caption.error.program"};
inline constexpr StartWords kNoLanguageWords{"caption.error.language"};
inline constexpr StartWords kSkinFaultWords{"caption.error.skin"};
inline constexpr StartWords kSkinStaysWords{"caption.error.skinstays"};
inline constexpr StartWords kSkinDefaultWords{"caption.error.skindefault"};
inline constexpr StartWords kSkinHeldWords{"caption.error.skinheld"};
inline constexpr StartWords kSkinManyWords{"caption.error.skinmany"};
inline constexpr StartWords kPictureLargeWords{"caption.error.picturelarge"};
inline constexpr StartWords kPictureBrokenWords{"caption.error.picturebroken"};
inline constexpr StartWords kSoundLongWords{"caption.error.soundlong"};
inline constexpr StartWords kSoundBrokenWords{"caption.error.soundbroken"};

// Of a record that was not stored, or would take another one's place.
inline constexpr StartWords kNotKeptWords{"caption.record.unstored"};
inline constexpr StartWords kAtRiskWords{"caption.record.atrisk"};
inline constexpr StartWords kBetterWords{"caption.record.better"};
inline constexpr StartWords kBetterTitle{"caption.record.bettertitle"};
inline constexpr StartWords kOtherCaveWords{"caption.record.other"};

// Of files from outside.
inline constexpr StartWords kWaitsWords{"caption.outside.waits"};
inline constexpr StartWords kEndRunWords{"caption.outside.endrun"};
inline constexpr StartWords kOpenNowWords{"caption.outside.open"};

// Of the box that asks for a file.
inline constexpr StartWords kLookInWords{"caption.file.folder"};
inline constexpr StartWords kFileNameWords{"caption.file.name"};
inline constexpr StartWords kFileTypeWords{"caption.file.kind"};
inline constexpr StartWords kOpenWords{"caption.sada.open"};

}  // namespace zorik
