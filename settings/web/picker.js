import Coloris from '/ui/coloris.js';
import { element, setText } from './element.js';

const stage = document.getElementById('stage');
const title = element('h2', { id: 'picker-title' });
const done = element('button', { type: 'button', class: 'done' }, 'Done');
const body = element('div', { class: 'palette' });
const sheet = element('dialog', { class: 'sheet', 'aria-modal': 'true', 'aria-labelledby': title.id },
  element('header', {}, title, done), body);
const shade = element('div', { class: 'shade' });

let request = null;
let picked = '';

Coloris.init();
Coloris({
  parent: body, wrap: false, inline: true, format: 'hex', alpha: true,
  onChange: (color) => changed(color),
  a11y: { input: 'Hex color', hueSlider: 'Hue', alphaSlider: 'Opacity' },
});

/**
 * Opens the color sheet over the page.
 * @param {{title: string, color: string, alpha: boolean, changed: function(string): void,
 *     closed: function(string): void}} wish colors are "#rrggbbaa"; `changed` hears every movement,
 *     `closed` what was left when the sheet went away
 */
export async function openPicker(wish) {
  request = wish;
  picked = wish.color;
  setText(title, wish.title);
  stage.append(shade, sheet);
  stage.querySelector('.window').inert = true;
  sheet.show();
  Coloris({ alpha: wish.alpha, inline: true, defaultColor: wish.color });
  describeMarker();
  done.focus();
  await Promise.all(sheet.getAnimations().map(({ finished }) => finished.catch(() => {})));
  // Where the palette lies is measured, so it has to be measured again at its resting place.
  Coloris.updatePosition();
}

function changed(color) {
  if (!request) return;
  picked = color.toLowerCase().padEnd(9, 'f');
  describeMarker();
  request.changed(picked);
}

/** The palette's marker moves by arrow keys but does not say what it is. */
function describeMarker() {
  const marker = body.querySelector('.clr-marker');
  marker.role = 'slider';
  marker.ariaRoleDescription = 'two-dimensional slider';
  marker.ariaValueText = marker.ariaLabel;
  marker.ariaValueNow = /[\d.]+/.exec(marker.ariaLabel)[0];
}

function close() {
  if (!request) return;
  // A color still being typed is taken when its field is left.
  document.activeElement.blur();
  const { closed } = request;
  request = null;
  sheet.close();
  shade.remove();
  sheet.remove();
  stage.querySelector('.window').inert = false;
  closed(picked);
}

done.addEventListener('click', close);
shade.addEventListener('click', close);
sheet.addEventListener('keydown', (event) => {
  if (event.key === 'Escape') close();
  // The palette would keep Tab to itself and never let it reach the Done button.
  event.stopPropagation();
});
