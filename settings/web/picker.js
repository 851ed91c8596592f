import Coloris from './ui/coloris.js';
import { element, setText } from './element.js';
import { lay, lift } from './layers.js';

const title = element('h2', { id: 'picker-title' });
const done = element('button', { type: 'button', class: 'done' }, 'Done');
const palette = element('div', { class: 'palette' });
const swatch = element('span', { class: 'swatch' });
const code = element('input', {
  class: 'code', type: 'text', 'aria-label': 'Hex color', maxlength: 9, autocomplete: 'off',
  spellcheck: 'false',
});
const sheet = element('dialog',
  { class: 'sheet picker', open: true, tabindex: -1, 'aria-modal': 'true',
    'aria-labelledby': title.id },
  element('header', {}, title, done), palette, element('div', { class: 'chosen' }, swatch, code));
const layer = { element: sheet, focus: () => done, escape: close, outside: close };

let request = null;
let picked = '';

// The palette's own hex field cuts opacity down instead of rounding it, so that a color would fade
// a little with every visit; it is asked for exact numbers instead.
Coloris.init();
Coloris({
  wrap: false, format: 'rgb', onChange: (color) => take(toHex(color)),
  a11y: { hueSlider: 'Hue', alphaSlider: 'Opacity' },
});

/**
 * Opens the color sheet over the page.
 * @param {{title: string, color: string, alpha: boolean, changed: function(string): void,
 *     closed: function(string): void}} wish colors are "#rrggbbaa"; `changed` hears every movement,
 *     `closed` what was left when the sheet went away
 */
export async function openPicker(wish) {
  request = wish;
  setText(title, wish.title);
  lay(layer);
  Coloris({ parent: palette, alpha: wish.alpha });
  point(wish.color);
  await Promise.all(sheet.getAnimations().map(({ finished }) => finished.catch(() => {})));
  // Where the palette lies is measured, so it has to be measured again at its resting place.
  Coloris.updatePosition();
}

/** Puts the palette's marker and knobs on a color. */
function point(color) {
  Coloris({ inline: true, defaultColor: color });
  take(color);
}

function take(color) {
  if (!request) return;
  picked = color;
  code.value = shortHex(color).toUpperCase();
  swatch.style.setProperty('--color', color);
  describeMarker();
  request.changed(color);
}

/** A color without its opacity where that says nothing. */
export function shortHex(color) {
  return color.replace(/^(#.{6})ff$/i, '$1');
}

function toHex(color) {
  const [red, green, blue, alpha = 1] = color.match(/[\d.]+/g).map(Number);
  const parts = [red, green, blue, Math.round(alpha * 255)];
  return `#${parts.map((part) => part.toString(16).padStart(2, '0')).join('')}`;
}

/** The palette's marker moves by arrow keys but does not say what it is. */
function describeMarker() {
  const marker = palette.querySelector('.clr-marker');
  marker.role = 'slider';
  marker.ariaRoleDescription = 'two-dimensional slider';
  marker.ariaValueText = marker.ariaLabel;
  marker.ariaValueNow = /[\d.]+/.exec(marker.ariaLabel)[0];
}

function typed() {
  const digits = /^#?([\da-f]{6})([\da-f]{2})?$/i.exec(code.value.trim());
  if (!digits) return take(picked);
  const alpha = (request.alpha && digits[2]) || 'ff';
  point(`#${digits[1]}${alpha}`.toLowerCase());
}

function close() {
  if (!request) return;
  // A color still being typed is taken when its field is left.
  document.activeElement.blur();
  const { closed } = request;
  request = null;
  lift(layer);
  closed(picked);
}

done.addEventListener('click', close);
code.addEventListener('change', typed);
