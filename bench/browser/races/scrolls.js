import { report } from '../fixture/figures.js';
import { Minimal } from '../fixture/minimal.js';
import { Ours, push } from '../fixture/ours.js';
import { openPage } from '../fixture/page.js';
import { alternate } from '../fixture/rounds.js';
import { framesDuring } from '../fixture/trace.js';

const rounds = 5;
const animations = 100000;

/** How far and how fast the list is scrolled, in pixels and pixels a second. */
const distance = 12000;
const speed = 3000;

/** How long the screen shows one picture, in milliseconds. */
const picture = 1000 / 60;

/** Scrolls the list in one go; the page's frames meanwhile. */
async function scroll(browser, page) {
  const session = await page.context().newCDPSession(page);
  const frames = await framesDuring(browser, page, () =>
    session.send('Input.synthesizeScrollGesture', {
      x: 500, y: 500, yDistance: -distance, speed, gestureSourceType: 'mouse' }));
  await session.detach();
  return frames;
}

/** For how many pictures of the screen each frame had to do; 1 is smooth. */
const pictures = (frames) =>
  (frames.at(-1).at - frames[0].at) / picture / (frames.length - 1);

const tooLong = (frames) => frames.filter(({ work }) => work > picture).length;

function tell({ ours, minimal }) {
  const what = { size: animations, unit: 'frames' };
  const long = { ...what, race: 'scroll: frames that take over 16.7 ms of work' };
  report({ ...long, contestant: 'ours', must: 0.01 },
         ours.map(tooLong), ours.map(({ length }) => length));
  report({ ...long, contestant: 'page of plain rows' },
         minimal.map(tooLong), minimal.map(({ length }) => length));
  const smooth = { ...what, race: 'scroll: pictures of the screen a frame' };
  report({ ...smooth, contestant: 'ours', must: 1.01 }, ours.map(pictures), minimal.map(pictures));
  report({ ...smooth, contestant: 'page of plain rows' },
         minimal.map(pictures), minimal.map(pictures));
}

/** A long list, beside a page that holds as many plain rows in view. */
export async function scrolls(browser, options) {
  const ours = await Ours.start(options.program, animations);
  const page = await openPage(browser, ours.address);
  await push(page, 'Lotties');
  const minimal = await Minimal.start(options.minimal, ours.phone.bytes());
  const other = await openPage(browser, `${minimal.origin}/rows`);
  const contestants = {
    ours: () => scroll(browser, page), minimal: () => scroll(browser, other),
  };
  await alternate(1, contestants);  // The first time is everybody's slowest.
  tell(await alternate(rounds, contestants));
  for (const opened of [page, other]) await opened.context().close();
  for (const server of [ours, minimal]) await server.stop();
}
