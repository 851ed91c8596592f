import assert from 'node:assert/strict';
import { once } from 'node:events';
import { createServer } from 'node:http';
import { scenario } from './fixture/scenario.js';

/** A page of somebody else's, on another port of this machine. */
async function startForeignSite() {
  const server = createServer((_, answer) =>
    answer.writeHead(200, { 'Content-Type': 'text/html' }).end('<!DOCTYPE html><title>x</title>'));
  server.listen(0, '127.0.0.1');
  await once(server, 'listening');
  return server;
}

/** What the browser says when it turns such a page away. */
const errors =
  /403|CORS policy|WebSocket connection to .* failed|Refused to |frame-ancestors|ERR_|blocked/;

/** The ways in which a page may reach for another; each tells what it got hold of. */
const attempts = {
  fetch: (origin) =>
    fetch(`${origin}/`, { credentials: 'include' }).then(({ status }) => status, () => 'nothing'),
  'fetch without looking': (origin) =>
    fetch(`${origin}/`, { credentials: 'include', mode: 'no-cors' })
      .then(({ type }) => type, () => 'nothing'),
  socket: (origin) => new Promise((resolve) => {
    const socket = new WebSocket(`${origin.replace('http', 'ws')}/socket`);
    socket.onopen = socket.onmessage = () => resolve('opened');
    socket.onerror = () => resolve('nothing');
  }),
  script: (origin) => new Promise((resolve) => {
    const script = document.createElement('script');
    script.type = 'module';
    Object.assign(script, { src: `${origin}/tree.js`, onload: () => resolve('loaded'),
                            onerror: () => resolve('nothing') });
    document.head.append(script);
  }),
  'style sheet': (origin) => new Promise((resolve) => {
    const link = document.createElement('link');
    Object.assign(link, { rel: 'stylesheet', href: `${origin}/style.css`,
                          onload: () => resolve('loaded'), onerror: () => resolve('nothing') });
    document.head.append(link);
  }),
  image: (origin) => new Promise((resolve) => {
    const image = new Image();
    Object.assign(image, { src: `${origin}/favicon.svg`, onload: () => resolve('loaded'),
                           onerror: () => resolve('nothing') });
  }),
};

scenario('the page itself gets hold of all that others reach for', {},
  async ({ page, program }) => {
    const found = {};
    for (const [name, attempt] of Object.entries(attempts)) {
      found[name] = await page.evaluate(attempt, program.origin);
    }
    assert.deepEqual(found, {
      fetch: 200, 'fetch without looking': 'basic', socket: 'opened', script: 'loaded',
      'style sheet': 'loaded', image: 'loaded',
    });
  });

for (const host of ['127.0.0.1', 'localhost']) {
  foreignScenario('is answered with nothing', host, async ({ program }, page) => {
    for (const [name, attempt] of Object.entries(attempts)) {
      assert.equal(await page.evaluate(attempt, program.origin), 'nothing', name);
    }
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
      await opened.waitForLoadState();
      assert.equal(await opened.locator('.phone').count(), 0);
      assert.match(await opened.locator('body').innerText(), /Other sites have no access/);
    });
}

/** A scenario with a page of another origin in the very browser that has the cookie. */
function foreignScenario(name, host, body) {
  scenario(`a page of another port of ${host} ${name}`, { errors }, async (screen) => {
    const site = await startForeignSite();
    try {
      const page = await screen.newPage();
      await page.goto(`http://${host}:${site.address().port}/`);
      await body(screen, page);
    } finally {
      site.closeAllConnections();
      site.close();
    }
    // The page that belongs there works on.
    await screen.push('Clock');
  });
}
