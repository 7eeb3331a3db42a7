// The bar above the picture: the clock, the gems, what the next is worth, and the units, each a button that chooses it.

import { Key } from "./keys.js";
import { word } from "./words.js";

const FLEAS = 0;
const digits = (number, count) => String(number).padStart(count, "0");

export class Figures {
  #parts;
  #choose;
  #shown = "";

  // parts: elements by name. choose(key): the player wants the unit of this key.
  constructor(parts, choose) {
    this.#parts = parts;
    this.#choose = choose;
  }

  show(state, helpless) {
    const { clock, gems, needed, value, restart } = this.#parts;
    this.#say(clock, digits(state.clock, 3));
    this.#say(gems, digits(state.gems, 3));
    this.#say(needed, digits(state.gemsNeeded, 3));
    this.#say(value, digits(state.gemValue, 2));
    restart.classList.toggle("pulse", helpless);
    this.#showUnits(state);
  }

  #say(element, text) {
    if (element.textContent !== text) element.textContent = text;
  }

  #showUnits(state) {
    const present = state.units.map((unit, number) => ({ ...unit, number })).filter((unit) => !unit.absent);
    const shown = JSON.stringify([state.unit, present.map(({ number, alive }) => [number, alive])]);
    if (shown === this.#shown) return;
    this.#shown = shown;
    const several = present.length > 1;
    this.#parts.units.replaceChildren(...(several ? present.map((unit) => this.#button(unit, state.unit)) : []));
  }

  #button({ number, alive }, steered) {
    const button = document.createElement("button");
    button.textContent = number === FLEAS ? "✱" : number;
    const name = number === FLEAS ? word("fleas") : word("unit", number);
    button.setAttribute("aria-label", alive ? name : `${name} (${word("dead")})`);
    button.setAttribute("aria-pressed", String(number === steered));
    button.classList.toggle("dead", !alive);
    button.tabIndex = -1;
    button.addEventListener("click", () => this.#choose(Key.Pad0 + number));
    return button;
  }
}
