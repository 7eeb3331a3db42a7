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

async function readAll(files, take) {
  const read = await Promise.all(
    [...files].map(async (file) => ({ name: file.name, bytes: new Uint8Array(await file.arrayBuffer()) })),
  );
  await take(read);
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
