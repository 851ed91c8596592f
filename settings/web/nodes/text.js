import { element, setText } from '../element.js';

export function create() {
  return { element: element('p', { class: 'row text' }) };
}

export function update(view, node) {
  setText(view.element, node.label);
  view.element.classList.toggle('disabled', node.enabled === false);
}
