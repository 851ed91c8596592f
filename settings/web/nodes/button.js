import { tapRow, updateTapRow } from '../row.js';

export function create(_, context) {
  return tapRow({ class: 'row button' }, () => context.touch({ kind: 'tap' }));
}

export { updateTapRow as update };
