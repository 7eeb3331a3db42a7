// How large a picture is: cells are square, of whole pixels, as large as fits.

const MOST_COLUMNS = 19.5; // of the view that follows the dog, as on the desktop
const MOST_ROWS = 11.5;
const FEWEST = 8;
const LONGEST = 16;

const halves = (cells) => Math.floor(cells * 2) / 2;

// The most cells that are shown in a room of this size, in CSS pixels: on a narrow screen fewer of them rather than tiny
// ones. Where it stands upright there are more rows instead.
export function reachIn(width, height, smallestCell) {
  const columns = halves(Math.min(MOST_COLUMNS, Math.max(FEWEST, width / smallestCell)));
  if (columns === MOST_COLUMNS) return { columns, rows: MOST_ROWS };
  return { columns, rows: halves(Math.min(LONGEST, Math.max(FEWEST, (columns * height) / width))) };
}

// The frame of so many columns and rows with the largest square cells that fit into a room, all in pixels.
export function frameIn(width, height, columns, rows) {
  const cell = Math.max(1, Math.floor(Math.min(width / columns, height / rows)));
  return { width: Math.ceil(cell * columns), height: Math.ceil(cell * rows) };
}
