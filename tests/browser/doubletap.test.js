import assert from 'node:assert/strict';
import { eventually } from './fixture/eventually.js';
import { five, list } from './fixture/list.js';
import { scenario } from './fixture/scenario.js';

const middle = async (locator) => {
  const { x, y, width, height } = await locator.boundingBox();
  return [x + width / 2, y + height / 2];
};

const firstDisabled = (screen) =>
  list(screen).section('Disabled').getByRole('listitem').first().getByRole('button');

/** The touches since then that a row's control could have sent. */
const tapsSince = ({ touches }, count) =>
  touches.slice(count).filter(({ kind }) => kind === 'tap').length;

scenario('a double click on a green button enables one animation', five, async (screen) => {
  await screen.push('Lotties');
  const sent = screen.touches.length;
  await screen.page.mouse.dblclick(...await middle(firstDisabled(screen)));
  await screen.answered();
  assert.equal(tapsSince(screen, sent), 1);
  await eventually(async () => assert.equal((await list(screen).enabled()).length, 4));
});

scenario('the second click of two does nothing to the row that came below the mouse', five,
  async (screen) => {
    await screen.push('Lotties');
    const { mouse } = screen.page;
    await mouse.move(...await middle(list(screen).button('Insert', 'Ember')));
    for (const clickCount of [1, 2]) {
      await mouse.down({ clickCount });
      await mouse.up({ clickCount });
      await screen.answered();
    }
    assert.equal((await list(screen).enabled()).length, 4);
  });

scenario('a row takes no further tap until the first is answered', five, async (screen) => {
  await screen.push('Lotties');
  const sent = screen.touches.length;
  await firstDisabled(screen).evaluate((button) => {
    for (let i = 0; i < 3; ++i) button.click();
  });
  await screen.answered();
  assert.equal(tapsSince(screen, sent), 1);
  await eventually(async () => assert.equal((await list(screen).enabled()).length, 4));
  await firstDisabled(screen).click();
  await eventually(async () => assert.equal((await list(screen).enabled()).length, 5));
});
