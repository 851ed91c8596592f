import assert from 'node:assert/strict';
import { eventually } from './fixture/eventually.js';
import { expectRestart } from './fixture/restart.js';
import { scenario } from './fixture/scenario.js';

const row = ({ page }, name) => page.getByRole('button', { name, exact: true });
const prompt = ({ page }) => page.getByRole('alertdialog', { name: 'Quillmere' });
const button = (screen, name) => prompt(screen).getByRole('button', { name });

/** What brings a prompt up, what it asks, and the key that has changed by then. */
const prompts = {
  respring: [(screen) => row(screen, 'Respring').click(), 'Do you really want to respring?'],
  switch: [(screen) => screen.page.getByRole('switch').click(),
           'Enabling or Disabling the tweak requires a respring, Do you want to respring?'],
  reset: [(screen) => row(screen, 'Reset All Settings').click(),
          'Do you really want to Reset All Settings?'],
};

for (const [name, [open, message]] of Object.entries(prompts)) {
  scenario(`${name}: the prompt asks and can be turned down`, {}, async (screen) => {
    await open(screen);
    assert.equal(await prompt(screen).getByRole('heading').innerText(), 'Quillmere');
    assert.equal(await prompt(screen).getByRole('paragraph').innerText(), message);
    await screen.still();
    const [left, right] = [await button(screen, 'Cancel').boundingBox(),
                           await button(screen, 'Confirm').boundingBox()];
    assert.ok(left.x + left.width <= right.x && left.y === right.y, 'side by side');
    await button(screen, 'Cancel').click();
    await prompt(screen).waitFor({ state: 'detached' });
    await screen.answered();
    assert.equal(await screen.page.locator('.blur, .restart').count(), 0);
  });

  scenario(`${name}: confirmed, the lock screen restarts and the root page is new`, {},
    async (screen) => {
      await open(screen);
      await expectRestart(screen, () => button(screen, 'Confirm').click());
    });
}

const moving = { look: { reducedMotion: 'no-preference' } };

scenario('before a respring the page blurs within a second', moving, async (screen) => {
  await row(screen, 'Respring').click();
  await button(screen, 'Confirm').click();
  const blur = await screen.page.waitForFunction(() => {
    const [fading] = document.querySelector('.blur')?.getAnimations() ?? [];
    const [from, to] = fading?.effect.getKeyframes() ?? [];
    return fading && { ...fading.effect.getTiming(), from: from.opacity, to: to.opacity };
  });
  const { duration, easing, from, to } = await blur.jsonValue();
  assert.deepEqual({ duration, easing, from, to },
    { duration: 1000, easing: 'ease-out', from: '0', to: '1' });
  const [page, below] = await Promise.all(
    ['.page', '.blur'].map((part) => screen.page.locator(part).boundingBox()));
  assert.deepEqual(below, page, 'it lies over all of the page');
});

scenario('the page that comes after a restart does not slide in', moving, async (screen) => {
  await row(screen, 'Respring').click();
  const sliding = await screen.page.evaluateHandle(() => {
    const seen = new Set();
    const look = () => {
      for (const { effect } of document.getAnimations()) {
        if (effect.target.matches('.content, .middle')) seen.add(effect.target.className);
      }
      requestAnimationFrame(look);
    };
    look();
    return seen;
  });
  await expectRestart(screen, () => button(screen, 'Confirm').click());
  assert.deepEqual(await sliding.evaluate((seen) => [...seen]), []);
});

scenario('a prompt is answered by keyboard alone, and gives the keyboard back', {},
  async (screen) => {
    const { page } = screen;
    const expectFocus = (name) => eventually(async () =>
      assert.equal(await page.evaluate(() => document.activeElement.innerText), name));
    await row(screen, 'Respring').focus();
    await page.keyboard.press('Enter');
    await expectFocus('Cancel');
    for (const name of ['Confirm', 'Cancel', 'Confirm', 'Cancel']) {
      await page.keyboard.press('Tab');
      await expectFocus(name);
    }
    await page.keyboard.press('Shift+Tab');
    await expectFocus('Confirm');
    await page.keyboard.press('Escape');
    await expectFocus('Respring');
    await page.keyboard.press('Enter');
    await expectFocus('Cancel');
    await page.keyboard.press('Tab');
    await expectRestart(screen, () => page.keyboard.press('Enter'));
    await expectFocus('Quillmere');
  });

scenario('what lies below a prompt cannot be touched', {}, async (screen) => {
  await row(screen, 'Respring').click();
  await prompt(screen).waitFor();
  const sent = screen.touches.length;
  await screen.page.getByRole('link', { name: 'Clock' }).click({ force: true, timeout: 1000 })
    .catch(() => {});
  await screen.page.locator('.content').evaluate((content) => (content.scrollTop = 50));
  await screen.answered();
  assert.equal(screen.touches.length, sent);
  await prompt(screen).waitFor();
});
