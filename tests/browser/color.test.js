import assert from 'node:assert/strict';
import { eventually } from './fixture/eventually.js';
import { scenario } from './fixture/scenario.js';

const well = ({ page }) => page.getByRole('button', { name: 'Custom Color', exact: true });
const sheet = ({ page }) => page.getByRole('dialog', { name: 'Custom Color' });
const code = (screen) => sheet(screen).getByRole('textbox', { name: 'Hex color' });

async function openPicker(screen) {
  await screen.push('Color');
  await well(screen).click();
  await screen.page.waitForFunction(() => document.getAnimations().length === 0);
}

async function closePicker(screen, close = () => sheet(screen).getByRole('button').click()) {
  await close();
  await sheet(screen).waitFor({ state: 'detached' });
}

/** What the row and the picker show, and the file holds, once the picker was closed. */
async function expectColor(screen, hex, stored) {
  await closePicker(screen);
  assert.deepEqual(await screen.stored(), { tintColor: stored });
  await eventually(async () => assert.equal(await well(screen).locator('.hex').innerText(), hex));
}

scenario('without a file the color is the accent', {}, async (screen) => {
  await openPicker(screen);
  assert.equal(await code(screen).inputValue(), '#F69240');
  assert.equal(await sheet(screen).getByRole('slider', { name: 'Opacity' }).inputValue(), '100');
});

scenario('a typed color is stored with its opacity first', {}, async (screen) => {
  await openPicker(screen);
  await code(screen).fill('#12aB34');
  await code(screen).press('Enter');
  await expectColor(screen, '#12AB34', "'FF12AB34'");
});

scenario('a typed color may carry its opacity last', {}, async (screen) => {
  await openPicker(screen);
  await code(screen).fill('12ab3480');
  await expectColor(screen, '#12AB3480', "'8012AB34'");
});

scenario('a typed text that is no color gives way to the color that was there', {},
  async (screen) => {
    await openPicker(screen);
    await code(screen).fill('orange');
    await code(screen).press('Enter');
    assert.equal(await code(screen).inputValue(), '#F69240');
    await closePicker(screen);
    await screen.answered();
    assert.equal(screen.phone.bytes(), null);
  });

scenario('the opacity moves by keys and is rounded to one of 256', {}, async (screen) => {
  await openPicker(screen);
  const opacity = sheet(screen).getByRole('slider', { name: 'Opacity' });
  for (let i = 0; i < 50; ++i) await opacity.press('ArrowLeft');
  assert.equal(await code(screen).inputValue(), '#F6924080');
  await expectColor(screen, '#F6924080', "'80F69240'");
});

scenario('the hue moves by keys', {}, async (screen) => {
  await openPicker(screen);
  await code(screen).fill('#ff0000');
  await code(screen).press('Enter');
  const hue = sheet(screen).getByRole('slider', { name: 'Hue' });
  await hue.focus();
  for (let i = 0; i < 120; ++i) await hue.press('ArrowRight');
  await expectColor(screen, '#00FF00', "'FF00FF00'");
});

scenario('a color is picked in the field with the mouse, and the row follows at once', {},
  async (screen) => {
    await openPicker(screen);
    const box = await sheet(screen).locator('.clr-gradient').boundingBox();
    await screen.page.mouse.move(box.x + box.width / 2, box.y + box.height / 2);
    await screen.page.mouse.down();
    // The corner at the top left is white, whatever the hue.
    await screen.page.mouse.move(box.x - 20, box.y - 20, { steps: 5 });
    assert.equal(await well(screen).locator('.hex').innerText(), '#FFFFFF');
    assert.equal(screen.touches.filter(({ kind }) => kind === 'pick').length, 0);
    await screen.page.mouse.up();
    await expectColor(screen, '#FFFFFF', "'FFFFFFFF'");
  });

scenario('a color is picked in the field by arrow keys', {}, async (screen) => {
  await openPicker(screen);
  const marker = sheet(screen).locator('.clr-marker');
  await marker.focus();
  for (let i = 0; i < 10; ++i) await marker.press('ArrowDown');
  const chosen = await code(screen).inputValue();
  assert.notEqual(chosen, '#F69240');
  await expectColor(screen, chosen, `'FF${chosen.slice(1)}'`);
});

const ways = {
  'its button': (screen) => sheet(screen).getByRole('button', { name: 'Done' }).click(),
  Escape: (screen) => screen.page.keyboard.press('Escape'),
  'a tap beside it': (screen) => screen.page.locator('.shade').click({ position: { x: 9, y: 90 } }),
};

for (const [way, close] of Object.entries(ways)) {
  scenario(`the picker closes by ${way}, stores nothing unchanged, and hands back the keyboard`,
    {}, async (screen) => {
      await openPicker(screen);
      await closePicker(screen, () => close(screen));
      await screen.answered();
      assert.equal(screen.phone.bytes(), null);
      assert.ok(await well(screen).evaluate((row) => row === document.activeElement));
    });
}

/** Each form of a stored color, and the one it is shown in. */
const forms = [
  ["'00FF00'", '#00FF00'], ["'#0f0'", '#00FF00'], ["'80112233'", '#11223380'],
  ["'#112233:0.50'", '#11223380'], ["'no color'", '#F69240'], ['12', '#F69240'],
];

for (const [value, shown] of forms) {
  scenario(`stored ${value} shows as ${shown}, and looking at it changes nothing`,
    { values: `{'tintColor': ${value}}` }, async (screen) => {
      const before = screen.phone.bytes();
      await openPicker(screen);
      assert.equal(await code(screen).inputValue(), shown);
      await closePicker(screen);
      await screen.answered();
      assert.deepEqual(screen.phone.bytes(), before);
    });
}
