import * as alertNode from './alert.js';
import * as back from './back.js';
import * as banner from './banner.js';
import * as barSwitch from './barSwitch.js';
import * as blur from './blur.js';
import * as button from './button.js';
import * as cell from './cell.js';
import * as color from './color.js';
import * as credits from './credits.js';
import * as group from './group.js';
import * as image from './image.js';
import * as label from './label.js';
import * as link from './link.js';
import * as mail from './mail.js';
import * as page from './page.js';
import * as restart from './restart.js';
import * as segment from './segment.js';
import * as slider from './slider.js';
import * as switchRow from './switch.js';
import * as table from './table.js';
import * as text from './text.js';
import * as view from './view.js';
import * as welcome from './welcome.js';
import * as windowNode from './window.js';

/** How each kind of node is drawn: `create` makes its view once, `update` follows its node. */
export const kinds = {
  alert: alertNode,
  back,
  banner,
  barSwitch,
  blur,
  button,
  cell,
  color,
  credits,
  group,
  image,
  label,
  link,
  mail,
  page,
  restart,
  segment,
  slider,
  switch: switchRow,
  table,
  text,
  view,
  welcome,
  window: windowNode,
};
