// The pace of a run: a tick when one is due, and a picture for each frame of the screen. Ticks that were missed are not
// made up, and there is never more than one for a frame.

export class Beat {
  #tick;
  #draw;
  #frame = 0;
  #last = 0;
  #interval = 141;

  // tick: one tick of the run. draw(way): the picture, way from 0 to 1 between the last tick and the next.
  constructor(tick, draw) {
    this.#tick = tick;
    this.#draw = draw;
  }

  get runs() {
    return this.#frame !== 0;
  }

  set interval(milliseconds) {
    this.#interval = milliseconds;
  }

  start() {
    if (this.runs) return;
    this.#last = performance.now();
    this.#frame = requestAnimationFrame((now) => this.#show(now));
  }

  stop() {
    cancelAnimationFrame(this.#frame);
    this.#frame = 0;
  }

  #show(now) {
    this.#frame = requestAnimationFrame((next) => this.#show(next));
    const passed = now - this.#last;
    if (passed >= this.#interval) {
      // What is left over goes to the next tick, unless that is long.
      this.#last = passed < 2 * this.#interval ? this.#last + this.#interval : now;
      this.#tick();
    }
    if (this.runs) this.#draw(Math.min(1, Math.max(0, (now - this.#last) / this.#interval)));
  }
}

// The interval of a tick at a speed from 1, the fastest, to 10.
export const intervalOf = (speed) => 20 * speed - 19;
export const USUAL_SPEED = 8;
