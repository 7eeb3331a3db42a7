// A run that comes as one word: behind the # of the page's address, or pasted.

import { inflated } from "./assets.js";

const START = "ZORIK1:";
// A word holds no more bytes than these, once it is unpacked.
const MOST_BYTES = 1 << 20;

// The word in a text that may stand around it; null where there is none.
function postcardIn(text) {
  const place = text.indexOf(START);
  return place < 0 ? null : text.slice(place);
}

// The bytes of the record on it. Fails where the word is damaged.
export async function recordOfPostcard(machine, letters) {
  return machine.recordOfPostcard(await inflated(machine.packedOfPostcard(letters), "deflate", MOST_BYTES));
}

// take(letters): what becomes of a word that comes in.
export function takePostcards(take) {
  const takeFrom = (text) => {
    const letters = postcardIn(text);
    if (letters) take(letters);
    return letters !== null;
  };
  const takeAddress = () => {
    // The address is free for the next word, and a reload begins with the shelf.
    if (takeFrom(decoded(location.hash))) history.replaceState(history.state, "", location.pathname + location.search);
  };
  addEventListener("hashchange", takeAddress);
  addEventListener("paste", (event) => {
    if (takeFrom(event.clipboardData.getData("text"))) event.preventDefault();
  });
  takeAddress();
}

function decoded(text) {
  try {
    return decodeURIComponent(text);
  } catch {
    return text;
  }
}
