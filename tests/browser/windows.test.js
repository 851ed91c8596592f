import assert from 'node:assert/strict';
import { eventually } from './fixture/eventually.js';
import { scenario } from './fixture/scenario.js';

/** A second window on the same program. */
async function another(screen) {
  const page = await screen.newPage();
  await page.goto(screen.program.origin);
  await page.getByRole('heading', { level: 1 }).waitFor();
  return page;
}

const title = (page) => page.getByRole('heading', { level: 1 }).innerText();

scenario('two windows show the same page of the phone, whichever is tapped', {},
  async (screen) => {
    const other = await another(screen);
    await screen.push('Clock');
    await eventually(async () => assert.equal(await title(other), 'Clock'));
    await other.getByRole('button', { name: 'Quillmere' }).click();
    await screen.isOnTop('Quillmere');
    await other.getByRole('link', { name: 'Color' }).click();
    await screen.isOnTop('Color');
  });

scenario('a change in one window shows in the other at once', {}, async (screen) => {
  const other = await another(screen);
  await screen.push('Clock');
  await eventually(async () => assert.equal(await title(other), 'Clock'));
  const size = other.getByRole('group', { name: 'Size', exact: true });

  await screen.group('Clock').getByRole('switch').click();
  await eventually(async () => assert.equal(
    await other.getByRole('switch', { name: 'Enabled' }).getAttribute('aria-checked'), 'false'));
  await screen.group('Size').getByRole('slider').press('End');
  await eventually(async () => assert.equal(await size.getByRole('textbox').inputValue(), '200'));
  await size.getByRole('slider').press('Home');
  await eventually(async () =>
    assert.equal(await screen.group('Size').getByRole('textbox').inputValue(), '1'));
});

scenario('a window that comes late shows the page that the phone is on, with a way back', {},
  async (screen) => {
    await screen.push('Quick Actions');
    await screen.group('Size').getByRole('slider').press('End');
    const other = await another(screen);
    assert.equal(await title(other), 'Quick Actions');
    assert.equal(await other.getByRole('textbox', { name: 'Size value' }).inputValue(), '200');
    await other.getByRole('button', { name: 'Quillmere' }).click();
    await screen.isOnTop('Quillmere');
  });

scenario('what is being typed in one window is not written over by the other', {},
  async (screen) => {
    const other = await another(screen);
    await screen.push('Clock');
    const field = screen.group('Size').getByRole('textbox');
    await field.fill('12');
    await other.getByRole('group', { name: 'Size', exact: true }).getByRole('slider').press('End');
    await eventually(async () => assert.equal(
      await screen.group('Size').getByRole('slider').getAttribute('aria-valuenow'), '200'));
    assert.equal(await field.inputValue(), '12');
    await field.press('Enter');
    await eventually(async () =>
      assert.equal((await screen.phone.stored()).clockDigitSize, '12.0'));
  });

scenario('closing one window leaves the other at work', {}, async (screen) => {
  const other = await another(screen);
  await other.close();
  await screen.push('Clock');
  await screen.group('Clock').getByRole('switch').click();
  assert.deepEqual(await screen.stored(), { clockEnabled: 'False' });
});
