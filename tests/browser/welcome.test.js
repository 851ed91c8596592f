import assert from 'node:assert/strict';
import { eventually } from './fixture/eventually.js';
import { swipe } from './fixture/finger.js';
import { scenario } from './fixture/scenario.js';

const sheet = ({ page }) => page.getByRole('dialog', { name: 'Quillmere' });
const gone = (screen) => sheet(screen).waitFor({ state: 'detached' });

/** Reads whether the phone remembers that it was shown, and that it is not shown again. */
async function expectSeen(screen) {
  await gone(screen);
  assert.ok('showedWelcomeVC' in await screen.stored());
  await screen.page.reload();
  await screen.page.getByRole('heading', { level: 1 }).waitFor();
  assert.equal(await sheet(screen).count(), 0);
  await screen.push('Clock');
  await screen.pop('Quillmere');
  assert.equal(await sheet(screen).count(), 0);
}

scenario('a new phone is greeted with what there is to know', { ios: '14.3' }, async (screen) => {
  await sheet(screen).waitFor();
  assert.equal(await sheet(screen).getByRole('heading', { level: 2 }).innerText(), 'Quillmere');
  await sheet(screen).getByText('Animations for your Lockscreen').waitFor();
  assert.deepEqual(await sheet(screen).getByRole('heading', { level: 3 }).allInnerTexts(),
    ['Info', 'Lockscreen', 'Download']);
  const descriptions = sheet(screen).getByRole('listitem').getByRole('paragraph');
  assert.deepEqual(await descriptions.allInnerTexts(), [
    'This tweak is an animation engine that can let you run Lottie animations with ease.',
    'Use Lottie animations to animate your Lockscreen elements.',
    'You can download and use millions of Lottie animation from your package manager or from '
      + 'Google and apply them through settings.',
  ]);
  assert.equal(await sheet(screen).locator('footer p').innerText(),
    'Coded with \u2764\uFE0F by Orvalen');
  const icons = await sheet(screen).getByRole('listitem').evaluateAll((items) =>
    items.map((item) => getComputedStyle(item, '::before').maskImage));
  assert.equal(new Set(icons).size, 3);
  for (const icon of icons) {
    const answer = await screen.page.request.get(/url\("(.*)"\)/.exec(icon)[1]);
    assert.equal(answer.headers()['content-type'], 'image/svg+xml');
  }
  assert.equal(await sheet(screen).getByRole('button').innerText(), 'Continue');
  assert.equal(await screen.phone.stored(), null);
});

const touching = { hasTouch: true, viewport: { width: 390, height: 844 } };

/** The ways of letting it go, and what they need. */
const ways = {
  'its button': [{}, (screen) => sheet(screen).getByRole('button', { name: 'Continue' }).click()],
  'the Enter key': [{}, ({ page }) => page.keyboard.press('Enter')],
  'the Escape key': [{}, ({ page }) => page.keyboard.press('Escape')],
  'a swipe': [touching, (screen) => swipe(screen, { x: 195, y: 200 },
    Array.from({ length: 12 }, (_, i) => [0, 20 * i]))],
  'the mouse': [{}, async ({ page }) => {
    await page.mouse.move(500, 200);
    await page.mouse.down();
    await page.mouse.move(500, 420, { steps: 6 });
    await page.mouse.up();
  }],
};

for (const [way, [look, letGo]] of Object.entries(ways)) {
  scenario(`the greeting goes by ${way}, and does not come again`, { ios: '14.3', look },
    async (screen) => {
      await sheet(screen).waitFor();
      await letGo(screen);
      await expectSeen(screen);
    });
}

scenario('a short swipe lets the greeting come up again', { ios: '14.3', look: touching },
  async (screen) => {
    const top = async () => (await sheet(screen).boundingBox()).y;
    await sheet(screen).waitFor();
    await screen.page.waitForFunction(() => document.getAnimations().length === 0);
    const before = await top();
    const drawn = sheet(screen).evaluate((at) => new Promise((resolve) => {
      at.addEventListener('pointerup', () => resolve(at.style.translate), { capture: true });
    }));
    await swipe(screen, { x: 195, y: 200 }, Array.from({ length: 8 }, (_, i) => [0, 10 * i]));
    assert.equal(await drawn, '0px 70px');
    await eventually(async () => assert.equal(await top(), before));
    assert.deepEqual(screen.touches, []);
  });

scenario('the greeting has the keyboard and keeps it', { ios: '14.3' }, async (screen) => {
  const name = () => screen.page.evaluate(() => document.activeElement.innerText);
  const ring = () => sheet(screen).getByRole('button')
    .evaluate((button) => getComputedStyle(button).outlineStyle);
  await eventually(async () => assert.equal(await name(), 'Continue'));
  assert.equal(await ring(), 'none', 'nobody has used the keyboard yet');
  await screen.page.keyboard.press('Tab');
  assert.equal(await name(), 'Continue');
  assert.equal(await ring(), 'solid');
});

scenario('a phone that was greeted before is not greeted',
  { ios: '14.3', values: "{'showedWelcomeVC': True}" }, async (screen) => {
    await screen.push('Color');
    assert.equal(await sheet(screen).count(), 0);
  });

scenario('a phone before iOS 13 is not greeted', { ios: '12.4' }, async (screen) => {
  await screen.push('Color');
  await screen.pop('Quillmere');
  assert.equal(await sheet(screen).count(), 0);
  assert.equal(screen.phone.bytes(), null);
});
