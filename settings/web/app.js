import './kit.js';
import { Connection } from './connection.js';
import { focusedElement } from './element.js';
import { Tree } from './tree.js';

const notices = {
  open: '',
  lost: 'Connection lost. Reconnecting…',
  forbidden: 'Open the address that Quillmere Settings printed.',
};

const stage = document.getElementById('stage');
const notice = document.getElementById('notice');
let left = null;

/** Shows whether the page is in touch; what cannot be answered cannot be touched. */
function show(state) {
  if (!stage.inert) left = focusedElement();
  stage.inert = state !== 'open';
  notice.textContent = notices[state];
  if (state !== 'open') return;
  const target = left.isConnected ? left : stage.querySelector('.page:not([inert]) .title');
  target.focus({ preventScroll: true });
}

const connection = new Connection({
  received: (message) => tree.receive(message),
  changed: show,
});
const tree = new Tree(stage, (touch) => connection.send(touch));
connection.open();
