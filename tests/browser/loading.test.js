import assert from 'node:assert/strict';
import { eventually } from './fixture/eventually.js';
import { scenario } from './fixture/scenario.js';

/** Paths below the page's own, in the order in which they were asked for. */
const paths = ({ home }, addresses) => addresses.map((address) => address.slice(home.length + 1));

scenario('all that draws the root page is asked for by the page itself, at once', {},
  async (screen) => {
    const { page } = screen;
    const files = paths(screen, await page.evaluate(() =>
      performance.getEntriesByType('resource').map(({ name }) => name)));
    const asked = paths(screen, await page.locator('link[rel=modulepreload], script')
      .evaluateAll((all) => all.map(({ href, src }) => href ?? src)));
    const first = files.slice(0, files.indexOf('nodes/others.js'));
    assert.deepEqual(first.filter((file) => file.endsWith('.js')).sort(), asked.sort());
    assert.ok(asked.includes('nodes/kinds.js'));
  });

scenario('the screen is there to be seen, not to be touched, before there is a connection',
  { errors: /WebSocket/ },
  async (screen) => {
    const { page } = screen;
    await page.routeWebSocket('**/socket', () => {});
    await page.reload();
    const title = page.locator('h1');
    await title.waitFor();
    assert.equal(await title.innerText(), 'Quillmere');
    assert.ok(await page.locator('.stage').evaluate((stage) => stage.inert));
    assert.equal(await page.locator('.stage').evaluate((stage) => getComputedStyle(stage).filter),
                 'none');
  });

scenario('a page of other kinds of rows is drawn once they are there', {}, async (screen) => {
  await screen.push('Clock');
  await screen.page.reload();
  await eventually(async () => assert.ok(await screen.page.locator('ion-range').count() > 0));
  await screen.pop('Quillmere');
});

scenario('a page that the program left while it loaded says so, and begins anew by itself',
  { errors: /ERR_FAILED|Failed to load/ },
  async (screen) => {
    const { page } = screen;
    let isAway = true;
    await page.route(/others\.js$|\/[0-9a-f]{32}\/$/, (route) =>
      isAway && route.request().resourceType() !== 'document' ? route.abort() : route.continue());
    await page.reload();
    await page.getByText('Connection lost').waitFor();
    assert.ok(await page.locator('.stage').evaluate((stage) => stage.inert));
    isAway = false;
    await eventually(async () =>
      assert.equal(await page.locator('.stage').evaluate((stage) => stage.inert), false));
    await screen.push('Clock');
  });
