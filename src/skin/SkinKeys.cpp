#include "skin/SkinKeys.h"

#include <array>

namespace zorik {
namespace {

constexpr std::array kKeys = std::to_array<SkinKey>({
    {"start.close.left", SkinKind::Place},
    {"start.close.top", SkinKind::Place},
    {"start.help.left", SkinKind::Place},
    {"start.help.top", SkinKind::Place},
    {"start.vscroll.left", SkinKind::Place},
    {"start.vscroll.top", SkinKind::Place},
    {"start.hscroll.left", SkinKind::Place},
    {"start.hscroll.top", SkinKind::Place},
    {"start.play.left", SkinKind::Place},
    {"start.play.top", SkinKind::Place},
    {"start.addplayer.left", SkinKind::Place},
    {"start.addplayer.top", SkinKind::Place},
    {"start.changeskin.left", SkinKind::Place},
    {"start.changeskin.top", SkinKind::Place},
    {"start.caves.left", SkinKind::Place},
    {"start.caves.top", SkinKind::Place},
    {"start.caves.width", SkinKind::Size},
    {"start.caves.height", SkinKind::Size},
    {"start.caves.lines", SkinKind::Lines},
    {"start.caves.color", SkinKind::Colour},
    {"start.caves.textcolor", SkinKind::Colour},
    {"start.caves.selection.color", SkinKind::Colour},
    {"start.caves.selection.textcolor", SkinKind::Colour},
    {"start.caves.border.size", SkinKind::Border},
    {"start.caves.border.color", SkinKind::Colour},
    {"start.players.left", SkinKind::Place},
    {"start.players.top", SkinKind::Place},
    {"start.players.width", SkinKind::Size},
    {"start.players.height", SkinKind::Size},
    {"start.players.color", SkinKind::Colour},
    {"start.players.textcolor", SkinKind::Colour},
    {"start.players.selection.color", SkinKind::Colour},
    {"start.players.selection.textcolor", SkinKind::Colour},
    {"start.players.border.size", SkinKind::Border},
    {"start.players.border.color", SkinKind::Colour},
    {"select.width", SkinKind::Window},
    {"select.height", SkinKind::Window},
    {"select.bonus.left", SkinKind::Place},
    {"select.bonus.top", SkinKind::Place},
    {"select.collname.left", SkinKind::Place},
    {"select.collname.top", SkinKind::Place},
    {"select.collname.textcolor", SkinKind::Colour},
    {"select.colldescription.left", SkinKind::Place},
    {"select.colldescription.top", SkinKind::Place},
    {"select.colldescription.width", SkinKind::Size},
    {"select.colldescription.textcolor", SkinKind::Colour},
    {"select.collauthor.left", SkinKind::Place},
    {"select.collauthor.top", SkinKind::Place},
    {"select.collauthor.width", SkinKind::Size},
    {"select.collauthor.textcolor", SkinKind::Colour},
    {"select.collauthor.linkcolor", SkinKind::Colour},
    {"select.collauthor.hovercolor", SkinKind::Colour},
    {"select.score.left", SkinKind::Place},
    {"select.score.top", SkinKind::Place},
    {"select.score.textcolor", SkinKind::Colour},
    {"select.cavename.left", SkinKind::Place},
    {"select.cavename.top", SkinKind::Place},
    {"select.cavename.textcolor", SkinKind::Colour},
    {"select.cavedescription.left", SkinKind::Place},
    {"select.cavedescription.top", SkinKind::Place},
    {"select.cavedescription.width", SkinKind::Size},
    {"select.cavedescription.textcolor", SkinKind::Colour},
    {"select.replay.left", SkinKind::Place},
    {"select.replay.top", SkinKind::Place},
    {"select.play.left", SkinKind::Place},
    {"select.play.top", SkinKind::Place},
    {"select.congratulation.left", SkinKind::Place},
    {"select.congratulation.top", SkinKind::Place},
    {"select.send.left", SkinKind::Place},
    {"select.send.top", SkinKind::Place},
    {"select.vscroll.left", SkinKind::Place},
    {"select.vscroll.top", SkinKind::Place},
    {"select.close.left", SkinKind::Place},
    {"select.close.top", SkinKind::Place},
    {"select.help.left", SkinKind::Place},
    {"select.help.top", SkinKind::Place},
    {"select.caves.left", SkinKind::Place},
    {"select.caves.top", SkinKind::Place},
    {"select.caves.width", SkinKind::Size},
    {"select.caves.height", SkinKind::Size},
    {"select.caves.lines", SkinKind::Lines},
    {"select.caves.color", SkinKind::Colour},
    {"select.caves.border.size", SkinKind::Border},
    {"select.caves.border.color", SkinKind::Colour},
    {"select.caves.textcolor", SkinKind::Colour},
    {"select.caves.cantcolor", SkinKind::Colour},
    {"select.caves.solvcolor", SkinKind::Colour},
    {"select.caves.elsecolor", SkinKind::Colour},
    {"select.caves.selection.bgcolor", SkinKind::Colour},
    {"select.caves.selection.textcolor", SkinKind::Colour},
    {"select.caves.selection.cantcolor", SkinKind::Colour},
    {"select.caves.selection.solvcolor", SkinKind::Colour},
    {"select.caves.selection.elsecolor", SkinKind::Colour},
    {"settings.color", SkinKind::Colour},
    {"dialog.color", SkinKind::Colour},
    {"congratulation.width", SkinKind::Window},
    {"congratulation.height", SkinKind::Window},
    {"congratulation.congrat.left", SkinKind::Place},
    {"congratulation.congrat.top", SkinKind::Place},
    {"congratulation.congrat.width", SkinKind::Size},
    {"congratulation.congrat.height", SkinKind::Size},
    {"congratulation.congrat.color", SkinKind::Colour},
    {"congratulation.congrat.textcolor", SkinKind::Colour},
    {"congratulation.ok.left", SkinKind::Place},
    {"congratulation.ok.top", SkinKind::Place},
    {"congratulation.close.left", SkinKind::Place},
    {"congratulation.close.top", SkinKind::Place},
    {"congratulation.help.left", SkinKind::Place},
    {"congratulation.help.top", SkinKind::Place},
    {"addplayer.width", SkinKind::Window},
    {"addplayer.height", SkinKind::Window},
    {"addplayer.name.left", SkinKind::Place},
    {"addplayer.name.top", SkinKind::Place},
    {"addplayer.name.width", SkinKind::Size},
    {"addplayer.name.height", SkinKind::Size},
    {"addplayer.name.color", SkinKind::Colour},
    {"addplayer.name.textcolor", SkinKind::Colour},
    {"addplayer.ok.left", SkinKind::Place},
    {"addplayer.ok.top", SkinKind::Place},
    {"addplayer.close.left", SkinKind::Place},
    {"addplayer.close.top", SkinKind::Place},
    {"score.ok.left", SkinKind::Place},
    {"score.ok.top", SkinKind::Place},
    {"select.rest.left", SkinKind::Place},
    {"select.rest.top", SkinKind::Place},
    {"select.rest.width", SkinKind::Size},
    {"select.rest.height", SkinKind::Size},
    {"select.rest.textcolor", SkinKind::Colour},
    {"select.record.left", SkinKind::Place},
    {"select.record.top", SkinKind::Place},
    {"select.record.width", SkinKind::Size},
    {"select.record.height", SkinKind::Size},
    {"select.record.textcolor", SkinKind::Colour},
    {"version.left", SkinKind::Place},
    {"version.top", SkinKind::Place},
    {"version.width", SkinKind::Size},
    {"version.height", SkinKind::Size},
    {"version.textcolor", SkinKind::Colour},
    {"score.line.left", SkinKind::Place},
    {"score.line.top", SkinKind::Place},
    {"score.line.width", SkinKind::Size},
    {"score.line.height", SkinKind::Size},
    {"score.total.left", SkinKind::Place},
    {"score.total.top", SkinKind::Place},
    {"score.total.width", SkinKind::Size},
    {"score.total.height", SkinKind::Size},
    {"score.seconds.left", SkinKind::Place},
    {"score.seconds.top", SkinKind::Place},
    {"score.seconds.width", SkinKind::Size},
    {"score.seconds.height", SkinKind::Size},
    {"score.bonus.left", SkinKind::Place},
    {"score.bonus.top", SkinKind::Place},
    {"start.palm.width", SkinKind::Window},
    {"start.palm.height", SkinKind::Window},
    {"score.width", SkinKind::Window},
    {"score.height", SkinKind::Window},
});

// The longest side of a screen that anybody has, and far more rows and frames than it shows.
constexpr int kLongestSide = 4096;
constexpr int kLeastWindow = 64;
constexpr int kMostLines = 300;
constexpr int kWidestBorder = 64;

}  // namespace

std::span<const SkinKey> CheckedSkinKeys() {
  return kKeys;
}

SkinRange RangeOf(SkinKind kind) {
  switch (kind) {
    case SkinKind::Window:
      return {kLeastWindow, kLongestSide};
    case SkinKind::Size:
      return {1, kLongestSide};
    case SkinKind::Lines:
      return {1, kMostLines};
    case SkinKind::Border:
      return {0, kWidestBorder};
    default:
      return {0, kLongestSide};
  }
}

}  // namespace zorik
