#include "geometry/CFastReader.h"

#include "core/CZelMgrRef.h"
#include "core/OvThrow.h"
#include "core/inlined.h"
#include "geometry/CPolygon.h"
#include "geometry/digitLanes.h"

#include <algorithm>
#include <cstdint>
#include <stdexcept>

// Most functions here are inlined: a number depends on the one in front of it by its place alone,
// which stays in a register, from number to number, only where all of them become one function;
// handed on through memory it is what a mesh waits for.

namespace OvZel {

namespace {

/// Stands for numbers that are not finite.
constexpr double kBeyond = 1e30;

bool isBlank(int c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

/// The value of a digit; 10 or more for everything else, the end of the stream included.
unsigned digitOf(int c)
{
    return static_cast<unsigned>(c) - '0';
}

int lower(int c)
{
    return c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c;
}

[[noreturn]] void failNoNumber()
{
    throw std::runtime_error("This is not a number");
}

// A number is scanned twice in the rare case that it isn't whole in the reader's window. The first
// scan runs over the window without asking for its end, since the NUL behind it ends every loop;
// the second one takes the characters from the reader.

struct CWindow {
    explicit CWindow(const OrvaneXML::CXMLBufferedReader& in) : position(in.Begin()), end(in.End())
    {
    }

    int ReadChar() { return static_cast<unsigned char>(*position++); }
    /// Whether all that was read stands in the window.
    bool isWhole() const { return position <= end; }

    const char* position;
    const char* end;
};

template <class Source>
ZEL_INLINED int nextSolid(Source& in)
{
    int c = in.ReadChar();
    while (isBlank(c))
        c = in.ReadChar();
    return c;
}

/// Blanks are allowed in front of the sign and behind it.
template <class Source>
ZEL_INLINED int nextOfNumber(Source& in, bool& negative)
{
    const int c = nextSolid(in);
    negative = c == '-';
    return c == '+' || c == '-' ? nextSolid(in) : c;
}

template <class Source>
ZEL_INLINED bool scanInteger(Source& in, std::int32_t& result)
{
    bool negative = false;
    int c = nextOfNumber(in, negative);
    if (digitOf(c) > 9)
        return false;
    std::uint32_t value = 0;
    for (; digitOf(c) <= 9; c = in.ReadChar())
        value = value * 10 + digitOf(c);
    if (c == '.')
        throw std::runtime_error("This is not a integer");
    result = static_cast<std::int32_t>(negative ? 0 - value : value);
    return true;
}

/// True for a whole integer within the window.
ZEL_INLINED bool takeInteger(CWindow& in, std::int32_t& result)
{
    return scanInteger(in, result) && in.isWhole();
}

/// What each digit adds at each place behind the point: digit x weight, the weight of a place being
/// 0.1 times that of the one before. Adding these products in order is what defines the value; a
/// correctly rounded conversion gives other doubles for two numbers in five.
struct CProducts {
    static constexpr int kPlaces = 20;

    constexpr CProducts()
    {
        double weight = 0.1;
        for (auto& place : of) {
            for (unsigned digit = 0; digit < 10; ++digit)
                place[digit] = digit * weight;
            weight *= 0.1;
        }
        nextWeight = weight;
    }

    double of[kPlaces][10]{};
    double nextWeight = 0.0;
};

constexpr CProducts kProducts;

template <class Source>
ZEL_INLINED double scanFraction(Source& in, double value)
{
    int c = in.ReadChar();
    for (int place = 0; place < CProducts::kPlaces; ++place, c = in.ReadChar()) {
        if (digitOf(c) > 9)
            return value;
        value += kProducts.of[place][digitOf(c)];
    }
    for (double weight = kProducts.nextWeight; digitOf(c) <= 9; c = in.ReadChar(), weight *= 0.1)
        value += digitOf(c) * weight;
    return value;
}

/// Most fractions have six digits, and these stand in the window, so that they are one word.
ZEL_INLINED bool scanSix(CWindow& in, double& value)
{
    if (in.end - in.position < 8)
        return false;
    const std::uint64_t digits = digitLanes(OrvaneXML::lanesAt(in.position));
    constexpr std::uint64_t kSeven = 0x00FFFFFFFFFFFFFF;
    if ((lanesBeyondDigits(digits) & kSeven) != std::uint64_t{0x80} << 48)
        return false;
    const auto product = [digits](int place) {
        return kProducts.of[place][digits >> 8 * place & 0xF];
    };
    value = value + product(0) + product(1) + product(2) + product(3) + product(4) + product(5);
    in.position += 7;
    return true;
}

/// A reader has no word to look at.
bool scanSix(OrvaneXML::CXMLBufferedReader&, double&)
{
    return false;
}

/// Up to 15 digits are exact in an integer and in a double alike, and an integer is quicker.
template <class Source>
ZEL_INLINED double scanWhole(Source& in, int& c)
{
    constexpr std::uint64_t kExact = 100'000'000'000'000;
    std::uint64_t start = 0;
    for (; digitOf(c) <= 9 && start < kExact; c = in.ReadChar())
        start = start * 10 + digitOf(c);
    auto value = static_cast<double>(start);
    for (; digitOf(c) <= 9; c = in.ReadChar())
        value = value * 10.0 + digitOf(c);
    return value;
}

/// False when neither a digit nor a point comes; c is then what came behind the sign.
template <class Source>
ZEL_INLINED bool scanDouble(Source& in, double& value, bool& negative, int& c)
{
    c = nextOfNumber(in, negative);
    if (digitOf(c) > 9 && c != '.')
        return false;
    value = scanWhole(in, c);
    if (c == '.' && !scanSix(in, value))
        value = scanFraction(in, value);
    return true;
}

/// True for a whole number within the window that is written in digits.
template <class Real>
ZEL_INLINED bool takeReal(CWindow& in, Real& result)
{
    double value = 0.0;
    bool negative = false;
    int c = 0;
    if (!scanDouble(in, value, negative, c) || !in.isWhole())
        return false;
    result = static_cast<Real>(negative ? -value : value);
    return true;
}

/// True for three of these.
ZEL_INLINED bool takePoint(CWindow& in, double (&xyz)[3])
{
    return takeReal(in, xyz[0]) && takeReal(in, xyz[1]) && takeReal(in, xyz[2]);
}

/// True for a whole vertex within the window.
ZEL_INLINED bool takeVertex(CWindow& in, CZelVertex& vertex)
{
    vertex = {};
    int c = nextSolid(in);
    if (c == 'I') {
        vertex.flags |= CZelVertex::kFlagI;
        c = nextSolid(in);
    }
    if (c == 'M') {
        vertex.flags |= CZelVertex::kFlagM;
        if (!takeReal(in, vertex.u) || !takeReal(in, vertex.v))
            return false;
    } else {
        --in.position;
    }
    return takeInteger(in, vertex.pointIndex);
}

} // namespace

std::int32_t CFastReader::readInteger()
{
    std::int32_t value = 0;
    CWindow window(mIn);
    if (scanInteger(window, value) && consume(window.position))
        return value;
    if (!scanInteger(mIn, value))
        failNoNumber();
    return value;
}

double CFastReader::readDouble()
{
    double value = 0.0;
    bool negative = false;
    int c = 0;
    CWindow window(mIn);
    const bool whole = scanDouble(window, value, negative, c) && consume(window.position);
    if (!whole && !scanDouble(mIn, value, negative, c))
        value = readWord(c);
    return negative ? -value : value;
}

double CFastReader::readWord(int first)
{
    const bool nan = lower(first) == 'n';
    if (!nan && lower(first) != 'i')
        failNoNumber();
    const char* rest = nan ? "an" : "nf";
    for (int i = 0; i < 2; ++i)
        if (lower(mIn.ReadChar()) != rest[i])
            failNoNumber();
    mMgrRef.warning(nan ? "NaN double." : "INF double.");
    return kBeyond;
}

bool CFastReader::readShort(CShortPolygon& polygon)
{
    CWindow in(mIn);
    const int kind = nextSolid(in);
    polygon.isSmooth = kind == 'o';
    if ((kind != 'p' && kind != 'o') || !takeInteger(in, polygon.material) ||
        !takeInteger(in, polygon.nbVertices) || polygon.nbVertices < 0 ||
        polygon.nbVertices > CShortPolygon::kMostVertices)
        return false;
    for (std::int32_t i = 0; i < polygon.nbVertices; ++i)
        if (!takeVertex(in, polygon.vertices[i]))
            return false;
    mIn.Consume(static_cast<std::size_t>(in.position - mIn.Begin()));
    return true;
}

void CFastReader::readPoint(double (&xyz)[3])
{
    CWindow in(mIn);
    if (takePoint(in, xyz))
        return mIn.Consume(static_cast<std::size_t>(in.position - mIn.Begin()));
    for (double& coordinate : xyz)
        coordinate = readDouble();
}

void CFastReader::readLoop(CVertexMgr& vertices)
{
    const std::int32_t count = readInteger();
    for (std::int32_t i = 0; i < count; ++i) {
        CZelVertex* vertex = vertices.append();
        OvThrow::IfNULL(vertex);
        readVertex(*vertex);
    }
}

void CFastReader::readVertex(CZelVertex& vertex)
{
    int c = nextSolid(mIn);
    if (c == 'I') {
        vertex.flags |= CZelVertex::kFlagI;
        c = nextSolid(mIn);
    }
    if (c == 'M') {
        vertex.flags |= CZelVertex::kFlagM;
        vertex.u = static_cast<float>(readDouble());
        vertex.v = static_cast<float>(readDouble());
    } else {
        mIn.UnRead();
    }
    vertex.pointIndex = readInteger();
}

void CFastReader::readPolygon(CPolygon& polygon)
{
    const int kind = nextSolid(mIn);
    if (kind != 'o' && kind != 'p' && kind != 'h')
        mMgrRef.warning("Polygon type unknown");
    polygon.setMaterial(readInteger());
    polygon.setSmooth(kind == 'o');
    const std::int32_t loops = kind == 'h' ? readInteger() : 1;
    readLoop(polygon.vertices().manager());
    if (loops <= 1)
        return;
    polygon.holes().reserve(std::min(loops - 1, kRoomAhead));
    for (std::int32_t i = 1; i < loops; ++i) {
        CLoop* hole = polygon.holes().append();
        OvThrow::IfNULL(hole);
        readLoop(hole->vertices().manager());
    }
}

} // namespace OvZel
