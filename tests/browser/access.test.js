import assert from 'node:assert/strict';
import { ask } from './fixture/request.js';
import { scenario } from './fixture/scenario.js';

const policy = "default-src 'self'; base-uri 'none'; form-action 'none'; " +
  "frame-ancestors 'none'; object-src 'none'";

const cookieHeader = async ({ context }) => {
  const [{ name, value }] = await context.cookies();
  return { Cookie: `${name}=${value}` };
};

const pathOf = ({ home }) => new URL(home).pathname;

scenario('without the cookie there is nothing but a refusal', {}, async (screen) => {
  const paths = ['/', '/index.html', '/app.js', '/favicon.svg', '/socket', '/nowhere'];
  for (const path of [...paths, ...paths.map((each) => pathOf(screen) + each)]) {
    const { status, body } = await ask(screen.program, path);
    assert.deepEqual([status, body],
      [403, 'Open the address that Quillmere Settings printed.\n'], path);
  }
});

scenario('a browser without the cookie sees no page', { errors: /403/ },
  async ({ browser, program }) => {
    const context = await browser.newContext();
    const page = await context.newPage();
    const answer = await page.goto(program.origin);
    assert.equal(answer.status(), 403);
    assert.equal(await page.locator('.phone').count(), 0);
    await context.close();
  });

scenario('a wrong token is refused, and brings no cookie', {}, async ({ program }) => {
  const token = program.invitation.searchParams.get('token');
  const wrong = ['', 'x', token.slice(1), `${token}0`, token.toUpperCase() + ' ', '%00'];
  for (const each of wrong) {
    const { status, headers } = await ask(program, `/?token=${encodeURI(each)}`);
    assert.equal(status, 403, each);
    assert.equal(headers['set-cookie'], undefined, each);
  }
});

scenario('the token leaves the address bar and the history', {}, async ({ page, program }) => {
  assert.match(page.url(), /^http:\/\/127\.0\.0\.1:\d+\/[0-9a-f]{32}\/$/);
  const token = program.invitation.searchParams.get('token');
  assert.equal(page.url().includes(token), false);
  assert.equal(await page.evaluate(() => history.length), 2, 'about:blank and the page');
  assert.equal(await page.evaluate(() => document.referrer), '');
});

scenario('the cookie is out of reach of scripts and of other sites', {}, async (screen) => {
  const cookies = await screen.context.cookies();
  assert.deepEqual(
    cookies.map(({ httpOnly, sameSite, path, domain, expires }) =>
      ({ httpOnly, sameSite, path, domain, expires })),
    [{ httpOnly: true, sameSite: 'Strict', path: `${pathOf(screen)}/`, domain: '127.0.0.1', expires: -1 }]);
  assert.equal(await screen.page.evaluate(() => document.cookie), '');
});

scenario('every answer carries the same policy and is not kept', {}, async (screen) => {
  const cookie = await cookieHeader(screen);
  const home = pathOf(screen);
  const asked = [['/', {}], ['/', cookie], [`${home}/`, cookie], [`${home}/app.js`, cookie],
    [`${home}/nowhere`, cookie]];
  for (const [path, headers] of asked) {
    const answer = await ask(screen.program, path, headers);
    assert.equal(answer.headers['content-security-policy'], policy, path);
    assert.equal(answer.headers['cache-control'], 'no-store', path);
    assert.equal(answer.headers['x-content-type-options'], 'nosniff', path);
    assert.equal(answer.headers['referrer-policy'], 'no-referrer', path);
  }
});

scenario('the policy holds: no script or style of the page\'s text is taken',
  { errors: /violates the following Content Security Policy/ }, async ({ page, errors }) => {
    const taken = await page.evaluate(() => {
      document.body.insertAdjacentHTML('beforeend', '<p id="probe" style="color: red">x</p>');
      const script = document.createElement('script');
      script.textContent = 'window.taken = true';
      document.body.append(script);
      return [window.taken, getComputedStyle(document.getElementById('probe')).color];
    });
    assert.deepEqual(taken, [undefined, 'rgb(0, 0, 0)']);
    assert.equal(errors.length, 2);
  });

scenario('nothing but the page\'s own files is served', {}, async (screen) => {
  const cookie = await cookieHeader(screen);
  const phone = '/var/mobile/Library/Preferences/com.orvalen.quillmere.plist';
  await screen.phone.store("{'clockEnabled': True}");
  const paths = [
    '/../settings/web/index.html', '/..', '/nodes/../app.js', '/%2e%2e/etc/passwd',
    '/..%2f..%2fetc/passwd', '/..\\..\\etc\\passwd', '/etc/passwd', '//etc/passwd',
    '/node_modules/@ionic/core/package.json', '/ui/', '/ui/ionic/', '/nodes', '/package.json',
    '/assets.txt', '/web/assets.txt', '/index.html', '/app.js/', '/app.js%00', '/app.js?x',
    '/APP.JS', '/.git/config', phone, `/..${phone}`, screen.phone.file,
    `/..${screen.phone.file}`, '/Library/PreferenceBundles/Quillmere.bundle/Root.plist',
  ];
  for (const path of [...paths, ...paths.map((each) => pathOf(screen) + each)]) {
    const { status, body } = await ask(screen.program, path, cookie);
    assert.deepEqual([status, body], [404, 'There is no such file here.\n'], path);
  }
  const { status } = await ask(screen.program, `${pathOf(screen)}/app.js`, cookie);
  assert.equal(status, 200, 'the cookie is the right one');
});
