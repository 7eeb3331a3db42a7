// The keys and the swipes, in a dialog.

import { ask } from "./dialogs.js";
import { element } from "./elements.js";
import { caption, word } from "./words.js";

function keys(...names) {
  const cell = element("td");
  names.forEach((name, place) => cell.append(...(place ? [" "] : []), element("kbd", {}, name)));
  return cell;
}

export function showHelp() {
  const rows = [
    [keys(word("arrows")), word("helpArrows")],
    [keys("Shift", "Ctrl", word("space")), word("helpAct")],
    [keys("S", "A"), word("helpLatch")],
    [keys("Tab"), word("helpTab")],
    [keys(word("digits")), word("helpDigits")],
    [keys("Ctrl+R"), word("helpRestart")],
    [keys("P"), word("helpPause")],
    [keys("+", "−"), word("helpSpeed")],
    [keys("Esc"), word("helpLeave")],
    [keys("Backspace"), word("helpBack")],
  ];
  const table = element("table", {},
    ...rows.map(([cell, meaning]) => element("tr", {}, cell, element("td", {}, meaning))));
  const content = element("div", {}, table, element("p", {}, word("helpTheatre")), element("p", {}, word("helpTouch")));
  return ask(word("helpTitle"), [], [{ label: caption("dialog.ok"), value: "ok" }], { content });
}
