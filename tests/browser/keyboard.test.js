import assert from 'node:assert/strict';
import { eventually } from './fixture/eventually.js';
import { scenario } from './fixture/scenario.js';

/** What has the keyboard, also inside the kit's components. */
const focused = (page) => page.evaluate(() => {
  let at = document.activeElement;
  while (at.shadowRoot?.activeElement) at = at.shadowRoot.activeElement;
  const role = at.getAttribute('role') ?? at.localName;
  return `${role} ${at.ariaLabel ?? at.innerText}`.replace(/\s+/g, ' ').trim();
});

const expectFocus = (page, expected) =>
  eventually(async () => assert.equal(await focused(page), expected));

async function tabs(page, count) {
  const found = [];
  for (let i = 0; i < count; ++i) {
    await page.keyboard.press('Tab');
    found.push(await focused(page));
  }
  return found;
}

scenario('Tab goes through all that can be operated, in order', {}, async (screen) => {
  const { page } = screen;
  assert.deepEqual(await tabs(page, 11), [
    'switch Quillmere', 'link Lotties', 'link Clock', 'link Quick Actions', 'link Color',
    'button Respring', 'button Write to Support', 'button Reset All Settings',
    'a orvalen Twitter', 'a orvalen Reddit', 'a Orvalen Design Designer',
  ]);
  await screen.push('Clock');
  assert.deepEqual(await tabs(page, 10), [
    'switch Enabled', 'switch Loop Animation', 'slider Size', 'input Size value',
    'slider Vertical Alignment', 'input Vertical Alignment value', 'slider Digits Spacing',
    'input Digits Spacing value', 'slider Size', 'input Size value',
  ]);
});

scenario('everything is done by keyboard alone', {}, async (screen) => {
  const { page } = screen;
  const press = async (...keys) => {
    for (const key of keys) await page.keyboard.press(key);
  };
  await press('Tab', 'Tab', 'Tab', 'Enter');
  await expectFocus(page, 'h1 Clock');
  await press('Tab', 'Space', 'Tab', 'Tab', 'ArrowRight', 'Tab');
  await page.keyboard.type('90');
  await press('Enter', 'Shift+Tab');
  await expectFocus(page, 'slider Size');
  await press('Shift+Tab', 'Shift+Tab', 'Shift+Tab');
  await expectFocus(page, 'button Quillmere');
  await press('Enter');
  await expectFocus(page, 'link Clock');
  await press('Tab', 'Tab', 'Space');
  await expectFocus(page, 'h1 Color');
  await press('Tab', 'ArrowRight', 'Tab', 'Enter');
  await expectFocus(page, 'button Done');
  await press('Tab', 'Tab', 'Tab', 'Tab');
  await page.keyboard.type('#102030');
  await press('Escape');
  await expectFocus(page, 'button Custom Color #102030');
  assert.deepEqual(await screen.stored(), {
    clockEnabled: 'False', clockDigitSize: '90.0', colorMode: '2', tintColor: "'FF102030'",
  });
});

scenario('a page that comes has the keyboard at its title, and going back returns it to the row',
  {}, async (screen) => {
    for (const name of ['Clock', 'Quick Actions', 'Color']) {
      await screen.push(name);
      await expectFocus(screen.page, `h1 ${name}`);
      await screen.pop('Quillmere');
      await expectFocus(screen.page, `link ${name}`);
    }
  });

scenario('the keyboard cannot reach the page below the picker', {}, async (screen) => {
  await screen.push('Color');
  await screen.page.getByRole('button', { name: 'Custom Color' }).click();
  await expectFocus(screen.page, 'button Done');
  for (let i = 0; i < 12; ++i) {
    await screen.page.keyboard.press('Tab');
    // After the last element and before the first the keyboard is the browser's own.
    assert.ok(await screen.page.evaluate(() => {
      const at = document.activeElement;
      return at === document.body || at.closest('[aria-modal]');
    }), await focused(screen.page));
  }
});

scenario('what has the keyboard shows a ring', {}, async (screen) => {
  const ringed = () => screen.page.evaluate(() => {
    let at = document.activeElement;
    while (at.shadowRoot?.activeElement) at = at.shadowRoot.activeElement;
    const { outlineStyle, outlineWidth } = getComputedStyle(at);
    return outlineStyle === 'none' ? 0 : parseFloat(outlineWidth);
  });
  for (const [title, stops] of [['Clock', 11], ['Color', 3]]) {
    await screen.push(title);
    for (let i = 0; i < stops; ++i) {
      await screen.page.keyboard.press(i === 0 ? 'Shift+Tab' : 'Tab');
      assert.ok((await ringed()) >= 2, `${title}: ${await focused(screen.page)}`);
      if (i === 0) await screen.page.getByRole('heading', { level: 1 }).focus();
    }
    await screen.pop('Quillmere');
  }
});
