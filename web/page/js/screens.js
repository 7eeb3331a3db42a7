// Which of the page's screens is seen. Each that is gone into is a step of the browser's history, so that its way back, a
// gesture on a phone, leads out of it.

import { byId } from "./elements.js";

const NAMES = ["start", "shelf", "caves", "run"];

export class Screens {
  #way = []; // {name, place, shown, left}, the outermost first
  #place = 1; // in the browser's history, of the entry that the page stands at

  constructor() {
    addEventListener("popstate", () => this.#moved());
  }

  // Starts at this screen. shown(): called whenever it comes to be seen.
  begin(name, shown) {
    this.#standAt(history.state?.place ?? 1);
    this.#way = [{ name, place: this.#place, shown }];
    this.#show();
  }

  // Goes into a screen, unless it is the last one already. left(): called when it is left.
  enter(name, { shown = () => {}, left = () => {} } = {}) {
    if (this.last !== name) {
      this.#place += 1;
      history.pushState({ place: this.#place }, "");
      this.#way.push({ name, place: this.#place, shown, left });
    }
    this.#show();
  }

  // Leaves the last screen that was gone into.
  back() {
    if (this.#way.length > 1) history.go(this.#way.at(-2).place - this.#place);
  }

  // Leaves as many as it takes to see the first.
  home() {
    if (this.#way.length > 1) history.go(this.#way[0].place - this.#place);
    else this.#show();
  }

  get last() {
    return this.#way.at(-1)?.name;
  }

  // What is seen has changed.
  refresh() {
    this.#way.at(-1)?.shown();
  }

  // Who puts something behind the # of the address goes nowhere, but makes an entry that knows no place yet: the screen
  // that is seen moves there.
  #moved() {
    if (!history.state?.place) {
      this.#standAt(this.#place + 1);
      this.#way.at(-1).place = this.#place;
      return;
    }
    this.#place = history.state.place;
    this.#leave();
  }

  #standAt(place) {
    this.#place = place;
    history.replaceState({ place }, "");
  }

  #leave() {
    while (this.#way.length > 1 && this.#way.at(-1).place > this.#place) this.#way.pop().left();
    const [first] = this.#way;
    first.place = Math.min(first.place, this.#place);
    this.#show();
  }

  #show() {
    for (const name of NAMES) byId[name].hidden = name !== this.last;
    this.refresh();
  }
}
