#pragma once

#include <cstdint>

namespace OvZel {

class IZelExtStorageWriter;
class IZelMgrRef;

/// What the data blocks of a file need of the document. It outlives every provider on it.
class IBlockHost {
public:
    virtual IZelMgrRef& blockMgrRef() = 0;
    /// A message to the client. Throws nothing.
    virtual void sendMessage(const char* text) = 0;
    /// Throws CZelCancelled once the client has asked for an end.
    virtual void reportProgress(std::int32_t position, std::int32_t total) = 0;
    /// The storage that the running save takes meshes from.
    virtual IZelExtStorageWriter* storageWriter() = 0;

protected:
    ~IBlockHost() = default;
};

} // namespace OvZel
