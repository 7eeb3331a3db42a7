// Draws what the machine plans: which frame of which sheet stands where. Each cell's frame is composed once for its size,
// with the ground and the soft edges of earth below it, and kept.

import { DIRT, SPACE } from "./sheets.js";
import { columnOf, edgesOf, rowOf, setOf } from "../machine/machine.mjs";

const KEPT_ACROSS = 32; // composed cells in a row of the store
const KEPT_DOWN = 24;
const LOOSE = "loose"; // a frame without its ground

// Composed cells of one scheme and size, side by side on one canvas.
class Composed {
  #pictures;
  #machine;
  #places = new Map();
  #context;

  constructor(pictures, machine, width, height) {
    this.#pictures = pictures;
    this.#machine = machine;
    this.width = width;
    this.height = height;
    this.canvas = document.createElement("canvas");
    this.canvas.width = width * KEPT_ACROSS;
    this.canvas.height = height * KEPT_DOWN;
    this.#context = this.canvas.getContext("2d");
    this.#context.imageSmoothingQuality = "high";
  }

  fits(pictures, width, height) {
    return this.#pictures === pictures && this.width === width && this.height === height;
  }

  // The corner of a cell's picture on the canvas.
  place(cell, loose = false) {
    const key = loose ? `${LOOSE}${cell}` : cell;
    return this.#places.get(key) ?? this.#compose(key, cell, loose);
  }

  #compose(key, cell, loose) {
    if (this.#places.size === KEPT_ACROSS * KEPT_DOWN) this.#places.clear();
    const number = this.#places.size;
    const x = (number % KEPT_ACROSS) * this.width;
    const y = Math.floor(number / KEPT_ACROSS) * this.height;
    this.#context.clearRect(x, y, this.width, this.height);
    if (!loose) this.#drawGround(cell, x, y);
    if (loose || !this.#isGround(cell)) this.#drawFrame(setOf(cell), columnOf(cell), rowOf(cell), x, y);
    const place = { x, y };
    this.#places.set(key, place);
    return place;
  }

  #isGround(cell) {
    const set = setOf(cell);
    return edgesOf(cell) !== 0 && (set === SPACE || set === DIRT);
  }

  #drawGround(cell, x, y) {
    if (this.#isGround(cell)) this.#drawFrame(setOf(cell), columnOf(cell), rowOf(cell), x, y);
    else this.#drawFrame(SPACE, 0, 0, x, y);
    const edges = edgesOf(cell);
    if (edges === 0 || !this.#pictures.edges) return;
    const ground = setOf(cell) === DIRT ? 1 : 0;
    for (let quarter = 0; quarter < 4; ++quarter) {
      const column = this.#machine.edge(ground, edges, quarter);
      if (column >= 0) this.#drawQuarter(column, quarter, x, y);
    }
  }

  #drawFrame(set, column, row, x, y) {
    const { images, tile } = this.#pictures;
    this.#context.drawImage(
      images[set], column * tile, row * tile, tile, tile, x, y, this.width, this.height);
  }

  #drawQuarter(column, quarter, x, y) {
    const { edges, tile } = this.#pictures;
    const right = quarter % 2;
    const below = quarter >> 1;
    const half = { x: Math.round(this.width / 2), y: Math.round(this.height / 2) };
    const width = right ? this.width - half.x : half.x;
    const height = below ? this.height - half.y : half.y;
    this.#context.drawImage(
      edges, column * tile + (right * tile) / 2, (below * tile) / 2, tile / 2, tile / 2,
      x + right * half.x, y + below * half.y, width, height);
  }
}

export class Picture {
  #canvas;
  #machine;
  #context;
  #composed = null;

  constructor(canvas, machine) {
    this.#canvas = canvas;
    this.#machine = machine;
    this.#context = canvas.getContext("2d", { alpha: false });
  }

  // Draws a plan with the pictures of a scheme. The canvas gets the plan's size.
  draw(plan, pictures) {
    if (plan.width <= 0 || plan.height <= 0) return;
    let whole = plan.fresh;
    if (!this.#composed?.fits(pictures, plan.cellWidth, plan.cellHeight)) {
      this.#composed = new Composed(pictures, this.#machine, plan.cellWidth, plan.cellHeight);
      whole = true;
    }
    if (this.#canvas.width !== plan.width || this.#canvas.height !== plan.height) {
      this.#canvas.width = plan.width;
      this.#canvas.height = plan.height;
      whole = true;
    }
    this.#drawCells(plan, whole);
    this.#drawMovers(plan);
  }

  #drawCells({ columns, rows, columnCount, rowCount, cells, changed }, whole) {
    const { canvas } = this.#composed;
    for (let y = 0; y < rowCount; ++y) {
      const [, top, height, cutAbove] = rows.subarray(4 * y, 4 * y + 4);
      for (let x = 0; x < columnCount; ++x) {
        const number = y * columnCount + x;
        if (!whole && !changed[number]) continue;
        const from = this.#composed.place(cells[number]);
        const left = columns[4 * x + 1];
        const width = columns[4 * x + 2];
        this.#context.drawImage(
          canvas, from.x + columns[4 * x + 3], from.y + cutAbove, width, height, left, top, width, height);
      }
    }
  }

  // What a mover goes over is seen, with its ground, as long as the mover is not there.
  #drawMovers({ movers, moverCount }) {
    for (let i = 0; i < moverCount; ++i) {
      const [x, y, picture, hasUnder, underX, underY, under] = movers.subarray(8 * i, 8 * i + 7);
      if (hasUnder) this.#drawUnder(under, underX, underY, x, y);
      this.#drawCell(picture, x, y, true);
    }
  }

  #drawUnder(cell, x, y, moverX, moverY) {
    const { width, height } = this.#composed;
    this.#context.save();
    this.#context.beginPath();
    this.#context.rect(x, y, width, height);
    this.#context.rect(moverX, moverY, width, height);
    this.#context.clip("evenodd");
    this.#context.beginPath();
    this.#context.rect(x, y, width, height);
    this.#context.clip();
    this.#drawCell(cell, x, y, false);
    this.#context.restore();
  }

  #drawCell(cell, x, y, loose) {
    const { canvas, width, height } = this.#composed;
    const from = this.#composed.place(cell, loose);
    this.#context.drawImage(canvas, from.x, from.y, width, height, x, y, width, height);
  }
}
