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
  async ({ page, home }) => {
    const ways = ['fetch', 'fetch without looking', 'import', 'script', 'style sheet', 'image'];
    const own = Object.fromEntries(ways.map((name) => [name, attempts[name]]));
    assert.deepEqual(await found(page, { ...own, socket }, home), {
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

  foreignScenario('is answered with nothing', host, async ({ home }, page) => {
    assert.deepEqual(await found(page, { ...attempts, socket }, home),
      { ...nothing, socket: 'nothing' });
    note(`a page of another port of ${host}, in the user's own browser`,
      `${Object.keys(attempts).length + 1} ways to read: nothing read`, 'nothing read or changed');
  });

  foreignScenario('changes nothing', host, async ({ home }, page) => {
    await found(page, pushes, home);
  });

  foreignScenario('cannot frame the page', host, async ({ home }, page) => {
    await page.evaluate((address) => new Promise((resolve) => {
      const frame = document.createElement('iframe');
      Object.assign(frame, { src: `${address}/`, onload: resolve });
      document.body.append(frame);
    }), home);
    const [, frame] = page.frames();
    assert.equal(await frame.locator('.phone').count(), 0);
  });

  foreignScenario('cannot open the page in a window that it holds', host,
    async ({ home, context }, page) => {
      const [opened] = await Promise.all([
        context.waitForEvent('page'),
        page.evaluate((address) => void window.open(`${address}/`), home),
      ]);
      await isRefused(opened);
    });

  foreignScenario('cannot lead to the page', host, async ({ home }, page) => {
    await Promise.all([
      page.waitForURL(`${home}/`),
      page.evaluate((address) => void location.assign(`${address}/`), home),
    ]);
    await isRefused(page);
  });
}

/** Cookies know no port, and the second visit comes from where the cookie would go along. */
scenario('a server on another port is never shown the cookie', {},
  async ({ context, home }) => {
    assert.equal((await context.cookies(`${home}/`)).length, 1);
    const site = await Site.start();
    try {
      const page = await context.newPage();
      for (const path of ['', 'socket', new URL(home).pathname.slice(0, 9)]) {
        await page.goto(`http://127.0.0.1:${site.port}/${path}`);
        await page.reload();
        await Promise.all([page.waitForNavigation(), page.evaluate(() => location.reload())]);
        await page.evaluate(() => fetch('/more', { credentials: 'include' }));
      }
      assert.equal(site.asked.length >= 12, true);
      assert.deepEqual(site.asked.filter(({ cookie }) => cookie !== undefined), []);
    } finally {
      site.stop();
    }
  });

async function isRefused(page) {
  await page.waitForLoadState();
  assert.equal(await page.locator('.phone').count(), 0);
  assert.match(await page.locator('body').innerText(), /Other sites have no access/);
}

/**
 * A scenario with a page of another origin in the very browser that has the cookie. It is told of the
 * page's home, too, which it has no way to know.
 */
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
