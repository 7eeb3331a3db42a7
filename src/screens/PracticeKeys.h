#pragma once

#include <QString>
#include <array>
#include <optional>

#include "platform/KeyMap.h"

class QKeyEvent;

namespace zorik {

class Skin;
struct StartWords;

// What practice offers beside play.
enum class PracticeAct { Rewind, SetMark, BackToMark, SlowMotion, WhatKilledMe, WhichWay, InEarnest };
inline constexpr std::size_t kPracticeActs = 7;

// What a key does in practice, if it does any of this. The last three have fixed keys, as long as the player
// has not chosen these for something else.
std::optional<PracticeAct> PracticeActOf(const QKeyEvent& event, const KeyMap& keys);

// The name of its button, and what is said of that.
const StartWords& WordsOf(PracticeAct act);
const StartWords& HintOf(PracticeAct act);

// Its key; empty where something else has taken it.
QString KeyOf(PracticeAct act, const KeyMap& keys, const Skin& skin);

// How a message names it: by its key, or else by its button.
QString NameOf(PracticeAct act, const KeyMap& keys, const Skin& skin);

}  // namespace zorik
