/** How many rows beyond those in view are asked for, and how few may be left of them. */
const margin = 20;
const reserve = 10;

/** The most rows that the program sends. */
const most = 200;

/**
 * Tells which rows lie between two heights of the screen, counted over all lists.
 * @param {HTMLElement[]} lists
 * @param {number[]} counts the number of rows of each list
 * @param {number} rowHeight in pixels
 * @param {{top: number, bottom: number}} box in pixels of the screen
 * @returns {{first: number, end: number}?} none when there is no row
 */
export function rowsWithin(lists, counts, rowHeight, box) {
  let before = 0;
  let found = null;
  lists.forEach((list, index) => {
    const { top } = list.getBoundingClientRect();
    const row = (y) => Math.min(counts[index], Math.max(0, (y - top) / rowHeight));
    const [first, end] = [Math.floor(row(box.top)), Math.ceil(row(box.bottom))];
    if (first < end) found = { first: found?.first ?? before + first, end: before + end };
    before += counts[index];
  });
  return found;
}

/**
 * Tells which rows to ask for, once those that are there run out.
 * @param {{first: number, end: number}} seen
 * @param {{first: number, end: number}} there
 * @param {number} total
 * @returns {{first: number, count: number}?} none when there are enough
 */
export function missing(seen, there, total) {
  const around = (more) => ({
    first: Math.max(0, seen.first - more), end: Math.min(total, seen.end + more),
  });
  const needed = around(reserve);
  if (needed.first >= there.first && needed.end <= there.end) return null;
  const { first, end } = around(margin);
  return { first, count: Math.min(most, end - first) };
}
