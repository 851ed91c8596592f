import * as back from './back.js';
import * as button from './button.js';
import * as color from './color.js';
import * as credits from './credits.js';
import * as group from './group.js';
import * as link from './link.js';
import * as page from './page.js';
import * as segment from './segment.js';
import * as slider from './slider.js';
import * as switchRow from './switch.js';
import * as text from './text.js';
import * as windowNode from './window.js';

/** How each kind of node is drawn: `create` makes its view once, `update` follows its node. */
export const kinds = {
  back,
  button,
  color,
  credits,
  group,
  link,
  page,
  segment,
  slider,
  switch: switchRow,
  text,
  window: windowNode,
};
