import assert from 'node:assert/strict';
import { eventually } from './fixture/eventually.js';
import { askPython } from './fixture/python.js';
import { scenario } from './fixture/scenario.js';
import { ready } from './fixture/screen.js';

const most = 32 * 1024;
const tooLong = 'The text is too long to send.';

const sheet = ({ page }) => page.locator('.mail');
const body = (screen) => sheet(screen).getByRole('textbox', { name: 'Message' });
const notice = (screen) => sheet(screen).getByRole('status').innerText();
const send = (screen) => sheet(screen).getByRole('button', { name: 'Send', exact: true }).click();

async function write(screen) {
  await screen.page.getByRole('button', { name: 'Write to Support' }).click();
  await body(screen).waitFor();
}

/** Puts a text in place of what is selected, at once, as pasting does. */
const paste = ({ page }, text) => page.keyboard.insertText(text);

/** Has the connection do something else with some messages: `alter` sends them on, or does not. */
async function intercept({ page }, alter) {
  await page.routeWebSocket('**/socket', (near) => {
    const far = near.connectToServer();
    near.onMessage((text) => alter(JSON.parse(text), { near, far }) ?? far.send(text));
  });
  await page.reload();
  await ready(page);
}

const refusal = JSON.stringify({ kind: 'refused', reason: 'not today' });

scenario('a text of 32 KiB is sent to its last letter, right after it was pasted', {},
  async (screen) => {
    await write(screen);
    const text = 'ä'.repeat(most / 2);
    await body(screen).press('ControlOrMeta+a');
    await paste(screen, text);
    await send(screen);
    await sheet(screen).waitFor({ state: 'detached' });
    const sent = await askPython('mail', screen.phone.mails('Outbox')[0]);
    assert.equal(sent.body.trimEnd(), text);
  });

scenario('what goes beyond 32 KiB is refused whole, with a notice, until there is room', {},
  async (screen) => {
    await write(screen);
    await body(screen).press('ControlOrMeta+a');
    const text = `${'ä'.repeat(most / 2 - 1)}z`;
    await paste(screen, text);
    assert.equal(await notice(screen), '');
    await body(screen).press('ArrowLeft');
    await paste(screen, 'ö');
    assert.equal(await notice(screen), tooLong);
    assert.equal(await body(screen).inputValue(), text, 'nothing is cut, nothing is lost');
    await screen.page.keyboard.type('y');
    assert.equal(await notice(screen), '', 'one byte more fits');
    assert.equal(await body(screen).evaluate(({ value }) => value.slice(-3)), 'äyz');
    await eventually(() => assert.equal(screen.touches.at(-1).text?.slice(-3), 'äyz'));
    await screen.answered();
  });

scenario('signs that are long when written count as such, and the line holds', {},
  async (screen) => {
    await write(screen);
    const before = await body(screen).inputValue();
    await paste(screen, '\u0001'.repeat(20 * 1024));
    assert.equal(await notice(screen), tooLong);
    assert.equal(await body(screen).inputValue(), before);
    await screen.page.keyboard.type('x');
    await eventually(() => assert.equal(screen.touches.at(-1).text, `x${before}`));
    await screen.answered();
  });

scenario('a text that is refused stays as it was typed, and is not sent', {}, async (screen) => {
  let isRefusing = true;
  let taps = 0;
  await intercept(screen, ({ kind }, { near }) => {
    if (kind === 'tap') taps += 1;
    if (kind !== 'type' || !isRefusing) return undefined;
    near.send(refusal);
    return true;
  });
  await write(screen);
  await screen.page.keyboard.type('Hello');
  await send(screen);
  await eventually(async () =>
    assert.equal(await notice(screen), 'The text was not accepted.'));
  assert.match(await body(screen).inputValue(), /^Hello\n/);
  assert.deepEqual(screen.phone.mails('Outbox'), []);
  assert.equal(taps, 1, 'only the one that opened the sheet');
  isRefusing = false;
  await send(screen);
  await sheet(screen).waitFor({ state: 'detached' });
  const { body: sent } = await askPython('mail', screen.phone.mails('Outbox')[0]);
  assert.match(sent, /^Hello\n/);
});

scenario('Send waits until the text has arrived', {}, async (screen) => {
  const held = [];
  await intercept(screen, (message, { far }) => {
    if (message.kind === 'type') return held.push(() => far.send(JSON.stringify(message)));
    return undefined;
  });
  await write(screen);
  await screen.page.keyboard.type('A');
  await send(screen);
  await eventually(() => assert.equal(held.length, 1));
  await body(screen).press('B');
  assert.deepEqual(screen.phone.mails('Outbox'), []);
  held[0]();
  await eventually(() => assert.equal(held.length, 2));
  assert.deepEqual(screen.phone.mails('Outbox'), []);
  held[1]();
  await sheet(screen).waitFor({ state: 'detached' });
  const { body: sent } = await askPython('mail', screen.phone.mails('Outbox')[0]);
  assert.match(sent, /^AB\n/);
});

scenario('an older answer is not put over newer typing', {}, async (screen) => {
  const held = [];
  await intercept(screen, (message, { far }) => {
    if (message.kind === 'type') return held.push(() => far.send(JSON.stringify(message)));
    return undefined;
  });
  await write(screen);
  const shown = () => body(screen).inputValue();
  for (const [index, letter] of ['A', 'B'].entries()) {
    await body(screen).press(letter);
    await eventually(() => assert.equal(held.length, index + 1));
  }
  const changes = await body(screen).evaluateHandle((field) => {
    const seen = new Set([field.value]);
    const look = () => requestAnimationFrame(look, seen.add(field.value));
    look();
    return seen;
  });
  held[0]();
  await eventually(async () => assert.equal(await sheet(screen).count(), 1));
  held[1]();
  await eventually(async () => assert.match(await shown(), /^AB\n/));
  await body(screen).press('C');
  await eventually(() => assert.equal(held.length, 3));
  held[2]();
  assert.match(await shown(), /^ABC\n/);
  const starts = await changes.evaluate((seen) => [...seen].map((text) => text.split('\n')[0]));
  assert.deepEqual(starts, ['AB', 'ABC']);
});
