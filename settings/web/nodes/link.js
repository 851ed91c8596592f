import { tapRow, updateTapRow } from '../row.js';

export function create(_, context) {
  return tapRow({ class: 'row link', role: 'link' }, () => context.touch({ kind: 'tap' }));
}

export { updateTapRow as update };
