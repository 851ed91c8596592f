import assert from 'node:assert/strict';
import { eventually } from './fixture/eventually.js';
import { scenario } from './fixture/scenario.js';
import { ready } from './fixture/screen.js';

/** A second window on the same program. */
async function another(screen) {
  const page = await screen.newPage();
  await page.goto(`${screen.home}/`);
  await ready(page);
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

scenario('what lies over the pages lies over them in both windows', {}, async (screen) => {
  const other = await another(screen);
  const prompt = (page) => page.getByRole('alertdialog');
  await screen.page.getByRole('switch').click();
  await prompt(other).waitFor();
  const toggle = other.getByRole('switch', { includeHidden: true });
  assert.equal(await toggle.getAttribute('aria-checked'), 'false');
  await prompt(other).getByRole('button', { name: 'Cancel' }).click();
  await prompt(screen.page).waitFor({ state: 'detached' });

  await other.getByRole('button', { name: 'Write to Support' }).click();
  const body = (page) => page.getByRole('textbox', { name: 'Message' });
  await body(screen.page).waitFor();
  await body(other).press('A');
  await eventually(async () => assert.match(await body(screen.page).inputValue(), /^A\n/));
  await other.keyboard.press('Escape');
  await screen.page.getByRole('button', { name: 'Save Draft' }).click();
  await body(other).waitFor({ state: 'detached' });
});

scenario('two windows show different parts of one list, and both see it change', {
  animations: Array.from({ length: 500 }, (_, i) => `Wave ${i}`), values: "{'enabledLotties': []}",
}, async (screen) => {
  const other = await another(screen);
  await screen.push('Lotties');
  await eventually(async () => assert.equal(await title(other), 'Lotties'));
  const rows = (page) =>
    page.getByRole('list', { name: 'Disabled Lotties' }).getByRole('listitem');
  await other.locator('.page:not([inert]) .content').evaluate((list) =>
    (list.scrollTop = list.scrollHeight));
  await eventually(async () =>
    assert.equal(await rows(other).last().getAttribute('aria-posinset'), '500'));
  assert.equal(await rows(screen.page).first().getAttribute('aria-posinset'), '1');

  await rows(screen.page).first().getByRole('button').click();
  await eventually(async () => {
    assert.equal(await rows(other).last().getAttribute('aria-setsize'), '499');
    assert.equal(await rows(screen.page).first().getAttribute('aria-setsize'), '499');
  });
  assert.ok(await rows(other).count() < 120 && await rows(screen.page).count() < 120);
});

scenario('both windows see the lock screen restart', {}, async (screen) => {
  const other = await another(screen);
  await screen.push('Clock');
  await screen.pop('Quillmere');
  await screen.page.getByRole('button', { name: 'Respring' }).click();
  await other.getByRole('button', { name: 'Confirm' }).click();
  for (const page of [screen.page, other]) {
    await page.getByRole('dialog', { name: /Restarting/ }).waitFor();
  }
  for (const page of [screen.page, other]) {
    await page.getByRole('dialog', { name: /Restarting/ }).waitFor({ state: 'detached' });
    assert.equal(await title(page), 'Quillmere');
  }
  await other.getByRole('link', { name: 'Color' }).click();
  await screen.isOnTop('Color');
});

scenario('closing one window leaves the other at work', {}, async (screen) => {
  const other = await another(screen);
  await other.close();
  await screen.push('Clock');
  await screen.group('Clock').getByRole('switch').click();
  assert.deepEqual(await screen.stored(), { clockEnabled: 'False' });
});
