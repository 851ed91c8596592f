import assert from 'node:assert/strict';
import { eventually } from './fixture/eventually.js';
import { list } from './fixture/list.js';
import { scenario } from './fixture/scenario.js';

const total = 100000;

/** A phone with so many animations, none of which is enabled. */
const phoneWith = (count) => ({
  animations: Array.from({ length: count }, (_, i) => `Wave ${i}`),
  values: "{'enabledLotties': []}",
});

/** Most rows that may be there at a time. */
const few = 120;

scenario('of 100,000 animations only those in view are rows, up to the last',
  phoneWith(total),
  async (screen) => {
    await screen.push('Lotties');
    const { section, content } = list(screen);
    const rows = section('Disabled').getByRole('listitem');
    assert.equal(await rows.first().getAttribute('aria-setsize'), String(total));
    const { height } = await section('Disabled').boundingBox();
    assert.equal(height, total * 44);

    const seen = new Set();
    for (const part of [0, 0.25, 0.5, 0.75, 1]) {
      await content.evaluate((at, share) => (at.scrollTop = share * at.scrollHeight), part);
      await eventually(() => expectFilled(screen));
      assert.ok(await rows.count() <= few, `${await rows.count()} rows`);
      for (const name of await rows.locator('.label').allInnerTexts()) seen.add(name);
    }
    assert.ok(seen.size > 5 * 20);
    assert.equal(await rows.last().getAttribute('aria-posinset'), String(total));
    assert.ok(await rows.last().evaluate((row) => row.checkVisibility()));
  });

/** Wherever the list is in view there is a row. */
async function expectFilled({ page }) {
  const gaps = await page.evaluate(() => {
    const content = document.querySelector('.page:not([inert]) .content');
    const [box, rows] = [content, content.querySelector('.rows:not([hidden])')]
      .map((part) => part.getBoundingClientRect());
    const top = Math.max(box.top + 110, rows.top);
    const bottom = Math.min(box.bottom, rows.bottom);
    const steps = Math.floor((bottom - top) / 22);
    return Array.from({ length: steps }, (_, i) => top + 22 * i + 1)
      .filter((y) => !document.elementFromPoint(rows.left + 60, y)?.closest('.cell'));
  });
  assert.deepEqual(gaps, []);
}

scenario('fast scrolling asks for rows at most once a frame, and leaves no gap',
  phoneWith(5000),
  async (screen) => {
    await screen.push('Lotties');
    // In which frame the page asked, each time.
    const asked = await screen.page.evaluateHandle(() => {
      const frames = [];
      let frame = 0;
      const count = () => {
        frame += 1;
        requestAnimationFrame(count);
      };
      count();
      const { send } = WebSocket.prototype;
      WebSocket.prototype.send = function (text) {
        if (JSON.parse(text).kind === 'window') frames.push(frame);
        send.call(this, text);
      };
      return frames;
    });
    await list(screen).content.evaluate(async (content) => {
      for (let i = 0; i < 60; ++i) {
        content.scrollTop += 3;
        content.scrollTop += 700;
        await new Promise(requestAnimationFrame);
      }
    });
    await eventually(() => expectFilled(screen));
    await screen.answered();
    const frames = await asked.jsonValue();
    assert.ok(frames.length > 5);
    assert.deepEqual(frames, [...new Set(frames)]);
  });

scenario('the list stays scrolled where it was when a row moves to the other section',
  phoneWith(5000),
  async (screen) => {
    await screen.push('Lotties');
    const { content, section } = list(screen);
    await content.evaluate((at) => (at.scrollTop = 44000));
    await eventually(() => expectFilled(screen));
    const scrolled = () => content.evaluate((at) => at.scrollTop);
    assert.equal(await scrolled(), 44000);
    const row = section('Disabled').getByRole('listitem').nth(30);
    const name = await row.locator('.label').innerText();
    await row.getByRole('button').click();
    await eventually(async () =>
      assert.equal((await screen.stored()).enabledLotties, `['${name}']`));
    await eventually(() => expectFilled(screen));
    assert.equal(await scrolled(), 44000);
  });
