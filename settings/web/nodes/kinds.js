import * as barSwitch from './barSwitch.js';
import * as button from './button.js';
import * as credits from './credits.js';
import * as group from './group.js';
import * as image from './image.js';
import * as label from './label.js';
import * as link from './link.js';
import * as page from './page.js';
import * as view from './view.js';
import * as windowNode from './window.js';

/**
 * How each kind of node is drawn: `create` makes its view once, `update` follows its node. At first
 * these are the kinds that the root page is made of.
 */
export const kinds = {
  barSwitch,
  button,
  credits,
  group,
  image,
  label,
  link,
  page,
  view,
  window: windowNode,
};

/** Brings all other kinds, for which the root page need not wait. */
export async function bringOthers() {
  Object.assign(kinds, (await import('./others.js')).others);
}
