// The machine of the game: the same C++ as on the desktop, built for WebAssembly. This file gives it the shape of
// JavaScript; what the calls mean is told in Machine.h.

export const Kind = Object.freeze({ play: 0, replay: 1, test: 2, practice: 3 });
export const TickEnd = Object.freeze({ running: 0, won: 1, recordOver: 2, restarted: 3 });
export const CaveState = Object.freeze({ closed: 0, open: 1, solved: 2, solvedByOther: 3 });

// Codes of the keys that a tick looks at.
export const Key = Object.freeze({
  tab: 9, shift: 16, ctrl: 17, space: 32, left: 37, up: 38, right: 39, down: 40, a: 65, c: 67, p: 80, r: 82, s: 83,
  pad0: 96, padPlus: 107, padMinus: 109, f12: 123,
});

// What happens in a tick, by its number, with the names of its values.
const happenings = [
  ['sound', 'sound'],                      // starts, anew if it sounds
  ['soundStop', 'sound'],
  ['silence'],                             // all sounds stop
  ['message', 'text', 'colour', 'dogs'],   // a text of the language, by its number; colour has red in its low byte
  ['remark', 'remark', 'colour'],          // what somebody wrote into a record
  ['label', 'label', 'value'],             // 0 clock, 1 gems, 2 gems needed, 3 value of a gem
  ['unit', 'unit', 'look'],                // 0 steered, 1 waiting, 2 dead
  ['flash'],                               // the finish opens
  ['request', 'request'],                  // a key of the game: names in `requests`
  ['won'],
  ['opens'],                               // a cave has been opened: all is new
];
const requests = ['pause', 'idleQuestion', 'hideAway', 'faster', 'slower', 'viewToggle'];

// The places of the state's numbers; StateSlot in PageRun.h. From `units` on x, y, alive for each of ten.
const slots = ['kind', 'ticks', 'elapsed', 'clock', 'timeLimit', 'gems', 'gemsNeeded', 'gemValue', 'exitOpen', 'magic',
  'amoeba', 'width', 'height', 'unit', 'dogs', 'manyUnits', 'liveDogs', 'unitLost', 'nothingHelps', 'won', 'score',
  'baseScore', 'timeLeft', 'bonus', 'hue', 'ranDry', 'known', 'position', 'magicSounds', 'amoebaSounds'];
const truths = new Set(['exitOpen', 'manyUnits', 'unitLost', 'nothingHelps', 'won', 'bonus', 'ranDry', 'magicSounds',
  'amoebaSounds']);
const unitCount = 10;
const absent = 250;

const runEvents = ['gem', 'key', 'lock', 'explosion', 'unitChanged', 'unitLost', 'finishOpen', 'win'];

// A failure that the machine told of.
export class MachineError extends Error {}

// Loads the machine: from the bytes of zorik.wasm, or from beside this file.
export async function loadMachine(bytes) {
  const imports = {
    env: { emscripten_notify_memory_growth() {} },
    wasi_snapshot_preview1: { proc_exit(code) { throw new Error(`the machine has stopped: ${code}`); } },
  };
  const wasm = bytes ?? await (await fetch(new URL('./zorik.wasm', import.meta.url))).arrayBuffer();
  const { instance } = await WebAssembly.instantiate(wasm, imports);
  instance.exports._initialize();
  return new Machine(instance.exports);
}

const encoder = new TextEncoder();
const decoder = new TextDecoder();
const bytesOf = (data) =>
  typeof data === 'string' ? encoder.encode(data) : data instanceof Uint8Array ? data : new Uint8Array(data);

function seedPair() {
  return globalThis.crypto.getRandomValues(new Uint32Array(2));
}

class Machine {
  constructor(wasm) {
    this.wasm = wasm;
  }

  // Calls a function of Machine.h. Texts and bytes become a place in the machine's memory and a number.
  call(name, ...values) {
    const { wasm } = this;
    const places = [];
    const given = values.flatMap((value) => {
      if (typeof value === 'number') return [value];
      const bytes = bytesOf(value);
      const place = wasm.malloc(bytes.length || 1);
      new Uint8Array(wasm.memory.buffer).set(bytes, place);
      places.push(place);
      return [place, bytes.length];
    });
    const answer = wasm[`zk_${name}`](...given);
    for (const place of places) wasm.free(place);
    return answer;
  }

  // The same for a call that may fail.
  must(name, ...values) {
    const answer = this.call(name, ...values);
    if (answer === 0) throw new MachineError(this.text());
    return answer;
  }

  bytes() {
    return new Uint8Array(this.wasm.memory.buffer, this.wasm.zk_answer(), this.wasm.zk_answer_size()).slice();
  }
  text() {
    return decoder.decode(this.bytes());
  }
  json() {
    return JSON.parse(this.text());
  }
  numbers(place, count) {
    return new Int32Array(this.wasm.memory.buffer, place, count);
  }

  // The pictures of a scheme, as the index of the assets tells them: sizes [columns, rows] of each set, and grounds,
  // a string of one digit a frame.
  useSheets(scheme, { sizes, grounds }) {
    this.call('sheets', scheme, Uint8Array.from(sizes.flat()), Uint8Array.from(grounds, Number));
  }

  // The column of the sheet Edges for a quarter of a cell, or -1.
  edge(ground, edges, quarter) {
    return this.call('edge', ground, edges, quarter);
  }

  // The sounds, made of the recipes in the index of the assets: { loop, files: wave files } by their numbers. It takes a
  // moment, and lets others have their turn between two sounds.
  async sounds({ list, recipes }) {
    this.must('sounds_tell', list);
    const made = [];
    for (const { sound, name, recordings, loop } of this.json()) {
      made[sound] = { loop, files: [] };
      if (!(name in recipes)) continue;
      for (let number = 1; number <= recordings; ++number) {
        await new Promise((resolve) => { setTimeout(resolve); });
        this.must('sound_make', list, name, recipes[name], number);
        made[sound].files.push(this.bytes().buffer);
      }
    }
    return made;
  }

  openCollection(bytes) {
    return new Collection(this, this.must('collection_open', bytes));
  }
  tellRecord(bytes) {
    this.must('record_tell', bytes);
    return this.json();
  }
  judgeRecord(bytes) {
    this.call('record_judge', bytes);
    return this.json();
  }
  traceRecord(bytes) {
    this.must('record_trace', bytes);
    return this.text();
  }
  // What a postcard's word holds, packed in zlib's form, and the record in what that is unpacked to.
  packedOfPostcard(letters) {
    this.must('postcard_packed', letters);
    return this.bytes();
  }
  recordOfPostcard(content) {
    this.must('postcard_record', content);
    return this.bytes();
  }
  playerName(typed) {
    this.call('player_name', typed);
    return this.text();
  }
  newRun(seed = seedPair()) {
    return new Run(this, this.call('run_new', seed[0], seed[1]));
  }
}

class Collection {
  constructor(machine, place) {
    this.machine = machine;
    this.place = place;
  }
  close() {
    this.machine.call('collection_close', this.place);
    this.place = 0;
  }
  tell() {
    this.machine.call('collection_tell', this.place);
    return this.machine.json();
  }

  // records: pairs of a name (as `record` of a cave) and bytes.
  progress(player, records) {
    for (const [name, bytes] of records) this.machine.call('progress_record', this.place, name, bytes);
    this.machine.call('progress_tell', this.place, player);
    return this.machine.json();
  }
  holdsCaveOf(number, record) {
    return this.machine.call('record_is_of', this.place, number, record) === 1;
  }
}

class Run {
  constructor(machine, place) {
    this.machine = machine;
    this.place = place;
  }
  free() {
    this.machine.call('run_free', this.place);
    this.place = 0;
  }

  start(collection, number, { kind = Kind.play, player = '' } = {}) {
    this.machine.must('run_start', this.place, collection.place, number, kind, player);
  }
  startCaveOf(record, { kind = Kind.play, player = '' } = {}) {
    this.machine.must('run_start_record', this.place, record, kind, player);
  }
  replay(record) {
    this.machine.must('run_replay', this.place, record);
  }
  restart() {
    this.machine.call('run_restart', this.place);
  }

  // One tick with these keys (codes) down; answers a TickEnd.
  tick(keys = []) {
    const { machine, place } = this;
    machine.call('run_seed', place, ...seedPair());  // chance in play comes from outside, as on the desktop
    for (const key of keys) machine.call('run_press', place, key);
    return machine.call('run_tick', place);
  }

  // What happened in the last tick, in its order.
  events() {
    const { machine, place } = this;
    const count = machine.call('run_event_count', place);
    const numbers = Array.from(machine.numbers(machine.call('run_events', place), count * 4));
    return Array.from({ length: count }, (_, i) => this.event(numbers.slice(i * 4, i * 4 + 4)));
  }
  event([what, ...values]) {
    const [name, ...words] = happenings[what];
    const event = { what: name };
    words.forEach((word, i) => { event[word] = values[i]; });
    if (name === 'request') event.request = requests[event.request];
    if (name === 'remark') {
      this.machine.call('run_remark', this.place, event.remark);
      event.remark = this.machine.text();
    }
    return event;
  }

  state() {
    const numbers = this.machine.numbers(this.machine.call('run_state', this.place), slots.length + unitCount * 3);
    const state = {};
    slots.forEach((slot, i) => { state[slot] = truths.has(slot) ? numbers[i] !== 0 : numbers[i]; });
    state.units = Array.from({ length: unitCount }, (_, n) => {
      const [x, y, alive] = numbers.subarray(slots.length + n * 3, slots.length + n * 3 + 3);
      return { x, y, alive: alive !== 0, absent: x === absent };
    });
    return state;
  }
  tell() {
    this.machine.call('run_tell', this.place);
    return this.machine.json();
  }
  hash() {
    this.machine.call('run_hash', this.place);
    return this.machine.text();
  }
  line() {
    this.machine.call('run_line', this.place);
    return this.machine.text();
  }

  // The record of a run that was won in play: the same bytes as the desktop writes, and the name to keep it under.
  record() {
    this.machine.must('run_record_name', this.place);
    const name = this.machine.text();
    this.machine.must('run_record', this.place);
    return { name, bytes: this.machine.bytes() };
  }
  breakdown() {
    this.machine.must('run_breakdown', this.place);
    return this.machine.text();
  }

  beginTimeline({ whole = false } = {}) {
    this.machine.must('timeline_begin', this.place, whole ? 1 : 0);
  }

  // { length, events: [[tick, name], ...] }
  timeline() {
    this.machine.must('timeline_tell', this.place);
    const { length, events } = this.machine.json();
    return { length, events: events.map(([tick, event]) => [tick, runEvents[event]]) };
  }
  seek(tick) {
    this.machine.must('timeline_seek', this.place, tick);
  }
  takeOver() {
    this.machine.call('run_take_over', this.place);
  }

  setWhole(on) { this.machine.call('view_whole', this.place, on ? 1 : 0); }
  setStill(on) { this.machine.call('view_still', this.place, on ? 1 : 0); }
  setReach(columns, rows) { this.machine.call('view_reach', this.place, columns, rows); }
  setSmooth(on) { this.machine.call('view_smooth', this.place, on ? 1 : 0); }

  // Whether anything is on its way after the last tick.
  moves() {
    return this.machine.call('view_moves', this.place) !== 0;
  }

  // What is drawn where, for a picture that fits into a frame of this size in pixels. The arrays stand in the machine's
  // memory, until the next call of it.
  look(width, height, way = 1) {
    const { machine } = this;
    const place = machine.call('view_look', this.place, width, height, way);
    const plan = machine.numbers(place, machine.call('view_plan_size', this.place));
    const [left, top, viewWidth, viewHeight, cellWidth, cellHeight, drawnWidth, drawnHeight, columnCount, rowCount,
      moverCount, fresh, columns, rows, cells, changed, movers] = plan;
    return {
      view: { left, top, width: viewWidth, height: viewHeight },  // of the cave, 80 logical pixels a cell
      cellWidth, cellHeight,                                      // in pixels, as all that follows
      width: drawnWidth, height: drawnHeight,
      fresh: fresh !== 0,                                         // all of it is to be drawn
      columnCount, rowCount, moverCount,
      columns: plan.subarray(columns, columns + columnCount * 4),  // cell, start, length, cut: for each column
      rows: plan.subarray(rows, rows + rowCount * 4),
      cells: plan.subarray(cells, cells + columnCount * rowCount),      // row by row: set, column, row, edges, a byte each
      changed: plan.subarray(changed, changed + columnCount * rowCount),  // not 0: looks different from the last time
      movers: plan.subarray(movers, movers + moverCount * 8),  // x, y, picture, has under, x, y, under, 0
    };
  }
}

// The parts of a cell's number in a plan.
export const setOf = (cell) => cell & 255;
export const columnOf = (cell) => (cell >>> 8) & 255;
export const rowOf = (cell) => (cell >>> 16) & 255;
export const edgesOf = (cell) => cell >>> 24;
