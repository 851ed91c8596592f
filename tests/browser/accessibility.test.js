import assert from 'node:assert/strict';
import { accessibilityTree } from './fixture/accessibility.js';
import { alter } from './fixture/altered.js';
import { sliders } from './fixture/rows.js';
import { scenario } from './fixture/scenario.js';

const operable = ['button', 'link', 'switch', 'slider', 'textbox', 'tab'];

/** Group, role, name and description of all that can be operated on each page, in order. */
const controls = {
  Quillmere: [
    [null, 'switch', 'Quillmere', ''],
    ['Animations', 'link', 'Lotties', ''],
    ['Animations', 'link', 'Clock', ''],
    ['Animations', 'link', 'Quick Actions', ''],
    ['Animations', 'link', 'Color', ''],
    ['Lock Screen', 'button', 'Respring', '• Some changes are applied only after a respring.'],
    ['Support', 'button', 'Write to Support',
     '• The mail describes your device and lists its packages.'],
    [null, 'button', 'Reset All Settings', ''],
    [null, 'link', 'orvalen Twitter', ''],
    [null, 'link', 'orvalen Reddit', ''],
    [null, 'link', 'Orvalen Design Designer', ''],
  ],
  Clock: [
    [null, 'button', 'Quillmere', ''],
    ['Clock', 'switch', 'Enabled', '• Changes require a respring to be applied'],
    ['Loop Animation', 'switch', 'Loop Animation', '• Default = YES'],
    ['Size', 'slider', 'Size', '• Default = 75'],
    ['Size', 'textbox', 'Size value', ''],
    ['Vertical Alignment', 'slider', 'Vertical Alignment', '• Default = 0'],
    ['Vertical Alignment', 'textbox', 'Vertical Alignment value', ''],
    ['Digits Spacing', 'slider', 'Digits Spacing', '• Default = -20'],
    ['Digits Spacing', 'textbox', 'Digits Spacing value', ''],
    ['Clock Colon Size', 'slider', 'Size', '• Default = 50'],
    ['Clock Colon Size', 'textbox', 'Size value', ''],
  ],
  'Quick Actions': [
    [null, 'button', 'Quillmere', ''],
    ['Quick Actions Buttons', 'switch', 'Flash Animation',
     '• Changes require a respring to be applied'],
    ['Quick Actions Buttons', 'switch', 'Camera Animation',
     '• Changes require a respring to be applied'],
    ['Loop Animation', 'switch', 'Loop Animation', '• Default = YES'],
    ['Size', 'slider', 'Size', '• Default = 75'],
    ['Size', 'textbox', 'Size value', ''],
  ],
  Color: [
    [null, 'button', 'Quillmere', ''],
    ['Color', 'tab', 'Default', ''],
    ['Color', 'tab', 'Custom Color', ''],
    ['Custom Color', 'button', 'Custom Color', '#F69240'],
  ],
};

for (const [title, expected] of Object.entries(controls)) {
  scenario(`${title}: all that can be operated has its role, name and description`, {},
    async (screen) => {
      if (title !== 'Quillmere') await screen.push(title);
      const found = (await accessibilityTree(screen))
        .filter(({ role }) => operable.includes(role))
        .map(({ group, role, name, description }) => [group, role, name, description]);
      assert.deepEqual(found, expected);
    });
}

scenario('a slider tells its value and its ends', {}, async (screen) => {
  await screen.push('Clock');
  const found = (await accessibilityTree(screen))
    .filter(({ role }) => role === 'slider')
    .map(({ valuemin, valuemax, value }) => [Number(valuemin), Number(valuemax), Number(value)]);
  const expected = sliders.filter(({ page }) => page === 'Clock')
    .map(({ min, max, initial }) => [min, max, initial]);
  assert.deepEqual(found, expected);
});

scenario('each control is tied by id to the footer below it', {}, async (screen) => {
  for (const [title, count] of [['Clock', 6], ['Quick Actions', 4], ['Color', 1]]) {
    await screen.push(title);
    const found = await screen.page.locator(':is([role=switch], [role=slider], [role=tablist])')
      .and(screen.page.locator('.page:not([inert]) *')).evaluateAll((controls) =>
        controls.filter((control) => control.checkVisibility()).map((control) => {
          const tree = control.getRootNode();
          const group = (tree.host ?? control).closest('.group');
          const described = tree.getElementById(control.getAttribute('aria-describedby'));
          return [described?.textContent, group.querySelector('.footer').textContent];
        }));
    assert.equal(found.length, count, title);
    for (const [described, footer] of found) assert.equal(described, footer);
    await screen.pop('Quillmere');
  }
});

scenario('the footer above the segments describes them as a whole', {}, async (screen) => {
  await screen.push('Color');
  const segments = (await accessibilityTree(screen)).find(({ role }) => role === 'tablist');
  assert.equal(segments.name, 'Color Mode');
  assert.equal(segments.description, '• Default: Will use Lottie animation original colors.');
});

scenario('page and groups have headings of the first and second level', {}, async (screen) => {
  await screen.push('Quick Actions');
  const headings = (await accessibilityTree(screen))
    .filter(({ role }) => role === 'heading').map(({ level, name }) => [level, name]);
  assert.deepEqual(headings, [
    [1, 'Quick Actions'], [2, 'Quick Actions Buttons'], [2, 'Loop Animation'], [2, 'Size'],
  ]);
});

scenario('each row with a value says which key it is of', {}, async (screen) => {
  const keys = [];
  for (const title of ['Clock', 'Quick Actions', 'Color']) {
    await screen.push(title);
    keys.push(...await screen.page.locator('.page:not([inert]) [data-key]')
      .evaluateAll((rows) => rows.map(({ dataset }) => dataset.key)));
    await screen.pop('Quillmere');
  }
  assert.deepEqual(keys, [
    'clockEnabled', 'clockLoopAnimation', 'clockDigitSize', 'clockVerticalAlignment',
    'clockDigitsSpacing', 'colonHeight', 'flashEnabled', 'cameraEnabled',
    'quickActionsLoopAnimation', 'quickActionsSize', 'colorMode', 'tintColor',
  ]);
});

scenario('a row that is of no key says none', {}, async (screen) => {
  await alter(screen, (node) => delete node.key);
  for (const title of ['Clock', 'Color']) {
    await screen.push(title);
    assert.equal(await screen.page.locator('[data-key]').count(), 0);
    await screen.pop('Quillmere');
  }
});

scenario('all that can be touched is at least 44 pixels high and wide', {}, async (screen) => {
  for (const title of ['Quillmere', 'Clock', 'Quick Actions', 'Color']) {
    if (title !== 'Quillmere') await screen.push(title);
    for (const role of operable) {
      for (const target of await screen.page.getByRole(role).all()) {
        const { width, height } = await target.boundingBox();
        assert.ok(width >= 44 && height >= 44,
          `${title}: ${await target.innerText()} (${role}) is ${width} x ${height}`);
      }
    }
    if (title !== 'Quillmere') await screen.pop('Quillmere');
  }
});
