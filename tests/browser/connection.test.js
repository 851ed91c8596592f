import assert from 'node:assert/strict';
import { eventually } from './fixture/eventually.js';
import { Program } from './fixture/program.js';
import { scenario } from './fixture/scenario.js';
import { Wire } from './fixture/wire.js';

/** The browser's own words for what these tests bring about. */
const errors = /WebSocket connection to .* failed|Failed to load resource: .*(403|net::ERR_)/;

const says = ({ page }, text) =>
  eventually(async () => assert.equal(await page.getByRole('status').innerText(), text));

const lost = 'Connection lost. Reconnecting…';
const turnedAway = 'Open the address that Quillmere Settings printed.';

scenario('a program that has ended is missed, and nothing can be touched', { errors },
  async (screen) => {
    await screen.push('Clock');
    const toggle = screen.page.locator('[data-key=clockEnabled]');
    await screen.program.stop();
    await says(screen, lost);
    assert.ok(await toggle.evaluate((row) => row.closest('[inert]') !== null));
    await toggle.click({ force: true });
    await screen.page.keyboard.press('Tab');
    await screen.page.keyboard.press('Space');
    assert.equal(await toggle.getAttribute('aria-checked'), 'true');
  });

scenario('a program started anew on the same port has to be opened anew', { errors },
  async (screen) => {
    const { port, invitation } = screen.program;
    await screen.program.stop();
    await says(screen, lost);
    screen.program = await Program.start(screen.phone.folder, port);
    assert.notEqual(screen.program.invitation.href, invitation.href);
    await says(screen, turnedAway);
    assert.ok(await screen.page.locator('#stage').evaluate((stage) => stage.inert));

    await screen.page.goto(screen.program.invitation.href);
    await screen.push('Clock');
    await screen.group('Clock').getByRole('switch').click();
    await eventually(async () =>
      assert.deepEqual(await screen.phone.stored(), { clockEnabled: 'False' }));
  });

/** A scenario whose browser reaches the program over a wire. */
function wired(name, body) {
  let wire;
  const flags = async ({ port }) => {
    wire = await Wire.to(port);
    return [`--host-resolver-rules=MAP 127.0.0.1:${port} 127.0.0.1:${wire.port}`];
  };
  scenario(name, { errors, flags }, async (screen) => {
    try {
      await body(screen, wire);
    } finally {
      wire.close();
    }
  });
}

wired('a broken connection mends itself and brings what has changed meanwhile',
  async (screen, wire) => {
    await screen.push('Clock');
    const field = screen.group('Size').getByRole('textbox');
    wire.cut();
    await says(screen, lost);
    await screen.phone.store("{'clockDigitSize': 111.0}");
    wire.mend();
    await says(screen, '');
    await screen.pop('Quillmere');
    await screen.push('Clock');
    assert.equal(await field.inputValue(), '111');
    await screen.group('Clock').getByRole('switch').click();
    assert.deepEqual(await screen.stored(), { clockDigitSize: '111.0', clockEnabled: 'False' });
  });

wired('a connection that breaks again and again mends itself each time', async (screen, wire) => {
  for (let i = 0; i < 3; ++i) {
    wire.cut();
    await says(screen, lost);
    wire.mend();
    await says(screen, '');
  }
  await screen.push('Color');
});

wired('the keyboard is back where it was once the connection is', async (screen, wire) => {
  await screen.push('Clock');
  const knob = screen.group('Digits Spacing').getByRole('slider');
  await knob.focus();
  wire.cut();
  await says(screen, lost);
  wire.mend();
  await says(screen, '');
  await screen.page.keyboard.press('ArrowRight');
  assert.deepEqual(await screen.stored(), { clockDigitsSpacing: '-19.0' });
});

wired('a prompt is still there once the connection is, and has the keyboard',
  async (screen, wire) => {
    const prompt = screen.page.getByRole('alertdialog');
    await screen.page.getByRole('button', { name: 'Respring' }).click();
    await prompt.waitFor();
    wire.cut();
    await says(screen, lost);
    wire.mend();
    await says(screen, '');
    await screen.page.keyboard.press('Escape');
    await prompt.waitFor({ state: 'detached' });
    assert.equal(await screen.page.evaluate(() => document.activeElement.innerText), 'Respring');
  });

wired('rows that moved without a connection stand where the phone’s do once there is one',
  async (screen, wire) => {
    const content = screen.page.locator('.content');
    await screen.page.setViewportSize({ width: 390, height: 500 });
    wire.cut();
    await says(screen, lost);
    await content.evaluate((rows) => (rows.scrollTop = 130));
    wire.mend();
    await says(screen, '');
    await eventually(async () => assert.equal(await content.evaluate((rows) => rows.scrollTop), 0));
    assert.deepEqual(screen.touches, []);
  });
