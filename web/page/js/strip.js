// The strip of text over the picture. It goes three seconds after it came; a message that replaces another does not
// start these anew.

const STAYS = 3000; // milliseconds

// A colour as a number with red in its low byte.
const cssColour = (colour) => `rgb(${colour & 255} ${(colour >> 8) & 255} ${(colour >> 16) & 255})`;
const WHITE = 0xffffff;

export class Strip {
  #element;
  #timer = 0;

  constructor(element) {
    this.#element = element;
  }

  show(text, colour = WHITE) {
    this.#say(text, colour);
    this.#timer ||= setTimeout(() => this.clear(), STAYS);
  }

  // Stays until it is cleared or replaced.
  notice(text) {
    this.clear();
    this.#say(text, WHITE);
  }

  clear() {
    clearTimeout(this.#timer);
    this.#timer = 0;
    this.#element.textContent = "";
  }

  #say(text, colour) {
    this.#element.textContent = text;
    this.#element.style.color = cssColour(colour);
  }
}
