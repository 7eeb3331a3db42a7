// What becomes of a file from outside: a collection joins the shelf, a record of the player's own counts if it is better,
// and any other record joins those from outside. A damaged one is told of, and changes nothing.

import { tell } from "./dialogs.js";
import { Standing, recordEnding } from "./library.js";
import { currentLanguage, word } from "./words.js";

const samePlayer = (one, other) => one.trim().toLowerCase() === other.trim().toLowerCase();

export class Incoming {
  #library;
  #machine;
  #player;

  // player(): the player's name.
  constructor(library, machine, player) {
    this.#library = library;
    this.#machine = machine;
    this.#player = player;
  }

  // Takes files [{name, bytes}...]; answers whether anything came in, and tells the player what.
  async take(files) {
    const good = [];
    const bad = [];
    for (const file of files) {
      try {
        good.push(await this.#takeOne(file));
      } catch (failure) {
        bad.push([word(failure.wordKey ?? "storeFailed", file.name), failure.detail].filter(Boolean).join("\n"));
      }
    }
    if (bad.length > 0) await tell(word("damagedTitle"), ...bad, ...good);
    else if (good.length > 0) await tell("Zorík", ...good);
    return good.length > 0;
  }

  async #takeOne({ name, bytes }) {
    const lower = name.toLowerCase();
    if (lower.endsWith(".zk")) return this.#takeCollection(name, bytes);
    if (lower.endsWith(recordEnding)) return this.#takeRecord(name, bytes);
    throw refusal("unknownKind");
  }

  async #takeCollection(name, bytes) {
    readable("damagedCollection", () => this.#machine.openCollection(bytes).close());
    return word("took", await this.#library.addCollection(name, bytes));
  }

  async #takeRecord(name, bytes) {
    const head = readable("damagedRecord", () => this.#machine.tellRecord(bytes));
    const { verdict } = this.#machine.judgeRecord(bytes);
    const wins = verdict === "won";
    if (wins && samePlayer(head.player, this.#player())) {
      const told = await this.#takeOwn(name, bytes, head);
      if (told) return told;
    }
    const file = await this.#library.addOther(name, bytes);
    return wins ? word("took", file) : word("lostRecord", file);
  }

  async #takeOwn(name, bytes, { cave, score }) {
    const place = await this.#library.caveOf(bytes, currentLanguage());
    if (!place) return null;
    const collection = await this.#library.open(place.entry);
    const standing = await this.#library.standing(this.#player(), place.file, collection, place.number, score);
    collection.close();
    if (standing === Standing.Nothing || standing === Standing.Worse) {
      await this.#library.keepRecord(this.#player(), place.file, bytes);
      return word("tookMine", cave);
    }
    await this.#library.addOther(name, bytes);
    return word("keptBetter", cave);
  }
}

function refusal(wordKey, detail) {
  return Object.assign(new Error(wordKey), { wordKey, detail });
}

// Runs what reads a file; a failure becomes one that tells so.
function readable(wordKey, read) {
  try {
    return read();
  } catch (failure) {
    throw refusal(wordKey, failure.message);
  }
}
