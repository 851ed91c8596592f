import { element, setAttribute, setText } from '../element.js';
import { whenDrawn } from '../kit.js';
import { describe } from '../row.js';

/** How many steps a key moves the knob. */
const strides = {
  ArrowLeft: -1, ArrowDown: -1, ArrowRight: 1, ArrowUp: 1, PageDown: -10, PageUp: 10,
  Home: -Infinity, End: Infinity,
};

export function create(node, context) {
  const range = element('ion-range', { 'aria-label': node.label });
  const field = element('input', {
    class: 'value', type: 'text', maxlength: 32, autocomplete: 'off', enterkeyhint: 'done',
  });
  const row = element('div', { class: 'row slider' }, range, field);
  const note = element('span', { hidden: true });
  const view = { element: row, range, field, note, node, moving: false, told: null };
  view.describe = (footer) => describeKnob(view, footer);
  listenToRange(view, context);
  listenToField(view, context);
  return view;
}

export function update(view, node) {
  const { range, field } = view;
  view.node = node;
  setAttribute(view.element, 'data-key', node.key);
  Object.assign(range, { min: node.min, max: node.max, step: node.step ?? hundredth(node) / 10 });
  range.disabled = field.disabled = node.enabled === false;
  field.hidden = !node.showValue;
  field.ariaLabel = `${node.label} value`;
  // Phones offer no minus sign on their number pads.
  field.inputMode = node.min < 0 ? 'text' : 'decimal';
  nameKnob(view);
  if (!view.moving) settle(view);
}

/** Puts the knob where the node says. */
function settle(view) {
  const { range, node } = view;
  view.told = node.value;
  range.value = node.value ?? node.min;
  show(view, node.value);
}

const hundredth = ({ min, max }) => (max - min) / 100;
const written = (value) => (value == null ? '' : String(Number(value.toFixed(2))));

/** What is being typed is not written over. */
function show({ field }, value) {
  if (document.activeElement !== field) field.value = written(value);
}

/** The kit hides the element that is the slider; what it is called has to be told to it there. */
const knobOf = ({ range }) => range.shadowRoot.querySelector('[role=slider]');

function nameKnob(view) {
  whenDrawn(view.range, () => (knobOf(view).ariaLabel = view.node.label));
}

/** An id says nothing outside of its tree, so the footer stands beside the knob once more. */
function describeKnob(view, footer) {
  const { range, note } = view;
  whenDrawn(range, () => {
    note.id = footer?.id ?? '';
    setText(note, footer?.textContent ?? '');
    range.shadowRoot.append(note);
    describe(knobOf(view), footer && note);
  });
}

function tell(view, context) {
  const { value } = view.range;
  if (value === view.told) return;
  view.told = value;
  context.touch({ kind: 'slide', value });
}

function listenToRange(view, context) {
  const { range } = view;
  range.addEventListener('pointerdown', ({ button }) => button === 0 && follow(view, context));
  range.addEventListener('ionInput', () => show(view, range.value));
  range.addEventListener('ionChange', () => tell(view, context));
  range.addEventListener('keydown', (event) => step(event, view, context), { capture: true });
}

/** Follows the finger from the first pixel; the kit would not for ten, which may be eight steps. */
function follow(view, context) {
  if (view.range.disabled) return;
  view.moving = true;
  const over = new AbortController();
  const on = (type, act) => addEventListener(type, act, { signal: over.signal });
  const end = () => {
    view.moving = false;
    over.abort();
  };
  on('pointermove', ({ clientX }) => moveTo(view, clientX));
  on('pointerup', () => (end(), tell(view, context)));
  on('pointercancel', () => (end(), settle(view)));
}

function moveTo(view, x) {
  const { range } = view;
  const { left, width } = range.shadowRoot.querySelector('.range-slider').getBoundingClientRect();
  const { min, max, step: size } = range;
  const steps = Math.round(((x - left) / width) * ((max - min) / size));
  range.value = Number(Math.min(max, Math.max(min, min + steps * size)).toFixed(6));
  show(view, range.value);
}

/** The kit knows only arrow keys, and none of them for a slider without steps. */
function step(event, view, context) {
  const stride = strides[event.key];
  if (stride === undefined) return;
  event.preventDefault();
  event.stopPropagation();
  const { min, max, step: size } = view.node;
  const moved = view.range.value + stride * (size ?? hundredth(view.node));
  view.range.value = Number(Math.min(max, Math.max(min, moved)).toFixed(6));
  tell(view, context);
}

function listenToField(view, context) {
  const { field } = view;
  let before = '';
  const commit = () => {
    if (field.value === before) return;
    before = field.value;
    context.touch({ kind: 'type', text: field.value });
  };
  field.addEventListener('focus', () => {
    before = field.value;
    field.select();
  });
  field.addEventListener('blur', commit);
  field.addEventListener('keydown', ({ key }) => {
    if (key === 'Escape') field.value = before;
    if (key === 'Enter') field.blur();
  });
}
