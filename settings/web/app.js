import { Connection } from './connection.js';
import { focusedElement } from './element.js';
import { giveBack } from './layers.js';
import { bringOthers, kinds } from './nodes/kinds.js';
import { Tree } from './tree.js';

const notices = {
  open: '',
  lost: 'Connection lost. Reconnecting…',
  forbidden: 'Open the address that Quillmere Settings printed.',
};

const stage = document.getElementById('stage');
const notice = document.getElementById('notice');
let left = document.body;

/** Shows whether the page is in touch; what cannot be answered cannot be touched. */
function show(state) {
  const wasOpen = !stage.inert;
  if (wasOpen) left = focusedElement();
  stage.inert = state !== 'open';
  notice.textContent = notices[state];
  if (!wasOpen && state === 'open') giveBack(left);
}

/** Draws the screen before there is a connection, unless some of it cannot be drawn yet. */
async function showAtOnce() {
  const { nodes } = await (await fetch('screen.json')).json();
  const isDrawable = Object.values(nodes).every(({ kind }) => Object.hasOwn(kinds, kind));
  if (isDrawable) tree.receive({ kind: 'screen', nodes });
}

/** Lets the browser draw before it is given more to do. */
const drawn = () => new Promise((resolve) =>
  window.requestIdleCallback ? requestIdleCallback(resolve, { timeout: 500 }) : setTimeout(resolve));

/** Begins anew as soon as the program answers, whatever it says then. */
async function beginAnew() {
  show('lost');
  const answers = () => fetch('.', { cache: 'no-store' }).then(() => true, () => false);
  while (!(await answers())) await new Promise((resolve) => setTimeout(resolve, 1000));
  location.reload();
}

const connection = new Connection({
  received: (message) => tree.receive(message),
  changed: show,
});
const tree = new Tree(document.getElementById('pages'), (touch) => connection.send(touch));
// What is wrong when the screen cannot be had, the connection will tell.
await showAtOnce().catch(() => {});
await drawn();
await bringOthers().then(() => connection.open(), beginAnew);
