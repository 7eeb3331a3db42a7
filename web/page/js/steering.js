// Whatever steers a run: the keyboard, a finger on the picture, the button of the key of action. It gathers all of it into
// what the next tick reads.

import { Key, Keyboard, gameKey, isDigit } from "./keys.js";
import { holdAsKey, steerByTouch } from "./touch.js";

const LETTERS = [Key.A, Key.C, Key.P, Key.S];

export class Steering {
  #keyboard = new Keyboard();
  #parts;
  #asks;

  // parts: the elements of the screen. asks: heeds(): whether there is anything to steer; manyUnits(); takes(event):
  // whether a key was for somebody else; letGo(event).
  constructor(parts, asks) {
    this.#parts = parts;
    this.#asks = asks;
    steerByTouch(parts.picture, this.#keyboard);
    holdAsKey(parts.act, this.#keyboard, Key.Space);
    addEventListener("keydown", (event) => this.#press(event));
    addEventListener("keyup", (event) => this.#release(event));
    addEventListener("blur", () => this.releaseAll());
    // Whoever steers by keys goes on steering after a click.
    parts.run.addEventListener("click", (event) => {
      if (event.detail > 0 && asks.heeds() && !dialogIsOpen()) parts.picture.focus();
    });
  }

  // The numbers of the keys that the tick reads; the taps are used up.
  take() {
    return this.#keyboard.take();
  }

  // A key that is pressed and let go at once.
  tap(key) {
    this.#keyboard.press(key, `tap ${key}`);
    this.#keyboard.release(`tap ${key}`);
  }

  releaseAll() {
    this.#keyboard.releaseAll();
  }

  // A button that has the focus keeps its own keys, and Tab leads on from there.
  #heeds(event) {
    if (!this.#asks.heeds() || dialogIsOpen() || event.isComposing) return false;
    const { picture, seek } = this.#parts;
    const elsewhere = ![picture, seek, document.body].includes(document.activeElement);
    return !(elsewhere && [" ", "Enter", "Tab"].includes(event.key));
  }

  #press(event) {
    if (!this.#heeds(event)) return;
    if (this.#asks.takes(event)) {
      event.preventDefault();
      return;
    }
    const key = gameKey(event);
    if (key === undefined || !this.#means(key, event)) return;
    event.preventDefault();
    this.#keyboard.press(key, event.code || event.key, event.repeat);
  }

  // Combinations that are the browser's stay the browser's; Tab is only for caves with several units.
  #means(key, event) {
    if (event.altKey || event.metaKey) return false;
    const zooms = key === Key.PadPlus || key === Key.PadMinus;
    if (event.ctrlKey && (LETTERS.includes(key) || isDigit(key) || zooms)) return false;
    return key !== Key.Tab || this.#asks.manyUnits();
  }

  #release(event) {
    this.#asks.letGo(event);
    this.#keyboard.release(event.code || event.key);
  }
}

const dialogIsOpen = () => document.querySelector("dialog[open]") !== null;
