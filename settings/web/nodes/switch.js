import { element, setAttribute, setText } from '../element.js';
import { whenDrawn } from '../kit.js';
import { describe } from '../row.js';

export function create(node, context) {
  const label = element('span', { class: 'label' });
  const toggle = element('ion-toggle',
    { class: 'row switch', justify: 'space-between', 'aria-label': node.label }, label);
  toggle.addEventListener('ionChange', ({ detail }) =>
    context.touch({ kind: 'toggle', on: detail.checked }));
  return {
    element: toggle, label,
    describe: (footer) => whenDrawn(toggle, () => describe(toggle, footer)),
  };
}

export function update(view, node) {
  setText(view.label, node.label);
  whenDrawn(view.element, () => (view.element.ariaLabel = node.label));
  setAttribute(view.element, 'data-key', node.key);
  view.element.checked = node.on;
  view.element.disabled = node.enabled === false;
}
