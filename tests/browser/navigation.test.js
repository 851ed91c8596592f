import assert from 'node:assert/strict';
import { eventually } from './fixture/eventually.js';
import { scenario } from './fixture/scenario.js';

/** What each page shows: a group's title, its rows, and its footer. */
const pages = {
  Quillmere: [
    ['Animations', 'Lotties', 'Clock', 'Quick Actions', 'Color', ''],
    ['Lock Screen', 'Respring', '• Some changes are applied only after a respring.'],
    ['Support', 'Write to Support', '• The mail describes your device and lists its packages.'],
    ['', 'Reset All Settings', ''],
    ['', 'orvalen Twitter orvalen Reddit Orvalen Design Designer',
     '• Follow me on social media.'],
  ],
  Clock: [
    ['Clock', 'Enabled', '• Changes require a respring to be applied'],
    ['Loop Animation', 'Loop Animation', '• Default = YES'],
    ['Size', '75', '• Default = 75'],
    ['Vertical Alignment', '0', '• Default = 0'],
    ['Digits Spacing', '-20', '• Default = -20'],
    ['Clock Colon Size', '50', '• Default = 50'],
  ],
  'Quick Actions': [
    ['Quick Actions Buttons', 'Flash Animation', 'Camera Animation',
     '• Changes require a respring to be applied'],
    ['Loop Animation', 'Loop Animation', '• Default = YES'],
    ['Size', '75', '• Default = 75'],
  ],
  Color: [
    ['Color', 'Default Custom Color', '• Default: Will use Lottie animation original colors.'],
    ['Custom Color', 'Custom Color #F69240', ''],
  ],
};

const moving = { look: { reducedMotion: 'no-preference' } };

function shown(page) {
  return page.locator('.page:not([inert]) .group').evaluateAll((groups) => {
    const text = (part) =>
      [part.innerText, ...[...part.querySelectorAll('input.value')].map(({ value }) => value)]
        .join(' ').replace(/\s+/g, ' ').trim();
    return groups.map((group) =>
      [...group.querySelectorAll('.heading, .row, .footer')].map(text));
  });
}

scenario('the root page and the three behind it show their groups, rows and footers', moving,
  async (screen) => {
    assert.deepEqual(await shown(screen.page), pages.Quillmere);
    for (const name of ['Clock', 'Quick Actions', 'Color']) {
      await screen.push(name);
      assert.deepEqual(await shown(screen.page), pages[name], name);
      await screen.pop('Quillmere');
      assert.deepEqual(await shown(screen.page), pages.Quillmere);
    }
  });

scenario('a link tapped twice opens its page once', moving, async (screen) => {
  await screen.page.getByRole('link', { name: 'Clock' }).evaluate((row) => {
    row.click();
    row.click();
  });
  await screen.isOnTop('Clock');
  await screen.answered();
  await screen.pop('Quillmere');
  assert.equal(await screen.page.locator('.page').count(), 1);
});

scenario('going back before the page has come to rest ends on the page below', moving,
  async (screen) => {
    await screen.page.getByRole('link', { name: 'Color' }).click();
    await screen.page.getByRole('button', { name: 'Quillmere' }).evaluate((back) => back.click());
    await screen.isOnTop('Quillmere');
    await eventually(async () => assert.equal(await screen.page.locator('.page').count(), 1));
    assert.deepEqual(await shown(screen.page), pages.Quillmere);
  });

scenario('the page below comes back scrolled as it was left',
  { look: { viewport: { width: 390, height: 420 } } }, async (screen) => {
    const content = screen.page.locator('.page:not([inert]) .content');
    await content.evaluate((list) => (list.scrollTop = 77));
    await screen.page.getByRole('link', { name: 'Color' }).evaluate((row) => row.click());
    await screen.isOnTop('Color');
    await screen.pop('Quillmere');
    assert.equal(await content.evaluate((list) => list.scrollTop), 77);
  });

scenario('the credits lead to three pages elsewhere that learn nothing of this one', {},
  async ({ page }) => {
    const links = await page.getByRole('list').getByRole('link').evaluateAll((all) =>
      all.map(({ innerText, href, target, rel }) => [innerText, href, target, rel]));
    assert.deepEqual(links, [
      ['orvalen\nTwitter', 'https://twitter.com/orvalen', '_blank', 'noopener noreferrer'],
      ['orvalen\nReddit', 'https://www.reddit.com/user/orvalen', '_blank', 'noopener noreferrer'],
      ['Orvalen Design\nDesigner', 'https://twitter.com/orvalendesign', '_blank',
       'noopener noreferrer'],
    ]);
  });
