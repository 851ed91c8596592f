import assert from 'node:assert/strict';
import { createRequire } from 'node:module';
import { readFileSync } from 'node:fs';
import { scenario } from './fixture/scenario.js';

const axe = readFileSync(createRequire(import.meta.url).resolve('axe-core/axe.min.js'), 'utf8');

/**
 * What wears the bundle's own colors, which are not the page's to choose, and the segments, whose
 * strip is an ornament that axe does not see through.
 */
const excluded = [['.bar'], ['.row > .label'], ['.name'], ['.value'], ['ion-segment']];

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
      await screen.page.waitForFunction(() => document.getAnimations().length === 0);
      assert.deepEqual(await complaints(screen.page), []);
    });
}
