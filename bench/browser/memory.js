// How much memory the program takes while nobody does anything: before its page was opened and after
// it was opened once and closed again. Prints a line of JSON for each; `bench/run` makes a table of
// them.
import { spawn } from 'node:child_process';
import { once } from 'node:events';
import { mkdtempSync, readFileSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { createInterface } from 'node:readline';
import { setTimeout } from 'node:timers/promises';
import { parseArgs } from 'node:util';
import { launch } from '../../tests/browser/fixture/browser.js';
import { openPage } from './fixture/page.js';

const allowed = 10_000_000;

const { values: options } = parseArgs({ options: {
  program: { type: 'string' }, listen: { type: 'string' },
} });

/** Starts a server; its process, and the last word of its first line, which is its address. */
async function start(program, ...words) {
  const child = spawn(program, words, { stdio: ['ignore', 'pipe', 'inherit'] });
  const [line] = await once(createInterface(child.stdout), 'line');
  return { child, address: line.split(' ').at(-1) };
}

async function stop({ child }) {
  const exit = once(child, 'exit');
  child.kill('SIGTERM');
  await exit;
}

/** Of one process, in bytes (proc(5), smaps_rollup). */
function memoryOf({ child }) {
  const text = readFileSync(`/proc/${child.pid}/smaps_rollup`, 'utf8');
  const bytes = (name) => 1024 * Number(new RegExp(`^${name}: +(\\d+) kB$`, 'm').exec(text)[1]);
  return { Rss: bytes('Rss'), Pss: bytes('Pss'), 'its own': bytes('Anonymous') };
}

/** Every figure, of which the resident memory is held to what is allowed. */
function report(race, contestant, memory, limit) {
  for (const [name, bytes] of Object.entries(memory)) {
    const must = contestant === 'ours' && name === 'Rss';
    console.log(JSON.stringify({
      race: `${race}, ${name}`, size: 0, contestant, unit: 'bytes', median: bytes,
      ratio: bytes / limit[name], lowest: null, highest: null,
      must: must ? 'at most 10 MB' : '', holds: must ? bytes <= allowed : null,
    }));
  }
}

const folder = mkdtempSync(`${tmpdir()}/quillmere-memory-`);
const bare = await start(options.listen);
const ours = await start(options.program, '--no-open', '--root', folder);
const limit = memoryOf(bare);
report('memory', 'a bare socket', limit, limit);
report('memory', 'ours', memoryOf(ours), limit);

const browser = await launch();
const page = await openPage(browser, ours.address);
await page.getByRole('link', { name: 'Clock', exact: true }).waitFor();
await page.waitForLoadState('networkidle');
await browser.close();
await setTimeout(500);  // Until the program has noticed.
report('memory-opened', 'ours', memoryOf(ours), limit);

await stop(ours);
await stop(bare);
rmSync(folder, { recursive: true });
