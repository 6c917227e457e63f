#pragma once

#include "geometry/CLoopVertices.h"
#include "xml/tree/CXMLBufferedReader.h"

#include <zel/CZelPoint.h>
#include <zel/CZelVertex.h>

#include <cstddef>
#include <cstdint>

namespace OvZel {

class CPolygon;
class CZelMgrRef;

/// Reads the texts of geometry blocks.
///
/// A number takes the character behind it along. What is no number raises "This is not a number",
/// and so does the end of the stream.
class CFastReader {
public:
    /// Counts in a file are claims: no more room than for this many records is made before the
    /// records have arrived.
    static constexpr std::int32_t kRoomAhead = 65'536;

    CFastReader(CZelMgrRef& mgrRef, OrvaneXML::CXMLBufferedReader& in) : mMgrRef(mgrRef), mIn(in) {}

    /// Too many digits wrap around. A point behind the digits raises "This is not a integer".
    std::int32_t readInteger();
    /// Understands no exponent. The words "nan" and "inf", in either case, warn and give 1e30, with
    /// a minus sign -1e30.
    double readDouble();
    void readPoint(double (&xyz)[3]);
    /// Appends the vertices of one loop.
    void readLoop(CVertexMgr& vertices);
    /// Fills an empty polygon.
    void readPolygon(CPolygon& polygon);

    /// A polygon without holes and with few vertices.
    struct CShortPolygon {
        static constexpr std::int32_t kMostVertices = 64;

        std::span<const CZelVertex> loop() const
        {
            return {vertices, static_cast<std::size_t>(nbVertices)};
        }

        std::int32_t material;
        bool isSmooth;
        std::int32_t nbVertices;
        CZelVertex vertices[kMostVertices];
    };
    /// Quicker than readPolygon. False, with nothing read, for a polygon that is none of these,
    /// that isn't whole in the reader's window, or that is broken.
    bool readShort(CShortPolygon& polygon);

private:
    /// Steps up to there, unless it lies behind the window.
    bool consume(const char* position)
    {
        if (position > mIn.End())
            return false;
        mIn.Consume(static_cast<std::size_t>(position - mIn.Begin()));
        return true;
    }
    double readWord(int first);
    void readVertex(CZelVertex& vertex);

    CZelMgrRef& mMgrRef;
    OrvaneXML::CXMLBufferedReader& mIn;
};

} // namespace OvZel
