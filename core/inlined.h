#pragma once

/// In front of a function that costs more by a call than by its work, wherever it is used; the
/// compiler alone goes by its size.
#ifdef __GNUC__
#define ZEL_INLINED [[gnu::always_inline]] inline
#else
#define ZEL_INLINED inline
#endif
