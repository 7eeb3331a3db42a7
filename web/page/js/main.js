// Starts the page: loads the machine and what it shows, then the shelf, or what the page was made for.

import { loadMachine } from "../machine/machine.mjs";
import { Assets } from "./assets.js";
import { byId } from "./elements.js";
import { Library } from "./library.js";
import { Page } from "./page.js";
import { RunScreen } from "./run.js";
import { Screens } from "./screens.js";
import { Sheets } from "./sheets.js";
import { beginSingle, givenHere, packedHere } from "./single.js";
import { Sounds } from "./sound.js";
import { openStore } from "./store.js";
import { Thumbnails } from "./thumbnails.js";
import { beginWords, word } from "./words.js";

const WASM = "machine/zorik.wasm";

async function begin() {
  const packed = packedHere();
  const assets = new Assets(packed);
  const [index, wasm] = await Promise.all([assets.json("assets/index.json"), assets.bytes(WASM)]);
  beginWords(index);
  const machine = await loadMachine(wasm);
  const sheets = new Sheets(assets, index, machine);
  const sounds = new Sounds();
  for (const gesture of ["pointerdown", "keydown"]) addEventListener(gesture, () => sounds.wake());
  wireSoundSwitch(sounds);
  const library = new Library(machine, assets, index, await openStore(!packed));
  await library.read();
  const runScreen = new RunScreen(machine, sheets, sounds, byId);
  const screens = new Screens();
  const thumbnails = new Thumbnails(machine, sheets);
  const page = new Page({ machine, assets, library, screens, runScreen, thumbnails });
  const given = givenHere();
  if (given) await beginSingle(given, { page, library, machine, screens });
  else page.begin();
  // For those who look into the page, and its tests.
  globalThis.zorik = { machine, run: runScreen.run };
  document.documentElement.dataset.ready = "yes";
  sounds.take(await machine.sounds(index.sounds));
}

function wireSoundSwitch(sounds) {
  byId.soundSwitch.addEventListener("click", () => {
    sounds.on = !sounds.on;
    byId.soundSwitch.setAttribute("aria-pressed", String(sounds.on));
  });
}

begin().catch((failure) => {
  byId.start.hidden = false;
  byId.loading.textContent = `${word("noStart")} ${word("noStartHint")} (${failure.message})`;
  throw failure;
});
