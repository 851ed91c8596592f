import assert from 'node:assert/strict';
import { scenario } from './fixture/scenario.js';

const banner = (page) => page.getByRole('alert');
const dismiss = (page) => banner(page).getByRole('button', { name: 'Dismiss' });

/** Changes a setting while the preferences cannot be read. */
async function changeInVain(screen) {
  screen.phone.storeBytes('no property list');
  await screen.push('Clock');
  await screen.group('Clock').getByRole('switch').click();
  await dismiss(screen.page).waitFor();
}

scenario('what was not stored is said until it is put away', {}, async (screen) => {
  assert.equal(await banner(screen.page).innerText(), '');
  await changeInVain(screen);
  const text = await banner(screen.page).innerText();
  assert.match(text, /clockEnabled is kept in .*\.plist\.pending/);
  await screen.pop('Quillmere');
  assert.equal(await banner(screen.page).innerText(), text);
  await dismiss(screen.page).click();
  await dismiss(screen.page).waitFor({ state: 'detached' });
  assert.equal(await banner(screen.page).innerText(), '');
});

scenario('the banner is put away by keyboard, in every window', {}, async (screen) => {
  const other = await screen.newPage();
  await other.goto(screen.program.invitation.href);
  await changeInVain(screen);
  await dismiss(other).waitFor();
  await dismiss(screen.page).focus();
  await screen.page.keyboard.press('Enter');
  await dismiss(other).waitFor({ state: 'detached' });
  await dismiss(screen.page).waitFor({ state: 'detached' });
});
