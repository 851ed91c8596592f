import { element, setText } from '../element.js';
import { fade } from '../fade.js';

export function create() {
  return { element: element('span', { class: 'line' }) };
}

export function update(view, node) {
  setText(view.element, node.text);
  Object.assign(view.element.style, {
    color: node.color, fontSize: `${node.size}px`, fontWeight: node.bold ? 600 : 400,
    textAlign: node.align,
  });
  fade(view.element, node);
}
