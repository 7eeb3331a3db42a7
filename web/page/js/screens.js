// Which of the page's screens is seen. Each that is gone into is a step of the browser's history, so that its way back, a
// gesture on a phone, leads out of it.

import { byId } from "./elements.js";

const NAMES = ["start", "shelf", "caves", "run"];

export class Screens {
  #way = []; // {name, shown, left}, the outermost first

  constructor() {
    addEventListener("popstate", () => this.#leaveLast());
  }

  // Starts at this screen. shown(): called whenever it comes to be seen.
  begin(name, shown) {
    this.#way = [{ name, shown }];
    this.#show();
  }

  // Goes into a screen. left(): called when it is left.
  enter(name, { shown = () => {}, left = () => {} } = {}) {
    this.#way.push({ name, shown, left });
    history.pushState({ depth: this.#way.length }, "");
    this.#show();
  }

  // Leaves the last screen that was gone into.
  back() {
    if (this.#way.length > 1) history.back();
  }

  // Leaves as many as it takes to see the first.
  home() {
    if (this.#way.length > 1) history.go(1 - this.#way.length);
    else this.#show();
  }

  get last() {
    return this.#way.at(-1)?.name;
  }

  // What is seen has changed.
  refresh() {
    this.#way.at(-1)?.shown();
  }

  #leaveLast() {
    const depth = history.state?.depth ?? 1;
    while (this.#way.length > Math.max(1, depth)) this.#way.pop().left();
    this.#show();
  }

  #show() {
    for (const name of NAMES) byId[name].hidden = name !== this.last;
    this.refresh();
  }
}
