import assert from 'node:assert/strict';
import { alter } from './fixture/altered.js';
import { eventually } from './fixture/eventually.js';
import { scenario } from './fixture/scenario.js';

const small = { look: { viewport: { width: 390, height: 420 } } };
const bar = ({ page }) => page.locator('.page:not([inert]) .bar');
const content = ({ page }) => page.locator('.page:not([inert]) .content');
const style = (locator, name) => locator.evaluate((at, key) => getComputedStyle(at)[key], name);

/** What the bar looks like between the back button and the title. */
const picture = ({ page }) => page.screenshot({ clip: { x: 110, y: 0, width: 40, height: 40 } });

/** Scrolls until the first row with a text lies below that stretch of the bar. */
async function scrollBelow(screen) {
  const label = screen.page.locator('.page:not([inert]) .heading').nth(2);
  await content(screen).evaluate((list, row) => {
    list.scrollTop += row.getBoundingClientRect().top;
  }, await label.elementHandle());
  await eventually(async () => assert.ok((await label.boundingBox()).y < 5));
}

scenario('rows scroll on below the bar and show through it', small, async (screen) => {
  await screen.push('Clock');
  const list = await content(screen).boundingBox();
  assert.equal(list.y, 0);
  const atRest = await picture(screen);
  assert.deepEqual(await picture(screen), atRest, 'the picture is the same each time');
  await scrollBelow(screen);
  assert.notDeepEqual(await picture(screen), atRest);
});

scenario('rows that lie below the bar cannot be touched there', small, async (screen) => {
  await screen.push('Clock');
  await scrollBelow(screen);
  const under = await screen.page.evaluate(() =>
    document.elementFromPoint(130, 22).closest('.bar, .content').className);
  assert.equal(under, 'bar');
});

scenario('the first row is clear of the bar, and a row comes clear of it with the keyboard', small,
  async (screen) => {
    await screen.push('Clock');
    const bottom = async () => {
      const { y, height } = await bar(screen).boundingBox();
      return y + height;
    };
    const top = async (row) => (await row.boundingBox()).y;
    assert.ok(await top(screen.page.locator('.page:not([inert]) .heading').first())
      >= await bottom());
    await content(screen).evaluate((list) => (list.scrollTop = list.scrollHeight));
    await screen.group('Size').getByRole('textbox').focus();
    await screen.page.keyboard.press('Shift+Tab');
    assert.ok(await top(screen.group('Size').getByRole('slider')) >= await bottom());
  });

scenario('a bar that is not translucent is opaque and ends where the rows begin', small,
  async (screen) => {
    await alter(screen, (node) => {
      if (node.style) node.style.translucent = false;
    });
    assert.equal(await style(bar(screen), 'backgroundColor'), 'rgb(246, 146, 64)');
    assert.equal(await style(bar(screen), 'backdropFilter'), 'none');
    assert.equal((await content(screen).boundingBox()).y, (await bar(screen).boundingBox()).height);
  });

scenario('title and back button have a color each', {}, async (screen) => {
  await alter(screen, (node) => {
    if (node.style) Object.assign(node.style, { barText: '#010203ff', barTint: '#040506ff' });
  });
  await screen.push('Clock');
  assert.equal(await style(bar(screen).locator('.title'), 'color'), 'rgb(1, 2, 3)');
  assert.equal(await style(bar(screen).getByRole('button'), 'color'), 'rgb(4, 5, 6)');
});
