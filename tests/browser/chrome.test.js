import assert from 'node:assert/strict';
import { eventually } from './fixture/eventually.js';
import { scenario } from './fixture/scenario.js';
import { ready } from './fixture/screen.js';

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

scenario('however often the rows move, the page is told at most once a frame', small,
  async (screen) => {
    const frames = 5;
    // Each way down is one that the browser reports, and some that it might report as well.
    await screen.page.locator('.content').evaluate(async (content, count) => {
      for (let frame = 1; frame <= count; ++frame) {
        for (const y of [1, 2, 3]) {
          content.scrollTop = 10 * frame + y;
          content.dispatchEvent(new Event('scroll'));
        }
        await new Promise(requestAnimationFrame);
      }
    }, frames);
    await eventually(() => assert.equal(screen.touches.at(-1)?.y, 10 * frames + 3));
    await screen.answered();
    assert.ok(screen.touches.length <= frames, `${screen.touches.length} messages`);
  });

/** Where the rows stand, in points. */
const offset = (page) => page.locator('.content').evaluate((content) => content.scrollTop);

scenario('after a reload, and in a later window, the rows stand where they stood, with the icon',
  small, async (screen) => {
    await screen.page.locator('.content').evaluate((content) => (content.scrollTop = 130));
    await expectTitle(screen, 0, 1);
    await screen.page.reload();
    await ready(screen.page);
    await expectTitle(screen, 0, 1);
    assert.equal(await offset(screen.page), 130);
    const later = await screen.newPage();
    await later.goto(`${screen.home}/`);
    await ready(later);
    await eventually(async () => assert.equal(await offset(later), 130));
    await screen.answered();
    assert.deepEqual(screen.touches.map(({ kind, y }) => [kind, y]), [['scroll', 130]]);
  });

scenario('after a reload in a window that is too tall to stand there, the page tells where it stands',
  small, async (screen) => {
    await screen.page.locator('.content').evaluate((content) => (content.scrollTop = 130));
    await expectTitle(screen, 0, 1);
    await screen.page.goto('about:blank');
    await screen.page.setViewportSize({ width: 390, height: 2000 });
    await screen.page.goto(`${screen.home}/`);
    await ready(screen.page);
    await eventually(async () => assert.ok(await offset(screen.page) > 60));
    const y = await offset(screen.page);
    assert.ok(y < 130);
    await eventually(() => assert.deepEqual(screen.touches.map((touch) => touch.y), [130, y]));
  });

for (const [width, height] of [[440, 880], [430, 932], [500, 2000], [1000, 940]]) {
  scenario(`the icon takes the title’s place in a window of ${width} by ${height}, too`,
    { look: { viewport: { width, height } } }, async (screen) => {
      await screen.page.locator('.content').hover();
      await screen.page.mouse.wheel(0, 2000);
      await expectTitle(screen, 0, 1);
      await screen.page.mouse.wheel(0, -2000);
      await expectTitle(screen, 1, 0);
    });
}

scenario('a page that is uncovered after a reload stands where it stood', small, async (screen) => {
  await screen.page.locator('.content').evaluate((content) => (content.scrollTop = 130));
  await expectTitle(screen, 0, 1);
  await screen.push('Clock');
  await screen.page.reload();
  await ready(screen.page);
  await screen.pop('Quillmere');
  await expectTitle(screen, 0, 1);
  await eventually(async () =>
    assert.equal(await offset(screen.page.locator('.page:not([inert])')), 130));
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

for (const scale of [1, 2, 3]) {
  scenario(`the picture above the rows has the pixels of a screen of scale ${scale}`,
    { arguments: () => ['--screen-scale', String(scale)] }, async ({ page }) => {
      const picture = page.locator('.header img');
      await eventually(async () => assert.deepEqual(await picture.evaluate(
        ({ naturalWidth, naturalHeight, width, height }) =>
          [naturalWidth, naturalHeight, width, height]),
      [120 * scale, 120 * scale, 120, 120]));
    });
}

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
    assert.equal(icon.height, 30);
    const middle = await page.locator('.bar .middle').boundingBox();
    assert.ok(Math.abs(icon.y + icon.height / 2 - middle.y - middle.height / 2) < 1);
    assert.ok(icon.y > bar.y && icon.y + icon.height < bar.y + bar.height);
  });
