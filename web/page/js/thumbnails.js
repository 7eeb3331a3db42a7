// Small pictures of caves as they begin.

import { Kind } from "../machine/machine.mjs";
import { frameIn } from "./frame.js";
import { Picture } from "./picture.js";

const WIDTH = 190; // pixels, about
const HEIGHT = 110;

export class Thumbnails {
  #machine;
  #sheets;
  #run;

  constructor(machine, sheets) {
    this.#machine = machine;
    this.#sheets = sheets;
    this.#run = machine.newRun();
  }

  // Draws a cave, as its collection tells of it, on a canvas.
  async draw(canvas, collection, { number, scheme, width, height }) {
    const pictures = await this.#sheets.load(scheme);
    if (collection.place === 0) return; // it was closed meanwhile
    this.#run.start(collection, number, { kind: Kind.practice });
    this.#run.setStill(true);
    this.#run.setWhole(true);
    const frame = frameIn(WIDTH, HEIGHT, width, height);
    const plan = this.#run.look(frame.width, frame.height, 1);
    new Picture(canvas, this.#machine).draw(plan, pictures);
  }
}
