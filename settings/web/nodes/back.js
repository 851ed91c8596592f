import { tapRow, updateTapRow } from '../row.js';

export function create(_, context) {
  return tapRow({ class: 'back' }, () => context.touch({ kind: 'tap' }));
}

export { updateTapRow as update };
