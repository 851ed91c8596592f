import { element } from '../element.js';
import { fade } from '../fade.js';

export function create() {
  return { element: element('div', { class: 'blur' }) };
}

export function update(view, node) {
  fade(view.element, node);
}
