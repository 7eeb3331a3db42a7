// Makes the page of one file: all that the page's folder holds, but for the caves, within one HTML file. What such a page
// shows is put in place of <!--given--> later (src/data/WebPage.h).
// usage: node pack.mjs PAGE-FOLDER OUT.html
import { readFileSync, readdirSync, writeFileSync } from "node:fs";
import { dirname, join, posix } from "node:path";
import { deflateRawSync } from "node:zlib";

const [folder, out] = process.argv.slice(2);
const POLICY =
  "default-src 'none'; script-src 'unsafe-inline' data: 'wasm-unsafe-eval'; style-src 'unsafe-inline'; " +
  "img-src data: blob:; base-uri 'none'; form-action 'none'";

const read = (path) => readFileSync(join(folder, path));
const dataUrl = (kind, bytes) => `data:${kind};base64,${Buffer.from(bytes).toString("base64")}`;

function filesBelow(path) {
  return readdirSync(join(folder, path), { withFileTypes: true })
    .sort((one, other) => (one.name < other.name ? -1 : 1))
    .flatMap((entry) => {
      const inside = posix.join(path, entry.name);
      return entry.isDirectory() ? filesBelow(inside) : [inside];
    });
}

// A module has no neighbours once it stands within the page: they are known by their names, which the import map tells.
const nameOf = (path) => `zorik/${path}`;
function withNames(path) {
  const neighbour = (_, start, quote, file) =>
    `${start}${quote}${nameOf(posix.join(dirname(path), file))}${quote}`;
  return read(path).toString().replace(/(\bfrom\s*|\bimport\s*)(["'])(\.\.?\/[^"']+)\2/g, neighbour);
}

function modules() {
  const paths = [...filesBelow("js"), ...filesBelow("machine")].filter((path) => /\.m?js$/.test(path));
  return Object.fromEntries(paths.map((path) => [nameOf(path), dataUrl("text/javascript", withNames(path))]));
}

// The caves that come with the game stay out: the page has its own.
function index() {
  const all = JSON.parse(read("assets/index.json").toString());
  return Buffer.from(JSON.stringify({ ...all, collections: { cs: [], en: [] } }));
}

function packed() {
  const paths = filesBelow("assets").filter((path) => !path.startsWith("assets/caves/"));
  const files = [...paths, "machine/zorik.wasm"].map((path) => [
    path,
    path === "assets/index.json" ? index() : read(path),
  ]);
  return Object.fromEntries(files.map(([path, bytes]) => [path, deflateRawSync(bytes).toString("base64")]));
}

// A replacement without a meaning of its own for "$".
function put(page, what, replacement) {
  if (!page.includes(what)) throw new Error(`index.html has no ${what}`);
  return page.replace(what, () => replacement);
}

let page = read("index.html").toString();
page = page.replace(/(<meta http-equiv="Content-Security-Policy" content=")[^"]*/, (_, start) => start + POLICY);
page = put(page, '<link rel="icon" href="zorik.svg" type="image/svg+xml">',
  `<link rel="icon" href="${dataUrl("image/svg+xml", read("zorik.svg"))}">`);
page = put(page, '<link rel="stylesheet" href="page.css">', `<style>\n${read("page.css")}</style>`);
page = put(page, '<script type="module" src="js/main.js"></script>', [
  "<!--given-->",
  `<script id="packed" type="application/json">${JSON.stringify(packed())}</script>`,
  `<script type="importmap">${JSON.stringify({ imports: modules() })}</script>`,
  `<script type="module">import "${nameOf("js/main.js")}";</script>`,
].join("\n"));
writeFileSync(out, page);
