import assert from 'node:assert/strict';
import { eventually } from './fixture/eventually.js';
import { switches } from './fixture/rows.js';
import { scenario } from './fixture/scenario.js';

/** The ways of turning a switch. */
const ways = {
  'by finger': (row) => row.click(),
  'by its label': (row) => row.locator('.label').click(),
  'by the space bar': (row) => row.press(' '),
};

for (const [way, turn] of Object.entries(ways)) {
  scenario(`every switch turns off and on again ${way}`, {}, async (screen) => {
    let expected = {};
    await screen.visit(switches, async ({ group, label, key }) => {
      const row = screen.group(group).getByRole('switch', { name: label, exact: true });
      assert.equal(await row.getAttribute('aria-checked'), 'true', `${key} is on at first`);
      for (const [checked, value] of [['false', 'False'], ['true', 'True'], ['false', 'False']]) {
        await turn(row);
        expected = { ...expected, [key]: value };
        assert.deepEqual(await screen.stored(), expected);
        await eventually(async () =>
          assert.equal(await row.getAttribute('aria-checked'), checked, key));
      }
    });
  });
}

scenario('a switch still shows what it was turned to after leaving and coming back', {},
  async (screen) => {
    await screen.push('Clock');
    const row = screen.group('Clock').getByRole('switch', { name: 'Enabled' });
    await row.click();
    await screen.pop('Quillmere');
    await screen.push('Clock');
    assert.equal(await row.getAttribute('aria-checked'), 'false');
  });
