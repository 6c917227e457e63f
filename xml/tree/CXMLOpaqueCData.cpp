#include "xml/tree/CXMLOpaqueCData.h"

#include <algorithm>
#include <cstdint>

namespace OrvaneXML {

bool CXMLOpaqueCData::Write(XIXMLWriteStream* stream, void*, XIXMLData*)
{
    constexpr std::size_t kPiece = 1 << 30; // a stream counts in 32 bits
    for (std::size_t done = 0; done < mBytes.size(); done += kPiece) {
        const std::size_t size = std::min(kPiece, mBytes.size() - done);
        stream->Write(mBytes.data() + done, static_cast<std::uint32_t>(size));
    }
    return true;
}

} // namespace OrvaneXML
