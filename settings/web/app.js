import './kit.js';
import { Connection } from './connection.js';
import { focusedElement } from './element.js';
import { giveBack } from './layers.js';
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
  const wasOpen = !stage.inert;
  if (wasOpen) left = focusedElement();
  stage.inert = state !== 'open';
  notice.textContent = notices[state];
  if (!wasOpen && state === 'open') giveBack(left);
}

const connection = new Connection({
  received: (message) => tree.receive(message),
  changed: show,
});
const tree = new Tree(document.getElementById('pages'), (touch) => connection.send(touch));
connection.open();
