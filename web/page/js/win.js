// A run that was won: what it is worth, and whether its record is kept.

import { ask, confirmed } from "./dialogs.js";
import { element } from "./elements.js";
import { Standing } from "./library.js";
import { caption, word } from "./words.js";

// Keeps the record of a won run unless a better one stands in its place and the player would rather have that. Answers
// what the player is to be told.
export async function keepWin(library, player, collection, number, { name, bytes, score }) {
  const standing = await library.standing(player, name, collection, number, score);
  const question = { [Standing.Better]: "record.better", [Standing.OtherCave]: "record.other" }[standing];
  if (question && !(await confirmed(caption("record.bettertitle"), caption(question)))) return word("winKept");
  try {
    await library.keepRecord(player, name, bytes);
  } catch {
    return word("winNotStored");
  }
  return word(library.keeps ? "winStored" : "winPassing");
}

// Shows what a won run is worth: "next", "again", "save" or null.
export function showWin(run, told) {
  const { score, bonus } = run.state();
  const content = element("div", {},
    element("p", { className: "quiet" }, run.breakdown()),
    element("p", { className: "score", id: "score" }, String(score).padStart(5, "0")),
    ...(bonus ? [element("p", {}, word("bonusPoints"))] : []),
    ...(told ? [element("p", {}, told)] : []));
  return ask(word("winTitle"), [], [
    { label: word("next"), value: "next" },
    { label: word("exportRecord"), value: "save" },
    { label: word("again"), value: "again" },
  ], { content });
}
