// The caves of a collection: which are open, what they look like, what was won. As on the desktop a chosen cave is told of
// beside the list, Enter plays it, R plays its record, T is for practice.

import { CaveState } from "../machine/machine.mjs";
import { tell, confirmed } from "./dialogs.js";
import { byId, element, iconLock } from "./elements.js";
import { caption, counted, text, word } from "./words.js";

const TEXT_REST = 78;
const TEXT_ONE_CAVE = 79;
const TEXT_FEW_CAVES = 80;
const TEXT_MANY_CAVES = 81;
const TEXT_SOLVE_FIRST = 84;
const STATE_CLASS = { [CaveState.closed]: "closed", [CaveState.solved]: "solved", [CaveState.solvedByOther]: "other" };
const STATE_WORD = {
  [CaveState.closed]: "closed",
  [CaveState.open]: "open1",
  [CaveState.solved]: "solved",
  [CaveState.solvedByOther]: "solvedByOther",
};

export class Caves {
  #library;
  #machine;
  #thumbnails;
  #acts;
  #entry = null;
  #collection = null;
  #about = null;
  #progress = null;
  #chosen = 1;

  // acts: {play(number), practise(number), watch(bytes), watchProof(path), save(name, bytes), saveAll(), remove(entry),
  // player()}.
  constructor(library, machine, thumbnails, acts) {
    this.#library = library;
    this.#machine = machine;
    this.#thumbnails = thumbnails;
    this.#acts = acts;
    byId.play.addEventListener("click", () => acts.play(this.#chosen));
    byId.practise.addEventListener("click", () => acts.practise(this.#chosen));
    byId.watch.addEventListener("click", () => this.#watch());
    byId.exportRecord.addEventListener("click", () => acts.save(this.cave.record, this.#record()));
    byId.exportAll.addEventListener("click", () => acts.saveAll());
    byId.proof.addEventListener("click", () => this.#watchProof());
    byId.congratulation.addEventListener("click", () => this.#congratulate());
    byId.removeCollection.addEventListener("click", () => acts.remove(this.#entry, this.#about.name));
    byId.caveList.addEventListener("keydown", (event) => this.#press(event));
  }

  get collection() {
    return this.#collection;
  }

  get cave() {
    return this.#about.caves[this.#chosen - 1];
  }

  // The records that the player has of this collection: [name, bytes].
  records() {
    return this.#about.caves.flatMap(({ record }) => {
      const bytes = this.#library.recordOf(this.#acts.player(), record);
      return bytes ? [[record, bytes]] : [];
    });
  }

  async open(entry) {
    const collection = await this.#library.open(entry);
    this.close();
    this.#entry = entry;
    this.#collection = collection;
    this.#about = collection.tell();
    this.#chosen = 1;
  }

  close() {
    this.#collection?.close();
    this.#collection = null;
  }

  // Shows the collection as it stands.
  show() {
    this.#progress = this.#library.progress(this.#collection, this.#acts.player());
    const { name, author, description, caves } = this.#about;
    byId.collectionName.textContent = name;
    byId.collectionAuthor.textContent = author ? `© ${author}` : "";
    byId.collectionDescription.textContent = description;
    byId.collectionStatus.textContent = this.#status();
    byId.congratulation.hidden = this.#progress.rest !== 0;
    byId.removeCollection.hidden = this.#entry.shipped;
    byId.exportAll.disabled = this.records().length === 0;
    byId.caveList.replaceChildren(...caves.map((cave) => this.#card(cave)));
    this.choose(this.#chosen);
  }

  #status() {
    const { rest, total } = this.#progress;
    const caves = counted(rest, text(TEXT_ONE_CAVE), text(TEXT_FEW_CAVES), text(TEXT_MANY_CAVES));
    const left = rest === 0 ? "" : `${text(TEXT_REST)} ${rest} ${caves}. `;
    return `${left}${caption("statistics.points")}: ${String(total).padStart(5, "0")}`;
  }

  #state(number) {
    return this.#progress.caves[number - 1];
  }

  #card(cave) {
    const { number, name } = cave;
    const state = this.#state(number);
    const closed = state === CaveState.closed;
    const canvas = closed ? iconLock() : element("canvas", { width: 190, height: 110 });
    if (!closed) this.#thumbnails.draw(canvas, this.#collection, cave).catch(() => {});
    canvas.setAttribute("aria-hidden", "true");
    const score = this.#progress.scores[number - 1];
    const said = closed ? word("closed") : name;
    const points = score > 0 ? word("points", score) : "";
    const button = element("button", {
      className: STATE_CLASS[state] ?? "",
      onclick: () => this.choose(number),
      ondblclick: () => this.#play(),
    }, canvas,
    element("span", { className: "name" }, `${number}. ${said}`),
    element("span", { className: "points" }, points || "\u00a0"));
    button.setAttribute("aria-label", `${number}. ${said}, ${word(STATE_WORD[state])} ${points}`);
    button.dataset.number = number;
    return element("li", {}, button);
  }

  choose(number) {
    if (number < 1 || number > this.#about.caves.length) return;
    this.#chosen = number;
    for (const button of byId.caveList.querySelectorAll("button")) {
      const chosen = Number(button.dataset.number) === number;
      button.setAttribute("aria-current", String(chosen));
      button.tabIndex = chosen ? 0 : -1;
    }
    this.#tellCave();
  }

  focus() {
    byId.caveList.querySelector('[aria-current="true"]')?.focus();
  }

  #tellCave() {
    const cave = this.cave;
    const closed = this.#state(this.#chosen) === CaveState.closed;
    const record = this.#record();
    byId.caveName.textContent = closed ? word("closed") : cave.name;
    byId.caveDescription.textContent = closed
      ? `${text(TEXT_SOLVE_FIRST)}\n${this.#openBefore()?.name ?? ""}`
      : cave.description;
    byId.caveFacts.textContent = closed ? "" : this.#facts(cave, record);
    byId.play.hidden = byId.practise.hidden = closed;
    byId.watch.hidden = byId.exportRecord.hidden = this.#state(this.#chosen) < CaveState.solved || !record;
    byId.proof.hidden = closed || !this.#proofPath();
  }

  #facts(cave, record) {
    const facts = [word("facts", cave.width, cave.height, cave.gems, cave.time)];
    if (cave.bonus) facts.push(word("bonus"));
    if (record && this.#state(this.#chosen) >= CaveState.solved) {
      facts.push(word("best", (this.#machine.judgeRecord(record).ticks / 10).toFixed(1)));
    }
    return facts.join(" · ");
  }

  #openBefore() {
    return this.#about.caves
      .slice(0, this.#chosen - 1)
      .findLast(({ number }) => this.#state(number) === CaveState.open);
  }

  #record() {
    return this.#library.recordOf(this.#acts.player(), this.cave.record);
  }

  #proofPath() {
    const wanted = `/${String(this.#chosen).padStart(2, "0")}.zkr`;
    return this.#entry.proofs.find((path) => path.endsWith(wanted));
  }

  #press(event) {
    if (event.ctrlKey || event.altKey || event.metaKey) return;
    const across = this.#acrossTheList();
    const acts = {
      ArrowLeft: () => this.#move(-1),
      ArrowRight: () => this.#move(1),
      ArrowUp: () => this.#move(-across),
      ArrowDown: () => this.#move(across),
      Home: () => this.#move(-this.#chosen + 1),
      End: () => this.#move(this.#about.caves.length - this.#chosen),
      Enter: () => this.#play(),
      " ": () => this.#play(),
      r: () => this.#watch(),
      z: () => this.#watch(),
      t: () => byId.practise.hidden || this.#acts.practise(this.#chosen),
      g: () => byId.congratulation.hidden || this.#congratulate(),
    };
    const act = acts[event.key.length === 1 ? event.key.toLowerCase() : event.key];
    if (!act) return;
    event.preventDefault();
    act();
  }

  // How many cards stand side by side.
  #acrossTheList() {
    const rows = [...byId.caveList.children];
    return Math.max(1, rows.filter((row) => row.offsetTop === rows[0].offsetTop).length);
  }

  #move(by) {
    this.choose(Math.min(this.#about.caves.length, Math.max(1, this.#chosen + by)));
    this.focus();
  }

  #play() {
    if (!byId.play.hidden) this.#acts.play(this.#chosen);
  }

  #watch() {
    if (!byId.watch.hidden) this.#acts.watch(this.#record());
  }

  async #watchProof() {
    const path = this.#proofPath();
    if (await confirmed(this.cave.name, word("proofAsk"))) this.#acts.watchProof(path);
  }

  #congratulate() {
    const points = String(this.#progress.total).padStart(5, "0");
    tell(this.#about.name, this.#about.congratulation.replaceAll("$P", points));
  }
}
