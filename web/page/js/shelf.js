// The first screen: the collections, and the records that came from outside.

import { byId, element } from "./elements.js";
import { currentLanguage, word } from "./words.js";

export class Shelf {
  #library;
  #machine;
  #thumbnails;
  #acts;

  // acts: {open(entry), watch(file, bytes), save(file, bytes), removeOther(file), player()}.
  constructor(library, machine, thumbnails, acts) {
    this.#library = library;
    this.#machine = machine;
    this.#thumbnails = thumbnails;
    this.#acts = acts;
  }

  async show() {
    const cards = [];
    for (const entry of this.#library.shelf(currentLanguage())) cards.push(await this.#card(entry));
    byId.collections.replaceChildren(...cards.filter((card) => card));
    const others = this.#library.others();
    byId.othersRoom.hidden = others.length === 0;
    byId.others.replaceChildren(...others.map((row) => this.#row(row)));
  }

  async #card(entry) {
    let collection;
    try {
      collection = await this.#library.open(entry);
    } catch {
      return null;
    }
    const { name, caves, description } = collection.tell();
    const { done, total } = this.#library.progress(collection, this.#acts.player());
    const canvas = element("canvas", { width: 190, height: 110 });
    canvas.setAttribute("aria-hidden", "true");
    this.#thumbnails
      .draw(canvas, collection, caves[0])
      .catch(() => {})
      .finally(() => collection.close());
    const button = element("button", { onclick: () => this.#acts.open(entry) },
      canvas,
      element("strong", {}, name),
      element("span", { className: "quiet" }, description.split("\n")[0]),
      element("span", {}, word("solvedOf", done, caves.length, total)));
    return element("li", {}, button);
  }

  #row({ file, bytes }) {
    return element("li", {},
      element("span", {}, this.#describe(file, bytes)),
      element("button", { onclick: () => this.#acts.watch(file, bytes) }, word("watchLabel")),
      element("button", { onclick: () => this.#acts.save(file, bytes) }, word("save")),
      element("button", { onclick: () => this.#acts.removeOther(file) }, word("remove")));
  }

  #describe(file, bytes) {
    try {
      const { cave, collection, player, score } = this.#machine.tellRecord(bytes);
      return word("recordBy", player || word("nobody"), cave, collection, score);
    } catch {
      return file;
    }
  }
}
