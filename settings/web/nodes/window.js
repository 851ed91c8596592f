import { element } from '../element.js';
import { lay, lift } from '../layers.js';
import { slide } from '../transition.js';

// There from the beginning, so that assistive technology tells what comes into it.
const banners = document.getElementById('banners');

export function create() {
  return { element: element('main', { class: 'window' }), ids: [], animations: [], overlay: null };
}

export function update(view, node, context) {
  const overlay = node.overlay ? context.view(node.overlay) : null;
  // Nobody sees a page move below something that hides it.
  show(view, node, context, Boolean(overlay?.hides || view.overlay?.hides));
  cover(view, overlay);
  context.place(banners, node.banner ? [node.banner] : []);
}

/** While there is no page, what was there last stays below what hides it. */
function show(view, node, context, isHidden) {
  if (node.children.length === 0) return;
  const isPush = node.children.length > view.ids.length;
  const isSwap = isHidden || node.children.length === view.ids.length;
  const leaving = view.top;
  const coming = (view.top = context.view(node.children.at(-1)));
  view.ids = node.children;
  if (leaving === coming) return settle(view, context);
  for (const animation of view.animations) animation.cancel();
  if (!leaving || isSwap) return settle(view, context);
  move(view, context, leaving, coming, isPush);
}

function cover(view, overlay) {
  if (view.overlay === overlay) return;
  if (view.overlay) lift(view.overlay);
  if (overlay) lay(overlay);
  view.overlay = overlay;
}

function move(view, context, leaving, coming, isPush) {
  if (isPush) leaving.leave();
  reveal(view, leaving, coming, isPush);
  view.animations = isPush ? slide(coming.element, leaving.element, true)
                           : slide(leaving.element, coming.element, false);
  const mine = view.animations;
  const end = () => view.animations === mine && settle(view, context);
  if (mine.length === 0) end();
  else Promise.all(mine.map(({ finished }) => finished)).then(end, () => {});
  if (isPush) coming.enter();
  else coming.comeBack();
}

/** Both pages are in place while one slides over the other, and only the coming one is live. */
function reveal(view, leaving, coming, isPush) {
  if (isPush) view.element.append(coming.element);
  else view.element.insertBefore(coming.element, leaving.element);
  for (const page of [leaving, coming]) page.element.classList.remove('covered');
  leaving.element.inert = true;
  coming.element.inert = false;
}

/** Leaves only the pages of the stack, and of those only the top one to be seen and touched. */
function settle(view, context) {
  for (const animation of view.animations) animation.cancel();
  view.animations = [];
  context.place(view.element, view.ids);
  for (const page of view.element.children) {
    page.inert = page !== view.top.element;
    page.classList.toggle('covered', page.inert);
  }
}
