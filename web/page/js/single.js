// A page that is one file: what it shows, and all that it needs, lies within it.

import { bytesOfBase64 } from "./assets.js";
import { byId, element } from "./elements.js";
import { sayAll, word, text } from "./words.js";

const TEXT_PLAY_CAVE = 0;
const TEXT_PLAY_RECORD = 1;

function read(id) {
  const script = document.getElementById(id);
  return script ? JSON.parse(script.textContent) : null;
}

// The files that lie within this page, in base64 by their paths; null for a page with its files beside it.
export const packedHere = () => read("packed");

// What the page was made for: {kind: "record" or "collection", bytes in base64}; null for the whole game.
export const givenHere = () => read("given");

export async function beginSingle(given, { page, library, machine, screens }) {
  sayAll();
  const bytes = bytesOfBase64(given.bytes);
  document.body.classList.add("single");
  if (given.kind === "collection") {
    await library.addCollection("given.zk", bytes);
    page.begin({ warns: false });
    await page.openCollection(library.shelf("").find((entry) => !entry.shipped));
    return;
  }
  const { cave, collection, player, score } = machine.tellRecord(bytes);
  const show = () => byId.start.replaceChildren(element("div", {},
    element("h2", {}, cave),
    element("p", {}, word("recordBy", player || word("nobody"), cave, collection, score)),
    element("div", { className: "buttons" },
      element("button", { className: "main", onclick: () => page.watch(bytes) }, text(TEXT_PLAY_RECORD)),
      element("button", { onclick: () => page.playCaveOf(bytes) }, text(TEXT_PLAY_CAVE)))));
  page.showHead();
  screens.begin("start", show);
  await page.watch(bytes);
}
