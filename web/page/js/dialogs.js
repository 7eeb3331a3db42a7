// Questions and messages, in the browser's own dialog: it holds the keys, Esc closes it, and the one who cannot see it is
// told. All texts are shown as they are.

import { caption } from "./words.js";

// Shows a dialog with these lines of text and buttons: [{label, value}]; the first is the one for Enter. Answers the
// value of the button, or null when it was closed without one.
export function ask(title, lines, buttons, { content = null } = {}) {
  const dialog = document.createElement("dialog");
  const form = document.createElement("form");
  form.method = "dialog";
  const heading = document.createElement("h2");
  heading.textContent = title;
  heading.id = "dialog-title";
  dialog.setAttribute("aria-labelledby", heading.id);
  form.append(heading);
  for (const line of lines) {
    const paragraph = document.createElement("p");
    paragraph.textContent = line;
    form.append(paragraph);
  }
  if (content) form.append(content);
  const row = document.createElement("div");
  row.className = "buttons";
  for (const { label, value } of buttons) {
    const button = document.createElement("button");
    button.textContent = label;
    button.value = value;
    row.append(button);
  }
  row.firstElementChild.className = "main";
  form.append(row);
  dialog.append(form);
  document.body.append(dialog);
  dialog.showModal();
  if (!content?.querySelector("input")) row.firstElementChild.focus();
  return new Promise((resolve) => {
    dialog.addEventListener("close", () => {
      dialog.remove();
      resolve(dialog.returnValue === "" ? null : dialog.returnValue);
    });
  });
}

export const tell = (title, ...lines) => ask(title, lines, [{ label: caption("dialog.ok"), value: "ok" }]);

export async function confirmed(title, ...lines) {
  const answer = await ask(title, lines, [
    { label: caption("dialog.yes"), value: "yes" },
    { label: caption("dialog.no"), value: "no" },
  ]);
  return answer === "yes";
}

// Asks for a line of text; null when the player would rather not.
export async function askForText(title, line, label, usual, ok) {
  const content = document.createElement("label");
  content.className = "field";
  const caught = document.createElement("span");
  caught.textContent = label;
  const input = document.createElement("input");
  input.value = usual;
  input.maxLength = 40;
  input.autocomplete = "off";
  content.append(caught, input);
  const answered = ask(title, line ? [line] : [], [
    { label: ok, value: "ok" },
    { label: caption("dialog.close"), value: "" },
  ], { content });
  input.select();
  return (await answered) === "ok" ? input.value : null;
}
