#pragma once

#if __has_include(<sys/single_threaded.h>)
#include <sys/single_threaded.h>
#endif

namespace OvZel {

/// Whether the process has had no second thread yet, so that plain operations do where atomic ones
/// would be needed. False where the system can't tell.
inline bool isSingleThreaded()
{
#if __has_include(<sys/single_threaded.h>)
    return __libc_single_threaded;
#else
    return false;
#endif
}

} // namespace OvZel
