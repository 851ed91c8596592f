import assert from 'node:assert/strict';
import { scenario } from './fixture/scenario.js';

/** Keys of every type that a property list has, beside three of ours. */
const others = String.raw`
  'aString': 'Zürich \U0001F570 <&> \'quoted\' "twice"', 'anEmptyString': '',
  'lines': 'one\n\ttwo', 'ключ': 'ключ', 'aTrue': True, 'aFalse': False,
  'anInteger': 42, 'aNegative': -1, 'theBiggest': 2**64 - 1, 'theSmallest': -2**63,
  'aReal': 0.1, 'aHugeReal': 1.7976931348623157e308, 'aTinyReal': 5e-324, 'aWholeReal': 3.0,
  'data': bytes(range(256)), 'noData': b'',
  'aDate': datetime.datetime(2024, 2, 29, 23, 59, 58), 'anOldDate': datetime.datetime(1999, 12, 31),
  'anArray': [1, 'two', 3.5, [], [[b'x']], {'deep': [True, {'deeper': -7}]}],
  'aDictionary': {'': 'empty key', 'date': datetime.datetime(2001, 1, 1), 'none': {}},
  'clockEnabled': True, 'clockDigitSize': 80.0, 'tintColor': 'FFF69240'`;

/** Changes one setting in the page; its key and what is stored then, in Python's notation. */
const changes = {
  'a switch': ['clockEnabled', 'False', async (screen) => {
    await screen.push('Clock');
    await screen.group('Clock').getByRole('switch').click();
  }],
  'a slider': ['clockDigitSize', '120.0', async (screen) => {
    await screen.push('Clock');
    await screen.group('Size').getByRole('textbox').fill('120');
    await screen.page.keyboard.press('Enter');
  }],
  'a segment': ['colorMode', '2', async (screen) => {
    await screen.push('Color');
    await screen.page.getByRole('tab', { name: 'Custom Color' }).click();
  }],
  'a color': ['tintColor', "'FF00FF00'", async (screen) => {
    await screen.push('Color');
    await screen.page.getByRole('button', { name: 'Custom Color' }).click();
    await screen.page.getByRole('textbox', { name: 'Hex color' }).fill('#00ff00');
    await screen.page.getByRole('button', { name: 'Done' }).click();
  }],
};

const beginnings = { FMT_XML: '<?xml', FMT_BINARY: 'bplist00' };

for (const [form, beginning] of Object.entries(beginnings)) {
  for (const [what, [key, value, change]] of Object.entries(changes)) {
    scenario(`${what} changes its own key in a file of form ${form} and nothing else`,
      { values: `{${others}}`, form }, async (screen) => {
        const before = await screen.phone.stored();
        await change(screen);
        await screen.answered();
        assert.deepEqual(await screen.phone.stored(), { ...before, [key]: value });
        assert.deepEqual(await screen.phone.storedAsSeenByPlistutil(), { ...before, [key]: value });
        assert.ok(screen.phone.bytes().toString('latin1').startsWith(beginning));
      });
  }
}

for (const [what, [key, value, change]] of Object.entries(changes)) {
  scenario(`${what} makes the file when there is none`, {}, async (screen) => {
    assert.equal(screen.phone.bytes(), null, 'looking makes no file');
    await change(screen);
    await screen.answered();
    assert.deepEqual(await screen.phone.stored(), { [key]: value });
    assert.deepEqual(await screen.phone.storedAsSeenByPlistutil(), { [key]: value });
  });
}

scenario('a slider stores a real of single width', {}, async (screen) => {
  await screen.push('Clock');
  await screen.group('Size').getByRole('textbox').fill('80');
  await screen.page.keyboard.press('Enter');
  await screen.answered();
  // In a binary property list 0x22 marks a real of 2^2 bytes; 80.0 follows, biggest byte first.
  assert.ok(screen.phone.bytes().includes(Buffer.from('2242a00000', 'hex')));
});

scenario('what another tool stores meanwhile is kept, and is shown on the next visit',
  { values: "{'clockDigitSize': 10.0}" }, async (screen) => {
    await screen.push('Clock');
    await screen.phone.store("{'clockDigitSize': 20.0, 'theirs': [1, 2]}");
    await screen.group('Clock').getByRole('switch').click();
    assert.deepEqual(await screen.stored(),
      { clockDigitSize: '20.0', theirs: '[1, 2]', clockEnabled: 'False' });
    await screen.pop('Quillmere');
    await screen.push('Clock');
    assert.equal(await screen.group('Size').getByRole('textbox').inputValue(), '20');
  });
