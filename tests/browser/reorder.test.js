import assert from 'node:assert/strict';
import { eventually } from './fixture/eventually.js';
import { swipe } from './fixture/finger.js';
import { five, focused, list } from './fixture/list.js';
import { scenario } from './fixture/scenario.js';

const rowHeight = 44;

async function expectOrder(screen, ...names) {
  await eventually(async () => assert.deepEqual(await list(screen).enabled(), names));
  const { enabledLotties } = await screen.stored();
  assert.equal(enabledLotties, `[${names.map((name) => `'${name}'`).join(', ')}]`);
}

const middle = async (locator) => {
  const { x, y, width, height } = await locator.boundingBox();
  return { x: x + width / 2, y: y + height / 2 };
};

/** Takes a row by its grip with the mouse and moves it by pixels; the button stays down. */
async function take(screen, name, distance) {
  const { x, y } = await middle(list(screen).grip(name));
  const { mouse } = screen.page;
  await mouse.move(x, y);
  await mouse.down();
  await mouse.move(x, y + distance, { steps: 8 });
}

scenario('a row is dragged down and up again with the mouse', five, async (screen) => {
  await screen.push('Lotties');
  await take(screen, 'Aurora', 2 * rowHeight);
  await screen.page.mouse.up();
  await expectOrder(screen, 'Breeze', 'Comet', 'Aurora');
  await take(screen, 'Aurora', -rowHeight);
  await screen.page.mouse.up();
  await expectOrder(screen, 'Breeze', 'Aurora', 'Comet');
});

scenario('a row is dragged with a finger', { ...five, look: { hasTouch: true } },
  async (screen) => {
    await screen.push('Lotties');
    const ways = Array.from({ length: 12 }, (_, i) => [0, -8 * i]);
    await swipe(screen, await middle(list(screen).grip('Comet')), ways);
    await expectOrder(screen, 'Comet', 'Aurora', 'Breeze');
  });

scenario('rows make way for the one in the hand', five, async (screen) => {
  await screen.push('Lotties');
  await take(screen, 'Aurora', rowHeight);
  const top = async (name) =>
    (await middle(list(screen).section('Enabled').getByText(name, { exact: true }).first())).y;
  const [breeze, comet] = [await top('Breeze'), await top('Comet')];
  assert.ok(Math.abs(comet - breeze - 2 * rowHeight) < 1, 'there is a gap between the two');
  await screen.page.mouse.up();
  await expectOrder(screen, 'Breeze', 'Aurora', 'Comet');
});

for (const colorScheme of ['light', 'dark']) {
  scenario(`the row in the hand stands out from the others, ${colorScheme}`,
    { ...five, look: { colorScheme } }, async (screen) => {
      await screen.push('Lotties');
      await take(screen, 'Aurora', rowHeight);
      const looks = (locator) => locator.evaluate((row) => {
        const { backgroundColor, boxShadow } = getComputedStyle(row);
        return { backgroundColor, boxShadow };
      });
      const carried = await looks(screen.page.locator('.carried'));
      const other = await looks(screen.page.locator('.cell:not(.carried)', { hasText: 'Comet' }));
      assert.notEqual(carried.boxShadow, other.boxShadow);
      // A shadow is not seen on black.
      if (colorScheme === 'dark') assert.notEqual(carried.backgroundColor, other.backgroundColor);
      await screen.page.mouse.up();
    });
}

scenario('a row that is dropped over the other section snaps back', five, async (screen) => {
  const before = screen.phone.bytes();
  await screen.push('Lotties');
  const to = await middle(list(screen).section('Disabled').getByRole('listitem').nth(1));
  await take(screen, 'Aurora', to.y - (await middle(list(screen).grip('Aurora'))).y);
  await screen.page.mouse.up();
  await screen.answered();
  const { kind, section, row } = screen.touches.at(-1);
  assert.deepEqual({ kind, section, row }, { kind: 'drag', section: 1, row: 1 });
  const rows = list(screen).section('Enabled').getByRole('listitem');
  await eventually(async () => assert.deepEqual(await rows.evaluateAll((all) => all.map((at) =>
    [at.innerText.trim(), at.offsetTop, getComputedStyle(at).translate])),
  [['Aurora', 0, 'none'], ['Breeze', 44, 'none'], ['Comet', 88, 'none']]));
  assert.deepEqual(screen.phone.bytes(), before);
});

/** The rows stand as they did, and nobody was told anything. */
async function expectUntouched(screen, sent) {
  const rows = list(screen).section('Enabled').locator('.cell');
  await eventually(async () => assert.deepEqual(await rows.evaluateAll((all) => all.map((at) =>
    [at.innerText.trim(), at.offsetTop, getComputedStyle(at).translate,
     getComputedStyle(at).visibility])), [
    ['Aurora', 0, 'none', 'visible'], ['Breeze', 44, 'none', 'visible'],
    ['Comet', 88, 'none', 'visible']]));
  await screen.answered();
  assert.equal(screen.touches.length, sent);
}

scenario('Escape puts a row back that is dragged with the mouse', five, async (screen) => {
  await screen.push('Lotties');
  const sent = screen.touches.length;
  await take(screen, 'Aurora', rowHeight);
  await screen.page.keyboard.press('Escape');
  await expectUntouched(screen, sent);
  await screen.page.mouse.up();
  await expectUntouched(screen, sent);
  await take(screen, 'Aurora', rowHeight);
  await screen.page.mouse.up();
  await expectOrder(screen, 'Breeze', 'Aurora', 'Comet');
});

scenario('a row is put back when the finger is taken from the page',
  { ...five, look: { hasTouch: true } }, async (screen) => {
    await screen.push('Lotties');
    const sent = screen.touches.length;
    const ways = Array.from({ length: 12 }, (_, i) => [0, -8 * i]);
    await swipe(screen, await middle(list(screen).grip('Comet')), ways, 'touchCancel');
    await expectUntouched(screen, sent);
  });

scenario('a row in the hand is put back when the list is another by then', five,
  async (screen) => {
    await screen.push('Lotties');
    const other = await screen.newPage();
    await other.goto(`${screen.home}/`);
    for (const end of [() => screen.page.keyboard.press('Escape'), () => {}]) {
      const before = await list(screen).enabled();
      await take(screen, 'Comet', -rowHeight);
      await other.getByRole('button', { name: /^Insert/ }).first().click();
      const cells = list(screen).section('Enabled').locator('.cell:not(.carried, .dragged)');
      await eventually(async () => assert.equal(await cells.count(), before.length + 1));
      await end();
      await screen.page.mouse.up();
      await eventually(async () =>
        assert.deepEqual((await list(screen).enabled()).slice(1), before));
    }
    await other.close();
  });

scenario('a row of the other section has no grip', five, async (screen) => {
  await screen.push('Lotties');
  assert.equal(await list(screen).grip('Aurora').count(), 1);
  assert.equal(await list(screen).grip('Dune').count(), 0);
});

scenario('a row is moved by arrow keys, keeps the keyboard and says where it is', five,
  async (screen) => {
    const { page } = screen;
    const says = (text) => eventually(async () =>
      assert.equal(await page.locator('#announcement').textContent(), text));
    await screen.push('Lotties');
    await list(screen).grip('Aurora').focus();
    for (const [key, place, ...order] of [
      ['ArrowDown', 2, 'Breeze', 'Aurora', 'Comet'], ['ArrowDown', 3, 'Breeze', 'Comet', 'Aurora'],
      ['ArrowUp', 2, 'Breeze', 'Aurora', 'Comet'], ['ArrowUp', 1, 'Aurora', 'Breeze', 'Comet'],
    ]) {
      await page.keyboard.press(key);
      await expectOrder(screen, ...order);
      assert.equal(await focused(screen), 'Reorder Aurora');
      await says(`Aurora, ${place} of 3`);
    }
    const sent = screen.touches.length;
    await page.keyboard.press('ArrowUp');
    await screen.answered();
    assert.equal(screen.touches.length, sent, 'there is nothing above the first');
  });

scenario('arrow keys go on moving rows when the keyboard was elsewhere for the answer', five,
  async (screen) => {
    await screen.push('Lotties');
    await list(screen).grip('Aurora').evaluate((grip) => {
      grip.focus();
      grip.dispatchEvent(new KeyboardEvent('keydown', { key: 'ArrowDown', bubbles: true }));
      grip.blur();
    });
    await expectOrder(screen, 'Breeze', 'Aurora', 'Comet');
    await list(screen).grip('Aurora').press('ArrowDown');
    await expectOrder(screen, 'Breeze', 'Comet', 'Aurora');
  });

scenario('a row that is dragged to the edge of the screen scrolls the list along',
  { animations: Array.from({ length: 60 }, (_, i) => `Wave ${i}`),
    values: `{'enabledLotties': [f'Wave {i}' for i in range(60)]}` },
  async (screen) => {
    await screen.push('Lotties');
    const { content } = list(screen);
    const { y, height } = await content.boundingBox();
    const grip = await middle(list(screen).grip('Wave 0'));
    await take(screen, 'Wave 0', y + height - 20 - grip.y);
    await eventually(async () => {
      await screen.page.mouse.move(grip.x, y + height - 20 + Math.random());
      assert.ok(await content.evaluate((at) => at.scrollTop) > 1000);
    });
    await screen.page.mouse.up();
    await screen.answered();
    const { row } = screen.touches.findLast(({ kind }) => kind === 'drag');
    assert.ok(row > 20, `dropped at ${row}`);
    const { enabledLotties } = await screen.stored();
    assert.equal(enabledLotties.split(', ')[row].replace(']', ''), "'Wave 0'");
  });
