// Takes the pictures of the documentation: `node screenshots.js FOLDER`.
import { mkdirSync } from 'node:fs';
import { join } from 'node:path';
import { launch } from './fixture/browser.js';
import { Phone } from './fixture/phone.js';
import { Program } from './fixture/program.js';
import { Screen } from './fixture/screen.js';

const [folder] = process.argv.slice(2);
const schemes = ['light', 'dark'];

/** How much of the desk is seen around the phone, in pixels. */
const margin = 16;

/** The phone in the pictures. */
const model = ['--product-type', 'iPhone12,1', '--ios-version', '14.3', '--ios-build', '18C66'];

/** What the phone in the pictures has enabled; it was greeted before, unless it is to be. */
const enabled = "'enabledLotties': ['Clock', 'Rain', 'Nice Buttons']";
const used = `{'showedWelcomeVC': True, ${enabled}}`;
const unused = `{${enabled}}`;

const button = ({ page }, name) => page.getByRole('button', { name, exact: true });

/** Taps what brings something up over the pages. */
async function open(screen, name) {
  await button(screen, name).click();
  await screen.page.locator('[aria-modal]').waitFor();
}

/** The way from the root page to each picture. */
const ways = {
  root: async () => {},
  list: (screen) => screen.push('Lotties'),
  delete: async (screen) => {
    await screen.push('Lotties');
    await button(screen, 'Delete Rain').click();
    await button(screen, 'Delete Rain now').waitFor();
  },
  clock: (screen) => screen.push('Clock'),
  'quick-actions': (screen) => screen.push('Quick Actions'),
  color: (screen) => screen.push('Color'),
  picker: async (screen) => {
    await screen.push('Color');
    await open(screen, 'Custom Color');
  },
  prompt: (screen) => open(screen, 'Respring'),
  locked: async (screen) => {
    await button(screen, 'Respring').click();
    await button(screen, 'Confirm').click();
    await screen.page.locator('[data-phase=locked]').waitFor();
  },
  mail: (screen) => open(screen, 'Write to Support'),
  welcome: async () => {},
};

/** The pictures that are shown side by side. */
const strip = ['welcome', 'root', 'list', 'clock', 'picker', 'prompt', 'mail'];

/** Takes one picture of a phone. */
async function take(browser, name, colorScheme) {
  const phone = new Phone();
  phone.install(['Clock', 'Nice Buttons', 'Rain', 'Snow', 'Wind']);
  await phone.store(name === 'welcome' ? unused : used);
  const program = await Program.start(phone.folder, 0, model);
  const screen = new Screen(phone, program);
  try {
    await screen.open(browser, { colorScheme, viewport: { width: 520, height: 908 } });
    await ways[name](screen);
    await screen.page.waitForFunction(() => document.getAnimations().length === 0);
    await screen.page.waitForLoadState('networkidle');
    return await shoot(screen.page, join(folder, 'screenshots', `${name}-${colorScheme}.png`));
  } finally {
    await screen.close();
    await program.stop();
    phone.remove();
  }
}

async function shoot(page, path) {
  // The ring round what has the keyboard belongs to no picture.
  await page.evaluate(() => document.activeElement.blur());
  const box = await page.locator('.phone').boundingBox();
  return page.screenshot({
    path,
    clip: {
      x: box.x - margin, y: box.y - margin,
      width: box.width + 2 * margin, height: box.height + 2 * margin,
    },
  });
}

/** Puts pictures side by side into one. */
async function compose(browser, pictures, path) {
  const page = await browser.newPage({ viewport: { width: 300 * pictures.length, height: 800 } });
  const images = pictures.map((bytes) =>
    `<img width="300" src="data:image/png;base64,${bytes.toString('base64')}">`);
  await page.setContent(`<div style="display: inline-flex">${images.join('')}</div>`);
  await page.locator('div').screenshot({ path });
  await page.close();
}

mkdirSync(join(folder, 'screenshots'), { recursive: true });
const browser = await launch();
try {
  const pictures = {};
  for (const name of Object.keys(ways)) {
    pictures[name] = await Promise.all(schemes.map((scheme) => take(browser, name, scheme)));
  }
  await compose(browser, strip.map((name) => pictures[name][0]), join(folder, 'strip.png'));
} finally {
  await browser.close();
}
