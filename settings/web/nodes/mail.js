import { safeAction, showActions } from '../actions.js';
import { attachment } from '../attachment.js';
import { element, setText } from '../element.js';
import { Field } from '../field.js';
import { lay, lift } from '../layers.js';

const notices = {
  tooLong: 'The text is too long to send.',
  refused: 'The text was not accepted.',
};

export function create(node, context) {
  const title = element('h2', { id: `${context.id}-title` });
  const cancel = element('button', { type: 'button', class: 'item' }, 'Cancel');
  const send = element('button', { type: 'button', class: 'item strong' }, 'Send');
  const line = (mode) =>
    element('input', { type: 'text', inputmode: mode, autocomplete: 'off' });
  const fields = {
    to: new Field(line('email'), 'To:'),
    subject: new Field(line('text'), 'Subject:'),
    body: new Field(element('textarea', { 'aria-label': 'Message' })),
  };
  const attachments = element('ul', { class: 'attachments', 'aria-label': 'Attachments' });
  const notice = element('p', { class: 'caution', role: 'status' });
  const sheet = element('dialog', {
    class: 'sheet mail', open: true, tabindex: -1, 'aria-modal': 'true',
    'aria-labelledby': title.id,
  }, element('header', {}, cancel, title, send), notice,
    ...Object.values(fields).map((field) => field.element), attachments);
  const view = {
    element: sheet, title, send, notice, fields, attachments, node, choices: null, wanted: null,
  };
  const escape = () => tap(view, context, view.node.cancel);
  cancel.addEventListener('click', escape);
  send.addEventListener('click', () => want(view, context, view.node.send));
  for (const [name, field] of Object.entries(fields)) {
    field.changed = (text) => context.touch({ kind: 'type', text }, view.node[name].id);
    field.typed = (isTaken) => setText(notice, isTaken ? '' : notices.tooLong);
  }
  return Object.assign(view, {
    escape, focus: () => fields.body.input, refused: (reason) => refused(view, reason),
  });
}

export function update(view, node, context) {
  view.node = node;
  setText(view.title, node.subject.text || 'New Message');
  view.send.disabled = !node.canSend;
  for (const [name, field] of Object.entries(view.fields)) field.show(node[name].text);
  showAttachments(view.attachments, node.attachments);
  offer(view, node.choices, context);
  settle(view, context);
}

/** Taps a button, after what was typed. */
function tap(view, context, id) {
  view.wanted = null;
  for (const field of Object.values(view.fields)) field.flush();
  context.touch({ kind: 'tap' }, id);
}

/** Taps a button that takes the text away, once the program has all of it. */
function want(view, context, id) {
  view.wanted = id;
  settle(view, context);
}

function settle(view, context) {
  if (!view.wanted) return;
  const fields = Object.values(view.fields);
  for (const field of fields) field.flush();
  if (!fields.some(({ isUnanswered }) => isUnanswered)) tap(view, context, view.wanted);
}

function refused(view, reason) {
  const lost = Object.values(view.fields).filter(({ isUnanswered }) => isUnanswered);
  view.wanted = null;
  for (const field of lost) field.refuse();
  if (reason && lost.length) setText(view.notice, notices.refused);
}

/** A link that is drawn anew would lose the keyboard. */
function showAttachments(list, attachments) {
  const told = JSON.stringify(attachments);
  if (list.told === told) return;
  list.told = told;
  list.replaceChildren(...attachments.map(attachment));
}

/** Lays the sheet over the mail on which the user says what is to become of it. */
function offer(view, choices, context) {
  if (!choices && view.choices) lift(view.choices);
  const isNew = choices && !view.choices;
  if (isNew) view.choices = sheetOfChoices();
  // What is saved needs all of the text; what is dropped does not.
  const act = (id, style) => (style === 'default' ? want : tap)(view, context, id);
  if (choices) showActions(view.choices.element, choices, act);
  if (isNew) lay(view.choices);
  if (!choices) view.choices = null;
}

function sheetOfChoices() {
  const sheet = element('dialog', {
    class: 'action-sheet', open: true, tabindex: -1, 'aria-modal': 'true', 'aria-label': 'Draft',
  });
  const cancel = () => sheet.querySelector('.cancel')?.click();
  return { element: sheet, focus: () => safeAction(sheet), escape: cancel, outside: cancel };
}
