#include "views/CZelInsertionObject.h"

#include <algorithm>

namespace OvZel {

namespace {

/// The entry of a table, or null for a bad index. A negative one is simply too large.
template <class Table>
auto entry(Table& table, std::int32_t index)
{
    const auto place = static_cast<std::size_t>(static_cast<std::uint32_t>(index));
    return place < table.size() ? &table[place] : nullptr;
}

template <class Table>
float valueAt(const Table& table, std::int32_t index)
{
    const float* value = entry(table, index);
    return value != nullptr ? *value : 0.0F;
}

template <class Table>
void setValueAt(Table& table, std::int32_t index, float value)
{
    if (float* place = entry(table, index))
        *place = value;
}

/// Zeros without an array.
template <class T, std::size_t Size>
void take(std::array<T, Size>& kept, const T* given)
{
    if (given != nullptr)
        std::copy_n(given, Size, kept.begin());
    else
        kept.fill(T());
}

/// Nothing without an array.
template <class T, std::size_t Size>
void give(const std::array<T, Size>& kept, T* asked)
{
    if (asked != nullptr)
        std::copy_n(kept.begin(), Size, asked);
}

template <class T>
void give(const T& kept, T* asked)
{
    if (asked != nullptr)
        *asked = kept;
}

/// Sizes go through single precision, so that large ones give what other readers of the file
/// compute.
CZelPoint2D normalise(const CZelPixel2D& pixel, std::uint32_t width, std::uint32_t height)
{
    const double horizontal = static_cast<float>(width);
    const double vertical = static_cast<float>(height);
    if (height > width) {
        const double factor = 1.0 / vertical;
        return {pixel.x * factor, pixel.y * factor};
    }
    return {width != 0 ? pixel.x / horizontal : 0.0, height != 0 ? pixel.y / vertical : 0.0};
}

} // namespace

CZelPoint2D CZelInsertionObject::getAxesPosition(std::int32_t index) const
{
    if (const CZelPoint2D* point = entry(mAxesPositions, index))
        return *point;
    warn("getAxesPosition: index out of range");
    return {};
}

void CZelInsertionObject::setAxesPosition(std::int32_t index, const CZelPoint2D& point)
{
    if (CZelPoint2D* place = entry(mAxesPositions, index))
        *place = point;
    else
        warn("setAxesPosition: index out of range");
}

void CZelInsertionObject::getVanishingLinesPointsPosition(std::int32_t index,
                                                          CZelPoint2D* point) const
{
    const CZelPoint2D* found = entry(mNormalised, index);
    if (found == nullptr)
        warn("getVanishingLinesPointsPosition: index out of range");
    give(found != nullptr ? *found : CZelPoint2D(), point);
}

void CZelInsertionObject::getVanishingLinesPointsPosition(std::int32_t index,
                                                          CZelPixel2D* point) const
{
    const CZelPixel2D* found = entry(mPixels, index);
    if (found == nullptr)
        warn("getVanishingLinesPointsPosition: index out of range");
    give(found != nullptr ? *found : CZelPixel2D(), point);
}

void CZelInsertionObject::setVanishingLinesPointsPosition(std::int32_t index,
                                                          const CZelPoint2D& point)
{
    if (CZelPoint2D* place = entry(mNormalised, index))
        *place = point;
    else
        warn("setVanishingLinesPointsPosition: index out of range");
}

void CZelInsertionObject::setVanishingLinesPointsPosition(std::int32_t index,
                                                          const CZelPixel2D& point)
{
    CZelPixel2D* place = entry(mPixels, index);
    if (place == nullptr)
        return warn("setVanishingLinesPointsPosition: index out of range");
    *place = point;
    *entry(mNormalised, index) = normalise(point, mWidth, mHeight);
}

void CZelInsertionObject::setValue(std::int32_t index, float value)
{
    setValueAt(mValues, index, value);
}

float CZelInsertionObject::getValue(std::int32_t index) const
{
    return valueAt(mValues, index);
}

void CZelInsertionObject::getAccumulator(float* value) const
{
    give(mAccumulator, value);
}

void CZelInsertionObject::setPictureSize(std::uint32_t width, std::uint32_t height, bool keep)
{
    if (keep && width == mWidth && height == mHeight)
        return;
    mWidth = width;
    mHeight = height;
}

void CZelInsertionObject::getPictureSize(std::uint32_t* width, std::uint32_t* height) const
{
    give(mWidth, width);
    give(mHeight, height);
}

void CZelInsertionObject::setSixValue(std::int32_t index, float value)
{
    setValueAt(mSixValues, index, value);
}

void CZelInsertionObject::resetSixValues()
{
    mSixValues.fill(1.0F);
    mFlagE = false;
}

float CZelInsertionObject::getSixValue(std::int32_t index) const
{
    return valueAt(mSixValues, index);
}

void CZelInsertionObject::saveSnapshot(std::uint32_t width, std::uint32_t height, bool flagA,
                                       bool flagB, bool flagC, bool flagD,
                                       const CZelPoint2D* normalised, const CZelPixel2D* pixels,
                                       const float* values, const float* firstThree,
                                       const float* lastThree)
{
    mSnapshot.width = width;
    mSnapshot.height = height;
    mSnapshot.flagA = flagA;
    mSnapshot.flagB = flagB;
    mSnapshot.flagC = flagC;
    mSnapshot.flagD = flagD;
    take(mSnapshot.normalised, normalised);
    take(mSnapshot.pixels, pixels);
    take(mSnapshot.values, values);
    take(mSnapshot.firstThree, firstThree);
    take(mSnapshot.lastThree, lastThree);
}

void CZelInsertionObject::restoreSnapshot(std::uint32_t* width, std::uint32_t* height, bool* flagA,
                                          bool* flagB, bool* flagC, bool* flagD,
                                          CZelPoint2D* normalised, CZelPixel2D* pixels,
                                          float* values, float* firstThree, float* lastThree) const
{
    give(mSnapshot.width, width);
    give(mSnapshot.height, height);
    give(mSnapshot.flagA, flagA);
    give(mSnapshot.flagB, flagB);
    give(mSnapshot.flagC, flagC);
    give(mSnapshot.flagD, flagD);
    give(mSnapshot.normalised, normalised);
    give(mSnapshot.pixels, pixels);
    give(mSnapshot.values, values);
    give(mSnapshot.firstThree, firstThree);
    give(mSnapshot.lastThree, lastThree);
}

CZelPoint2D CZelInsertionObject::getPerpectiveToolPosition(std::int32_t index) const
{
    if (const CZelPoint2D* point = entry(mPerpectiveToolPositions, index))
        return *point;
    warn("getPerpectiveToolPosition: index out of range");
    return {};
}

void CZelInsertionObject::setPerpectiveToolPosition(std::int32_t index, const CZelPoint2D& point)
{
    if (CZelPoint2D* place = entry(mPerpectiveToolPositions, index))
        *place = point;
    else
        warn("setPerpectiveToolPosition: index out of range");
}

const CZelPoint& CZelInsertionObject::getReperePosition(std::int32_t index) const
{
    if (const CZelPoint* point = entry(mReperePositions, index))
        return *point;
    warn("getReperePosition: index out of range");
    return mNoReperePosition;
}

void CZelInsertionObject::setReperePosition(std::int32_t index, const CZelPoint& point)
{
    if (CZelPoint* place = entry(mReperePositions, index))
        *place = point;
    else
        warn("setReperePosition: index out of range");
}

} // namespace OvZel
