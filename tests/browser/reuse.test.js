import assert from 'node:assert/strict';
import { eventually } from './fixture/eventually.js';
import { list } from './fixture/list.js';
import { scenario } from './fixture/scenario.js';
import { ready } from './fixture/screen.js';

const many = {
  animations: Array.from({ length: 100 }, (_, i) => `Wave ${i}`),
  values: "{'enabledLotties': []}",
};

/** The names in the order of the list, which is the folder's own. */
async function open(screen) {
  await screen.push('Lotties');
  return list(screen).disabled();
}

scenario('a row that moves leaves the elements of the others where they are', many,
  async (screen) => {
    const names = await open(screen);
    const cells = screen.page.locator('.cell');
    await cells.evaluateAll((all) => all.forEach((cell) => (cell.known = true)));
    await list(screen).button('Insert', names[4]).click();
    await eventually(async () => assert.deepEqual(await list(screen).enabled(), [names[4]]));
    const known = await cells.evaluateAll((all) => all.filter((cell) => cell.known).length);
    assert.equal(known, names.length);
    const shown = await list(screen).disabled();
    assert.deepEqual(shown, names.toSpliced(4, 1).slice(0, shown.length));
  });

scenario('a button that is held down does not become that of another row', many,
  async (screen) => {
    const names = await open(screen);
    const other = await screen.newPage();
    await other.goto(`${screen.home}/`);
    await ready(other);
    const { x, y, width, height } = await list(screen).button('Insert', names[4]).boundingBox();
    await screen.page.mouse.move(x + width / 2, y + height / 2);
    await screen.page.mouse.down();
    await other.getByRole('button', { name: `Insert ${names[1]}`, exact: true }).click();
    await eventually(async () => assert.deepEqual(await list(screen).enabled(), [names[1]]));
    const told = screen.touches.length;
    await screen.page.mouse.up();
    await screen.page.evaluate(() => new Promise(requestAnimationFrame));
    assert.deepEqual(screen.touches.slice(told), []);
    assert.deepEqual(await list(screen).enabled(), [names[1]]);
  });

scenario('a button that was tapped shows it until the answer is there', many, async (screen) => {
  const { page } = screen;
  const [name] = await open(screen);
  const cell = page.getByRole('listitem').filter({ has: list(screen).button('Insert', name) });
  await page.evaluate(() => {
    const { send } = WebSocket.prototype;
    WebSocket.prototype.send = function (text) {
      if (JSON.parse(text).kind !== 'tap') send.call(this, text);
    };
  });
  await cell.getByRole('button', { name: 'Insert' }).click();
  assert.equal(await cell.getAttribute('aria-busy'), 'true');
});
