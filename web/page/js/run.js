// The screen of a run: it takes keys and fingers, lets the ticks pass, and shows and sounds what happens. Who starts a run
// here tells what becomes of it: see open().

import { Kind, TickEnd } from "../machine/machine.mjs";
import { Beat, USUAL_SPEED, intervalOf } from "./beat.js";
import { confirmed, tell } from "./dialogs.js";
import { Figures } from "./figures.js";
import { frameIn, reachIn } from "./frame.js";
import { Key } from "./keys.js";
import { Picture } from "./picture.js";
import { Steering } from "./steering.js";
import { choices } from "./store.js";
import { Strip } from "./strip.js";
import { Theatre } from "./theatre.js";
import { caption, text, word } from "./words.js";

const TEXT_FEW_DOGS = 90;
const TEXT_MANY_DOGS = 91;
const TEXT_PAUSED = 97;
const TEXT_IDLE = 98;
const TEXT_IDLE_TITLE = 100;
const SOUND_MAGIC_WALL = 9;
const SOUND_AMOEBA = 13;
const FLASH = 60; // milliseconds
const SMALLEST_CELL = 30; // CSS pixels: what a finger and an eye find on a phone

export class RunScreen {
  #parts;
  #sheets;
  #sounds;
  #machineRun;
  #picture;
  #steering;
  #beat = new Beat(() => this.#tick(), (way) => this.#draw(way));
  #figures;
  #strip;
  #theatre;
  #job = null;
  #pictures = null;
  #speed = Number(choices.get("speed", USUAL_SPEED));
  #whole = false;
  #reach = { columns: 19.5, rows: 11.5 };
  #rewinding = false;
  #stale = true; // the picture is not that of the moment

  // parts: the elements of the screen, by name.
  constructor(machine, sheets, sounds, parts) {
    this.#parts = parts;
    this.#sheets = sheets;
    this.#sounds = sounds;
    this.#machineRun = machine.newRun();
    this.#picture = new Picture(parts.picture, machine);
    this.#strip = new Strip(parts.message);
    this.#steering = new Steering(parts, {
      heeds: () => this.isOpen,
      manyUnits: () => this.#machineRun.state().manyUnits,
      takes: (event) => this.#takes(event),
      letGo: (event) => event.key !== "Backspace" || (this.#rewinding = false),
    });
    this.#figures = new Figures(parts, (key) => this.#steering.tap(key));
    this.#theatre = new Theatre(parts, {
      sought: () => this.#sought(),
      paceChanged: () => this.#paceChanged(),
      takeOver: () => this.#takeOver(),
    });
    this.#listen();
  }

  get isOpen() {
    return this.#job !== null;
  }

  get run() {
    return this.#machineRun;
  }

  // Shows a run. job: begin(run) starts it, or fails with the machine's reason; won(run) is told of a win in play, left()
  // that the player has left; record: the bytes of what is replayed.
  async open(job) {
    this.#beat.stop();
    this.#sounds.stopAll();
    job.begin(this.#machineRun);
    const { scheme, cave, collection } = this.#machineRun.tell();
    this.#pictures = await this.#sheets.load(scheme);
    this.#job = job;
    document.title = [cave, collection, "Zorík"].filter((name) => name).join(" – ");
    document.body.classList.add("playing");
    this.#parts.run.hidden = false;
    this.#begin();
  }

  close() {
    this.#beat.stop();
    this.#sounds.stopAll();
    this.#theatre.end();
    this.#job = null;
    this.#parts.run.hidden = true;
    document.body.classList.remove("playing");
    document.title = "Zorík";
  }

  // The player wants to leave.
  async leave() {
    const { kind, ticks, won } = this.#machineRun.state();
    const loses = kind === Kind.play && ticks > 0 && !won;
    if (!loses || (await this.mayEnd(document.title, word("leaveAsk")))) this.#job?.left();
  }

  // Asks whether the run that is open, if any, may end; it stands still after a yes.
  mayEnd(title, question) {
    return this.heldFor(() => !this.isOpen || confirmed(title, question), { ends: (may) => may });
  }

  // The run stands still while a box is open, and goes on behind it unless the answer ends it. box(): opens it; what it
  // answers comes back.
  async heldFor(box, { ends = () => false } = {}) {
    const runs = this.#beat.runs;
    if (runs) this.#hold();
    const answer = await box();
    if (runs && this.isOpen && !ends(answer)) this.#goOn();
    return answer;
  }

  #begin() {
    const run = this.#machineRun;
    const replays = run.state().kind === Kind.replay;
    run.setSmooth(true);
    run.setStill(matchMedia("(prefers-reduced-motion: reduce)").matches);
    this.#whole = replays;
    run.setWhole(this.#whole);
    this.#strip.clear();
    this.#steering.releaseAll();
    this.#rewinding = false;
    if (replays) this.#theatre.begin(run);
    else this.#theatre.end();
    if (run.state().kind === Kind.practice) run.beginTimeline();
    this.#showKind();
    this.#fit();
    this.#happenings();
    this.#showState();
    this.#paceChanged();
    this.#parts.picture.focus({ preventScroll: true });
    this.#goOn();
  }

  #showKind() {
    const { kind } = this.#machineRun.state();
    const { run, view, badge, takeOver, playCave, saveShown } = this.#parts;
    run.classList.toggle("watching", kind === Kind.replay);
    view.hidden = kind !== Kind.replay;
    badge.hidden = kind !== Kind.practice;
    badge.textContent = caption("practice.badge");
    takeOver.hidden = kind !== Kind.replay;
    playCave.hidden = !this.#job.playCave;
    saveShown.hidden = !this.#job.save;
  }

  // Input

  #listen() {
    document.addEventListener("visibilitychange", () => {
      if (document.hidden && this.isOpen && this.#beat.runs) this.#pause();
    });
    // The key that is let go elsewhere is not heard of here.
    addEventListener("blur", () => (this.#rewinding = false));
    new ResizeObserver(() => this.#fit()).observe(this.#parts.stage);
    const on = (name, act) => this.#parts[name].addEventListener("click", act);
    on("restart", () => this.#restart());
    on("pause", () => this.#pause());
    on("leave", () => this.leave());
    on("view", () => this.#toggleView());
    on("playCave", () => this.#job.playCave());
    on("saveShown", () => this.#job.save());
  }

  // A key that means something to more than the tick.
  #takes(event) {
    if (event.key === "Escape") {
      this.leave();
      return true;
    }
    if (this.#theatre.active && this.#theatre.press(event)) return true;
    if (event.key !== "Backspace" || this.#machineRun.state().kind !== Kind.practice) return false;
    this.#rewinding = true;
    return true;
  }

  // Time

  #tick() {
    const run = this.#machineRun;
    const keys = this.#steering.take();
    if (this.#theatre.stands) {
      this.#heedWhileStanding(keys);
      return;
    }
    this.#stale = true;
    if (this.#rewinding) {
      run.seek(run.state().position - 1);
      this.#sought();
      return;
    }
    if (run.state().won) return; // practice, which goes back from there
    const end = run.tick([...keys]);
    this.#happenings();
    this.#showState();
    if (this.#theatre.active) this.#theatre.show();
    if (end === TickEnd.won) this.#won();
    if (end === TickEnd.recordOver) this.#recordOver();
  }

  // The keys that all runs have, in a record that stands still.
  #heedWhileStanding(keys) {
    if (keys.has(Key.C)) this.#toggleView();
    if (keys.has(Key.P)) this.#theatre.stand(false);
    if (keys.has(Key.PadPlus)) this.#changeSpeed(1);
    if (keys.has(Key.PadMinus)) this.#changeSpeed(-1);
    if (keys.has(Key.R) && keys.has(Key.Ctrl)) this.#restart();
  }

  #won() {
    const run = this.#machineRun;
    const { kind, score } = run.state();
    this.#drawNow();
    if (kind === Kind.play) {
      this.#beat.stop();
      this.#sounds.stopAll();
      this.#job.won(run);
    } else if (kind === Kind.replay) {
      this.#theatre.stand(true);
      this.#strip.notice(`${word("winTitle")} ${score}`);
    } else {
      this.#strip.notice(caption("practice.won"));
    }
  }

  #recordOver() {
    this.#theatre.stand(true);
    this.#strip.notice(caption("game.recordend"));
  }

  #paceChanged() {
    this.#beat.interval = intervalOf(this.#speed) / this.#theatre.pace;
  }

  #changeSpeed(faster) {
    if (this.#theatre.active) {
      this.#theatre.changeSpeed(faster);
      return;
    }
    this.#speed = Math.min(10, Math.max(1, this.#speed - faster));
    choices.set("speed", String(this.#speed));
    this.#paceChanged();
  }

  #hold() {
    this.#beat.stop();
    this.#steering.releaseAll();
    this.#sounds.pause(true);
  }

  #goOn() {
    this.#steering.releaseAll();
    this.#sounds.pause(false);
    this.#beat.start();
    this.#parts.picture.focus({ preventScroll: true });
  }

  async #pause() {
    if (!this.isOpen || !this.#beat.runs) return;
    if (this.#theatre.active) {
      this.#theatre.stand(true);
      return;
    }
    await this.heldFor(() => tell("Zorík", text(TEXT_PAUSED)));
  }

  #idle() {
    return this.heldFor(() => confirmed(text(TEXT_IDLE_TITLE), text(TEXT_IDLE)));
  }

  #restart() {
    const { kind, ticks } = this.#machineRun.state();
    if (kind === Kind.replay) {
      this.#theatre.seekTo(0);
      this.#theatre.stand(false);
      return;
    }
    if (ticks === 0) return;
    this.#machineRun.restart();
    this.#begin();
  }

  // The moment was chosen by hand: nothing that sounded goes on but what sounds there.
  #sought() {
    const { magicSounds, amoebaSounds } = this.#machineRun.state();
    this.#sounds.stopAll();
    if (!this.#theatre.stands) {
      if (magicSounds) this.#sounds.play(SOUND_MAGIC_WALL);
      if (amoebaSounds) this.#sounds.play(SOUND_AMOEBA);
    }
    this.#strip.clear();
    this.#showState();
    this.#stale = true;
    if (!this.#beat.runs && this.isOpen) this.#beat.start();
  }

  #takeOver() {
    this.#machineRun.takeOver();
    this.#theatre.end();
    this.#whole = false;
    this.#machineRun.setWhole(false);
    this.#showKind();
    this.#paceChanged();
    this.#sought();
    this.#strip.show(caption("theatre.takeoverhint"));
    this.#goOn();
  }

  // What happens

  #happenings() {
    for (const event of this.#machineRun.events()) this.#happens(event);
  }

  #happens(event) {
    switch (event.what) {
      case "sound": return this.#sounds.play(event.sound);
      case "soundStop": return this.#sounds.stop(event.sound);
      case "silence": return this.#sounds.stopAll();
      case "message": return this.#strip.show(this.#message(event), event.colour);
      case "remark": return this.#strip.show(event.remark, event.colour);
      case "flash": return this.#flash();
      case "request": return this.#act(event.request);
      default: return undefined;
    }
  }

  #message({ text: place, dogs }) {
    const said = text(place);
    if (place === TEXT_FEW_DOGS) return said.replace(" 2-4", ` ${dogs}`);
    return place === TEXT_MANY_DOGS ? said.replace(" 5-9", ` ${dogs}`) : said;
  }

  #act(request) {
    const acts = {
      pause: () => this.#pause(),
      idleQuestion: () => this.#idle(),
      faster: () => this.#changeSpeed(1),
      slower: () => this.#changeSpeed(-1),
      viewToggle: () => this.#toggleView(),
    };
    acts[request]?.();
  }

  #flash() {
    if (matchMedia("(prefers-reduced-motion: reduce)").matches) return;
    this.#parts.flash.hidden = false;
    setTimeout(() => (this.#parts.flash.hidden = true), FLASH);
  }

  #showState() {
    const state = this.#machineRun.state();
    this.#figures.show(state, state.kind === Kind.play && !state.won && state.nothingHelps);
  }

  // The picture

  #toggleView() {
    this.#whole = !this.#whole;
    this.#machineRun.setWhole(this.#whole);
    this.#stale = true;
  }

  // On a narrow screen the picture shows fewer cells rather than tiny ones.
  #fit() {
    const { stage } = this.#parts;
    if (!this.isOpen || stage.clientWidth === 0) return;
    this.#reach = reachIn(stage.clientWidth, stage.clientHeight, SMALLEST_CELL);
    this.#machineRun.setReach(this.#reach.columns, this.#reach.rows);
    this.#stale = true;
    if (!this.#beat.runs) this.#drawNow();
  }

  #frame() {
    const { stage } = this.#parts;
    const { width, height } = this.#machineRun.state();
    const columns = this.#whole ? width : Math.min(width, this.#reach.columns);
    const rows = this.#whole ? height : Math.min(height, this.#reach.rows);
    return frameIn(stage.clientWidth * devicePixelRatio, stage.clientHeight * devicePixelRatio, columns, rows);
  }

  #drawNow() {
    this.#stale = true;
    this.#draw(1);
  }

  #draw(way) {
    const arrived = this.#theatre.stands ? 1 : way;
    if (!this.#stale && (arrived === 1 || !this.#machineRun.moves())) return;
    const { picture } = this.#parts;
    const frame = this.#frame();
    this.#picture.draw(this.#machineRun.look(frame.width, frame.height, arrived), this.#pictures);
    picture.style.width = `${picture.width / devicePixelRatio}px`;
    picture.style.height = `${picture.height / devicePixelRatio}px`;
    this.#stale = false;
  }
}
