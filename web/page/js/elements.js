// The elements of the page, by their names, and a short way to make new ones.

export const byId = new Proxy({}, { get: (_, id) => document.getElementById(id) });

// element("button", {className: "main", onclick: act}, "Play", otherElement...): texts stay texts.
export function element(name, properties = {}, ...children) {
  const made = Object.assign(document.createElement(name), properties);
  made.append(...children);
  return made;
}

export function iconLock() {
  const lock = element("span", { className: "lock" });
  lock.innerHTML =
    '<svg viewBox="0 0 16 16" aria-hidden="true"><rect x="3" y="7" width="10" height="7" rx="1"/>' +
    '<path d="M5 7V5a3 3 0 0 1 6 0v2"/></svg>';
  return lock;
}
