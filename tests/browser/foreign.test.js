import assert from 'node:assert/strict';
import { attempts, pushes, socket } from './fixture/attempts.js';
import { note } from './fixture/figures.js';
import { scenario } from './fixture/scenario.js';
import { Site } from './fixture/site.js';

/** What the browser says when it turns such a page away. */
const errors = new RegExp('403|405|CORS policy|WebSocket connection to .* failed|Refused to |' +
  'frame-ancestors|ERR_|blocked|Failed to load|MIME|Unexpected token|import statement');

async function found(page, ways, origin) {
  const results = {};
  for (const [name, attempt] of Object.entries(ways)) {
    results[name] = await page.evaluate(attempt, origin);
  }
  return results;
}

const nothing = Object.fromEntries(Object.keys(attempts).map((name) => [name, 'nothing']));

scenario('the page itself gets hold of what others reach for', {},
  async ({ page, program }) => {
    const ways = ['fetch', 'fetch without looking', 'import', 'script', 'style sheet', 'image'];
    const own = Object.fromEntries(ways.map((name) => [name, attempts[name]]));
    assert.deepEqual(await found(page, { ...own, socket }, program.origin), {
      fetch: 200, 'fetch without looking': 'basic', import: 'loaded', script: 'loaded',
      'style sheet': 'loaded', image: 'loaded', socket: 'opened',
    });
  });

for (const host of ['127.0.0.1', 'localhost']) {
  foreignScenario('would get everything from a site that lets it', host, async (_, page) => {
    const open = await Site.start();
    try {
      const got = await found(page, attempts, `http://127.0.0.1:${open.port}`);
      assert.deepEqual(Object.keys(got).filter((name) => got[name] === 'nothing'), []);
    } finally {
      open.stop();
    }
  });

  foreignScenario('is answered with nothing', host, async ({ program }, page) => {
    assert.deepEqual(await found(page, { ...attempts, socket }, program.origin),
      { ...nothing, socket: 'nothing' });
    note(`a page of another port of ${host}, in the user's own browser`,
      `${Object.keys(attempts).length + 1} ways to read: nothing read`, 'nothing read or changed');
  });

  foreignScenario('changes nothing', host, async ({ program }, page) => {
    await found(page, pushes, program.origin);
  });

  foreignScenario('cannot frame the page', host, async ({ program }, page) => {
    await page.evaluate((origin) => new Promise((resolve) => {
      const frame = document.createElement('iframe');
      Object.assign(frame, { src: `${origin}/`, onload: resolve });
      document.body.append(frame);
    }), program.origin);
    const [, frame] = page.frames();
    assert.equal(await frame.locator('.phone').count(), 0);
  });

  foreignScenario('cannot open the page in a window that it holds', host,
    async ({ program, context }, page) => {
      const [opened] = await Promise.all([
        context.waitForEvent('page'),
        page.evaluate((origin) => void window.open(`${origin}/`), program.origin),
      ]);
      await isRefused(opened);
    });

  foreignScenario('cannot lead to the page', host, async ({ program }, page) => {
    await Promise.all([
      page.waitForURL(`${program.origin}/`),
      page.evaluate((origin) => void location.assign(`${origin}/`), program.origin),
    ]);
    await isRefused(page);
  });
}

async function isRefused(page) {
  await page.waitForLoadState();
  assert.equal(await page.locator('.phone').count(), 0);
  assert.match(await page.locator('body').innerText(), /Other sites have no access/);
}

/** A scenario with a page of another origin in the very browser that has the cookie. */
function foreignScenario(name, host, body) {
  const options = { errors, values: "{'clockEnabled': False}" };
  scenario(`a page of another port of ${host} ${name}`, options, async (screen) => {
    const before = screen.phone.bytes();
    const site = await Site.start();
    try {
      const page = await screen.newPage();
      await page.goto(`http://${host}:${site.port}/`);
      await body(screen, page);
    } finally {
      site.stop();
    }
    assert.deepEqual(screen.phone.bytes(), before);
    assert.deepEqual(screen.touches, []);
    // The page that belongs there works on.
    await screen.isOnTop('Quillmere');
    await screen.push('Clock');
  });
}
