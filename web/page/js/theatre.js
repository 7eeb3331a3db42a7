// A record that plays: it can stand still, go tick by tick and to any moment of the run, at a speed of its own, and be
// taken over. Keys: Space plays or stops, full stop and comma are a tick, left and right five seconds, Home and End the
// ends, up and down the speed, Enter takes over.

import { word } from "./words.js";

const FAR = 50; // ticks
const SPEEDS = [0.25, 0.5, 1, 2, 4, 8];
const USUAL = SPEEDS.indexOf(1);
const SPEED_WORDS = ["¼×", "½×", "1×", "2×", "4×", "8×"];
const COLOURS = {
  gem: "#e2a13b", key: "#7fc4e8", lock: "#7fc4e8", explosion: "#e86a4a", unitChanged: "#8a7a68", unitLost: "#ff4040",
  finishOpen: "#8fd16f", win: "#ffffff",
};

export class Theatre {
  #parts;
  #acts;
  #run = null;
  #timeline = { length: 0, events: [] };
  #stands = false;
  #speed = USUAL;

  // parts: elements by name. acts: {sought(), paceChanged(), takeOver()}.
  constructor(parts, acts) {
    this.#parts = parts;
    this.#acts = acts;
    const on = (name, act) => parts[name].addEventListener("click", act);
    on("playOrStop", () => this.toggle());
    on("stepBack", () => this.step(-1));
    on("stepOn", () => this.step(1));
    on("slower", () => this.changeSpeed(-1));
    on("faster", () => this.changeSpeed(1));
    on("takeOver", () => acts.takeOver());
    parts.seek.addEventListener("input", () => this.seekTo(Number(parts.seek.value)));
    new ResizeObserver(() => this.#drawMarks()).observe(parts.marks);
  }

  get active() {
    return this.#run !== null;
  }

  // The factor of the speed of play; 1 where no record plays.
  get pace() {
    return this.active ? SPEEDS[this.#speed] : 1;
  }

  get stands() {
    return this.active && this.#stands;
  }

  // A replay stands at its start.
  begin(run) {
    run.beginTimeline({ whole: true });
    this.#run = run;
    this.#timeline = run.timeline();
    this.#stands = false;
    this.#speed = USUAL;
    this.#parts.seek.max = String(this.#timeline.length);
    this.#parts.bar.hidden = false;
    this.#drawMarks();
    this.show();
  }

  end() {
    this.#run = null;
    this.#parts.bar.hidden = true;
  }

  // Whether the key meant something here.
  press(event) {
    const keys = {
      " ": () => event.repeat || this.toggle(),
      ".": () => this.step(1),
      ",": () => this.step(-1),
      ArrowRight: () => this.#seekBy(FAR),
      ArrowLeft: () => this.#seekBy(-FAR),
      Home: () => this.seekTo(0),
      End: () => this.seekTo(this.#timeline.length),
      ArrowUp: () => this.changeSpeed(1),
      ArrowDown: () => this.changeSpeed(-1),
      Enter: () => this.#acts.takeOver(),
    };
    if (event.ctrlKey || event.altKey || event.metaKey || !keys[event.key]) return false;
    keys[event.key]();
    return true;
  }

  toggle() {
    if (this.#stands && this.#position() >= this.#timeline.length) this.#moveTo(0);
    this.stand(!this.#stands);
  }

  stand(stands) {
    this.#stands = stands;
    this.#acts.sought();
    this.show();
  }

  // Whoever goes tick by tick wants to look.
  step(ticks) {
    this.#moveTo(this.#position() + ticks);
    this.stand(true);
  }

  // A record that plays goes on from there, but for its end.
  seekTo(tick) {
    this.#moveTo(tick);
    if (tick >= this.#timeline.length) this.#stands = true;
    this.#acts.sought();
    this.show();
  }

  changeSpeed(by) {
    this.#speed = Math.min(SPEEDS.length - 1, Math.max(0, this.#speed + by));
    this.#acts.paceChanged();
    this.show();
  }

  show() {
    const position = this.#position();
    const { seek, moment, speed, playOrStop } = this.#parts;
    seek.value = String(position);
    const words = word("tick", position, this.#timeline.length);
    seek.setAttribute("aria-valuetext", words);
    moment.textContent = `${(position / 10).toFixed(1)} s · ${position}/${this.#timeline.length}`;
    speed.textContent = SPEED_WORDS[this.#speed];
    playOrStop.textContent = this.#stands ? "▶" : "❚❚";
  }

  #seekBy(ticks) {
    this.seekTo(this.#position() + ticks);
  }

  #position() {
    return Math.min(this.#run.state().position, this.#timeline.length);
  }

  #moveTo(tick) {
    this.#run.seek(Math.min(this.#timeline.length, Math.max(0, tick)));
  }

  #drawMarks() {
    const { marks } = this.#parts;
    const { length, events } = this.#timeline;
    const width = (marks.width = Math.round(marks.clientWidth * devicePixelRatio));
    const height = (marks.height = Math.round(marks.clientHeight * devicePixelRatio));
    const context = marks.getContext("2d");
    for (const [tick, kind] of events) {
      context.fillStyle = COLOURS[kind] ?? "#888";
      const x = Math.round((tick / Math.max(1, length)) * width);
      context.fillRect(x - 1, 0, Math.max(2, devicePixelRatio), height / 4);
    }
  }
}
