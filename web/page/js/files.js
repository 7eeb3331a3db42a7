// Files that come in, by the button or dropped anywhere on the page, and files that go out.

export function saveFile(name, bytes) {
  const link = document.createElement("a");
  link.href = URL.createObjectURL(new Blob([bytes], { type: "application/octet-stream" }));
  link.download = name;
  document.body.append(link);
  link.click();
  link.remove();
  setTimeout(() => URL.revokeObjectURL(link.href), 60_000);
}

// No file of the game is larger.
const MOST_BYTES = 32 << 20;

// What cannot be read, a folder for one, or is too large has no bytes; whoever takes it says that it is no file of the
// game.
async function bytesOf(file) {
  if (file.size > MOST_BYTES) return new Uint8Array();
  return file.arrayBuffer().then((buffer) => new Uint8Array(buffer), () => new Uint8Array());
}

async function readAll(files, take) {
  await take(await Promise.all([...files].map(async (file) => ({ name: file.name, bytes: await bytesOf(file) }))));
}

// take: what becomes of the files: [{name, bytes}...].
export function takeFiles(input, take) {
  input.addEventListener("change", async () => {
    await readAll(input.files, take);
    input.value = "";
  });
  const stop = (event) => event.preventDefault();
  addEventListener("dragover", (event) => {
    stop(event);
    document.body.classList.add("dropping");
  });
  addEventListener("dragleave", (event) => {
    if (!event.relatedTarget) document.body.classList.remove("dropping");
  });
  addEventListener("drop", (event) => {
    stop(event);
    document.body.classList.remove("dropping");
    if (event.dataTransfer.files.length > 0) readAll(event.dataTransfer.files, take);
  });
}
