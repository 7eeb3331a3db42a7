// What players make, kept in the browser: their records, other people's records, collections from outside. Where the
// browser keeps nothing (a private window, a page opened as a file), it lives as long as the page.

const NAME = "zorik";
const VERSION = 1;
const TABLES = { records: ["player", "file"], others: "file", collections: "file" };

const asPromise = (request) =>
  new Promise((resolve, reject) => {
    request.onsuccess = () => resolve(request.result);
    request.onerror = () => reject(request.error);
  });

function open() {
  const request = indexedDB.open(NAME, VERSION);
  request.onupgradeneeded = () => {
    for (const [table, keyPath] of Object.entries(TABLES)) request.result.createObjectStore(table, { keyPath });
  };
  return asPromise(request);
}

// A table in the browser's database. A write is answered when it stands on the disk as far as the browser knows.
class KeptTable {
  constructor(database, name) {
    this.database = database;
    this.name = name;
  }

  all() {
    return asPromise(this.database.transaction(this.name).objectStore(this.name).getAll());
  }

  put(row) {
    return this.#write((table) => table.put(row));
  }

  // Fails where a row of this key stands.
  add(row) {
    return this.#write((table) => table.add(row));
  }

  remove(key) {
    return this.#write((table) => table.delete(key));
  }

  #write(change) {
    return new Promise((resolve, reject) => {
      const transaction = this.database.transaction(this.name, "readwrite", { durability: "strict" });
      transaction.oncomplete = () => resolve();
      transaction.onabort = transaction.onerror = () => reject(transaction.error);
      change(transaction.objectStore(this.name));
    });
  }
}

// The same for as long as the page is open.
class PassingTable {
  #rows = new Map();

  constructor(keyPath) {
    this.keyPath = keyPath;
  }

  #keyOf(row) {
    return JSON.stringify(Array.isArray(this.keyPath) ? this.keyPath.map((name) => row[name]) : row[this.keyPath]);
  }

  async all() {
    return [...this.#rows.values()];
  }

  async put(row) {
    this.#rows.set(this.#keyOf(row), row);
  }

  async add(row) {
    if (this.#rows.has(this.#keyOf(row))) throw new Error(`${this.#keyOf(row)} is taken`);
    await this.put(row);
  }

  async remove(key) {
    this.#rows.delete(JSON.stringify(key));
  }
}

const passing = () => ({
  keeps: false,
  ...Object.fromEntries(Object.entries(TABLES).map(([name, keyPath]) => [name, new PassingTable(keyPath)])),
});

// The tables records, others and collections; keeps: whether they outlive the page. A row holds its key and bytes.
export async function openStore(wanted = true) {
  if (!wanted) return passing();
  try {
    const database = await open();
    database.onversionchange = () => database.close();
    return {
      keeps: true,
      ...Object.fromEntries(Object.keys(TABLES).map((name) => [name, new KeptTable(database, name)])),
    };
  } catch {
    return passing();
  }
}

// Small choices of the player, such as the language. They are a convenience: where none are kept the usual holds.
export const choices = {
  get(name, usual) {
    try {
      return localStorage.getItem(`zorik.${name}`) ?? usual;
    } catch {
      return usual;
    }
  },
  set(name, value) {
    try {
      localStorage.setItem(`zorik.${name}`, value);
    } catch {
      // It holds until the page is closed, wherever it is used.
    }
  },
};
