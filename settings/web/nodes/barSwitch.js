import { element } from '../element.js';

/** How far the finger drags the knob before it goes to the other side, in pixels. */
const pull = 10;

export function create(_, context) {
  const track = element('span', { class: 'track' }, element('span', { class: 'knob' }));
  const control = element('button', { type: 'button', class: 'bar-switch', role: 'switch' }, track);
  const view = { element: control, on: false };
  control.addEventListener('pointerdown', (event) => {
    if (event.button === 0) follow(view, context, event);
  });
  control.addEventListener('click', (event) => {
    // What a finger did has been told when it was lifted; this is a key, or a screen reader.
    if (event.detail === 0) tell(view, context, !view.on, true);
  });
  return view;
}

export function update(view, node) {
  const { style } = view.element;
  for (const name of ['width', 'height', 'radius', 'borderWidth']) {
    style.setProperty(`--${name}`, `${node[name]}px`);
  }
  for (const name of ['tint', 'borderColor']) style.setProperty(`--${name}`, node[name]);
  view.element.ariaLabel = node.label;
  view.element.disabled = node.enabled === false;
  show(view, node.on);
}

function show(view, on) {
  view.on = on;
  view.element.ariaChecked = String(on);
}

function tell(view, context, on, inside) {
  show(view, on);
  context.touch({ kind: 'toggle', on, inside });
}

/** Follows the finger until it is lifted: a tap turns the switch, a drag leaves it as it shows. */
function follow(view, context, { clientX, pointerId }) {
  const { element: control } = view;
  const was = view.on;
  const over = new AbortController();
  const on = (type, act) => control.addEventListener(type, act, { signal: over.signal });
  let anchor = clientX;
  let dragged = false;
  control.setPointerCapture(pointerId);
  on('pointermove', (event) => {
    if (Math.abs(event.clientX - anchor) < pull) return;
    dragged = true;
    show(view, event.clientX > anchor);
    anchor = event.clientX;
  });
  on('pointerup', (event) => {
    over.abort();
    const inside = isInside(control, event);
    tell(view, context, inside && !dragged ? !was : view.on, inside);
  });
  on('pointercancel', () => {
    over.abort();
    show(view, was);
  });
}

function isInside(control, { clientX, clientY }) {
  const { left, right, top, bottom } = control.getBoundingClientRect();
  return clientX >= left && clientX < right && clientY >= top && clientY < bottom;
}
