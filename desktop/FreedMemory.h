#pragma once

namespace desktop {

/// Lets this program keep up to 3 MiB that were freed, instead of giving them back to the system at
/// once (mallopt(3)). A file of 20,000 settings takes about as much to be read, changed and
/// written, and getting that anew for each change would take longer than the change itself.
void keepFreedMemory();

}  // namespace desktop
