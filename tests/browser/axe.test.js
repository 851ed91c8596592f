import assert from 'node:assert/strict';
import { createRequire } from 'node:module';
import { readFileSync } from 'node:fs';
import { scenario } from './fixture/scenario.js';

const axe = readFileSync(createRequire(import.meta.url).resolve('axe-core/axe.min.js'), 'utf8');

/**
 * What wears the bundle's own colors, which are not the page's to choose, and the segments, whose
 * strip is an ornament that axe does not see through.
 */
const excluded = [['.bar'], ['.row > .label'], ['.cell > .label'], ['.name'], ['.value'],
                  ['.continue'], ['ion-segment']];

/** Narrow, because axe takes the ornaments of the phone's frame for something before the text. */
const viewport = { width: 390, height: 844 };

/** What axe finds wrong, and the contrasts that it could not tell. */
async function complaints(page) {
  await page.evaluate(axe);
  return page.evaluate(async (exclude) => {
    const all = await window.axe.run(document, { rules: { 'color-contrast': { enabled: false } } });
    const colors = await window.axe.run({ exclude }, { runOnly: ['color-contrast'] });
    return [...all.violations, ...colors.violations, ...colors.incomplete]
      .flatMap(({ id, nodes }) =>
        nodes.map(({ html, failureSummary }) => `${id}: ${html}\n${failureSummary}`));
  }, excluded);
}

const button = ({ page }, name) => page.getByRole('button', { name, exact: true });
const still = ({ page }) => page.waitForFunction(() => document.getAnimations().length === 0);

/** The ways to what lies over the pages, and the version of iOS that it takes. */
const overlays = {
  'a prompt': ['12.4', (screen) => button(screen, 'Respring').click()],
  'the greeting': ['14.3', () => {}],
  'a mail': ['12.4', (screen) => button(screen, 'Write to Support').click()],
  'a mail that is cancelled': ['12.4', async (screen) => {
    await button(screen, 'Write to Support').click();
    await screen.page.getByRole('textbox', { name: 'Message' }).press('x');
    await screen.page.keyboard.press('Escape');
    await screen.page.getByRole('dialog', { name: 'Draft' }).waitFor();
  }],
  'a restart': ['12.4', async (screen) => {
    await button(screen, 'Respring').click();
    await button(screen, 'Confirm').click();
    await screen.page.getByRole('dialog', { name: /Restarting/ }).waitFor();
  }],
};

for (const colorScheme of ['light', 'dark']) {
  scenario(`axe finds nothing to complain of on any page, ${colorScheme}`,
    { look: { colorScheme, viewport } }, async (screen) => {
      assert.deepEqual(await complaints(screen.page), []);
      for (const title of ['Clock', 'Quick Actions', 'Color']) {
        await screen.push(title);
        assert.deepEqual(await complaints(screen.page), [], title);
        await screen.pop('Quillmere');
      }
    });

  scenario(`axe finds nothing to complain of in the color picker, ${colorScheme}`,
    { look: { colorScheme, viewport } }, async (screen) => {
      await screen.push('Color');
      await screen.page.getByRole('button', { name: 'Custom Color' }).click();
      await screen.page.getByRole('dialog').waitFor();
      await still(screen);
      assert.deepEqual(await complaints(screen.page), []);
    });

  scenario(`axe finds nothing to complain of in the list, ${colorScheme}`,
    { look: { colorScheme, viewport } }, async (screen) => {
      await screen.push('Lotties');
      await button(screen, 'Insert Rain').click();
      await button(screen, 'Delete Rain').click();
      await button(screen, 'Delete Rain now').waitFor();
      assert.deepEqual(await complaints(screen.page), []);
    });

  scenario(`axe finds nothing to complain of in the banner, ${colorScheme}`,
    { look: { colorScheme, viewport } }, async (screen) => {
      screen.phone.storeBytes('no property list');
      await screen.push('Quick Actions');
      await screen.group('Loop Animation').getByRole('switch').click();
      await button(screen, 'Dismiss').waitFor();
      await still(screen);
      assert.deepEqual(await complaints(screen.page), []);
    });

  for (const [what, [ios, open]] of Object.entries(overlays)) {
    scenario(`axe finds nothing to complain of in ${what}, ${colorScheme}`,
      { ios, look: { colorScheme, viewport } }, async (screen) => {
        await open(screen);
        await screen.page.locator('[aria-modal]').first().waitFor();
        await still(screen);
        assert.deepEqual(await complaints(screen.page), []);
      });
  }
}
