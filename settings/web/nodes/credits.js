import { element } from '../element.js';

export function create() {
  return { element: element('ul', { class: 'row credits' }) };
}

export function update(view, node) {
  view.element.style.setProperty('--height', `${node.height}px`);
  view.element.style.setProperty('--tint', node.tint);
  view.element.replaceChildren(...node.people.map(column));
}

function column({ name, detail, url, image }) {
  const lines = [
    ...(image ? [element('img', { class: 'avatar', src: image, alt: '' })] : []),
    element('span', { class: 'name' }, name),
    element('span', { class: 'detail' }, detail),
  ];
  const isWeb = /^https?:/.test(url ?? '');
  const attributes = isWeb ? { href: url, target: '_blank', rel: 'noopener noreferrer' } : {};
  const person = element(isWeb ? 'a' : 'div', { class: 'person', ...attributes }, ...lines);
  return element('li', {}, person);
}
