// The pictures of the colour schemes, loaded when a cave asks for them, and what the machine wants to know of them.

export const SPACE = 0;
export const DIRT = 1;

// What was asked for before; what could not be had is asked for anew the next time.
function kept(promises, key, load) {
  if (!promises.has(key)) {
    promises.set(key, load());
    promises.get(key).catch(() => promises.delete(key));
  }
  return promises.get(key);
}

export class Sheets {
  #assets;
  #schemes; // of the index of assets
  #tile;
  #images = new Map(); // promise by path; schemes share what looks the same in them
  #loaded = new Map(); // promise of {images, edges, tile} by scheme

  constructor(assets, index, machine) {
    this.#assets = assets;
    this.#schemes = index.schemes;
    this.#tile = index.tile;
    for (const [scheme, about] of Object.entries(this.#schemes)) machine.useSheets(scheme, about);
  }

  // The pictures of a scheme; of an unknown one those of the first.
  load(scheme) {
    const known = this.#schemes[scheme] ? scheme : Object.keys(this.#schemes)[0];
    return kept(this.#loaded, known, () => this.#loadScheme(this.#schemes[known]));
  }

  async #loadScheme({ sheets, edges }) {
    const [edgesImage, ...images] = await Promise.all([edges, ...sheets].map((path) => this.#image(path)));
    return { images, edges: edgesImage, tile: this.#tile };
  }

  #image(path) {
    if (!path) return null;
    return kept(this.#images, path, () => this.#assets.image(`assets/${path}`));
  }
}
