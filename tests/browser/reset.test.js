import assert from 'node:assert/strict';
import { eventually } from './fixture/eventually.js';
import { expectRestart } from './fixture/restart.js';
import { scenario } from './fixture/scenario.js';

const values = `{'clockEnabled': False, 'clockDigitSize': 120.0, 'tintColor': 'FF00FF00',
  'enabledSwitch': False, 'enabledLotties': ['Rain'], 'another': [1, 2]}`;

const reset = ({ page }) => page.getByRole('button', { name: 'Reset All Settings' });

scenario('resetting leaves no key, and all shows its default again', { values }, async (screen) => {
  const { page } = screen;
  assert.equal(await page.getByRole('switch').getAttribute('aria-checked'), 'false');
  await reset(screen).click();
  await expectRestart(screen, () => page.getByRole('button', { name: 'Confirm' }).click());
  assert.deepEqual(await screen.phone.stored() ?? {}, {});
  await eventually(async () =>
    assert.equal(await page.getByRole('switch').getAttribute('aria-checked'), 'true'));
  await screen.push('Clock');
  assert.equal(await screen.group('Size').getByRole('textbox').inputValue(), '75');
  const toggle = screen.group('Clock').getByRole('switch');
  assert.equal(await toggle.getAttribute('aria-checked'), 'true');
});

scenario('a reset that is turned down leaves the file as it is', { values }, async (screen) => {
  const before = screen.phone.bytes();
  await reset(screen).click();
  await screen.page.getByRole('button', { name: 'Cancel' }).click();
  await screen.answered();
  assert.deepEqual(screen.phone.bytes(), before);
});
