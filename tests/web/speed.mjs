// How fast the machine of the page is beside the native one: ticks in a second of processor time, the same records in
// turn. usage: node speed.mjs PROJECT PAGE ZKTOOL [ROUNDS]
import { execFileSync } from 'node:child_process';
import { readFileSync, readdirSync } from 'node:fs';
import { join } from 'node:path';
import { pathToFileURL } from 'node:url';

const [project, page, zktool, rounds = '5'] = process.argv.slice(2);
const repeats = 10;  // so that starting zktool does not count
const { loadMachine } = await import(pathToFileURL(join(page, 'machine/machine.mjs')));
const machine = await loadMachine(readFileSync(join(page, 'machine/zorik.wasm')));

const below = (folder) => readdirSync(folder, { withFileTypes: true }).flatMap((entry) => {
  const path = join(folder, entry.name);
  if (entry.isDirectory()) return below(path);
  return path.endsWith('.zkr') ? [path] : [];
});
const files = [...below(join(project, 'tests/records')), ...below(join(project, 'caves'))];
const many = Array.from({ length: repeats }, () => files).flat();
const records = many.map((file) => readFileSync(file));
const middle = (numbers) => numbers.sort((a, b) => a - b)[Math.floor(numbers.length / 2)];

// Seconds of processor time in user mode.
function natively() {
  const script = 'TIMEFORMAT=%U; time "$@" >/dev/null || true';
  const said = execFileSync('bash', ['-c', `{ ${script}; } 2>&1`, 'bash', zktool, 'verify', ...many]);
  return Number(said.toString());
}
function here() {
  const before = process.cpuUsage().user;
  for (const record of records) machine.judgeRecord(record);
  return (process.cpuUsage().user - before) / 1e6;
}

const ticks = records.reduce((sum, record) => {
  machine.judgeRecord(record);
  return sum + machine.json().ticks;
}, 0);
const pairs = Array.from({ length: Number(rounds) }, () => [natively(), here()]);
const [native, wasm] = [0, 1].map((side) => ticks / middle(pairs.map((pair) => pair[side])));
console.log(`native ${Math.round(native)}, page ${Math.round(wasm)} ticks a second: ${(wasm / native).toFixed(2)}`);
