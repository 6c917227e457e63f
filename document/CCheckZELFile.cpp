#include "document/CCheckZELFile.h"

#include "xml/tree/CXMLText.h"

#include <cstring>

namespace OvZel {

namespace {

/// The whole part of a number from a file, which may be anything.
std::int32_t wholePart(double value)
{
    constexpr double kMost = 2147483647.0;
    return value > -kMost && value < kMost ? static_cast<std::int32_t>(value) : 0;
}

/// Old files wrote 2.01 for 2.0.1.
CZelVersion fromDecimal(double value)
{
    value += 0.00001;
    return {wholePart(value), wholePart(10 * value) % 10, wholePart(100 * value) % 10};
}

} // namespace

bool CCheckZELFile::Instruction(const char* target, const char* content)
{
    if (std::strcmp(target, "Zel") != 0)
        return true;
    double library = 0, file = 0, minVersion = 0, safeVersion = 0;
    const int decimals = OrvaneXML::scanTextf(
        content, "library=\"%lf\" file=\"%lf\" min_version=\"%lf\" safe_version=\"%lf\" ", &library,
        &file, &minVersion, &safeVersion);
    if (decimals >= 2) {
        mLibrary = fromDecimal(library);
        mMinVersion = fromDecimal(minVersion);
        mSafeVersion = fromDecimal(safeVersion);
    } else {
        CZelVersion v, min, safe;
        const int parts = OrvaneXML::scanTextf(
            content,
            "library=\"%d.%d.%d\" file=\"%lf\" min_version=\"%d.%d.%d\" safe_version=\"%d.%d.%d\" ",
            &v.major, &v.minor, &v.patch, &file, &min.major, &min.minor, &min.patch, &safe.major,
            &safe.minor, &safe.patch);
        if (parts == 10) {
            mLibrary = v;
            mMinVersion = min;
            mSafeVersion = safe;
        }
    }
    mFileMajor = wholePart(file);
    mFileMinor = wholePart((file - mFileMajor) * 10);
    return false;
}

} // namespace OvZel
