// The keyboard of a run: gathers key events into what each tick reads. A key that is held, or was tapped since the
// last tick, is down. Keys that give commands are down once for each press and each repeat. The keys of action that are
// held when a key goes down belong to that press and come with it, however soon they are up again; what was pressed
// later and would turn an earlier press into something else waits for the next tick.

export const Key = {
  Tab: 9, Shift: 16, Ctrl: 17, Space: 32, Left: 37, Up: 38, Right: 39, Down: 40,
  A: 65, C: 67, P: 80, R: 82, S: 83, Pad0: 96, Pad9: 105, PadPlus: 107, PadMinus: 109,
};

// A hand that lets go of a chord does not lift all fingers at once.
const LINGER = 150; // milliseconds
// Nobody wants to see what he pressed longer ago.
const MOST_TURNS = 3;
const NO_RANK = 5;

const BY_NAME = new Map([
  ["ArrowLeft", Key.Left], ["ArrowUp", Key.Up], ["ArrowRight", Key.Right], ["ArrowDown", Key.Down],
  ["Shift", Key.Shift], ["Control", Key.Ctrl], [" ", Key.Space], ["Tab", Key.Tab],
  ["a", Key.A], ["c", Key.C], ["p", Key.P], ["r", Key.R], ["s", Key.S],
]);
const BY_PLACE = new Map([["NumpadAdd", Key.PadPlus], ["NumpadSubtract", Key.PadMinus]]);

const isModifier = (key) => key === Key.Shift || key === Key.Ctrl || key === Key.Space;
const isArrow = (key) => key >= Key.Left && key <= Key.Down;
export const isDigit = (key) => key >= Key.Pad0 && key <= Key.Pad9;
const isCommand = (key) =>
  isDigit(key) || [Key.Tab, Key.R, Key.C, Key.P, Key.PadPlus, Key.PadMinus].includes(key);
// These mean something else together with a key of action.
const heedsModifiers = (key) => isArrow(key) || key === Key.Tab || key === Key.R;

// Where a tick reads a key: the unit is changed before it steps, and S and A are for the step after that.
function rank(key) {
  if (key === Key.Tab) return 0;
  if (isDigit(key)) return 1;
  if (isArrow(key)) return 2;
  if (key === Key.S) return 3;
  return key === Key.A ? 4 : NO_RANK;
}

// The game's number of a key event's key; nothing for a key that means nothing in a run. Digits are known by their
// place, since on a Czech keyboard that row writes letters.
export function gameKey(event) {
  const byName = BY_NAME.get(event.key.length === 1 ? event.key.toLowerCase() : event.key);
  if (byName !== undefined) return byName;
  const byPlace = BY_PLACE.get(event.code);
  if (byPlace !== undefined) return byPlace;
  const digit = /^(?:Digit|Numpad)([0-9])$/.exec(event.code);
  return digit ? Key.Pad0 + Number(digit[1]) : undefined;
}

const sameSet = (one, other) => one.size === other.size && [...one].every((key) => other.has(key));

// What goes down in one tick.
class Turn {
  keys = new Set(); // without those of action
  modifiers = null; // keys of action that belong to the presses, once that matters
  rank = -1; // of the last key

  heeds() {
    return [...this.keys].some(heedsModifiers);
  }

  // Keys of action that go down one after the other count as one chord until another key makes use of them.
  takes(key, withThese) {
    const its = rank(key);
    const again = its === this.rank && this.keys.has(key);
    if (its !== NO_RANK && its <= this.rank && !again) return false;
    if (!heedsModifiers(key) || !this.modifiers || sameSet(this.modifiers, withThese)) return true;
    return !this.heeds() && [...this.modifiers].every((held) => withThese.has(held));
  }
}

export class Keyboard {
  #held = new Map(); // game key by place
  #turns = []; // since the last tick
  #chord = null; // an arrow that went down together with keys of action
  #clock;

  constructor(clock = () => performance.now()) {
    this.#clock = clock;
  }

  // place: where the key lies, or any name for what is no key. Whether it means something comes back.
  press(key, place, repeats = false) {
    if (key === undefined) return;
    if (isCommand(key)) {
      if (!repeats || !this.#waits(key)) this.#pressOther(key, place);
      return;
    }
    if (repeats || this.#held.has(place)) return;
    this.#held.set(place, key);
    if (isModifier(key)) this.#pressModifier(key);
    else this.#pressOther(key, place);
  }

  release(place) {
    this.#held.delete(place);
    if (this.#chord?.place === place) this.#chord = null;
    this.#endChord();
  }

  releaseAll() {
    this.#held.clear();
    this.#turns = [];
    this.#chord = null;
  }

  // What the tick reads, as numbers of keys; the taps are used up.
  take() {
    const turn = this.#turns.shift() ?? new Turn();
    const down = new Set(turn.keys);
    for (const key of this.#held.values()) {
      if (!isModifier(key) && !this.#waits(key)) down.add(key);
    }
    const withThese = turn.modifiers ?? new Set([...this.#modifiers(), ...this.#lingering()]);
    for (const key of withThese) down.add(key);
    return down;
  }

  #waits(key) {
    return this.#turns.some((turn) => turn.keys.has(key));
  }

  #modifiers() {
    return new Set([...this.#held.values()].filter(isModifier));
  }

  #newTurn() {
    if (this.#turns.length === MOST_TURNS) this.#turns.shift();
    this.#turns.push(new Turn());
    return this.#turns.at(-1);
  }

  // A key of action that comes a little later than the arrow, which is still held and not read yet, is meant for it;
  // a press that is over stays what it was.
  #pressModifier(key) {
    if (this.#chord) this.#chord.until = null;
    const last = this.#turns.at(-1);
    const late = last?.heeds() ?? false;
    if (late && this.#chord && last.keys.has(this.#chord.key)) {
      last.modifiers.add(key);
      this.#chord.with.add(key);
      return;
    }
    const turn = late || !last ? this.#newTurn() : last;
    turn.modifiers = new Set([...(turn.modifiers ?? []), ...this.#modifiers()]);
  }

  #pressOther(key, place) {
    const withThese = this.#modifiers();
    const last = this.#turns.at(-1);
    const turn = last?.takes(key, withThese) ? last : this.#newTurn();
    turn.keys.add(key);
    if (rank(key) !== NO_RANK) turn.rank = rank(key);
    if (heedsModifiers(key)) turn.modifiers = new Set(withThese);
    if (isArrow(key)) this.#chord = { place, key, with: new Set(withThese), until: null };
  }

  // The arrow of a chord that is still down acts for a moment longer, and does not lead into what lies there.
  #endChord() {
    const chord = this.#chord;
    if (!chord || chord.until !== null || chord.with.size === 0) return;
    const held = this.#modifiers();
    if (![...chord.with].some((key) => held.has(key))) chord.until = this.#clock() + LINGER;
  }

  #lingering() {
    if (!this.#chord || this.#chord.until === null) return [];
    if (this.#clock() < this.#chord.until) return this.#chord.with;
    this.#chord = null;
    return [];
  }
}
