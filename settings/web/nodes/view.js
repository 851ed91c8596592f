import { element } from '../element.js';
import { fade } from '../fade.js';

export function create() {
  return { element: element('div', { class: 'view' }) };
}

export function update(view, node, context) {
  fade(view.element, node);
  context.place(view.element, node.children);
}
