// The machine of the page against the native one: every record tells the same from the first tick to the last.
// usage: node machine_test.mjs PROJECT PAGE ZKTOOL CAVES
// PAGE is the page's folder; ZKTOOL and CAVES (collections, and records of them) are those of the native build.
import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { mkdtempSync, readFileSync, readdirSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { basename, join } from 'node:path';
import { webcrypto } from 'node:crypto';
import { pathToFileURL } from 'node:url';

globalThis.crypto ??= webcrypto;  // Node.js 18 does not tell of it by itself
const [project, page, zktool, caves] = process.argv.slice(2);
const { loadMachine, MachineError, CaveState, Key, Kind, TickEnd } =
  await import(pathToFileURL(join(page, 'machine/machine.mjs')));
const machine = await loadMachine(readFileSync(join(page, 'machine/zorik.wasm')));
const index = JSON.parse(readFileSync(join(page, 'assets/index.json'), 'utf8'));
for (const [scheme, sheets] of Object.entries(index.schemes)) machine.useSheets(scheme, sheets);
const scratch = mkdtempSync(join(tmpdir(), 'zorik-'));

function filesBelow(folder, ending) {
  return readdirSync(folder, { withFileTypes: true }).flatMap((entry) => {
    const path = join(folder, entry.name);
    if (entry.isDirectory()) return filesBelow(path, ending);
    return entry.name.endsWith(ending) ? [path] : [];
  }).sort();
}
const native = (...words) => {
  try {
    return execFileSync(zktool, words, { encoding: 'utf8', maxBuffer: 1 << 28 });
  } catch (failure) {
    return failure.stdout;  // a verdict that is not good has an exit code of its own
  }
};
const recorded = filesBelow(join(project, 'tests/records'), '.zkr');
const proofs = filesBelow(join(project, 'caves'), '.zkr');
const carried = filesBelow(join(caves, 'records'), '.zkr');
const sample = (files, most) => files.filter((_, i) => i % Math.ceil(files.length / most) === 0);
const lesson = readFileSync(join(caves, '1-zorikova-skola-cs.zk'));
const lessonProof = readFileSync(join(caves, 'records/1-zorikova-skola-cs/01.zkr'));

// The numbers of a stream that is the same each time.
function* numbers(seed) {
  for (let state = seed; ;) {
    state = (Math.imul(state, 1664525) + 1013904223) >>> 0;
    yield state >>> 8;
  }
}

// The keys of a run in which nothing but a still amoeba asks for chance before them: after it come the arrow, whether
// the action key is held, and the unit.
function keysOf(record) {
  const lines = Buffer.from(record).toString('latin1').split('\r\n').slice(3);
  return lines.filter((line) => line).map((line) => {
    const [arrow, action] = [line.charCodeAt(1) - 65, line.charCodeAt(2) - 65];
    return [...(arrow ? [arrow] : []), ...(action ? [Key.space] : [])];
  });
}

const tests = {
  'each recorded run tells what its trace tells'() {
    assert.ok(recorded.length >= 70);
    for (const file of recorded) {
      const trace = readFileSync(file.replace(/zkr$/, 'trace'), 'utf8');
      assert.equal(machine.traceRecord(readFileSync(file)), trace, file);
    }
    return `${recorded.length} records`;
  },

  'each proof tells what it tells natively'() {
    const all = [...proofs, ...carried];
    assert.ok(proofs.length >= 70 && carried.length >= 2 * 70);
    for (const file of all) assert.equal(machine.traceRecord(readFileSync(file)), native('replay', file), file);
    return `${all.length} records`;
  },

  'each record is judged as it is natively'() {
    const all = [...recorded, ...proofs, ...carried];
    const lines = native('verify', ...all).split('\n');
    all.forEach((file, i) => {
      const { verdict, score, stored, ticks } = machine.judgeRecord(readFileSync(file));
      assert.ok(lines[i].startsWith(`${verdict} score=${score} stored=${stored} ticks=${ticks} `), `${file}: ${lines[i]}`);
    });
    const won = proofs.filter((file) => machine.judgeRecord(readFileSync(file)).verdict === 'won');
    assert.equal(won.length, proofs.length);
  },

  'tick by tick, drawn and all, a run comes to the same'() {
    for (const file of [...sample(recorded, 12), ...sample(proofs, 12)]) {
      const run = machine.newRun([3, 4]);
      run.replay(readFileSync(file));
      run.setSmooth(true);
      let line = '';
      for (let end = TickEnd.running; end === TickEnd.running; run.look(801, 479, 0.4)) {
        end = run.tick();
        if (end === TickEnd.running) line = run.line();
      }
      assert.ok(machine.traceRecord(readFileSync(file)).includes(`${line}\n`), file);
      run.free();
    }
  },

  'a moment that is sought is the one that was played'() {
    for (const file of [...sample(recorded, 8), ...sample(proofs, 8)]) {
      const run = machine.newRun([5, 6]);
      run.replay(readFileSync(file));
      run.beginTimeline({ whole: true });
      const { length } = run.timeline();
      const lines = [run.line()];
      for (let tick = 1; tick <= length; ++tick) {
        run.tick();
        lines.push(run.line());
      }
      for (const share of [0.9, 0.1, 0.5, 0, 1]) {
        const tick = Math.floor(length * share);
        run.seek(tick);
        assert.equal(run.line(), lines[tick], `${file}, tick ${tick}`);
        assert.equal(run.state().position, tick);
      }
      run.free();
    }
  },

  'a replay that is taken over goes back and forth in practice'() {
    const run = machine.newRun([5, 6]);
    run.replay(lessonProof);
    run.beginTimeline({ whole: true });
    run.seek(10);
    const line = run.line();
    run.takeOver();
    assert.equal(run.state().kind, Kind.practice);
    for (let i = 0; i < 5; ++i) run.tick([37]);
    assert.equal(run.state().position, 15);
    assert.equal(run.timeline().length, 15);
    run.seek(10);
    assert.equal(run.line(), line);
    assert.throws(() => run.record(), MachineError);
    run.free();
  },

  'a record that is over can be taken over, and one that is won goes no further'() {
    for (const file of [recorded[0], proofs[0]]) {
      const run = machine.newRun([5, 6]);
      run.replay(readFileSync(file));
      run.beginTimeline({ whole: true });
      const { length } = run.timeline();
      let end = TickEnd.running;
      while (end === TickEnd.running) end = run.tick();
      assert.equal(run.tick(), end);
      assert.equal(run.state().position, length);
      run.takeOver();
      const next = run.tick([39]);
      assert.equal(run.state().position, end === TickEnd.won ? length : length + 1);
      assert.equal(next, end === TickEnd.won ? TickEnd.won : TickEnd.running);
      run.free();
    }
  },

  'what is won by keys is a record that counts natively'() {
    const collection = machine.openCollection(lesson);
    const run = machine.newRun();
    run.start(collection, 1, { player: 'Žofka' });
    const ends = keysOf(lessonProof).map((keys) => run.tick(keys));
    assert.equal(ends.at(-1), TickEnd.won);
    const { name, bytes } = run.record();
    const file = join(scratch, name);
    writeFileSync(file, bytes);
    const said = native('verify', '--collection', join(caves, '1-zorikova-skola-cs.zk'), file);
    assert.match(said, /^won .* counts=yes number=1 .*"Žofka"/);
    assert.equal(machine.judgeRecord(bytes).verdict, 'won');
    assert.ok(collection.holdsCaveOf(1, bytes) && !collection.holdsCaveOf(2, bytes));

    const before = collection.progress('Žofka', []), after = collection.progress('Žofka', [[name, bytes]]);
    assert.equal(before.caves[0], CaveState.open);
    assert.equal(after.caves[0], CaveState.solved);
    assert.equal(after.total, run.state().score);
    assert.equal(collection.progress('Someone', [[name, bytes]]).caves[0], CaveState.solvedByOther);
    run.free();
    collection.close();
  },

  'chance in play is another one in each run'() {
    const collection = machine.openCollection(readFileSync(join(caves, '2-zorikovy-cesty-cs.zk')));
    const linesOfARun = () => collection.tell().caves.map(({ number }) => {
      const run = machine.newRun();
      run.start(collection, number);
      for (let tick = 0; tick < 60; ++tick) run.tick([39]);
      const line = run.line();
      run.free();
      return line;
    });
    assert.notDeepEqual(linesOfARun(), linesOfARun());
    collection.close();
  },

  'collections tell what is in them'() {
    for (const { file, name } of [...index.collections.cs, ...index.collections.en]) {
      const collection = machine.openCollection(readFileSync(join(page, 'assets', file)));
      const told = collection.tell();
      assert.equal(told.name, name);
      assert.ok(told.caves.length >= 10 && told.caves.every((cave) => cave.scheme in index.schemes));
      collection.close();
    }
    assert.equal(index.collections.cs.length, index.collections.en.length);
  },

  'the sounds are the same bytes as natively'() {
    return machine.sounds(index.sounds).then((sounds) => {
      const { list, recipes } = index.sounds;
      machine.must('sounds_tell', list);
      let count = 0;
      for (const { sound, name, recordings } of machine.json()) {
        assert.ok(recordings >= 2 && recipes[name], name);
        sounds[sound].files.forEach((bytes, i) => {
          const wave = readFileSync(join(caves, '../src/app/Skins/Default/Sound', `${name}${i ? i + 1 : ''}.wav`));
          assert.equal(Buffer.compare(wave, Buffer.from(bytes)), 0, `${name} ${i + 1}`);
          ++count;
        });
      }
      return `${count} recordings`;
    });
  },

  'the pictures are those of the index'() {
    for (const [scheme, { sizes, grounds, sheets, edges }] of Object.entries(index.schemes)) {
      const frames = sizes.reduce((sum, [columns, rows]) => sum + columns * rows, 0);
      assert.equal(grounds.length, frames, scheme);
      assert.equal(sheets.length, index.sets.length);
      for (const file of [...sheets, edges]) {
        assert.equal(readFileSync(join(page, 'assets', file)).toString('latin1', 8, 12), 'WEBP', file);
      }
    }
  },

  'damaged bytes are told of, and nothing else happens'() {
    const some = numbers(7);
    const next = (most) => some.next().value % most;
    const run = machine.newRun([7, 8]);
    for (const whole of [lessonProof, lesson, readFileSync(recorded[0])]) {
      for (let i = 0; i < 150; ++i) {
        const bytes = Uint8Array.from(whole.subarray(0, i % 3 === 0 ? next(whole.length) : whole.length));
        for (let n = next(20); n > 0 && bytes.length > 0; --n) bytes[next(bytes.length)] = next(256);
        for (const step of [() => machine.openCollection(bytes).close(), () => machine.tellRecord(bytes),
          () => machine.traceRecord(bytes), () => run.replay(bytes), () => run.startCaveOf(bytes)]) {
          try { step(); } catch (failure) {
            assert.ok(failure instanceof MachineError && failure.message.length > 5, String(failure));
          }
        }
        assert.equal(typeof machine.judgeRecord(bytes).verdict, 'string');
      }
    }
    run.replay(lessonProof);
    assert.equal(run.tick(), TickEnd.running);
  },

  'memory does not grow with runs'() {
    const size = () => machine.wasm.memory.buffer.byteLength;
    const once = () => {
      const run = machine.newRun();
      run.replay(lessonProof);
      run.beginTimeline({ whole: true });
      run.look(800, 480);
      run.free();
    };
    once();
    const before = size();
    for (let i = 0; i < 300; ++i) once();
    assert.equal(size(), before);
  },
};

let failed = 0;
for (const [name, test] of Object.entries(tests)) {
  try {
    const said = await test();
    console.log(`ok      ${name}${said ? ` (${said})` : ''}`);
  } catch (failure) {
    ++failed;
    console.log(`FAILED  ${name}\n${failure.stack}`);
  }
}
rmSync(scratch, { recursive: true });
console.log(`${Object.keys(tests).length - failed} passed, ${failed} failed, ${basename(process.execPath)} ${process.version}`);
process.exitCode = failed ? 1 : 0;
