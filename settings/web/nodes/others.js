import * as alertNode from './alert.js';
import * as back from './back.js';
import * as banner from './banner.js';
import * as blur from './blur.js';
import * as cell from './cell.js';
import * as color from './color.js';
import * as mail from './mail.js';
import * as restart from './restart.js';
import * as segment from './segment.js';
import * as slider from './slider.js';
import * as switchRow from './switch.js';
import * as table from './table.js';
import * as text from './text.js';
import * as welcome from './welcome.js';

/** The kinds of nodes (`kinds.js`) that come later, with all that they need. */
export const others = {
  alert: alertNode,
  back,
  banner,
  blur,
  cell,
  color,
  mail,
  restart,
  segment,
  slider,
  switch: switchRow,
  table,
  text,
  welcome,
};
