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

/** Scrolls until something lies below the bar. */
async function scrollBelow(screen, what) {
  await content(screen).evaluate((list, at) => {
    list.scrollTop += at.getBoundingClientRect().top;
  }, await what.elementHandle());
  await eventually(async () => assert.ok((await what.boundingBox()).y < 5));
}

scenario('rows scroll on below the bar and show through it', small, async (screen) => {
  await screen.push('Clock');
  const list = await content(screen).boundingBox();
  assert.equal(list.y, 0);
  const atRest = await picture(screen);
  assert.deepEqual(await picture(screen), atRest, 'the picture is the same each time');
  await scrollBelow(screen, screen.group('Size').locator('.heading'));
  assert.notDeepEqual(await picture(screen), atRest);
});

scenario('the bar wears its color in full until rows lie below it', small, async (screen) => {
  await screen.push('Clock');
  assert.equal(await style(bar(screen), 'backgroundColor'), 'rgb(246, 146, 64)');
  await scrollBelow(screen, screen.group('Size').locator('.heading'));
  await eventually(async () => assert.equal(await style(bar(screen), 'backgroundColor'),
    'color(srgb 0.964706 0.572549 0.25098 / 0.9)'));
  assert.equal(await style(bar(screen), 'backdropFilter'), 'blur(20px)');
  await content(screen).evaluate((list) => (list.scrollTop = 0));
  await eventually(async () =>
    assert.equal(await style(bar(screen), 'backgroundColor'), 'rgb(246, 146, 64)'));
});

scenario('rows that lie below the bar cannot be touched there', small, async (screen) => {
  await screen.push('Clock');
  const toggle = screen.group('Clock').getByRole('switch');
  await scrollBelow(screen, toggle);
  const { x, width } = await toggle.boundingBox();
  const hit = await screen.page.evaluate(([from, to]) => {
    const points = Array.from({ length: 40 }, (_, i) => from + ((i + 0.5) / 40) * (to - from));
    return points.map((at) => document.elementFromPoint(at, 22).closest('.bar, .content').className);
  }, [x, x + width]);
  assert.deepEqual([...new Set(hit)], ['bar']);
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
