import { installClock } from '../fixture/clock.js';
import { quantile, report } from '../fixture/figures.js';
import { Minimal } from '../fixture/minimal.js';
import { Ours, push } from '../fixture/ours.js';
import { openPage } from '../fixture/page.js';
import { alternate, repeat } from '../fixture/rounds.js';

const rounds = 5;
const tapsInRound = 60;

const toggled = {
  size: 1, row: 'Clock', at: [0.95],
  control: () => document.querySelector('[data-key=clockEnabled]'),
  arm: (toggle) => clock.tap(() => toggle.className, () => toggle.checked),
};

/**
 * What is tapped. These functions run in the page: `control` finds what the finger comes down on,
 * `arm` tells the clock what the control shows by itself and what the answer is to change. `at`
 * lists where in the control the finger comes down, in turn; `hurries` tells that it does not wait
 * for what the last tap set moving, for which no limit is set.
 */
const controls = [
  { race: 'tap a switch', ...toggled },
  { race: 'tap a switch that moves', ...toggled, hurries: true },
  { race: 'tap a slider', size: 1, row: 'Clock', at: [0.3, 0.7],
    control: () => document.querySelector('ion-range'),
    arm: (range) => {
      const knob = range.shadowRoot.querySelector('[role=slider]');
      clock.tap(() => knob.style.cssText, () => range.nextSibling.value);
    } },
  { race: 'enable in a list', size: 10000, row: 'Lotties', at: [0.5],
    control: () => [...document.querySelectorAll('.table .group:last-child .control')]
      .find((button) => button.getBoundingClientRect().top > 500),
    arm: (button) => {
      const [cell, list] = [button.closest('.cell'), button.closest('.rows')];
      clock.tap(() => cell.ariaBusy, () => list.firstElementChild.ariaSetSize);
    } },
];

const counter = {
  at: [0.5],
  control: () => document.getElementById('tap'),
  arm: () => clock.tap(() => '', () => document.getElementById('count').textContent),
};

/** Runs in the page: whether nothing moves in it, not inside of controls either. */
const isAtRest = () => {
  const within = [...document.querySelectorAll('*')].flatMap(({ shadowRoot }) => shadowRoot ?? []);
  return [document, ...within].every((root) => root.getAnimations().length === 0);
};

/**
 * Taps a control of a page, any number of times; each answers what the clock says. A finger finds
 * the page at rest: while a switch's knob still moves, a browser makes the answer to the next tap
 * wait for the frame that the knob is in.
 */
function finger(page, { control, at, arm, hurries = false }) {
  let turn = 0;
  return async () => {
    const found = await page.evaluateHandle(control);
    const { x, y, width, height } = await found.boundingBox();
    const share = at[turn++ % at.length];
    await found.evaluate(arm);
    if (!hurries) await page.waitForFunction(isAtRest);
    // As long as a finger stays on the glass, and so that it lifts anywhere between two frames.
    const delay = 30 + Math.random() * 40;
    await page.mouse.click(x + share * width, y + height / 2, { delay });
    const timed = await page.evaluate(() => clock.tapped);
    await found.dispose();
    return timed;
  };
}

/** There, enabling a row leaves all rows below where they are. */
async function scrollHalfway(page) {
  await page.locator('.page:not([inert]) .content')
    .evaluate((content) => (content.scrollTop = content.scrollHeight / 2));
  await page.waitForFunction(() => document.querySelector('.table .cell[data-row="5000"]'));
}

/** From the finger that is lifted to the frame that shows what the program answered. */
async function race(browser, options, { race: name, size, row, ...control }) {
  const ours = await Ours.start(options.program, size);
  const page = await openPage(browser, ours.address, installClock);
  await push(page, row);
  if (size > 1) await scrollHalfway(page);
  const tapOurs = finger(page, control);
  await repeat(4, tapOurs);

  const minimal = await Minimal.start(options.minimal, ours.phone.bytes());
  const other = await openPage(browser, `${minimal.origin}/counter`, installClock);
  const tapMinimal = finger(other, counter);
  await repeat(4, tapMinimal);

  tell(name, size, control.hurries ? null : 1.2, await alternate(rounds, {
    ours: () => repeat(tapsInRound, tapOurs),
    minimal: () => repeat(tapsInRound, tapMinimal),
  }));
  for (const opened of [page, other]) await opened.context().close();
  for (const server of [ours, minimal]) await server.stop();
}

function tell(name, size, must, { ours, minimal }) {
  for (const [part, share] of [['p50', 0.5], ['p95', 0.95]]) {
    const [own, limit] = [ours, minimal].map((all) =>
      all.map((taps) => quantile(taps.map(({ time }) => time * 1e6), share)));
    const what = { race: `${name}, ${part}`, size, unit: 'ns' };
    report({ ...what, contestant: 'ours', must }, own, limit);
    report({ ...what, contestant: 'minimal page' }, limit, limit);
  }
  const echoes = ours.map((taps) => Math.max(...taps.map(({ echo }) => echo)));
  report({ race: `${name}, its own picture`, size, contestant: 'ours', unit: 'frames', must: 1 },
         echoes, echoes.map(() => 1));
}

export async function taps(browser, options) {
  for (const control of controls) await race(browser, options, control);
}
