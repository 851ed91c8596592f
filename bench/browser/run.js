// Races the page in a browser against the smallest page and server there are. Prints a line of JSON
// for each figure; `bench/run` makes a table of them.
import { parseArgs } from 'node:util';
import { launch } from '../../tests/browser/fixture/browser.js';
import { paints } from './races/paints.js';
import { scrolls } from './races/scrolls.js';
import { taps } from './races/taps.js';

const races = { taps, paints, scrolls };

const { values: options } = parseArgs({ options: {
  program: { type: 'string' }, minimal: { type: 'string' }, only: { type: 'string' },
} });

const browser = await launch();
for (const [name, race] of Object.entries(races)) {
  if (!options.only || options.only === name) await race(browser, options);
}
await browser.close();
