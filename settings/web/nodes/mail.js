import { safeAction, showActions } from '../actions.js';
import { attachment } from '../attachment.js';
import { element, setText } from '../element.js';
import { Field } from '../field.js';
import { lay, lift } from '../layers.js';

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
  const sheet = element('dialog', {
    class: 'sheet mail', open: true, tabindex: -1, 'aria-modal': 'true',
    'aria-labelledby': title.id,
  }, element('header', {}, cancel, title, send),
    ...Object.values(fields).map((field) => field.element), attachments);
  const view = { element: sheet, title, send, fields, attachments, node, choices: null };
  const tap = (id) => {
    for (const field of Object.values(fields)) field.flush();
    context.touch({ kind: 'tap' }, id);
  };
  cancel.addEventListener('click', () => tap(view.node.cancel));
  send.addEventListener('click', () => tap(view.node.send));
  for (const [name, field] of Object.entries(fields)) {
    field.changed = (text) => context.touch({ kind: 'type', text }, view.node[name].id);
  }
  return Object.assign(view, {
    tap, focus: () => fields.body.input, escape: () => tap(view.node.cancel),
  });
}

export function update(view, node) {
  view.node = node;
  setText(view.title, node.subject.text || 'New Message');
  view.send.disabled = !node.canSend;
  for (const [name, field] of Object.entries(view.fields)) field.show(node[name].text);
  showAttachments(view.attachments, node.attachments);
  offer(view, node.choices);
}

/** A link that is drawn anew would lose the keyboard. */
function showAttachments(list, attachments) {
  const told = JSON.stringify(attachments);
  if (list.told === told) return;
  list.told = told;
  list.replaceChildren(...attachments.map(attachment));
}

/** Lays the sheet over the mail on which the user says what is to become of it. */
function offer(view, choices) {
  if (!choices && view.choices) lift(view.choices);
  const isNew = choices && !view.choices;
  if (isNew) view.choices = sheetOfChoices();
  if (choices) showActions(view.choices.element, choices, view.tap);
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
