// The sounds of a run, by their numbers. One channel for each recording, so that a sound that starts again is the one
// that sounded. Browsers let a page sound only once somebody has touched it or pressed a key.

export class Sounds {
  #context = null;
  #recordings; // by number of the sound: {loop, buffers}
  #load;
  #volume = null;
  #playing = new Map(); // source by buffer
  #loops = new Set(); // numbers of those that go on
  #on = true;

  // load: answers what there is to hear: for each sound {loop, files: [ArrayBuffer...]}, and the last seconds.
  constructor(load) {
    this.#load = load;
  }

  get on() {
    return this.#on;
  }

  set on(on) {
    this.#on = on;
    if (!on) this.#silence();
    else for (const sound of this.#loops) this.#start(sound);
  }

  // To be called at every gesture; the first one opens the way.
  async wake() {
    if (this.#context) {
      if (this.#context.state === "suspended") await this.#context.resume();
      return;
    }
    const Context = globalThis.AudioContext;
    if (!Context) return;
    this.#context = new Context();
    this.#volume = this.#context.createGain();
    this.#volume.connect(this.#context.destination);
    const sounds = await this.#load();
    const decode = (file) => this.#context.decodeAudioData(file).catch(() => null);
    this.#recordings = await Promise.all(
      sounds.map(async ({ loop, files }) => ({
        loop,
        buffers: (await Promise.all(files.map(decode))).filter((buffer) => buffer),
      })),
    );
  }

  play(sound) {
    if (this.#recordings?.[sound]?.loop) this.#loops.add(sound);
    if (this.#on) this.#start(sound);
  }

  stop(sound) {
    this.#loops.delete(sound);
    for (const buffer of this.#recordings?.[sound]?.buffers ?? []) this.#halt(buffer);
  }

  stopAll() {
    this.#loops.clear();
    this.#silence();
  }

  // A run that stands still is silent, and sounds on where it was.
  pause(paused) {
    if (!this.#context) return;
    const done = paused ? this.#context.suspend() : this.#context.resume();
    done.catch(() => {});
  }

  #start(sound) {
    const recording = this.#recordings?.[sound];
    if (!recording || recording.buffers.length === 0) return;
    const buffer = recording.buffers[Math.floor(Math.random() * recording.buffers.length)];
    this.#halt(buffer);
    const source = this.#context.createBufferSource();
    source.buffer = buffer;
    source.loop = recording.loop;
    source.connect(this.#volume);
    source.onended = () => {
      if (this.#playing.get(buffer) === source) this.#playing.delete(buffer);
    };
    this.#playing.set(buffer, source);
    source.start();
  }

  #halt(buffer) {
    this.#playing.get(buffer)?.stop();
    this.#playing.delete(buffer);
  }

  #silence() {
    for (const source of this.#playing.values()) source.stop();
    this.#playing.clear();
  }
}
