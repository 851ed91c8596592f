import { element, setAttribute } from '../element.js';
import { whenDrawn } from '../kit.js';
import { describe } from '../row.js';

export function create(node, context) {
  const control = element('ion-segment', { 'aria-label': node.label });
  control.selectOnFocus = true;
  control.addEventListener('ionChange', ({ detail }) =>
    context.touch({ kind: 'select', index: Number(detail.value) }));
  const row = element('div', { class: 'row segment' }, control);
  return {
    element: row, control, titles: [],
    describe: (footer) => whenDrawn(control, () => describe(control, footer)),
  };
}

export function update(view, node) {
  if (view.titles.join('\n') !== node.titles.join('\n')) fill(view, node.titles);
  setAttribute(view.element, 'data-key', node.key);
  whenDrawn(view.control, () => (view.control.ariaLabel = node.label));
  view.control.value = node.selected < 0 ? undefined : String(node.selected);
  view.control.disabled = node.enabled === false;
}

function fill(view, titles) {
  view.titles = titles;
  view.control.replaceChildren(...titles.map((title, index) =>
    element('ion-segment-button', { value: index }, element('span', {}, title))));
}
