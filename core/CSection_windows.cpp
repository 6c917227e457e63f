#include "core/CSection.h"

#include <windows.h>

namespace Orvane {

static_assert(sizeof(SRWLOCK) == sizeof(CSection));

void CSection::lock()
{
    AcquireSRWLockExclusive(reinterpret_cast<SRWLOCK*>(&mState));
}

void CSection::unlock()
{
    ReleaseSRWLockExclusive(reinterpret_cast<SRWLOCK*>(&mState));
}

} // namespace Orvane
