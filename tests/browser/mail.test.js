import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { readFileSync } from 'node:fs';
import { join } from 'node:path';
import { eventually } from './fixture/eventually.js';
import { askPython } from './fixture/python.js';
import { scenario } from './fixture/scenario.js';

const sheet = ({ page }) => page.getByRole('dialog', { name: 'Quillmere Support' });
const button = (screen, name) => sheet(screen).getByRole('button', { name, exact: true });
const field = (screen, name) => sheet(screen).getByRole('textbox', { name });
const gone = (screen) => sheet(screen).waitFor({ state: 'detached' });

async function write(screen) {
  await screen.page.getByRole('button', { name: 'Write to Support' }).click();
  await sheet(screen).waitFor();
}

scenario('the composer opens filled in, with the keyboard on the empty lines',
  { ios: '12.4' }, async (screen) => {
    await write(screen);
    assert.equal(await field(screen, 'To:').inputValue(), 'Orvalen <support@orvalen.com>');
    assert.equal(await field(screen, 'Subject:').inputValue(), 'Quillmere Support');
    const body = await field(screen, 'Message').inputValue();
    assert.match(body, /^\n\n\nCurrent Device: \S+, iOS 12\.4 \(\S+\)$/);
    await screen.page.keyboard.type('Hello');
    assert.equal(await field(screen, 'Message').inputValue(), `Hello${body}`);
  });

scenario('the attachment is what dpkg lists, and opens in a tab of its own', {},
  async (screen) => {
    const { PATH } = process.env;
    const list = execFileSync('dpkg', ['-l'], { encoding: 'utf8', env: { PATH } });
    await write(screen);
    const attachment = sheet(screen).getByRole('link', { name: 'dpkgl.txt' });
    assert.equal(await attachment.getAttribute('rel'), 'noopener noreferrer');
    assert.match(await attachment.innerText(), /^dpkgl\.txt\s+[\d.,]+ KB$/);
    const [tab] = await Promise.all([screen.context.waitForEvent('page'), attachment.click()]);
    await tab.waitForLoadState();
    assert.ok(list.split('\n').length > 50);
    assert.equal(await tab.evaluate(() => document.body.textContent), list);
    await tab.close();
    await button(screen, 'Send').click();
    await gone(screen);
    await screen.answered();
    const [mail] = screen.phone.mails('Outbox');
    assert.deepEqual((await askPython('mail', mail)).texts, [list]);
  });

scenario('what is sent lies in the outbox as it was written', {}, async (screen) => {
  await write(screen);
  await field(screen, 'To:').fill('Anna <anna@example.org>');
  await field(screen, 'Message').press('ControlOrMeta+Home');
  await screen.page.keyboard.type('It flickers – why?');
  await button(screen, 'Send').click();
  await gone(screen);
  await screen.answered();
  const [mail, ...more] = screen.phone.mails('Outbox');
  assert.deepEqual(more, []);
  const { to, subject, body, files } = await askPython('mail', mail);
  assert.deepEqual({ to, subject, files },
    { to: 'Anna <anna@example.org>', subject: 'Quillmere Support', files: ['dpkgl.txt'] });
  assert.match(body, /^It flickers – why\?\n\n\nCurrent Device: /);
  assert.deepEqual(screen.phone.mails('Drafts'), []);
});

const told = {
  ios: '12.4',
  arguments: ({ folder }) => ['--ios-build', '16G77', '--product-type', 'iPhone7,2',
    '--mail-command', `cat > '${folder}/told'; echo done >> '${folder}/times'`],
};

scenario('the mail tells the device that the command line names, and the user’s command gets it',
  told, async (screen) => {
    await write(screen);
    assert.match(await field(screen, 'Message').inputValue(),
      /^\n\n\nCurrent Device: iPhone7,2, iOS 12\.4 \(16G77\)$/);
    await button(screen, 'Send').click();
    await gone(screen);
    await screen.answered();
    const at = (name) => readFileSync(join(screen.phone.folder, name), 'utf8');
    await eventually(async () => assert.equal(at('times'), 'done\n'));
    assert.deepEqual(screen.phone.mails('Outbox'), [at('told')]);
    assert.match((await askPython('mail', at('told'))).body, /iPhone7,2, iOS 12\.4 \(16G77\)/);
  });

scenario('a draft is not for the user’s command', told, async (screen) => {
  await cancelEdited(screen);
  await choices(screen).getByRole('button', { name: 'Save Draft' }).click();
  await gone(screen);
  await screen.answered();
  // Commands run in the order of what they are for, so that one for the draft would be over.
  await write(screen);
  await button(screen, 'Send').click();
  await gone(screen);
  const times = join(screen.phone.folder, 'times');
  await eventually(async () => assert.equal(readFileSync(times, 'utf8'), 'done\n'));
  assert.equal(screen.phone.mails('Drafts').length, 1);
});

scenario('without anybody to send it to a mail cannot be sent', {}, async (screen) => {
  await write(screen);
  assert.ok(await button(screen, 'Send').isEnabled());
  await field(screen, 'To:').fill('');
  await eventually(async () => assert.ok(await button(screen, 'Send').isDisabled()));
  await field(screen, 'To:').fill('bob@example.org');
  await eventually(async () => assert.ok(await button(screen, 'Send').isEnabled()));
});

scenario('a mail that was not edited goes away at once', {}, async (screen) => {
  await write(screen);
  await button(screen, 'Cancel').click();
  await gone(screen);
  assert.deepEqual([...screen.phone.mails('Outbox'), ...screen.phone.mails('Drafts')], []);
  assert.equal(await screen.page.evaluate(() => document.activeElement.innerText),
    'Write to Support');
});

const choices = ({ page }) => page.getByRole('dialog', { name: 'Draft' });

/** Edits the mail and cancels it by keyboard, so that it asks. */
async function cancelEdited(screen) {
  await write(screen);
  await screen.page.keyboard.type('Hm');
  await screen.page.keyboard.press('Escape');
  await choices(screen).waitFor();
}

scenario('a draft is deleted', {}, async (screen) => {
  await cancelEdited(screen);
  assert.deepEqual(await choices(screen).getByRole('button').allInnerTexts(),
    ['Delete Draft', 'Save Draft', 'Cancel']);
  await choices(screen).getByRole('button', { name: 'Delete Draft' }).click();
  await gone(screen);
  await screen.answered();
  assert.deepEqual(screen.phone.mails('Drafts'), []);
});

scenario('a draft is saved, with the last letter that was typed', {}, async (screen) => {
  await cancelEdited(screen);
  await choices(screen).getByRole('button', { name: 'Save Draft' }).click();
  await gone(screen);
  await screen.answered();
  const [draft] = screen.phone.mails('Drafts');
  assert.match((await askPython('mail', draft)).body, /^Hm\n/);
});

scenario('one who thinks better of it goes on writing', {}, async (screen) => {
  await cancelEdited(screen);
  assert.equal(await screen.page.evaluate(() => document.activeElement.innerText), 'Cancel');
  await screen.page.keyboard.press('Escape');
  await choices(screen).waitFor({ state: 'detached' });
  await screen.page.keyboard.type('!');
  assert.match(await field(screen, 'Message').inputValue(), /^Hm!\n/);
  await screen.answered();
  assert.deepEqual(screen.phone.mails('Drafts'), []);
});

scenario('the keyboard stays in the composer', {}, async (screen) => {
  await write(screen);
  const names = [];
  for (let i = 0; i < 6; ++i) {
    await screen.page.keyboard.press('Tab');
    names.push(await screen.page.evaluate(() => {
      const at = document.activeElement;
      return at.labels?.[0]?.innerText || at.ariaLabel || at.innerText.split('\n')[0];
    }));
  }
  assert.deepEqual(names, ['dpkgl.txt', 'Cancel', 'Send', 'To:', 'Subject:', 'Message']);
});
