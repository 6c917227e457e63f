#pragma once

#include <exception>
#include <new>

namespace OvZel {

/// Runs the reads of items that came into the format one after the other: a file ends where its
/// version ended, and what was not read keeps its value.
template <class Reads>
void readWhileItLasts(Reads&& reads)
{
    try {
        reads();
    } catch (const std::bad_alloc&) {
        throw; // the item may well be there
    } catch (const std::exception&) {
        // The first missing item ends the block; that is no failure.
    }
}

} // namespace OvZel
