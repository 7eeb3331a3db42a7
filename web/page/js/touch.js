// Steering with a finger: a swipe is a step, a swipe that is held goes on, and where the finger turns the dog turns. The
// finger that steers rests anywhere on the picture; a button beside it is the key of action.

import { Key } from "./keys.js";

const FAR_ENOUGH = 18; // CSS pixels that a finger goes before it is meant
const FINGER = "finger";

function directionOf(across, down) {
  if (Math.max(Math.abs(across), Math.abs(down)) < FAR_ENOUGH) return null;
  if (Math.abs(across) > Math.abs(down)) return across < 0 ? Key.Left : Key.Right;
  return down < 0 ? Key.Up : Key.Down;
}

// Lets fingers on the picture press arrows of the keyboard. A mouse is no finger.
export function steerByTouch(picture, keyboard) {
  let finger = null; // which, where it is measured from, the arrow that it holds

  const letGo = (event) => {
    if (finger?.id !== event.pointerId) return;
    finger = null;
    keyboard.release(FINGER);
  };

  picture.addEventListener("pointerdown", (event) => {
    if (event.pointerType === "mouse" || finger) return;
    picture.setPointerCapture(event.pointerId);
    finger = { id: event.pointerId, x: event.clientX, y: event.clientY, key: null };
  });
  picture.addEventListener("pointermove", (event) => {
    if (finger?.id !== event.pointerId) return;
    const key = directionOf(event.clientX - finger.x, event.clientY - finger.y);
    if (key === null) return;
    // Measured from here on, so that a turn back is seen at once.
    finger.x = event.clientX;
    finger.y = event.clientY;
    if (key === finger.key) return;
    finger.key = key;
    keyboard.release(FINGER);
    keyboard.press(key, FINGER);
  });
  picture.addEventListener("pointerup", letGo);
  picture.addEventListener("pointercancel", letGo);
}

// A button that is a key for as long as it is pressed, by finger or mouse.
export function holdAsKey(button, keyboard, key) {
  const place = `button ${key}`;
  button.addEventListener("pointerdown", (event) => {
    event.preventDefault();
    button.setPointerCapture(event.pointerId);
    button.classList.add("held");
    keyboard.press(key, place);
  });
  for (const name of ["pointerup", "pointercancel", "lostpointercapture"]) {
    button.addEventListener(name, () => {
      button.classList.remove("held");
      keyboard.release(place);
    });
  }
}
