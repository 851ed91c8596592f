import { element, setAttribute, setText } from '../element.js';

export function create(_, { id }) {
  const heading = element('h2', { class: 'heading', id: `${id}-heading` });
  const rows = element('div', { class: 'rows' });
  const footer = element('p', { class: 'footer', id: `${id}-footer` });
  return { element: element('section', { class: 'group' }, heading, rows, footer), heading, rows,
           footer };
}

export function update(view, node, context) {
  setText(view.heading, node.title);
  setText(view.footer, node.footer ?? '');
  setAttribute(view.element, 'role', node.title && 'group' || null);
  setAttribute(view.element, 'aria-labelledby', node.title && view.heading.id || null);
  view.heading.hidden = !node.title;
  view.footer.hidden = !node.footer;
  context.place(view.rows, node.children);
  for (const id of node.children) context.view(id).describe?.(node.footer ? view.footer : null);
}
