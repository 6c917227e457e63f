#include "core/generateId.h"

#include "core/systemRandom.h"

#include <array>
#include <stdexcept>

namespace OvZel {

namespace {

/// Random bytes drawn in blocks, one store a thread, since a system call per identifier costs more
/// than everything else in making an object.
struct CRandomStore {
    std::array<CZelUUID, 64> ids{};
    std::size_t next = 64;
    unsigned forks = 0;

    CZelUUID draw()
    {
        if (next == ids.size() || forks != forkCount())
            fill();
        return ids[next++];
    }

    void fill()
    {
        if (!systemRandom(ids.data(), sizeof ids))
            throw std::runtime_error("Can't create UUID");
        forks = forkCount();
        next = 0;
    }
};

} // namespace

CZelUUID generateId()
{
    thread_local CRandomStore store;
    CZelUUID id = store.draw();
    id.bytes[6] = static_cast<std::uint8_t>((id.bytes[6] & 0x0F) | 0x40);
    id.bytes[8] = static_cast<std::uint8_t>((id.bytes[8] & 0x3F) | 0x80);
    return id;
}

} // namespace OvZel
