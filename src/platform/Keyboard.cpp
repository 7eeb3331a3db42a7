#include "platform/Keyboard.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <utility>

namespace zorik {
namespace {

// The keys that are the same for everybody.
constexpr std::array<std::pair<int, int>, 4> kKeys{
    {{Qt::Key_A, kKeyA}, {Qt::Key_C, kKeyC}, {Qt::Key_S, kKeyS}, {Qt::Key_F12, kKeyF12}}};

// What the game calls the key of a use; -1 where a tick has nothing to do with it.
int CodeOf(KeyUse use) {
  constexpr std::array<int, kKeyUses> kCodes{kKeyLeft, kKeyUp,  kKeyRight, kKeyDown, kKeySpace, kKeyR,
                                             kKeyP,    kKeyTab, -1,        -1,       -1,        -1};
  return kCodes[static_cast<std::size_t>(use)];
}

// Of the keys of action Shift and Ctrl have codes of their own.
int ActionCode(int key) {
  if (key == Qt::Key_Shift) return kKeyShift;
  return key == Qt::Key_Control ? kKeyCtrl : kKeySpace;
}

int KeypadKey(int key) {
  if (key >= Qt::Key_0 && key <= Qt::Key_9) return kKeyPad0 + (key - Qt::Key_0);
  if (key == Qt::Key_Plus) return kKeyPadPlus;
  if (key == Qt::Key_Minus) return kKeyPadMinus;
  return -1;
}

// A digit of the main row. Where that row writes other letters than digits, it is known by its place.
int RowKey(const KeyChoice& key) {
  constexpr std::uint32_t kPlaceOf1 = 10;
  constexpr std::uint32_t kPlaceOf0 = 19;
  if (key.key >= Qt::Key_0 && key.key <= Qt::Key_9) return kKeyPad0 + (key.key - Qt::Key_0);
  if (key.place < kPlaceOf1 || key.place > kPlaceOf0) return -1;
  return kKeyPad0 + static_cast<int>((key.place - kPlaceOf1 + 1) % 10);
}

// A key that the player has not chosen for anything.
int FixedKey(const KeyChoice& key) {
  if (key.keypad) return KeypadKey(key.key);
  const auto* const row =
      std::find_if(kKeys.begin(), kKeys.end(), [&key](const auto& pair) { return pair.first == key.key; });
  return row == kKeys.end() ? RowKey(key) : row->second;
}

// These act once for each press, not for as long as they are held.
bool IsCommand(int key) {
  constexpr std::array kCommands{kKeyTab, kKeyR, kKeyC, kKeyP, kKeyF12, kKeyPadPlus, kKeyPadMinus};
  return (key >= kKeyPad0 && key <= kKeyPad9) ||
         std::find(kCommands.begin(), kCommands.end(), key) != kCommands.end();
}

bool IsModifier(int key) {
  return key == kKeyShift || key == kKeyCtrl || key == kKeySpace;
}

bool IsArrow(int key) {
  return key >= kKeyLeft && key <= kKeyDown;
}

// These mean something else together with a key of action.
bool HeedsModifiers(int key) {
  return IsArrow(key) || key == kKeyTab || key == kKeyR;
}

constexpr int kNoRank = 5;

// Where a tick reads a key: the unit is changed before it steps, and S and A are for the step after that.
int Rank(int key) {
  if (key == kKeyTab) return 0;
  if (key >= kKeyPad0 && key <= kKeyPad9) return 1;
  if (IsArrow(key)) return 2;
  if (key == kKeyS) return 3;
  return key == kKeyA ? 4 : kNoRank;
}

struct ModifierRow {
  Qt::KeyboardModifier flag;
  int meaning;
  int key;
};
constexpr std::array kModifiers{ModifierRow{Qt::ShiftModifier, Qt::Key_Shift, kKeyShift},
                                ModifierRow{Qt::ControlModifier, Qt::Key_Control, kKeyCtrl}};

// Where a key lies of which no place is known.
std::uint64_t PlaceByMeaning(int key) {
  return std::uint64_t{1} << 32U | static_cast<std::uint32_t>(key);
}

// A hand that lets go of a chord does not lift all fingers at once.
constexpr std::int64_t kLinger = 150;  // milliseconds
// Nobody wants to see what he pressed longer ago.
constexpr std::size_t kMostTurns = 3;

std::int64_t SteadyMilliseconds() {
  using std::chrono::milliseconds, std::chrono::steady_clock;
  return std::chrono::duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

}  // namespace

int GameKey(const QKeyEvent& event, const KeyMap& keys) {
  const auto use = keys.UseOf(event);
  if (!use) return FixedKey(KeyOf(event));
  return *use == KeyUse::Action ? ActionCode(event.key()) : CodeOf(*use);
}

bool HasFixedMeaning(const KeyChoice& key) {
  return FixedKey(key) >= 0;
}

std::uint64_t PlaceOfKey(const QKeyEvent& event) {
  if (event.nativeScanCode() != 0) return event.nativeScanCode();
  return PlaceByMeaning(event.key() == Qt::Key_Backtab ? static_cast<int>(Qt::Key_Tab) : event.key());
}

bool Keyboard::Turn::Heeds() const {
  for (int key = 0; key < 256; ++key) {
    if (keys[static_cast<std::size_t>(key)] && HeedsModifiers(key)) return true;
  }
  return false;
}

// Keys of action that go down one after the other count as one chord until another key makes use of them.
bool Keyboard::Turn::Takes(int key, const KeySet& with) const {
  const int its = Rank(key);
  const bool again = its == rank && keys[static_cast<std::size_t>(key)];
  if (its != kNoRank && its <= rank && !again) return false;
  if (!HeedsModifiers(key) || !modifiers || *modifiers == with) return true;
  return !Heeds() && (*modifiers & ~with).none();
}

Keyboard::Keyboard(Clock clock) : clock_(clock ? std::move(clock) : SteadyMilliseconds) {}

// Some desktops send the repeats of a held key as if it had been let go and pressed anew in the same moment.
bool Keyboard::GoesOn(const QKeyEvent& event) {
  const std::uint64_t place = PlaceOfKey(event);
  if (held_.contains(place)) return true;
  return event.timestamp() != 0 && released_ && released_->place == place &&
         released_->time == event.timestamp();
}

bool Keyboard::Waits(int key) const {
  return std::any_of(turns_.begin(), turns_.end(),
                     [key](const Turn& turn) { return turn.keys[static_cast<std::size_t>(key)]; });
}

Keyboard::KeySet Keyboard::Modifiers() const {
  KeySet down;
  for (const auto& [place, key] : held_) {
    if (IsModifier(key)) down.set(static_cast<std::size_t>(key));
  }
  return down;
}

Keyboard::Turn& Keyboard::NewTurn() {
  if (turns_.size() == kMostTurns) turns_.pop_front();
  return turns_.emplace_back();
}

void Keyboard::SetKeys(const KeyMap& keys) {
  ReleaseAll();
  keys_ = keys;
}

void Keyboard::Press(const QKeyEvent& event) {
  const int key = GameKey(event, keys_);
  if (key < 0) return;
  if (IsCommand(key)) {
    if (!event.isAutoRepeat() || !Waits(key)) PressOther(key, event);
    return;
  }
  if (event.isAutoRepeat()) return;
  const bool goesOn = GoesOn(event);
  held_[PlaceOfKey(event)] = key;
  if (goesOn) return;
  if (IsModifier(key)) {
    PressModifier(key);
  } else {
    PressOther(key, event);
  }
}

// A key of action that comes a little later than the arrow, which is still held and not read yet, is meant
// for it; a press that is over stays what it was.
void Keyboard::PressModifier(int key) {
  if (chord_) chord_->until.reset();
  const auto place = static_cast<std::size_t>(key);
  const bool late = !turns_.empty() && turns_.back().Heeds();
  if (late && chord_ && turns_.back().keys[static_cast<std::size_t>(chord_->key)]) {
    turns_.back().modifiers->set(place);
    chord_->with.set(place);
    return;
  }
  Turn& turn = late || turns_.empty() ? NewTurn() : turns_.back();
  turn.modifiers = turn.modifiers.value_or(KeySet()) | Modifiers();
}

// Of a key that has been down since another window had the keys, only the next press tells.
void Keyboard::Recall(const QKeyEvent& event) {
  for (const ModifierRow& row : kModifiers) {
    if (keys_.UseOf(row.meaning) != KeyUse::Action) continue;
    if (event.modifiers().testFlag(row.flag) && !Modifiers()[static_cast<std::size_t>(row.key)])
      held_[PlaceByMeaning(row.meaning)] = row.key;
  }
}

// The game knows the restart by Ctrl, whatever the player's own key for it is.
Keyboard::KeySet Keyboard::PressedWith(int key, const QKeyEvent& event) const {
  KeySet with = Modifiers();
  const bool needsCtrl = keys_.Of(KeyUse::Restart).front().ctrl;
  if (key == kKeyR && (!needsCtrl || event.modifiers().testFlag(Qt::ControlModifier)))
    with.set(static_cast<std::size_t>(kKeyCtrl));
  return with;
}

void Keyboard::PressOther(int key, const QKeyEvent& event) {
  Recall(event);
  const KeySet with = PressedWith(key, event);
  Turn& turn = !turns_.empty() && turns_.back().Takes(key, with) ? turns_.back() : NewTurn();
  turn.keys.set(static_cast<std::size_t>(key));
  if (Rank(key) != kNoRank) turn.rank = Rank(key);
  if (HeedsModifiers(key)) turn.modifiers = with;
  if (IsArrow(key)) chord_ = Chord{PlaceOfKey(event), key, with, std::nullopt};
}

void Keyboard::Release(const QKeyEvent& event) {
  if (event.isAutoRepeat()) return;
  const std::uint64_t place = PlaceOfKey(event);
  released_ = Released{place, event.timestamp()};
  held_.erase(place);
  if (IsModifier(GameKey(event, keys_))) held_.erase(PlaceByMeaning(event.key()));
  if (chord_ && chord_->place == place) chord_.reset();
  EndChord();
}

// The arrow of a chord that is still down acts for a moment longer, and does not lead into what lies there.
void Keyboard::EndChord() {
  if (chord_ && !chord_->until && chord_->with.any() && (chord_->with & Modifiers()).none())
    chord_->until = clock_() + kLinger;
}

Keyboard::KeySet Keyboard::Lingering() {
  if (!chord_ || !chord_->until) return {};
  if (clock_() < *chord_->until) return chord_->with;
  chord_.reset();
  return {};
}

void Keyboard::ReleaseAll() {
  held_.clear();
  turns_.clear();
  chord_.reset();
  released_.reset();
}

KeySnapshot Keyboard::Take() {
  Turn turn;
  if (!turns_.empty()) {
    turn = turns_.front();
    turns_.pop_front();
  }
  KeySnapshot keys;
  keys.down = turn.keys;
  for (const auto& [place, key] : held_) {
    if (!IsModifier(key) && !Waits(key)) keys.down.set(static_cast<std::size_t>(key));
  }
  keys.down |= turn.modifiers ? *turn.modifiers : Modifiers() | Lingering();
  return keys;
}

}  // namespace zorik
