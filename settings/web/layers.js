import { element, focusedElement } from './element.js';

const pages = document.getElementById('pages');
const place = document.getElementById('layers');
const reachable = 'a[href], button:enabled, input:enabled, textarea:enabled, [tabindex="0"]';
const layers = [];

/**
 * Something that lies over the pages and takes all touches and the keyboard from what is below.
 * @typedef {{element: HTMLElement, focus: function(): HTMLElement, escape?: function(): void,
 *     outside?: function(): void}} Layer `focus` tells what gets the keyboard at first, `escape`
 *     hears the Escape key, `outside` a tap beside the element.
 */

/** Brings a layer up, also one that is still going away. */
export function lay(layer) {
  layer.shade ??= prepare(layer);
  layer.left = focusedElement();
  layers.push(layer);
  for (const part of [layer.shade, layer.element]) {
    part.classList.remove('leaving');
    place.append(part);
  }
  settle();
  layer.focus().focus({ preventScroll: true });
}

/** Takes a layer away, with all that lies on it, and gives the keyboard back. */
export async function lift(layer) {
  const at = layers.indexOf(layer);
  if (at < 0) return;
  const gone = layers.splice(at);
  for (const { element: below } of gone) below.inert = true;
  settle();
  giveBack(gone[0].left);
  await Promise.all(gone.map(leave));
}

/** Returns the keyboard to an element, or to what is on top now if it cannot take it any more. */
export function giveBack(left) {
  left.focus({ preventScroll: true });
  if (left !== document.body && focusedElement() === left) return;
  const top = layers.at(-1)?.focus() ?? pages.querySelector('.page:not([inert]) .title');
  top?.focus({ preventScroll: true });
}

function prepare(layer) {
  const shade = element('div', { class: 'shade' });
  // A tap beside the layer leaves the keyboard where it is.
  shade.addEventListener('mousedown', (event) => event.preventDefault());
  shade.addEventListener('click', () => layer.outside?.());
  layer.element.addEventListener('keydown', (event) => hearKey(event, layer));
  return shade;
}

function settle() {
  pages.inert = layers.length > 0;
  for (const layer of layers) layer.element.inert = layer !== layers.at(-1);
}

function hearKey(event, layer) {
  // What listens to keys on the whole document would act on what is below.
  event.stopPropagation();
  if (event.key === 'Escape') layer.escape?.();
  if (event.key === 'Tab') turn(event, layer);
}

/** Keeps Tab within the layer: after the last element comes the first. */
function turn(event, layer) {
  const all = [...layer.element.querySelectorAll(reachable)]
    .filter((part) => part.checkVisibility());
  const [from, to] = event.shiftKey ? [all[0], all.at(-1)] : [all.at(-1), all[0]];
  if (![from, layer.element].includes(focusedElement())) return;
  event.preventDefault();
  to?.focus();
}

async function leave(layer) {
  const parts = [layer.shade, layer.element];
  for (const part of parts) part.classList.add('leaving');
  await Promise.allSettled(
    parts.flatMap((part) => part.getAnimations()).map(({ finished }) => finished));
  if (!layers.includes(layer)) for (const part of parts) part.remove();
}
