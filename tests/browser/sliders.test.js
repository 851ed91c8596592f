import assert from 'node:assert/strict';
import { eventually } from './fixture/eventually.js';
import { swipe } from './fixture/finger.js';
import { sliders } from './fixture/rows.js';
import { scenario } from './fixture/scenario.js';

const python = (number) => number.toFixed(1);

function find(screen, { group, label }) {
  return {
    knob: screen.group(group).getByRole('slider', { name: label, exact: true }),
    field: screen.group(group).getByRole('textbox', { name: `${label} value` }),
    range: screen.group(group).locator('ion-range'),
  };
}

async function expectShown({ knob, field }, value) {
  await eventually(async () => {
    assert.equal(await field.inputValue(), String(value));
    assert.equal(await knob.getAttribute('aria-valuenow'), String(value));
  });
}

/** Where on the screen the knob's middle is, and how far apart two whole numbers are. */
async function track({ knob, range }, { min, max }) {
  const [knobBox, trackBox] = await Promise.all([
    knob.boundingBox(), range.locator('.range-slider').boundingBox()]);
  return {
    x: knobBox.x + knobBox.width / 2, y: knobBox.y + knobBox.height / 2,
    step: trackBox.width / (max - min),
  };
}

scenario('every slider moves by keys, one step or ten, and to its ends', {}, async (screen) => {
  await screen.visit(sliders, async (row) => {
    const slider = find(screen, row);
    await expectShown(slider, row.initial);
    const steps = [
      ['ArrowRight', row.initial + 1], ['ArrowUp', row.initial + 2],
      ['ArrowLeft', row.initial + 1], ['ArrowDown', row.initial],
      ['PageUp', row.initial + 10], ['PageDown', row.initial],
      ['Home', row.min], ['End', row.max],
    ];
    for (const [key, value] of steps) {
      await slider.knob.press(key);
      await expectShown(slider, value);
      assert.equal((await screen.stored())[row.key], python(value), `${row.key} ${key}`);
    }
  });
});

scenario('a slider stays at its end however often a key is pressed', {}, async (screen) => {
  await screen.push('Clock');
  const slider = find(screen, sliders[0]);
  for (const key of ['End', 'ArrowRight', 'ArrowRight', 'PageUp', 'End']) {
    await slider.knob.press(key);
  }
  await expectShown(slider, 200);
  assert.deepEqual(await screen.stored(), { clockDigitSize: '200.0' });
});

scenario('every slider follows the mouse and stores the whole number where it is let go', {},
  async (screen) => {
    const { mouse } = screen.page;
    await screen.visit(sliders, async (row) => {
      const slider = find(screen, row);
      const { x, y, step } = await track(slider, row);
      const sent = screen.touches.length;
      await mouse.move(x, y);
      await mouse.down();
      for (const steps of [1.3, 3.4, 25.4, 20.2]) {
        await mouse.move(x + steps * step, y, { steps: 4 });
        await expectShown(slider, row.initial + Math.round(steps));
      }
      assert.equal(screen.touches.length, sent, 'nothing is sent before the finger is lifted');
      await mouse.up();
      await eventually(() => assert.equal(screen.touches.length, sent + 1));
      assert.equal((await screen.stored())[row.key], python(row.initial + 20));
      await expectShown(slider, row.initial + 20);
    });
  });

scenario('a slider takes a movement that is but a few pixels long', {}, async (screen) => {
  await screen.push('Clock');
  const slider = find(screen, sliders[3]);
  const { x, y, step } = await track(slider, sliders[3]);
  await screen.page.mouse.move(x, y);
  await screen.page.mouse.down();
  await screen.page.mouse.move(x + 2.2 * step, y);
  await screen.page.mouse.up();
  await expectShown(slider, 52);
  assert.deepEqual(await screen.stored(), { colonHeight: '52.0' });
});

scenario('a slider dragged beyond its track stays at its end', {}, async (screen) => {
  await screen.push('Clock');
  const slider = find(screen, sliders[2]);
  const { x, y } = await track(slider, sliders[2]);
  await screen.page.mouse.move(x, y);
  await screen.page.mouse.down();
  await screen.page.mouse.move(x - 600, y + 40, { steps: 6 });
  await screen.page.mouse.up();
  await expectShown(slider, -100);
  assert.deepEqual(await screen.stored(), { clockDigitsSpacing: '-100.0' });
});

scenario('a tap on the track brings the knob there', {}, async (screen) => {
  await screen.push('Clock');
  const slider = find(screen, sliders[1]);
  const { x, y, step } = await track(slider, sliders[1]);
  await screen.page.mouse.click(x + 60 * step, y);
  await expectShown(slider, 60);
  assert.deepEqual(await screen.stored(), { clockVerticalAlignment: '60.0' });
});

const small = { look: { hasTouch: true, viewport: { width: 390, height: 500 } } };

scenario('a finger on a touch screen moves a slider', small, async (screen) => {
  await screen.push('Clock');
  const slider = find(screen, sliders[0]);
  const from = await track(slider, sliders[0]);
  await swipe(screen, from, [[4, 0], [12, 0], [30.2 * from.step, 0]]);
  await expectShown(slider, 105);
  assert.deepEqual(await screen.stored(), { clockDigitSize: '105.0' });
});

scenario('a finger that scrolls the page leaves the slider below it as it is', small,
  async (screen) => {
    await screen.push('Clock');
    const slider = find(screen, sliders[0]);
    const ways = Array.from({ length: 20 }, (_, i) => [3, -8 * i]);
    await swipe(screen, await track(slider, sliders[0]), ways);
    const list = screen.page.locator('.page:not([inert]) .content');
    await eventually(async () => assert.ok(await list.evaluate((at) => at.scrollTop) > 50));
    await expectShown(slider, 75);
    await screen.answered();
    assert.equal(screen.phone.bytes(), null);
  });
