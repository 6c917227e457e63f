#pragma once

namespace OvZel {

/// Tells the user that the library is older than its client, and ends the process with exit code 0:
/// returning into a client that expects an unknown operation would be worse.
[[noreturn]] void obsoleteSlot();

} // namespace OvZel
