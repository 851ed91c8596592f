import assert from 'node:assert/strict';
import { eventually } from './fixture/eventually.js';
import { scenario } from './fixture/scenario.js';

const toggle = ({ page }) => page.locator('.bar').getByRole('switch', { name: 'Quillmere' });
const prompt = ({ page }) => page.getByRole('alertdialog');
const shows = (locator, state) =>
  eventually(async () => assert.equal(await locator.getAttribute('aria-checked'), state));

/** Presses the switch and lets go somewhere else, that far from its middle in pixels. */
async function drag(screen, ...ways) {
  const { x, y, width, height } = await toggle(screen).boundingBox();
  const { mouse } = screen.page;
  await mouse.move(x + width / 2, y + height / 2);
  await mouse.down();
  for (const [dx, dy] of ways) await mouse.move(x + width / 2 + dx, y + height / 2 + dy);
  await mouse.up();
}

/** The ways of turning the switch. */
const ways = {
  'a tap': (screen) => toggle(screen).click(),
  'the space bar': (screen) => toggle(screen).press(' '),
  'the Enter key': (screen) => toggle(screen).press('Enter'),
  'a drag that ends on it': (screen) => drag(screen, [-12, 0], [-20, 5]),
};

for (const [way, turn] of Object.entries(ways)) {
  scenario(`the switch in the bar is stored and prompts at once: ${way}`, {}, async (screen) => {
    await shows(toggle(screen), 'true');
    await turn(screen);
    assert.deepEqual(await screen.stored(), { enabledSwitch: 'False' });
    assert.match(await prompt(screen).innerText(), /Enabling or Disabling the tweak/);
    await screen.page.keyboard.press('Escape');
    await prompt(screen).waitFor({ state: 'detached' });
    await shows(toggle(screen), 'false');
  });
}

scenario('a drag that ends beside the switch turns it, but is neither stored nor prompts', {},
  async (screen) => {
    await drag(screen, [-12, 0], [-90, 0]);
    await shows(toggle(screen), 'false');
    await screen.answered();
    assert.deepEqual(screen.touches.map(({ on, inside }) => [on, inside]), [[false, false]]);
    assert.equal(screen.phone.bytes(), null);
    assert.equal(await prompt(screen).count(), 0);
  });

scenario('a finger turns the switch once', { look: { hasTouch: true } }, async (screen) => {
  await toggle(screen).tap();
  await prompt(screen).waitFor();
  await screen.answered();
  assert.deepEqual(screen.touches.map(({ kind, on, inside }) => [kind, on, inside]),
    [['toggle', false, true]]);
});

const small = { look: { viewport: { width: 390, height: 500 } } };

/** How much is seen of the title's text and of the icon that takes its place. */
async function expectTitle(screen, text, icon) {
  const alpha = (part) => screen.page.locator(`.title-view ${part}`)
    .evaluate((element) => Number(getComputedStyle(element).opacity));
  await eventually(async () => assert.deepEqual([await alpha('.line'), await alpha('.image')],
    [text, icon]));
}

scenario('the icon takes the title’s place as soon as the rows are more than 60 points down',
  small, async (screen) => {
    const list = screen.page.locator('.content');
    const scroll = (y) => list.evaluate((content, top) => (content.scrollTop = top), y);
    await expectTitle(screen, 1, 0);
    for (const [y, ...alphas] of [[60, 1, 0], [61, 0, 1], [200, 0, 1], [60, 1, 0]]) {
      await scroll(y);
      await expectTitle(screen, ...alphas);
      assert.equal(await list.evaluate((content) => content.scrollTop), y);
    }
    assert.deepEqual(screen.touches.map(({ kind, y }) => [kind, y]),
      [['scroll', 60], ['scroll', 61], ['scroll', 200], ['scroll', 60]]);
    await screen.page.getByRole('heading', { level: 1, name: 'Quillmere' }).waitFor();
  });

scenario('title and icon fade into each other in 0.2 seconds',
  { look: { ...small.look, reducedMotion: 'no-preference' } }, async (screen) => {
    await screen.page.locator('.content').evaluate((content) => (content.scrollTop = 100));
    const durations = await screen.page.waitForFunction(() => {
      const all = document.querySelector('.title-view').getAnimations({ subtree: true });
      return all.length === 2 && all.map(({ effect }) => effect.getTiming().duration);
    });
    assert.deepEqual(await durations.jsonValue(), [200, 200]);
  });

scenario('a picture stands above the rows, and the icon fits into the bar', {},
  async ({ page }) => {
    const pictures = page.locator(':is(.header, .title-view) img');
    await eventually(async () => assert.deepEqual(
      await pictures.evaluateAll((all) => all.map(({ naturalWidth }) => naturalWidth > 0)),
      [true, true]));
    const header = await page.locator('.header').boundingBox();
    const { x, width, height } = await page.locator('.header img').boundingBox();
    assert.deepEqual([header.height, width, height], [130, 120, 120]);
    assert.ok(Math.abs(x + width / 2 - header.x - header.width / 2) < 1);
    const first = await page.locator('.heading').first().boundingBox();
    assert.ok(header.y + header.height <= first.y);
    const bar = await page.locator('.bar').boundingBox();
    const icon = await page.locator('.title-view img').boundingBox();
    assert.ok(icon.y >= bar.y && icon.y + icon.height <= bar.y + bar.height);
  });
