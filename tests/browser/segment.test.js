import assert from 'node:assert/strict';
import { eventually } from './fixture/eventually.js';
import { scenario } from './fixture/scenario.js';

const find = (screen, title) =>
  screen.page.getByRole('tablist', { name: 'Color Mode' })
    .getByRole('tab', { name: title, exact: true });

const expectSelected = (screen, selected) =>
  eventually(async () => {
    for (const title of ['Default', 'Custom Color']) {
      const state = await find(screen, title).getAttribute('aria-selected');
      assert.equal(state, String(title === selected), title);
    }
  });

scenario('a tap chooses a segment, and the integer it stands for is stored', {},
  async (screen) => {
    await screen.push('Color');
    await expectSelected(screen, 'Default');
    for (const [title, value] of [['Custom Color', '2'], ['Default', '1']]) {
      await find(screen, title).click();
      assert.deepEqual(await screen.stored(), { colorMode: value });
      await expectSelected(screen, title);
    }
  });

scenario('arrow keys choose among the segments', {}, async (screen) => {
  await screen.push('Color');
  await find(screen, 'Default').focus();
  for (const [key, title, value] of
    [['ArrowRight', 'Custom Color', '2'], ['ArrowLeft', 'Default', '1']]) {
    await screen.page.keyboard.press(key);
    await expectSelected(screen, title);
    assert.deepEqual(await screen.stored(), { colorMode: value });
  }
});

scenario('the chosen segment chosen again stores nothing', {}, async (screen) => {
  await screen.push('Color');
  await find(screen, 'Default').click();
  await expectSelected(screen, 'Default');
  await screen.answered();
  assert.equal(screen.phone.bytes(), null);
});

scenario('a stored value that no segment stands for leaves all of them unchosen',
  { values: "{'colorMode': 7}" }, async (screen) => {
    await screen.push('Color');
    await expectSelected(screen, null);
    await find(screen, 'Default').click();
    assert.deepEqual(await screen.stored(), { colorMode: '1' });
    await expectSelected(screen, 'Default');
  });
