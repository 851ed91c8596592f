import { median, report } from '../fixture/figures.js';
import { Minimal } from '../fixture/minimal.js';
import { Ours } from '../fixture/ours.js';
import { openPage } from '../fixture/page.js';
import { alternate, repeat } from '../fixture/rounds.js';

const rounds = 7;
const visitsInRound = 3;

/** How long the page waits for more to be painted, in milliseconds. */
const quiet = 500;

/** How long the browser is given to draw a new window's own parts, in milliseconds. */
const settled = 1500;

/** Runs in the page before its own scripts, and notes what the browser says of each painting. */
function installNotes() {
  window.painted = {};
  new PerformanceObserver((list) => {
    for (const { entryType, name, startTime } of list.getEntries()) {
      if (name !== 'first-paint') painted[entryType] = startTime;
    }
  }).observe({ type: 'paint' });
  new PerformanceObserver((list) => {
    for (const { startTime } of list.getEntries()) painted.largest = startTime;
  }).observe({ type: 'largest-contentful-paint' });
}

async function visit(browser, address) {
  const page = await openPage(browser, 'about:blank', installNotes);
  await page.waitForTimeout(settled);
  await page.goto(address);
  await page.waitForFunction(() => painted.paint && painted.largest);
  await page.waitForTimeout(quiet);
  const painted = await page.evaluate(() => painted);
  await page.context().close();
  return painted;
}

/**
 * From the address to what it shows, in a browser that was never there. What has to be reached is
 * the smallest page; the same page in a process of its own tells how much of the difference is the
 * price of that.
 */
export async function paints(browser, options) {
  const ours = await Ours.start(options.program, 1);
  const minimal = await Minimal.start(options.minimal, ours.phone.bytes());
  const contestant = (address) => () => repeat(visitsInRound, () => visit(browser, address));
  const all = await alternate(rounds, {
    ours: contestant(ours.address),
    apart: contestant(`${minimal.origin}/apart/counter`),
    minimal: contestant(`${minimal.origin}/counter`),
  });
  for (const [part, entry] of [['first', 'paint'], ['largest', 'largest']]) {
    const [own, apart, limit] = [all.ours, all.apart, all.minimal].map((rounds) =>
      rounds.map((visits) => median(visits.map((painted) => painted[entry] * 1e6))));
    const what = { race: `${part} contentful paint`, size: 1, unit: 'ns' };
    report({ ...what, contestant: 'ours', must: 1.5 }, own, limit);
    report({ ...what, contestant: 'minimal page, apart' }, apart, limit);
    report({ ...what, contestant: 'minimal page' }, limit, limit);
  }
  for (const server of [ours, minimal]) await server.stop();
}
