// The collections and records that the player has: those that come with the game, and what the browser keeps. How far
// the player has come is told by the machine, from the records alone.

const collectionEnding = ".zk";
export const recordEnding = ".zkr";

// What a record is worth where another stands in its place.
export const Standing = { Nothing: "nothing", Worse: "worse", Better: "better", OtherCave: "otherCave" };

export class Library {
  #machine;
  #assets;
  #index;
  #store;
  #records = []; // rows of the store, of all players
  #others = [];
  #outside = []; // collections from outside

  constructor(machine, assets, index, store) {
    this.#machine = machine;
    this.#assets = assets;
    this.#index = index;
    this.#store = store;
  }

  get keeps() {
    return this.#store.keeps;
  }

  // Reads what is kept; before each write, since the page may be open twice.
  async read() {
    [this.#records, this.#others, this.#outside] = await Promise.all([
      this.#store.records.all(),
      this.#store.others.all(),
      this.#store.collections.all(),
    ]);
  }

  // Collections

  // Those of a language that come with the game, then those from outside: {file, name, bytes(), shipped}.
  shelf(language) {
    const shipped = (this.#index.collections[language] ?? []).map((row) => ({
      file: row.file,
      shipped: true,
      proofs: row.records ?? [],
      bytes: () => this.#assets.bytes(`assets/${row.file}`),
    }));
    const outside = this.#outside.map((row) => ({
      file: row.file,
      shipped: false,
      proofs: [],
      bytes: async () => row.bytes,
    }));
    return [...shipped, ...outside];
  }

  // Opens one of the shelf; the caller closes it.
  async open(entry) {
    return this.#machine.openCollection(await entry.bytes());
  }

  // Takes in a collection from outside, under a free name. Nothing that is there is replaced; one that is there already,
  // byte for byte, is not taken twice.
  async addCollection(file, bytes) {
    this.#machine.openCollection(bytes).close();
    await this.read();
    const twin = this.#outside.find((row) => sameBytes(row.bytes, bytes));
    if (twin) return twin.file;
    const row = { file: freeName(file, collectionEnding, this.#outside), bytes };
    await this.#store.collections.add(row);
    this.#outside.push(row);
    return row.file;
  }

  async removeCollection(file) {
    await this.#store.collections.remove(file);
    this.#outside = this.#outside.filter((row) => row.file !== file);
  }

  // Records

  // The player's records as the machine wants them.
  recordsOf(player) {
    return this.#records.filter((row) => row.player === player).map((row) => [row.file, row.bytes]);
  }

  recordOf(player, file) {
    return this.#records.find((row) => row.player === player && row.file === file)?.bytes;
  }

  progress(collection, player) {
    return collection.progress(player, this.recordsOf(player));
  }

  // What stands where a record of this cave would be kept. Where nothing can be read what was read before holds.
  async standing(player, file, collection, number, score) {
    await this.read().catch(() => {});
    const bytes = this.recordOf(player, file);
    if (!bytes) return Standing.Nothing;
    if (collection && !collection.holdsCaveOf(number, bytes)) return Standing.OtherCave;
    return score >= this.#machine.tellRecord(bytes).score ? Standing.Worse : Standing.Better;
  }

  async keepRecord(player, file, bytes) {
    const row = { player, file, bytes };
    await this.#store.records.put(row);
    this.#records = this.#records.filter((old) => old.player !== player || old.file !== file);
    this.#records.push(row);
  }

  // Records of others

  others() {
    return [...this.#others];
  }

  async addOther(file, bytes) {
    await this.read();
    const twin = this.#others.find((row) => sameBytes(row.bytes, bytes));
    if (twin) return twin.file;
    const row = { file: freeName(file, recordEnding, this.#others), bytes };
    await this.#store.others.add(row);
    this.#others.push(row);
    return row.file;
  }

  async removeOther(file) {
    await this.#store.others.remove(file);
    this.#others = this.#others.filter((row) => row.file !== file);
  }

  // Where a record belongs: a cave of the shelf that it is of, with the number and the name to keep it under.
  async caveOf(bytes, language) {
    const { name } = this.#machine.tellRecord(bytes);
    for (const entry of this.shelf(language)) {
      const found = await this.#caveIn(entry, name, bytes).catch(() => null);
      if (found) return { entry, ...found };
    }
    return null;
  }

  async #caveIn(entry, name, bytes) {
    const collection = await this.open(entry);
    try {
      const cave = collection
        .tell()
        .caves.find(({ record, number }) => sameName(record, name) && collection.holdsCaveOf(number, bytes));
      return cave ? { number: cave.number, file: cave.record } : null;
    } finally {
      collection.close();
    }
  }
}

const sameName = (one, other) => one.toLowerCase() === other.toLowerCase();

function sameBytes(one, other) {
  return one.length === other.length && one.every((byte, place) => byte === other[place]);
}

// A name that none of the rows has: with as many "~" as it takes.
function freeName(file, ending, rows) {
  const stem = file.toLowerCase().endsWith(ending) ? file.slice(0, -ending.length) : file;
  let name = stem + ending;
  for (let marks = "~"; rows.some((row) => sameName(row.file, name)); marks += "~") name = stem + marks + ending;
  return name;
}
