import assert from 'node:assert/strict';
import { eventually } from './fixture/eventually.js';
import { five, focused, list } from './fixture/list.js';
import { scenario } from './fixture/scenario.js';

const expectEnabled = async (screen, ...names) => {
  await eventually(async () => assert.deepEqual(await list(screen).enabled(), names));
  const { enabledLotties } = await screen.stored();
  assert.equal(enabledLotties, `[${names.map((name) => `'${name}'`).join(', ')}]`);
};

const expectFocus = (screen, name) =>
  eventually(async () => assert.equal(await focused(screen), name));

scenario('the list shows what is enabled in its order, and what else is installed', five,
  async (screen) => {
    await screen.push('Lotties');
    const { enabled, disabled } = list(screen);
    assert.deepEqual(await enabled(), ['Aurora', 'Breeze', 'Comet']);
    assert.deepEqual((await disabled()).sort(), ['Dune', 'Ember']);
    await screen.pop('Quillmere');
    assert.equal(await focused(screen), 'Lotties');
  });

scenario('the green button enables at once, and the row stands first then', five,
  async (screen) => {
    await screen.push('Lotties');
    await list(screen).button('Insert', 'Ember').click();
    await expectEnabled(screen, 'Ember', 'Aurora', 'Breeze', 'Comet');
    assert.deepEqual(await list(screen).disabled(), ['Dune']);
  });

scenario('the red button asks first, and then disables', five, async (screen) => {
  const before = screen.phone.bytes();
  await screen.push('Lotties');
  const { button, disabled } = list(screen);
  await button('Delete', 'Breeze').click();
  const confirm = screen.page.getByRole('button', { name: 'Delete Breeze now' });
  assert.equal(await confirm.innerText(), 'Delete');
  await expectFocus(screen, 'Delete Breeze now');
  await screen.answered();
  assert.deepEqual(screen.phone.bytes(), before, 'nothing is stored before it is confirmed');
  await confirm.click();
  await expectEnabled(screen, 'Aurora', 'Comet');
  assert.equal((await disabled()).at(-1), 'Breeze');
  await expectFocus(screen, 'Delete Comet');
});

scenario('a row is not there to be tapped', five, async (screen) => {
  const before = screen.phone.bytes();
  await screen.push('Lotties');
  const shown = await screen.page.locator('.page:not([inert])').evaluate((page) => page.outerHTML);
  const sent = screen.touches.length;
  for (const [section, name] of [['Enabled', 'Breeze'], ['Disabled', 'Dune']]) {
    await list(screen).section(section).getByText(name, { exact: true }).click();
  }
  await screen.answered();
  assert.ok(screen.touches.slice(sent).every(({ kind, id }) => kind === 'tap' && /row/.test(id)));
  assert.equal(await screen.page.locator('.page:not([inert])').evaluate((page) => page.outerHTML),
    shown);
  assert.deepEqual(screen.phone.bytes(), before);
  assert.equal(await screen.page.getByRole('heading', { level: 1 }).innerText(), 'Lotties');
});

scenario('a finger enables and disables', { ...five, look: { hasTouch: true } }, async (screen) => {
  await screen.push('Lotties');
  await list(screen).button('Insert', 'Ember').tap();
  await expectEnabled(screen, 'Ember', 'Aurora', 'Breeze', 'Comet');
  await list(screen).button('Delete', 'Aurora').tap();
  await list(screen).button('Delete', 'Breeze').tap();
  await list(screen).section('Enabled').getByText('Comet', { exact: true }).tap();
  await screen.page.getByRole('button', { name: 'Delete Breeze now' }).waitFor({ state: 'hidden' });
  await list(screen).button('Delete', 'Aurora').tap();
  await screen.page.getByRole('button', { name: 'Delete Aurora now' }).tap();
  await expectEnabled(screen, 'Ember', 'Breeze', 'Comet');
  assert.equal((await list(screen).disabled()).at(-1), 'Aurora');
  assert.deepEqual(screen.touches.map(({ kind }) => kind).filter((kind) => kind !== 'tap'), []);
});

/** The ways of thinking better of it; Comet's row is below the one that asks. */
const ways = {
  'the Escape key': ({ page }) => page.keyboard.press('Escape'),
  'a tap on another row': (screen) =>
    list(screen).section('Enabled').getByText('Comet', { exact: true }).click(),
  'a tap on the same red button': ({ page }) =>
    page.getByRole('button', { name: 'Cancel', exact: true }).click(),
  'another row’s red button': (screen) => list(screen).button('Delete', 'Comet').click(),
};

for (const [way, takeBack] of Object.entries(ways)) {
  scenario(`asked, the user leaves it as it is by ${way}`, five, async (screen) => {
    const before = screen.phone.bytes();
    await screen.push('Lotties');
    await list(screen).button('Delete', 'Breeze').click();
    await expectFocus(screen, 'Delete Breeze now');
    await takeBack(screen);
    const confirm = screen.page.getByRole('button', { name: 'Delete Breeze now' });
    await confirm.waitFor({ state: 'hidden' });
    await screen.answered();
    assert.deepEqual(screen.phone.bytes(), before);
    assert.deepEqual(await list(screen).enabled(), ['Aurora', 'Breeze', 'Comet']);
  });
}

scenario('while it asks, the red button is called by what it does then', five, async (screen) => {
  await screen.push('Lotties');
  const row = list(screen).section('Enabled').getByRole('listitem').nth(1);
  const control = row.locator('.control');
  const said = () => control.evaluate((at) => [at.ariaLabel, at.getAttribute('aria-expanded')]);
  assert.deepEqual(await said(), ['Delete Breeze', 'false']);
  await control.click();
  await expectFocus(screen, 'Delete Breeze now');
  assert.deepEqual(await said(), ['Cancel', 'true']);
  assert.equal(await screen.page.getByRole('button', { name: 'Delete Breeze' }).count(), 1);
  await control.click();
  await eventually(async () => assert.deepEqual(await said(), ['Delete Breeze', 'false']));
  assert.equal(await list(screen).button('Insert', 'Dune').getAttribute('aria-expanded'), null);
});

scenario('enabling and disabling are done by keyboard alone', five, async (screen) => {
  const { page } = screen;
  await screen.push('Lotties');
  await page.keyboard.press('Tab');
  await expectFocus(screen, 'Delete Aurora');
  for (const key of ['Tab', 'Tab', 'Enter']) await page.keyboard.press(key);
  await expectFocus(screen, 'Delete Breeze now');
  await page.keyboard.press('Escape');
  await expectFocus(screen, 'Delete Breeze');
  await page.keyboard.press('Space');
  await expectFocus(screen, 'Delete Breeze now');
  await page.keyboard.press('Space');
  await expectFocus(screen, 'Delete Comet');
  await expectEnabled(screen, 'Aurora', 'Comet');
  await list(screen).button('Insert', 'Breeze').focus();
  await page.keyboard.press('Enter');
  await expectEnabled(screen, 'Breeze', 'Aurora', 'Comet');
});

scenario('each row says where it stands in its section', five, async (screen) => {
  await screen.push('Lotties');
  const places = await list(screen).section('Enabled').getByRole('listitem').evaluateAll((rows) =>
    rows.map((row) => [row.getAttribute('aria-posinset'), row.getAttribute('aria-setsize')]));
  assert.deepEqual(places, [['1', '3'], ['2', '3'], ['3', '3']]);
});
