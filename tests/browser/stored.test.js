import assert from 'node:assert/strict';
import { sliders, switches } from './fixture/rows.js';
import { scenario } from './fixture/scenario.js';

const shown = ({ group, label }, screen) => ({
  toggle: () =>
    screen.group(group).getByRole('switch', { name: label }).getAttribute('aria-checked'),
  number: () => screen.group(group).getByRole('textbox', { name: `${label} value` }).inputValue(),
});

const dictionary = (rows, value) => `{${rows.map(({ key }) => `'${key}': ${value}`).join(', ')}}`;

scenario('stored NO is shown, although YES is the default',
  { values: dictionary(switches, 'False') }, (screen) =>
    screen.visit(switches, async (row) => {
      assert.equal(await shown(row, screen).toggle(), 'false', row.key);
    }));

scenario('stored 0 is shown where it is within the range, not the default',
  { values: "{'clockDigitsSpacing': 0, 'clockVerticalAlignment': 0.0}" }, async (screen) => {
    await screen.push('Clock');
    for (const row of [sliders[1], sliders[2]]) {
      assert.equal(await shown(row, screen).number(), '0', row.key);
    }
  });

scenario('each absent key shows its default', { values: "{'someOtherKey': 1}" },
  async (screen) => {
    await screen.visit(switches, async (row) =>
      assert.equal(await shown(row, screen).toggle(), 'true', row.key));
    await screen.visit(sliders, async (row) =>
      assert.equal(await shown(row, screen).number(), String(row.initial), row.key));
  });

/** What another tool may have stored for a slider from 1 to 200, and what it shows. */
const values = [
  ['5000', '200'], ['-5000', '1'], ['80', '80'], ['80.25', '80.25'], ["'120'", '120'],
  ["'large'", '1'], ['True', '1'], ["b'data'", '1'], ['[75]', '1'], ["{'a': 1}", '1'],
  ['2**63', '200'], ["float('inf')", '200'], ["float('nan')", '1'],
];

scenario('a slider shows something sensible over any stored value, and still moves', {},
  async (screen) => {
    for (const [value, number] of values) {
      await screen.phone.store(`{'clockDigitSize': ${value}}`, 'FMT_BINARY');
      const before = screen.phone.bytes();
      await screen.push('Clock');
      assert.equal(await shown(sliders[0], screen).number(), number, value);
      assert.deepEqual(screen.phone.bytes(), before, 'looking at it changes nothing');
      const knob = screen.group('Size').getByRole('slider');
      await knob.press('Home');
      await knob.press('ArrowRight');
      assert.deepEqual(await screen.stored(), { clockDigitSize: '2.0' }, value);
      await screen.pop('Quillmere');
    }
  });

/** What another tool may have stored for a switch, and what it shows. */
const states = [
  ['0', 'false'], ['1', 'true'], ['0.0', 'false'], ["'NO'", 'false'], ["'YES'", 'true'],
  ["b''", 'false'], ['[]', 'false'],
];

scenario('a switch shows something sensible over any stored value, and still turns', {},
  async (screen) => {
    for (const [value, state] of states) {
      await screen.phone.store(`{'clockEnabled': ${value}}`);
      await screen.push('Clock');
      assert.equal(await shown(switches[0], screen).toggle(), state, value);
      await screen.group('Clock').getByRole('switch').click();
      const turned = { true: 'False', false: 'True' }[state];
      assert.deepEqual(await screen.stored(), { clockEnabled: turned }, value);
      await screen.pop('Quillmere');
    }
  });

for (const [what, bytes] of Object.entries({ empty: '', 'no property list': 'hello' })) {
  scenario(`a file that is ${what} shows the defaults and stays as it is`, {}, async (screen) => {
    screen.phone.storeBytes(bytes);
    await screen.push('Clock');
    assert.equal(await shown(sliders[0], screen).number(), '75');
    await screen.group('Size').getByRole('slider').press('End');
    await screen.answered();
    assert.equal(screen.phone.bytes().toString(), bytes);
    assert.notEqual(screen.program.complaints, '');
  });
}
