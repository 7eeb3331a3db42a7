// What the page says, in the player's language: the texts and captions of the game's skins where they have it, and a few
// words of its own. A place ?1? in a text gives way to what is said there.

import cs from "./words-cs.js";
import en from "./words-en.js";
import { choices } from "./store.js";

const OWN = { cs, en };
let language = "en";
let skins = { texts: {}, words: {} };

// Czech for browsers that ask for it, unless the player has chosen.
function usualLanguage() {
  const tags = navigator.languages.map((tag) => tag.slice(0, 2).toLowerCase());
  const first = tags.find((tag) => tag === "cs" || tag === "en");
  return first ?? "en";
}

export function beginWords(index) {
  skins = index;
  const chosen = choices.get("language", "");
  language = OWN[chosen] ? chosen : usualLanguage();
}

export const currentLanguage = () => language;

export function chooseLanguage(wanted) {
  language = wanted;
  choices.set("language", wanted);
}

const filled = (text, values) => text.replace(/\?(\d)\?/g, (place, number) => values[number - 1] ?? place);

// The page's own words.
export const word = (key, ...values) => filled(OWN[language][key] ?? key, values);

// A text of the game's table, # in it being a line break.
export const text = (place, ...values) =>
  filled((skins.texts[language]?.[place] ?? "").replaceAll("#", "\n"), values);

// A caption of the skins.
export const caption = (key, ...values) =>
  filled((skins.words[language]?.[`caption.${key}`] ?? key).replaceAll("#", "\n"), values);

// data-word: what an element says; data-name: what it is called, for those who point at it or cannot see it. A key is
// one of the page's own, or "caption:key", or "text:place".
function said(key) {
  const [kind, rest] = key.split(":");
  if (kind === "caption") return caption(rest);
  if (kind === "text") return text(Number(rest));
  return word(key);
}

export function sayAll(root = document) {
  document.documentElement.lang = language;
  for (const element of root.querySelectorAll("[data-word]")) element.textContent = said(element.dataset.word);
  for (const element of root.querySelectorAll("[data-name]")) {
    element.setAttribute("aria-label", said(element.dataset.name));
    element.title = said(element.dataset.name);
  }
}

// The word for so many: one, two to four, more.
export function counted(number, one, few, many) {
  if (number === 1) return one;
  return number >= 2 && number <= 4 ? few : many;
}
