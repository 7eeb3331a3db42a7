// The page as a whole: the shelf, the caves of a collection, runs, files that come and go.

import { Kind } from "../machine/machine.mjs";
import { Caves } from "./caves.js";
import { askForText, confirmed, tell } from "./dialogs.js";
import { byId } from "./elements.js";
import { saveFile, takeFiles } from "./files.js";
import { showHelp } from "./help.js";
import { Incoming } from "./incoming.js";
import { recordEnding } from "./library.js";
import { recordOfPostcard, takePostcards } from "./postcard.js";
import { Shelf } from "./shelf.js";
import { choices } from "./store.js";
import { keepWin, showWin } from "./win.js";
import { caption, chooseLanguage, currentLanguage, sayAll, word } from "./words.js";

export class Page {
  #machine;
  #assets;
  #library;
  #screens;
  #runScreen;
  #shelf;
  #caves;
  #incoming;
  #player = choices.get("player", "");

  constructor({ machine, assets, library, screens, runScreen, thumbnails }) {
    this.#machine = machine;
    this.#assets = assets;
    this.#library = library;
    this.#screens = screens;
    this.#runScreen = runScreen;
    const player = () => this.#player;
    const save = (file, bytes) => saveFile(withEnding(file), bytes);
    this.#shelf = new Shelf(library, machine, thumbnails, {
      player,
      save,
      open: (entry) => this.openCollection(entry),
      watch: (_, bytes) => this.watch(bytes),
      removeOther: (file) => this.#removeOther(file),
    });
    this.#caves = new Caves(library, machine, thumbnails, {
      player,
      save,
      play: (number) => this.#play(number),
      practise: (number) => this.#start(number, Kind.practice),
      watch: (bytes) => this.watch(bytes),
      watchProof: async (path) => this.watch(await assets.bytes(`assets/${path}`)),
      saveAll: () => this.#caves.records().forEach(([name, bytes]) => save(name, bytes)),
      remove: (entry, name) => this.#removeCollection(entry, name),
    });
    this.#incoming = new Incoming(library, machine, player);
    this.#wireHead();
  }

  // Shows the shelf, where all begins. warns: that nothing is kept, where that is so.
  begin({ warns = true } = {}) {
    sayAll();
    this.showHead();
    this.#screens.begin("shelf", () => this.#shelf.show());
    if (warns && !this.#library.keeps) tell("Zorík", word("passing"));
    takePostcards((letters) => this.#takePostcard(letters));
  }

  async openCollection(entry) {
    await this.#caves.open(entry);
    this.#screens.enter("caves", {
      shown: () => {
        this.#caves.show();
        this.#caves.focus();
      },
      left: () => this.#caves.close(),
    });
  }

  // Plays a record; its cave can be played from there.
  watch(bytes) {
    const { name } = this.#machine.tellRecord(bytes);
    return this.#run({
      begin: (run) => run.replay(bytes),
      save: () => saveFile(withEnding(name), bytes),
      playCave: () => this.playCaveOf(bytes),
    });
  }

  #wireHead() {
    byId.home.addEventListener("click", () => this.#screens.home());
    byId.help.addEventListener("click", () => showHelp());
    byId.player.addEventListener("click", () => this.#askPlayer());
    byId.language.addEventListener("click", () => this.#changeLanguage());
    takeFiles(byId.file, (files) => this.#take(files));
  }

  // Shows who plays, and the other language.
  showHead() {
    const czech = currentLanguage() === "cs";
    byId.language.textContent = czech ? "English" : "Česky";
    byId.language.lang = czech ? "en" : "cs";
    byId.player.textContent = this.#player || word("player");
  }

  #changeLanguage() {
    chooseLanguage(currentLanguage() === "cs" ? "en" : "cs");
    sayAll();
    this.showHead();
    if (this.#screens.last === "caves") this.#screens.home();
    else this.#screens.refresh();
  }

  // Asks who plays; whether there is a player now.
  async #askPlayer() {
    const typed = await askForText(
      word("playerTitle"), word("playerLine"), word("player"), this.#player || word("playerUsual"),
      caption("dialog.ok"));
    if (typed === null) return this.#player !== "";
    const name = this.#machine.playerName(typed);
    if (name === "") {
      await tell(word("playerTitle"), word("playerNone"));
      return this.#player !== "";
    }
    this.#player = name;
    choices.set("player", name);
    this.showHead();
    this.#screens.refresh();
    return true;
  }

  async #take(files) {
    if (!(await this.#runScreen.mayEnd("Zorík", caption("outside.endrun")))) return;
    if (this.#runScreen.isOpen) this.#screens.back();
    if (await this.#incoming.take(files)) this.#screens.refresh();
  }

  // A postcard is played at once; the bar of the record can save it.
  async #takePostcard(letters) {
    let bytes;
    try {
      bytes = await recordOfPostcard(this.#machine, letters);
      this.#machine.tellRecord(bytes);
    } catch (failure) {
      const told = () => tell(word("damagedTitle"), word("damagedPostcard"), failure.message);
      await this.#runScreen.heldFor(told);
      return;
    }
    if (await this.#runScreen.mayEnd("Zorík", caption("outside.endrun"))) await this.watch(bytes);
  }

  async #removeOther(file) {
    if (!(await confirmed("Zorík", word("removeRecordAsk", file)))) return;
    await this.#library.removeOther(file);
    this.#screens.refresh();
  }

  async #removeCollection(entry, name) {
    if (!(await confirmed("Zorík", word("removeCollectionAsk", name)))) return;
    await this.#library.removeCollection(entry.file);
    this.#screens.back();
  }

  async #play(number) {
    if (this.#player === "" && !(await this.#askPlayer())) return;
    await this.#start(number, Kind.play);
  }

  #start(number, kind) {
    const { collection } = this.#caves;
    return this.#run({
      begin: (run) => run.start(collection, number, { kind, player: this.#player }),
      won: (run) => this.#won(run, number),
    });
  }

  // Opens the screen of a run, in place of one that is open; one that cannot be played is told of.
  async #run(job) {
    try {
      await this.#runScreen.open({ ...job, left: () => this.#screens.back() });
    } catch (failure) {
      await tell(word("damagedTitle"), caption("error.cave"), failure.message);
      if (this.#runScreen.isOpen) this.#screens.back();
      return;
    }
    this.#screens.enter("run", { left: () => this.#runScreen.close() });
  }

  playCaveOf(bytes) {
    return this.#run({
      begin: (run) => run.startCaveOf(bytes, { kind: Kind.play, player: this.#player || word("playerUsual") }),
      won: (run) => this.#wonElsewhere(run, bytes),
    });
  }

  // A win in the open collection.
  async #won(run, number) {
    const record = { ...run.record(), score: run.state().score };
    const told = await keepWin(this.#library, this.#player, this.#caves.collection, number, record);
    const answer = await showWin(run, told);
    if (answer === "again") return this.#start(number, Kind.play);
    if (answer === "save") saveFile(withEnding(record.name), record.bytes);
    this.#caves.choose(number + 1);
    this.#screens.back();
  }

  // A win in a cave that came with a record.
  async #wonElsewhere(run, bytes) {
    const record = run.record();
    const answer = await showWin(run, null);
    if (answer === "again") return this.playCaveOf(bytes);
    if (answer === "save") saveFile(withEnding(record.name), record.bytes);
    this.#screens.back();
  }
}

const withEnding = (file) => (file.toLowerCase().endsWith(recordEnding) ? file : file + recordEnding);
