// Where the page's pictures, sounds, texts and caves come from: files beside it, or all within the page itself.

export const bytesOfBase64 = (text) => Uint8Array.from(atob(text), (letter) => letter.charCodeAt(0));

async function fetched(path) {
  const answer = await fetch(path);
  if (!answer.ok) throw new Error(`${path}: ${answer.status}`);
  return new Uint8Array(await answer.arrayBuffer());
}

// Unpacks bytes of a form that browsers know. Fails where they are damaged, or would become more than so many.
export async function inflated(bytes, form, most = Infinity) {
  const parts = [];
  let size = 0;
  const stream = new Blob([bytes]).stream().pipeThrough(new DecompressionStream(form));
  for (const reader = stream.getReader(); ;) {
    const { done, value } = await reader.read();
    if (done) return new Uint8Array(await new Blob(parts).arrayBuffer());
    size += value.length;
    if (size > most) throw new Error(`more than ${most} bytes`);
    parts.push(value);
  }
}

// packed: the files that the page holds within itself, deflated and in base64, by their paths; nothing for a page with
// its files beside it.
export class Assets {
  #packed;

  constructor(packed = null) {
    this.#packed = packed;
  }

  async bytes(path) {
    if (!this.#packed) return fetched(path);
    const text = this.#packed[path];
    if (text === undefined) throw new Error(`${path} is not in this page`);
    return inflated(bytesOfBase64(text), "deflate-raw");
  }

  async json(path) {
    return JSON.parse(new TextDecoder().decode(await this.bytes(path)));
  }

  async image(path) {
    return createImageBitmap(new Blob([await this.bytes(path)], { type: "image/webp" }));
  }
}
