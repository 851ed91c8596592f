import assert from 'node:assert/strict';
import { eventually } from './fixture/eventually.js';
import { sliders } from './fixture/rows.js';
import { scenario } from './fixture/scenario.js';

const find = (screen, { group, label }) =>
  screen.group(group).getByRole('textbox', { name: `${label} value`, exact: true });

const expectShown = (field, value) =>
  eventually(async () => assert.equal(await field.inputValue(), value));

scenario('every slider takes a typed value', {}, async (screen) => {
  await screen.visit(sliders, async (row) => {
    const field = find(screen, row);
    await field.fill('42');
    await field.press('Enter');
    assert.equal((await screen.stored())[row.key], '42.0', row.key);
    await expectShown(field, '42');
    const knob = screen.group(row.group).getByRole('slider');
    await eventually(async () => assert.equal(await knob.getAttribute('aria-valuenow'), '42'));
  });
});

/** What is typed into a slider from 1 to 200 at 75, what it shows then, and what is stored. */
const texts = [
  ['a value above the range becomes the highest', '1000', '200', '200.0'],
  ['a value below the range becomes the lowest', '-5', '1', '1.0'],
  ['a fraction goes to the nearest whole number', '79.6', '80', '80.0'],
  ['blanks and a plus sign do not matter', ' +80 ', '80', '80.0'],
  ['the value that is there already is written plainly again', '075.2', '75', '75.0'],
  ['letters are refused', 'abc', '75', undefined],
  ['a number with letters is refused', '12abc', '75', undefined],
  ['nothing is refused', '', '75', undefined],
  ['not-a-number is refused', 'nan', '75', undefined],
  ['no number is too long to be bounded', '9'.repeat(32), '200', '200.0'],
];

for (const [name, text, shown, stored] of texts) {
  scenario(`typed: ${name}`, {}, async (screen) => {
    await screen.push('Clock');
    const field = find(screen, sliders[0]);
    await field.fill(text);
    await field.press('Enter');
    await eventually(() => assert.equal(screen.touches.at(-1).kind, 'type'));
    assert.equal((await screen.stored())?.clockDigitSize, stored);
    await expectShown(field, shown);
  });
}

scenario('a typed value is taken when its field is left', {}, async (screen) => {
  await screen.push('Clock');
  const field = find(screen, sliders[0]);
  await field.fill('33');
  await field.press('Tab');
  assert.deepEqual(await screen.stored(), { clockDigitSize: '33.0' });
});

scenario('Escape gives up what is being typed', {}, async (screen) => {
  await screen.push('Clock');
  const field = find(screen, sliders[0]);
  await field.fill('33');
  await field.press('Escape');
  assert.equal(await field.inputValue(), '75');
  await field.press('Tab');
  await screen.answered();
  assert.deepEqual(screen.touches.map(({ kind }) => kind), ['tap']);
  assert.equal(screen.phone.bytes(), null);
});

scenario('entering a field selects what is in it, so that typing replaces it', {},
  async (screen) => {
    await screen.push('Clock');
    const field = find(screen, sliders[0]);
    await field.focus();
    await screen.page.keyboard.type('91');
    await field.press('Enter');
    assert.deepEqual(await screen.stored(), { clockDigitSize: '91.0' });
  });
