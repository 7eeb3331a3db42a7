// The sounds of a run, by their numbers. One channel for each recording, so that a sound that starts again is the one
// that sounded. Browsers let a page sound only once somebody has touched it or pressed a key.

export class Sounds {
  #context = null;
  #waves = []; // wave files by number of the sound, until there is a way to sound: {loop, files}
  #recordings = []; // by number of the sound: {loop, buffers}
  #volume = null;
  #playing = new Map(); // source by buffer
  #loops = new Set(); // numbers of those that go on
  #on = true;
  #paused = false;

  get on() {
    return this.#on;
  }

  set on(on) {
    this.#on = on;
    if (!on) this.#silence();
    else for (const sound of this.#loops) this.#start(sound);
  }

  // What there is to hear, by number of the sound: {loop, files: [ArrayBuffer of a wave file...]}.
  take(waves) {
    this.#waves = waves;
    return this.#decode();
  }

  // To be called at every gesture: the first one opens the way.
  wake() {
    if (this.#context) {
      if (this.#context.state === "suspended" && !this.#paused) this.#context.resume().catch(() => {});
      return;
    }
    const Context = globalThis.AudioContext;
    if (!Context) return;
    this.#context = new Context();
    this.#volume = this.#context.createGain();
    this.#volume.connect(this.#context.destination);
    this.#decode();
  }

  async #decode() {
    if (!this.#context || this.#waves.length === 0) return;
    const waves = this.#waves;
    this.#waves = [];
    const decode = (file) => this.#context.decodeAudioData(file).catch(() => null);
    this.#recordings = await Promise.all(
      waves.map(async ({ loop, files }) => ({
        loop,
        buffers: (await Promise.all(files.map(decode))).filter((buffer) => buffer),
      })),
    );
  }

  play(sound) {
    if (this.#recordings[sound]?.loop) this.#loops.add(sound);
    if (this.#on) this.#start(sound);
  }

  stop(sound) {
    this.#loops.delete(sound);
    for (const buffer of this.#recordings[sound]?.buffers ?? []) this.#halt(buffer);
  }

  stopAll() {
    this.#loops.clear();
    this.#silence();
  }

  // A run that stands still is silent, and sounds on where it was.
  pause(paused) {
    this.#paused = paused;
    if (!this.#context) return;
    const done = paused ? this.#context.suspend() : this.#context.resume();
    done.catch(() => {});
  }

  #start(sound) {
    const recording = this.#recordings[sound];
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
