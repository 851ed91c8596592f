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

/** The way from the root page to each picture. */
const ways = {
  root: async () => {},
  clock: (screen) => screen.push('Clock'),
  'quick-actions': (screen) => screen.push('Quick Actions'),
  color: (screen) => screen.push('Color'),
  picker: async (screen) => {
    await screen.push('Color');
    await screen.page.getByRole('button', { name: 'Custom Color' }).click();
    await screen.page.getByRole('dialog').waitFor();
    await screen.page.waitForFunction(() => document.getAnimations().length === 0);
  },
};

/** Takes one picture of a phone that was never used before. */
async function take(browser, name, colorScheme) {
  const phone = new Phone();
  const program = await Program.start(phone.folder);
  const screen = new Screen(phone, program);
  try {
    await screen.open(browser, { colorScheme, viewport: { width: 520, height: 908 } });
    await ways[name](screen);
    // The ring round what has the keyboard belongs to no picture.
    await screen.page.evaluate(() => document.activeElement.blur());
    const box = await screen.page.locator('.phone').boundingBox();
    return await screen.page.screenshot({
      path: join(folder, 'screenshots', `${name}-${colorScheme}.png`),
      clip: {
        x: box.x - margin, y: box.y - margin,
        width: box.width + 2 * margin, height: box.height + 2 * margin,
      },
    });
  } finally {
    await screen.close();
    await program.stop();
    phone.remove();
  }
}

/** Puts pictures side by side into one. */
async function compose(browser, pictures, path) {
  const page = await browser.newPage({ viewport: { width: 1400, height: 800 } });
  const images = pictures.map((bytes) =>
    `<img width="300" src="data:image/png;base64,${bytes.toString('base64')}">`);
  await page.setContent(`<div style="display: inline-flex">${images.join('')}</div>`);
  await page.locator('div').screenshot({ path });
  await page.close();
}

mkdirSync(join(folder, 'screenshots'), { recursive: true });
const browser = await launch();
try {
  const overview = [];
  for (const colorScheme of schemes) {
    for (const name of Object.keys(ways)) {
      const picture = await take(browser, name, colorScheme);
      if (name === 'root' || name === 'clock') overview.push(picture);
    }
  }
  await compose(browser, overview, join(folder, 'screenshot.png'));
} finally {
  await browser.close();
}
