import assert from 'node:assert/strict';
import { eventually } from './fixture/eventually.js';
import { scenario } from './fixture/scenario.js';

const accent = 'rgb(246, 146, 64)';
const white = 'rgb(255, 255, 255)';
const clear = 'rgba(0, 0, 0, 0)';

const style = (locator, property, pseudo) =>
  locator.evaluate((element, [name, part]) => getComputedStyle(element, part)[name],
    [property, pseudo]);

const schemes = {
  light: { canvas: 'rgb(242, 242, 247)', card: white },
  dark: { canvas: 'rgb(0, 0, 0)', card: 'rgb(28, 28, 30)' },
};

for (const [colorScheme, { canvas, card }] of Object.entries(schemes)) {
  scenario(`bar, title, rows and separators wear the bundle's colors, ${colorScheme}`,
    { look: { colorScheme } }, async ({ page }) => {
      const [link, next] = await page.locator('.row.link').all();
      assert.deepEqual({
        bar: await style(page.locator('.bar'), 'backgroundColor'),
        title: await style(page.locator('.title'), 'color'),
        text: await style(link.locator('.label'), 'color'),
        separator: await style(next, 'backgroundColor', '::before'),
        canvas: await style(page.locator('.content'), 'backgroundColor'),
        card: await style(page.locator('.rows').first(), 'backgroundColor'),
      }, {
        bar: accent, title: white, text: accent, separator: clear,
        canvas, card,
      });
    });

  scenario(`a switch, a slider and the way back wear them, too, ${colorScheme}`,
    { look: { colorScheme } }, async (screen) => {
      await screen.push('Clock');
      const { page } = screen;
      assert.equal(await style(page.getByRole('button', { name: 'Quillmere' }), 'color'), white);
      for (const part of ['ion-toggle .toggle-icon', 'ion-range .range-bar-active']) {
        assert.equal(await style(page.locator(part).first(), 'backgroundColor'), accent, part);
      }
      assert.equal(await style(page.locator('.value').first(), 'color'), accent);
    });
}

scenario('the title is white, 17 pixels, half bold and in the middle of the bar', {},
  async (screen) => {
    await screen.push('Quick Actions');
    const title = screen.page.getByRole('heading', { level: 1 });
    assert.equal(await style(title, 'fontSize'), '17px');
    assert.equal(await style(title, 'fontWeight'), '600');
    const middle = async (locator) => {
      const { x, width } = await locator.boundingBox();
      return x + width / 2;
    };
    const bar = screen.page.locator('.page:not([inert]) .bar');
    assert.ok(Math.abs(await middle(title) - await middle(bar)) < 1.5);
  });

scenario('a wide window shows a phone, a narrow one only its screen', {}, async ({ page }) => {
  const box = (selector) => page.locator(selector).boundingBox();
  const phone = await box('.display');
  assert.deepEqual([phone.width, phone.height], [393, 852]);
  assert.notEqual(await style(page.locator('.display'), 'borderRadius'), '0px');

  await page.setViewportSize({ width: 500, height: 800 });
  await eventually(async () =>
    assert.deepEqual(await box('.display'), { x: 0, y: 0, width: 500, height: 800 }));
  assert.equal(await style(page.locator('.display'), 'borderRadius'), '0px');
});

for (const [width, height] of [[320, 480], [390, 844], [700, 420], [1920, 1080]]) {
  scenario(`nothing is cut off or scrolls sideways at ${width} x ${height}`,
    { look: { viewport: { width, height } } }, async (screen) => {
      for (const title of ['Quillmere', 'Clock', 'Quick Actions', 'Color']) {
        if (title !== 'Quillmere') await screen.push(title);
        const overflowing = await screen.page.evaluate(() =>
          [document.documentElement,
           ...document.querySelectorAll('.page:not([inert]) :is(.content, .bar, .row, .label)')]
            .filter((part) => part.scrollWidth > part.clientWidth + 1)
            .map((part) => `${part.className} ${part.textContent}`));
        assert.deepEqual(overflowing, [], title);
        if (title !== 'Quillmere') await screen.pop('Quillmere');
      }
    });
}

/** The animations that an act brings about, by the part that they move, in milliseconds. */
async function motion(page, act) {
  await page.evaluate(() => {
    window.moved = new Set();
    const look = () => {
      for (const { effect } of document.getAnimations()) {
        const { duration } = effect.getTiming();
        if (duration > 100) window.moved.add(`${effect.target.className} ${duration}`);
      }
      window.looking = requestAnimationFrame(look);
    };
    look();
  });
  await act();
  return page.evaluate(() => {
    cancelAnimationFrame(window.looking);
    return [...window.moved].sort();
  });
}

const moving = { look: { reducedMotion: 'no-preference' } };
const sliding = ['bar 350', 'content 350', 'leading 350', 'middle 350'];

scenario('pages slide in and out', moving, async (screen) => {
  assert.deepEqual(await motion(screen.page, () => screen.push('Clock')), sliding);
  assert.deepEqual(await motion(screen.page, () => screen.pop('Quillmere')), sliding);
});

scenario('pages come from the right', moving, async (screen) => {
  await screen.page.getByRole('link', { name: 'Color' }).click();
  const list = screen.page.locator('.page').nth(1).locator('.content');
  const positions = await list.evaluate(async (content) => {
    const seen = [];
    while (content.getAnimations().length > 0) {
      seen.push(content.getBoundingClientRect().x);
      await new Promise(requestAnimationFrame);
    }
    return seen;
  });
  assert.ok(positions.length > 3, `${positions.length} frames`);
  assert.deepEqual(positions, [...positions].sort((a, b) => b - a));
  await eventually(async () => assert.equal(await screen.page.locator('.covered').count(), 1));
});

scenario('those who asked for less motion get none', { look: { reducedMotion: 'reduce' } },
  async (screen) => {
    assert.deepEqual(await motion(screen.page, () => screen.push('Color')), []);
    assert.deepEqual(await motion(screen.page, async () => {
      await screen.page.getByRole('button', { name: 'Custom Color' }).click();
      await screen.page.getByRole('button', { name: 'Done' }).click();
      await screen.page.getByRole('dialog').waitFor({ state: 'detached' });
    }), []);
    assert.deepEqual(await motion(screen.page, () => screen.pop('Quillmere')), []);
  });
