import { element, setAttribute } from '../element.js';
import { fade } from '../fade.js';

/** How each mode lays the picture into its box, which for `center` has the picture's own size. */
const fits = { fit: 'contain', fill: 'fill', center: 'fill' };

export function create() {
  const picture = element('img', { alt: '', draggable: 'false' });
  return { element: element('div', { class: 'image' }, picture), picture };
}

export function update(view, node) {
  const { picture } = view;
  setAttribute(picture, 'src', node.source);
  picture.hidden = !node.source;
  Object.assign(picture.style, {
    objectFit: fits[node.mode],
    width: node.mode === 'center' ? `${node.imageWidth}px` : '100%',
    height: node.mode === 'center' ? `${node.imageHeight}px` : '100%',
  });
  for (const side of ['width', 'height', 'imageHeight']) {
    view.element.style.setProperty(`--${side}`, `${node[side]}px`);
  }
  fade(view.element, node);
}
